#include "Constraints.h"

namespace HrdIPToolCntr {

bool Constraints::addPlacementConst(const TrafficLInst* instance,
                                    const std::vector<const DevHrdIP::Component*>& components,
                                    bool isSoft)
{
  if (!placements.emplace(instance, Placement{components, isSoft}).second)
    return false;
  order.push_back(instance);
  return true;
}

void Constraints::getPlacementConst(const TrafficLInst* instance,
                                    std::vector<const DevHrdIP::Component*>& components,
                                    bool& isSoft) const
{
  const auto found = placements.find(instance);
  if (found == placements.end())
    return;
  components = found->second.components;
  isSoft = found->second.isSoft;
}

void Constraints::getAllConstrainedInstances(std::vector<const TrafficLInst*>& out) const
{
  out.insert(out.end(), order.begin(), order.end());
}

void Constraints::addDestIdConst(const TrafficLInst* instance, std::uint16_t destId)
{
  destIds.insert_or_assign(instance, destId);
}

}  // namespace HrdIPToolCntr
