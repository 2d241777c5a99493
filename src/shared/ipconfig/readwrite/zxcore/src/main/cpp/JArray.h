#pragma once

#include "JBaseArray.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints::json {

// An array of any elements.
class IPCONFIG_READWRITE_EXPORT JArray : public JBaseArray {
public:
  using JBaseArray::JBaseArray;
};

}  // namespace qpe::constraints::json
