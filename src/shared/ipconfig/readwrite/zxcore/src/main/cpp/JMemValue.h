#pragma once

#include "JLocationValue.h"
#include "MemSpec.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints::json {

// A memory tile location or range: column and row.
class IPCONFIG_READWRITE_EXPORT JMemValue : public JLocationValue<MemSpec> {
public:
  explicit JMemValue(const JValue& value);
};

}  // namespace qpe::constraints::json
