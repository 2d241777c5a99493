#pragma once

// A point of the array: x is the column, y the row.
template <typename T>
struct HDPoint {
  T x{};
  T y{};

  constexpr HDPoint() = default;
  constexpr HDPoint(T xValue, T yValue) : x(xValue), y(yValue) {}

  constexpr bool operator==(const HDPoint& other) const { return x == other.x && y == other.y; }
  constexpr bool operator!=(const HDPoint& other) const { return !(*this == other); }
};
