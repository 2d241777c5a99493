#pragma once

#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

class PhysicalSpec;

// The compact text of a location in the group arrays of a constraints file:
// what is not set is left out, and there is no kind prefix. "tile_3",
// "(3,1)" or "3"; "" for an unset location.
class IPCONFIG_READWRITE_EXPORT PhysicalSpecFormatter {
public:
  explicit PhysicalSpecFormatter(const PhysicalSpec& spec);

  const std::string& toString();

private:
  const PhysicalSpec* spec;
  std::string text;
};

}  // namespace qpe::constraints
