#include "NOCFindLogicalInstance.h"

#include "TrafficSpec.h"

namespace NOC {

HrdIPToolCntr::TrafficLInst* findLogicalInstance(const HrdIPToolCntr::TrafficSpec& spec,
                                                 const std::string& name)
{
  if (HrdIPToolCntr::TrafficLInst* master = spec.hasLogicalMaster(name))
    return master;
  if (HrdIPToolCntr::TrafficLInst* slave = spec.hasLogicalSlave(name))
    return slave;
  const auto found = spec.getOthers().find(name);
  return found == spec.getOthers().end() ? nullptr : found->second;
}

}  // namespace NOC
