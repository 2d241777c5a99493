#include "NameList.h"

namespace qpe::constraints {

void NameList::add(const std::vector<std::string>& names)
{
  if (&names == &list) {
    const std::vector<std::string> held = names;
    add(held);
    return;
  }
  for (const std::string& name : names)
    if (members.insert(name).second)
      list.push_back(name);
}

void NameList::set(const std::vector<std::string>& names)
{
  if (&names == &list)
    return;
  list.clear();
  members.clear();
  add(names);
}

std::vector<std::string> NameList::softNames(const ConstrPropertiesMap& properties) const
{
  std::vector<std::string> soft;
  for (const std::string& name : get())
    if (ConstrProperties::hasNonDefaultProps(name, properties))
      soft.push_back(name);
  return soft;
}

std::string NameList::relationText(const std::string& objName, const char* text) const
{
  if (!isSet())
    return "";
  std::string out = " rel(" + objName + text;
  for (const std::string& name : get())
    out += name + ",";
  return out + ")";
}

}  // namespace qpe::constraints
