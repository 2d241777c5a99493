#include "CompRes.h"

#include "TrafficPath.h"

namespace HrdIPToolCntr {

CompRes::CompRes(const DevHrdIP::HIPDevice* device) : device(device) {}

void CompRes::addRoute(const TrafficNet* net, const std::vector<const DevHrdIP::Link*>& links,
                       unsigned char vc, unsigned achievedBw, bool locked)
{
  addRouteWithPhases(net, links, {}, vc, achievedBw, {}, locked);
}

void CompRes::addRouteWithPhases(const TrafficNet* net,
                                 const std::vector<const DevHrdIP::Link*>& links,
                                 const PhaseBw& phaseBw, unsigned char vc, unsigned achievedBw,
                                 const std::string& limitingPhase, bool locked)
{
  Route& route = routes[net];
  route.vc = vc;
  route.limitingPhase = limitingPhase;
  route.links = links;
  route.achievedBw = achievedBw;
  route.locked = locked;
  route.achievedPhaseBw = phaseBw;
}

const Route* CompRes::getRouteForNet(const TrafficNet* net) const
{
  const auto found = routes.find(net);
  return found == routes.end() ? nullptr : &found->second;
}

bool CompRes::isLocked(const TrafficPath* path) const
{
  for (int i = 0; i < path->getNumNets(); ++i) {
    const Route* route = getRouteForNet(path->getNet(i));
    if (route && route->locked)
      return true;
  }
  return false;
}

void CompRes::addPlacement(const TrafficLInst* instance, const DevHrdIP::Component* component)
{
  if (placements.emplace(instance, Placement(component, false)).second)
    placedInstances.emplace(component, instance);
}

bool CompRes::lockLogicalInst(const TrafficLInst* instance)
{
  const auto found = placements.find(instance);
  if (found == placements.end())
    return false;
  found->second.second = true;
  return true;
}

void CompRes::setDestIdForComponent(const DevHrdIP::Component* component, DestId destId)
{
  destIds.insert_or_assign(component, destId);
}

bool CompRes::hasDestIdForComponent(const DevHrdIP::Component* component) const
{
  return destIds.count(component) != 0;
}

CompRes::DestId CompRes::getDestIdForComponent(const DevHrdIP::Component* component) const
{
  const auto found = destIds.find(component);
  return found == destIds.end() ? DestId() : found->second;
}

void CompRes::addBPLReadPhase(const TrafficPath* path, const std::string& phase, unsigned bw)
{
  readPhaseBw[path][phase] = bw;
}

void CompRes::addBPLWritePhase(const TrafficPath* path, const std::string& phase, unsigned bw)
{
  writePhaseBw[path][phase] = bw;
}

}  // namespace HrdIPToolCntr
