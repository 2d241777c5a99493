#pragma once

#include "JSimpleValue.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints::json {

// A string.
class IPCONFIG_READWRITE_EXPORT JString : public JSimpleValue {
public:
  using JSimpleValue::JSimpleValue;

  bool isValid() const override;
};

}  // namespace qpe::constraints::json
