#pragma once

#include "ConstrProperties.h"
#include "JBaseArray.h"
#include "ipconfig_readwrite_export.h"

#include <string>
#include <utility>

namespace qpe::constraints::json {

// A list whose elements are names, soft or not: "a", {"a": {"issoft": true}}
// or {"a": true}.
class IPCONFIG_READWRITE_EXPORT JObjectArrayWithProperties : public JBaseArray {
public:
  using NameWithProperties = std::pair<std::string, ConstrProperties>;

  using JBaseArray::JBaseArray;

  // The current element. In an object, the last member whose value is an
  // object or a boolean names it; any other element gives an empty name.
  NameWithProperties front() const;
};

}  // namespace qpe::constraints::json
