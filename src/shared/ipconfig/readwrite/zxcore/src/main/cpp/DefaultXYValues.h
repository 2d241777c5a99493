#pragma once

#include <cstdint>

namespace qpe::constraints {

// The not-set value of relative offsets, where -1 is a proper offset.
struct DefaultXYValues {
  static constexpr std::int32_t XCoordinateNotSetValue = -9999;
  static constexpr std::int32_t YCoordinateNotSetValue = -9999;
};

}  // namespace qpe::constraints
