#pragma once

#include "ipconfig_hrdip_export.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace DevHrdIP {
class Component;
}

namespace HrdIPToolCntr {

class TrafficLInst;

// What the user pins before the NoC compiler runs: the components each
// logical instance may be placed on, and fixed destination identifiers.
class IPCONFIG_HRDIP_EXPORT Constraints {
public:
  // The first placement given for an instance stays; false for a later one.
  bool addPlacementConst(const TrafficLInst* instance,
                         const std::vector<const DevHrdIP::Component*>& components, bool isSoft);
  // Leaves both arguments alone when the instance has no placement.
  void getPlacementConst(const TrafficLInst* instance,
                         std::vector<const DevHrdIP::Component*>& components,
                         bool& isSoft) const;
  // Appends the placed instances in the order added.
  void getAllConstrainedInstances(std::vector<const TrafficLInst*>& out) const;

  // A given identifier replaces an earlier one.
  void addDestIdConst(const TrafficLInst* instance, std::uint16_t destId);
  bool hasInstsWithDestIdConstraint() const { return !destIds.empty(); }

private:
  struct Placement {
    std::vector<const DevHrdIP::Component*> components;
    bool isSoft;
  };

  std::vector<const TrafficLInst*> order;
  std::unordered_map<const TrafficLInst*, Placement> placements;
  std::unordered_map<const TrafficLInst*, std::uint16_t> destIds;
};

}  // namespace HrdIPToolCntr
