#pragma once

#include "TestSupport.h"

#include "HDARPartReader.h"
#include "HDGUIStatus.h"
#include "QPEShimInterfaceSolution.h"
#include "TrafficSpec.h"
#include "ZXLogicalArchModel.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>

namespace shim_support {

using namespace IPConfig::Frameworks;
namespace Defs = DevHrdIP::Definitions;

inline const HDARPart& demo()
{
  static const std::unique_ptr<HDARPart> part = HDARPartReader::readByName("qpe_demo");
  return *part;
}

inline HDDMBel bel(const std::string& hierarchicalName)
{
  return demo().getOracle().getBelByName(hierarchicalName);
}

// A design on the shipped device: a logical architecture, the traffic
// instances behind its shim ports, and a placement of them.
class ShimDesign : public testing_support::MessageLogTest {
protected:
  ShimDesign() : solution(demo()) {}

  // A shim port of `instance` served by the traffic instances `names`, each
  // added to the traffic model as neither master nor slave unless it is there already.
  ZXLogicalPort* addPort(ZXLogicalZXIPInstance* instance, const std::string& name,
                         std::initializer_list<const char*> names)
  {
    ZXLogicalPort* port = model.addShimPort(name, instance);
    for (const char* logical : names) {
      port->logicalInstNames.emplace_back(logical);
      if (!spec.getOthers().count(logical) && !spec.hasLogicalMaster(logical))
        spec.addLogicalInstance(logical, Defs::AXI_STRM, Defs::COMP_TYPE_UNKNOWN, {});
    }
    return port;
  }

  const HrdIPToolCntr::TrafficLInst* logical(const std::string& name) const
  {
    if (const HrdIPToolCntr::TrafficLInst* master = spec.hasLogicalMaster(name))
      return master;
    const auto found = spec.getOthers().find(name);
    return found == spec.getOthers().end() ? nullptr : found->second;
  }

  // Places the traffic instance on the bel "SITE/BEL", unlocked.
  void place(const std::string& name, const std::string& hierarchicalBel)
  {
    const HDDMBel placedBel = bel(hierarchicalBel);
    ASSERT_TRUE(placedBel.isValid()) << hierarchicalBel;
    solution.placed.emplace(logical(name), std::make_pair(placedBel, false));
    solution.reversePlaced.emplace(placedBel, logical(name));
  }

  // The hierarchical bel name of each placed instance, by instance name.
  std::map<std::string, std::string> placements(const QPEShimInterfaceSolution& of) const
  {
    std::map<std::string, std::string> names;
    for (const auto& [instance, placement] : of.placed)
      names[instance->name] = placement.first.getHierarchicalName1();
    return names;
  }

  ZXLogicalArchModel model;
  HrdIPToolCntr::TrafficSpec spec;
  QPEShimInterfaceSolution solution;
  HDGUIStatus status;
};

}  // namespace shim_support
