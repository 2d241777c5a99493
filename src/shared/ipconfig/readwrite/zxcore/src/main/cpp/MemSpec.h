#pragma once

#include "PhysicalSpec.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints::json {

// A memory tile location, as the constraints file reader fills it.
class IPCONFIG_READWRITE_EXPORT MemSpec : public PhysicalSpec {
public:
  MemSpec();
};

}  // namespace qpe::constraints::json
