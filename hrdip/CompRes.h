#pragma once

#include "DestIdRepr.h"
#include "Route.h"
#include "TrafficNet.h"
#include "ipconfig_hrdip_export.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace DevHrdIP {
class Component;
class HIPDevice;
class Link;
}  // namespace DevHrdIP

namespace HrdIPToolCntr {

class TrafficLInst;
class TrafficPath;

// What the NoC compiler answered to a traffic model: the routes of the nets,
// where the logical instances were placed, and the destination identifiers
// of the components. Keys are pointers into the traffic model and the device, which
// outlive it.
class IPCONFIG_HRDIP_EXPORT CompRes {
public:
  enum SolutionType { NO_SOLUTION = 0, OPTIMAL = 1, SUBOPTIMAL = 2, DEADLOCKS = 3 };
  using DestId = DevHrdIP::DestIdRepr<6, 2, 4, unsigned short>;
  using Placement = std::pair<const DevHrdIP::Component*, bool>;  // component, locked
  using LatencyAndBw = std::pair<unsigned, unsigned>;
  using PhaseBw = std::map<std::string, unsigned>;
  // In the order of the nets in the traffic model, so that every walk of the
  // routes, and every file written from them, is the same from run to run.
  using Routes = std::map<const TrafficNet*, Route, TrafficNet::ModelOrder>;

  explicit CompRes(const DevHrdIP::HIPDevice* device = nullptr);

  const DevHrdIP::HIPDevice* device;
  int solutionType = NO_SOLUTION;
  // Turns on the per-phase figures of the solution file.
  bool phaseMode = false;
  Routes routes;
  std::map<const TrafficLInst*, Placement> placements;
  std::map<const DevHrdIP::Component*, const TrafficLInst*> placedInstances;
  std::map<const DevHrdIP::Component*, DestId> destIds;
  std::map<const TrafficPath*, LatencyAndBw> readLatencyBw;
  std::map<const TrafficPath*, LatencyAndBw> writeLatencyBw;
  std::map<const TrafficPath*, PhaseBw> readPhaseBw;
  std::map<const TrafficPath*, PhaseBw> writePhaseBw;

  // A net routed again replaces its route.
  void addRoute(const TrafficNet* net, const std::vector<const DevHrdIP::Link*>& links,
                unsigned char vc, unsigned achievedBw, bool locked);
  void addRouteWithPhases(const TrafficNet* net, const std::vector<const DevHrdIP::Link*>& links,
                          const PhaseBw& phaseBw, unsigned char vc, unsigned achievedBw,
                          const std::string& limitingPhase, bool locked);
  // Null if none.
  const Route* getRouteForNet(const TrafficNet* net) const;
  // A path is locked when the route of any of its nets is.
  bool isLocked(const TrafficPath* path) const;

  // The first placement of an instance stays, unlocked.
  void addPlacement(const TrafficLInst* instance, const DevHrdIP::Component* component);
  // False if the instance has no placement.
  bool lockLogicalInst(const TrafficLInst* instance);

  void setHasLockedDestIdsForAllComps(bool locked) { lockedDestIdsForAllComps = locked; }
  bool hasLockedDestIdsForAllComps() const { return lockedDestIdsForAllComps; }
  void setDestIdForComponent(const DevHrdIP::Component* component, DestId destId);
  bool hasDestIdForComponent(const DevHrdIP::Component* component) const;
  // 0 if the component has none.
  DestId getDestIdForComponent(const DevHrdIP::Component* component) const;

  // Bandwidth achieved by a path in a phase, replacing an earlier value.
  void addBPLReadPhase(const TrafficPath* path, const std::string& phase, unsigned bw);
  void addBPLWritePhase(const TrafficPath* path, const std::string& phase, unsigned bw);

private:
  bool lockedDestIdsForAllComps = false;
};

}  // namespace HrdIPToolCntr
