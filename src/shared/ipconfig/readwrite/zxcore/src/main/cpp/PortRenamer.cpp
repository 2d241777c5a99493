#include "PortRenamer.h"

#include "BaseConstraint.h"

#include <set>
#include <utility>

namespace qpe::constraints {

namespace {
thread_local PortRenamer::HashedScope* currentScope = nullptr;
}

PortRenamer::HashedScope::HashedScope(const RenameMap& renames)
    : oldToNew(renames), outer(currentScope)
{
  newNames.reserve(renames.size());
  for (const auto& [oldName, newName] : renames)
    newNames.emplace(oldName, &newName);
  currentScope = this;
}

PortRenamer::HashedScope::~HashedScope()
{
  currentScope = outer;
}

const std::string* PortRenamer::findNewName(const RenameMap& oldToNew, std::string_view oldName)
{
  if (currentScope && &currentScope->oldToNew == &oldToNew) {
    const auto found = currentScope->newNames.find(oldName);
    return found == currentScope->newNames.end() ? nullptr : found->second;
  }
  const auto found = oldToNew.find(std::string(oldName));
  return found == oldToNew.end() ? nullptr : &found->second;
}

PortRenamer::PortRenamer(const RenameMap& renames) : oldToNew(renames) {}

std::string PortRenamer::getNewPortName(const std::string& oldName) const
{
  return getNewPortName(oldToNew, oldName);
}

void PortRenamer::getNewPortNames(const std::vector<std::string>& oldNames,
                                  std::vector<std::string>& newNames) const
{
  getNewPortNames(oldToNew, oldNames, newNames);
}

void PortRenamer::renamePortObject(BaseConstraint* constr) const
{
  renamePortObject(oldToNew, constr);
}

void PortRenamer::renameConstrObjectProperties(ConstrPropertiesMap& properties) const
{
  renameConstrObjectProperties(oldToNew, properties);
}

std::string PortRenamer::getNewPortName(const RenameMap& oldToNew, const std::string& oldName)
{
  const std::string* newName = findNewName(oldToNew, oldName);
  return newName ? *newName : oldName;
}

void PortRenamer::getNewPortNames(const RenameMap& oldToNew,
                                  const std::vector<std::string>& oldNames,
                                  std::vector<std::string>& newNames)
{
  std::vector<std::string> renamed;
  renamed.reserve(oldNames.size());
  bool changed = false;
  for (const std::string& oldName : oldNames) {
    renamed.push_back(getNewPortName(oldToNew, oldName));
    changed = changed || renamed.back() != oldName;
  }
  if (changed)
    newNames = std::move(renamed);
}

void PortRenamer::renamePortObject(const RenameMap& oldToNew, BaseConstraint* constr)
{
  if (!constr || constr->getObjType() != BaseConstraint::PORT)
    return;
  const std::string oldName = constr->getObjName();
  const std::string* newName = findNewName(oldToNew, oldName);
  if (newName && *newName != oldName)
    constr->setObjName(*newName);
}

void PortRenamer::renameConstrObjectProperties(const RenameMap& oldToNew,
                                               ConstrPropertiesMap& properties)
{
  // The same as walking the whole rename map in key order, but in the size of
  // the properties: a moved entry is met again only when its new name is an
  // old name that the walk has not passed yet.
  std::set<std::string> pending;
  for (const auto& entry : properties)
    if (oldToNew.count(entry.first))
      pending.insert(entry.first);
  while (!pending.empty()) {
    const std::string oldName = std::move(pending.extract(pending.begin()).value());
    const auto entry = properties.find(oldName);
    const std::string& newName = oldToNew.find(oldName)->second;
    const ConstrProperties moved = entry->second;
    properties.erase(entry);
    properties[newName] = moved;
    if (newName > oldName && oldToNew.count(newName))
      pending.insert(newName);
  }
}

}  // namespace qpe::constraints
