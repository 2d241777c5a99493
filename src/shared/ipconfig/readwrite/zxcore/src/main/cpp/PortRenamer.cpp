#include "PortRenamer.h"

#include "BaseConstraint.h"

#include <utility>

namespace qpe::constraints {

PortRenamer::PortRenamer(const std::map<std::string, std::string>& renames) : oldToNew(renames)
{
}

std::string PortRenamer::getNewPortName(const std::string& oldName) const
{
  const auto rename = oldToNew.find(oldName);
  return rename == oldToNew.end() ? oldName : rename->second;
}

void PortRenamer::getNewPortNames(const std::vector<std::string>& oldNames,
                                  std::vector<std::string>& newNames) const
{
  std::vector<std::string> renamed;
  renamed.reserve(oldNames.size());
  bool changed = false;
  for (const std::string& oldName : oldNames) {
    renamed.push_back(getNewPortName(oldName));
    changed = changed || renamed.back() != oldName;
  }
  if (changed)
    newNames = std::move(renamed);
}

void PortRenamer::renamePortObject(BaseConstraint* constr) const
{
  if (!constr || constr->getObjType() != BaseConstraint::PORT)
    return;
  const std::string oldName = constr->getObjName();
  const std::string newName = getNewPortName(oldName);
  if (newName != oldName)
    constr->setObjName(newName);
}

void PortRenamer::renameConstrObjectProperties(ConstrPropertiesMap& properties) const
{
  for (const auto& [oldName, newName] : oldToNew) {
    const auto entry = properties.find(oldName);
    if (entry == properties.end())
      continue;
    const ConstrProperties moved = entry->second;
    properties.erase(entry);
    properties[newName] = moved;
  }
}

}  // namespace qpe::constraints
