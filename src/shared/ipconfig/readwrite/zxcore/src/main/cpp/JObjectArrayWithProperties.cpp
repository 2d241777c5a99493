#include "JObjectArrayWithProperties.h"

namespace qpe::constraints::json {

JObjectArrayWithProperties::NameWithProperties JObjectArrayWithProperties::front() const
{
  const JValue& element = _front();
  NameWithProperties entry;
  if (element.IsString()) {
    entry.first.assign(element.GetString(), element.GetStringLength());
    return entry;
  }
  if (!element.IsObject())
    return entry;
  for (const auto& property : element.GetObject()) {
    const JValue& value = property.value;
    if (value.IsObject()) {
      const JValue& soft = member(value, "issoft");
      entry.second.isSoft = soft.IsBool() && soft.GetBool();
    } else if (value.IsBool()) {
      entry.second.isSoft = value.GetBool();
    } else {
      continue;
    }
    entry.first.assign(property.name.GetString(), property.name.GetStringLength());
  }
  return entry;
}

}  // namespace qpe::constraints::json
