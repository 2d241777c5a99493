#include "TrafficNet.h"

#include "TrafficPath.h"
#include "TrafficSpec.h"

namespace HrdIPToolCntr {

TrafficNet::TrafficNet(TrafficPath* path, NetType type)
  : instance(type == READ || type == WRITE_RESP ? path->slave : path->master),
    type(type),
    path(path)
{
}

const TrafficPerfSpec& TrafficNet::getPerfSpec() const
{
  return isRead() ? path->getReadPerfSpec() : path->getWritePerfSpec();
}

TrafficPerfSpec TrafficNet::getPerfSpec(unsigned phaseNumber) const
{
  const std::string* phase = path->getSpec().getPhaseName_(path->phaseGroupName, phaseNumber);
  if (!phase)
    return getPerfSpec();
  return isRead() ? path->getReadPerfSpec(*phase) : path->getWritePerfSpec(*phase);
}

unsigned TrafficNet::getEffectiveBw(unsigned bw, const std::string& phase) const
{
  const TrafficPerfSpec asked =
      isRead() ? path->getReadPerfSpec(phase) : path->getWritePerfSpec(phase);
  return asked.bandwidth == 0 ? 0 : bw;
}

}  // namespace HrdIPToolCntr
