#include "QPEShimInterfaceConstraints.h"

namespace IPConfig::Frameworks {

QPEShimInterfaceConstraints::QPEShimInterfaceConstraints(
    const HDARPart& part, const std::vector<const HrdIPToolCntr::TrafficSpec*>& specs)
  : part(part), specs(specs)
{
}

void QPEShimInterfaceConstraints::clear()
{
  placements.clear();
  belUses.clear();
}

bool QPEShimInterfaceConstraints::hasLogical(const HDDMBel& bel) const
{
  return belUses.count(bel) != 0;
}

void QPEShimInterfaceConstraints::getPlacementConst(Instance instance, Bels& bels,
                                                    bool& flag) const
{
  const auto found = placements.find(instance);
  if (found == placements.end())
    return;
  flag = found->second.first;
  bels = found->second.second;
}

bool QPEShimInterfaceConstraints::addPlacementConst(Instance instance, const Bels& bels, bool flag)
{
  if (!placements.emplace(instance, std::make_pair(flag, bels)).second)
    return false;
  countBels_(bels, true);
  return true;
}

void QPEShimInterfaceConstraints::removePlacementConst(Instance instance)
{
  const auto found = placements.find(instance);
  if (found == placements.end())
    return;
  countBels_(found->second.second, false);
  placements.erase(found);
}

void QPEShimInterfaceConstraints::removePlacementConst(const std::vector<Instance>& instances)
{
  for (Instance instance : instances)
    removePlacementConst(instance);
}

bool QPEShimInterfaceConstraints::movePlacementConst(Instance from, Instance to)
{
  const auto found = placements.find(from);
  if (found == placements.end())
    return true;
  const std::pair<bool, Bels> placement = found->second;
  addPlacementConst(to, placement.second, placement.first);
  removePlacementConst(from);
  return true;
}

bool QPEShimInterfaceConstraints::replaceLogicalInstances(Instance from, Instance to)
{
  return movePlacementConst(from, to);
}

void QPEShimInterfaceConstraints::getAllConstrainedInstances(std::vector<Instance>& out) const
{
  for (const auto& entry : placements)
    out.push_back(entry.first);
}

bool QPEShimInterfaceConstraints::copyFrom(const QPEShimInterfaceConstraints& other)
{
  std::vector<Instance> instances;
  other.getAllConstrainedInstances(instances);
  for (Instance instance : instances) {
    Bels bels;
    bool flag = false;
    other.getPlacementConst(instance, bels, flag);
    if (!addPlacementConst(instance, bels, flag))
      return false;
  }
  return true;
}

void QPEShimInterfaceConstraints::countBels_(const Bels& bels, bool added)
{
  for (const HDDMBel& bel : bels) {
    if (added) {
      ++belUses[bel];
      continue;
    }
    const auto found = belUses.find(bel);
    if (--found->second == 0)
      belUses.erase(found);
  }
}

}  // namespace IPConfig::Frameworks
