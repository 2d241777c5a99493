#include "NameList.h"

namespace qpe::constraints {

// The held list is copied to be changed, so the new names go in at once.
void NameList::add(const std::vector<std::string>& names)
{
  std::vector<std::string> grown;
  for (const std::string& name : names) {
    if (!members.insert(name).second)
      continue;
    if (grown.empty())
      grown = list.getStringVecVal();
    grown.push_back(name);
  }
  if (!grown.empty())
    list.setStringVecVal(grown);
}

void NameList::set(const std::vector<std::string>& names)
{
  if (&names == &list.getStringVecVal()) {
    const std::vector<std::string> held = names;
    set(held);
    return;
  }
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
