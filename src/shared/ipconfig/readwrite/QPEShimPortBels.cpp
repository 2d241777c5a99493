#include "QPEShimPortBels.h"

#include "NOCFindLogicalInstance.h"
#include "QPEShimInterfaceSolution.h"
#include "ZXLogicalPort.h"

namespace IPConfig::Frameworks {

std::vector<HDDMBel> getConstraintsForLogicalInstance(const ZXLogicalPort* port,
                                                      const HrdIPToolCntr::TrafficSpec& spec,
                                                      const QPEShimInterfaceSolution& solution)
{
  std::vector<HDDMBel> bels;
  for (const std::string& name : port->logicalInstNames) {
    const HrdIPToolCntr::TrafficLInst* instance = NOC::findLogicalInstance(spec, name);
    if (!instance)
      continue;
    const auto placement = solution.placed.find(instance);
    if (placement != solution.placed.end() && placement->second.first.isValid())
      bels.push_back(placement->second.first);
  }
  return bels;
}

}  // namespace IPConfig::Frameworks
