#pragma once

#include "JBasePair.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints::json {

// A pair of elements of any type.
class IPCONFIG_READWRITE_EXPORT JPair : public JBasePair {
public:
  using JBasePair::JBasePair;
};

}  // namespace qpe::constraints::json
