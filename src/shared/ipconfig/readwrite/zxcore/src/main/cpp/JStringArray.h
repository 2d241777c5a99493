#pragma once

#include "JBaseArray.h"
#include "ipconfig_readwrite_export.h"

#include <string>
#include <vector>

namespace qpe::constraints::json {

// An array of names.
class IPCONFIG_READWRITE_EXPORT JStringArray : public JBaseArray {
public:
  using JBaseArray::JBaseArray;

  // The non-empty strings in order; other elements are passed over.
  std::vector<std::string> getAsStringVec() const;
};

}  // namespace qpe::constraints::json
