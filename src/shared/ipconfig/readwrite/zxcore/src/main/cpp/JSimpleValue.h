#pragma once

#include "JBaseValue.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints::json {

// A boolean, a signed 32-bit integer, a double or a string.
class IPCONFIG_READWRITE_EXPORT JSimpleValue : public JBaseValue {
public:
  using JBaseValue::JBaseValue;

  bool isValid() const override;
  // The text of a string; empty for anything else.
  std::string getString() const;
};

}  // namespace qpe::constraints::json
