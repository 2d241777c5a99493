#include "JBaseValue.h"

namespace qpe::constraints::json {

const JValue& JBaseValue::nullValue()
{
  static const JValue null;
  return null;
}

const JValue& JBaseValue::member(const JValue& object, const std::string& key)
{
  if (key.empty() || !object.IsObject())
    return nullValue();
  const auto found = object.FindMember(key.c_str());
  return found == object.MemberEnd() ? nullValue() : found->value;
}

JBaseValue::JBaseValue(const JValue& viewed) : value(&viewed) {}

JBaseValue::~JBaseValue() = default;

bool JBaseValue::isValid() const
{
  return !value->IsNull();
}

const JValue& JBaseValue::getMember(const std::string& key) const
{
  return member(*value, key);
}

bool JBaseValue::isPair() const
{
  return value->IsArray() && value->Size() == 2;
}

bool JBaseValue::isIntPair() const
{
  return isPair() && (*value)[0].IsInt() && (*value)[1].IsInt();
}

}  // namespace qpe::constraints::json
