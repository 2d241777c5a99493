#include "JStringArray.h"

namespace qpe::constraints::json {

std::vector<std::string> JStringArray::getAsStringVec() const
{
  std::vector<std::string> names;
  if (!isValid())
    return names;
  for (const JValue& element : getValue().GetArray())
    if (element.IsString() && element.GetStringLength() > 0)
      names.emplace_back(element.GetString(), element.GetStringLength());
  return names;
}

}  // namespace qpe::constraints::json
