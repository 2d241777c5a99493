#pragma once

#include "PhysicalSpec.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints::json {

// A core tile location, as the constraints file reader fills it.
class IPCONFIG_READWRITE_EXPORT TileSpec : public PhysicalSpec {
public:
  TileSpec();
};

}  // namespace qpe::constraints::json
