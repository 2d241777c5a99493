#pragma once

// Four coordinates in the order the array's ranges give them: the high corner
// (x, y), then the low corner (x, y).
template <typename T>
struct HDRectangle {
  T highX{};
  T highY{};
  T lowX{};
  T lowY{};

  constexpr HDRectangle() = default;
  constexpr HDRectangle(T hx, T hy, T lx, T ly) : highX(hx), highY(hy), lowX(lx), lowY(ly) {}

  constexpr bool operator==(const HDRectangle& other) const
  {
    return highX == other.highX && highY == other.highY && lowX == other.lowX &&
           lowY == other.lowY;
  }
  constexpr bool operator!=(const HDRectangle& other) const { return !(*this == other); }
};
