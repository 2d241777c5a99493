#pragma once

#include "JLocationValue.h"
#include "TileSpec.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints::json {

// A core tile location or range: column and row.
class IPCONFIG_READWRITE_EXPORT JTileValue : public JLocationValue<TileSpec> {
public:
  explicit JTileValue(const JValue& value);
};

}  // namespace qpe::constraints::json
