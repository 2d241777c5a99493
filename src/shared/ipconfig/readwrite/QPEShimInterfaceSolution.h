#pragma once

#include "HDDMBel.h"
#include "ipconfig_readwrite_export.h"

#include <map>
#include <utility>
#include <vector>

class HDARPart;

namespace HrdIPToolCntr {
class TrafficLInst;
}

namespace IPConfig::Frameworks {

// What a placement decided for the array's shim: for a logical instance of
// the NoC traffic model, the one bel it took and whether that is locked, and
// for a bel the instance on it. Readers fill both maps directly: `placed`
// first, and the mirror in `reversePlaced` only if that insertion took
// place, so a second instance on a taken bel keeps its entry in `placed`
// while `reversePlaced` keeps the first.
class IPCONFIG_READWRITE_EXPORT QPEShimInterfaceSolution {
public:
  using Instance = const HrdIPToolCntr::TrafficLInst*;

  explicit QPEShimInterfaceSolution(const HDARPart& part);

  const HDARPart& getPart() const { return part; }

  // Judged on `reversePlaced`.
  bool empty() const { return reversePlaced.empty(); }
  void clear();

  // Lock every placement.
  void lockPlacement();
  void lockAll();
  // False if the instance has no placement.
  bool lockLogicalInst(Instance instance);
  // Append the instances, in map order.
  void getAllLockedInstances(std::vector<Instance>& out) const;
  void getAllPlacedInstances(std::vector<Instance>& out) const;

  // Erases the instance's bel from `reversePlaced` and the instance from `placed`.
  void removeLogicalInstance(Instance instance);
  void removeLogicalInstances(const std::vector<Instance>& instances);
  // Hands `from`'s bel on to `to`, with the lock inverted: an unlocked
  // `from` leaves `to` locked, a locked one leaves it unlocked. True.
  bool replaceLogicalInstances(Instance from, Instance to);
  // Becomes a copy of `other`'s placements with a valid bel and an instance,
  // locked where `other` locks them. True.
  bool copyFrom(const QPEShimInterfaceSolution& other);

  std::map<Instance, std::pair<HDDMBel, bool>> placed;
  std::map<HDDMBel, Instance> reversePlaced;

private:
  // Unlocked, with the mirror only if the instance was new.
  void place_(Instance instance, const HDDMBel& bel);

  const HDARPart& part;
};

}  // namespace IPConfig::Frameworks
