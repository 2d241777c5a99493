#pragma once

#include "JLocationValue.h"
#include "ShimSpec.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints::json {

// A shim location or range: column and channel.
class IPCONFIG_READWRITE_EXPORT JShimValue : public JLocationValue<ShimSpec> {
public:
  explicit JShimValue(const JValue& value);
};

}  // namespace qpe::constraints::json
