#include "JBaseArray.h"

namespace qpe::constraints::json {

JBaseArray::JBaseArray(const JValue& value)
    : JBaseValue(value), cursor(value.IsArray() ? value.Begin() : nullptr)
{
}

JBaseArray::JBaseArray(const JValue& object, const std::string& key)
    : JBaseArray(member(object, key))
{
}

bool JBaseArray::isValid() const
{
  return getValue().IsArray();
}

bool JBaseArray::isEnd() const
{
  return !getValue().IsArray() || !cursor || cursor == getValue().End();
}

const JValue& JBaseArray::_front() const
{
  return isEnd() ? nullValue() : *cursor;
}

void JBaseArray::advance()
{
  if (!isEnd())
    ++cursor;
}

}  // namespace qpe::constraints::json
