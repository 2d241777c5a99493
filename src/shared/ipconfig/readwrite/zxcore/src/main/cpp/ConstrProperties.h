#pragma once

#include "ipconfig_readwrite_export.h"

#include <map>
#include <string>

namespace qpe::constraints {

struct ConstrProperties;

// Per-name properties of the names a constraint lists, keyed by name. Only
// names with non-default properties are kept.
using ConstrPropertiesMap = std::map<std::string, ConstrProperties>;

// What the file says of one listed name beyond the name itself. What "soft"
// means is for the consumer of the constraints to decide.
struct IPCONFIG_READWRITE_EXPORT ConstrProperties {
  bool isSoft = false;

  bool operator==(const ConstrProperties& other) const { return isSoft == other.isSoft; }
  bool operator!=(const ConstrProperties& other) const { return !(*this == other); }

  // The entry's isSoft, false for a name without an entry.
  static bool hasNonDefaultProps(const std::string& name, const ConstrPropertiesMap& properties);
};

}  // namespace qpe::constraints
