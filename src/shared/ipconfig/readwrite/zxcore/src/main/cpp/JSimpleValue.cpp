#include "JSimpleValue.h"

namespace qpe::constraints::json {

bool JSimpleValue::isValid() const
{
  const JValue& value = getValue();
  return value.IsBool() || value.IsInt() || value.IsDouble() || value.IsString();
}

std::string JSimpleValue::getString() const
{
  const JValue& value = getValue();
  return value.IsString() ? std::string(value.GetString(), value.GetStringLength()) : "";
}

}  // namespace qpe::constraints::json
