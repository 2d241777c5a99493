#pragma once

#include "HDDMBel.h"
#include "ipconfig_readwrite_export.h"

#include <cstddef>
#include <map>
#include <utility>
#include <vector>

class HDARPart;

namespace HrdIPToolCntr {
class TrafficLInst;
class TrafficSpec;
}  // namespace HrdIPToolCntr

namespace IPConfig::Frameworks {

// What a design requires of the array's shim: for a logical instance of the
// NoC traffic model, the bels it may take, with a flag kept as the caller
// gave it. Instances are keys by pointer, so walks go in pointer order.
class IPCONFIG_READWRITE_EXPORT QPEShimInterfaceConstraints {
public:
  using Instance = const HrdIPToolCntr::TrafficLInst*;
  using Bels = std::vector<HDDMBel>;

  // Keeps the traffic specs in force; nothing here reads them.
  QPEShimInterfaceConstraints(const HDARPart& part,
                              const std::vector<const HrdIPToolCntr::TrafficSpec*>& specs);

  const HDARPart& getPart() const { return part; }
  const std::vector<const HrdIPToolCntr::TrafficSpec*>& getSpecs() const { return specs; }

  bool empty() const { return placements.empty(); }
  // Forgets the placements and keeps the specs.
  void clear();
  // Whether any instance may take the bel.
  bool hasLogical(const HDDMBel& bel) const;

  // Assigns the instance's bels and flag; leaves both alone if it has none.
  void getPlacementConst(Instance instance, Bels& bels, bool& flag) const;
  // False, and nothing changed, if the instance has a placement already.
  bool addPlacementConst(Instance instance, const Bels& bels, bool flag);
  void removePlacementConst(Instance instance);
  void removePlacementConst(const std::vector<Instance>& instances);
  // Adds `from`'s placement to `to` and removes it from `from`; a placement
  // that `to` has already stays, and `from`'s is then lost. True.
  bool movePlacementConst(Instance from, Instance to);
  // The same as movePlacementConst.
  bool replaceLogicalInstances(Instance from, Instance to);
  // Appends the constrained instances in map order.
  void getAllConstrainedInstances(std::vector<Instance>& out) const;

  // Adds `other`'s placements in its order. Stops with false at the first
  // instance this object has already, keeping what it added before.
  bool copyFrom(const QPEShimInterfaceConstraints& other);

private:
  void countBels_(const Bels& bels, bool added);

  const HDARPart& part;
  std::vector<const HrdIPToolCntr::TrafficSpec*> specs;
  std::map<Instance, std::pair<bool, Bels>> placements;
  // How many entries of the placements hold each bel, for hasLogical.
  std::map<HDDMBel, std::size_t> belUses;
};

}  // namespace IPConfig::Frameworks
