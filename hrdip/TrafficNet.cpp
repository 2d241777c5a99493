#include "TrafficNet.h"

#include "TrafficPath.h"
#include "TrafficSpec.h"

#include <functional>
#include <utility>

namespace HrdIPToolCntr {

bool TrafficNet::ModelOrder::operator()(const TrafficNet* left, const TrafficNet* right) const
{
  if (left == nullptr || right == nullptr)
    return left == nullptr && right != nullptr;
  const auto place = [](const TrafficNet* net) {
    return std::make_pair(net->path->getIndex(), net->index);
  };
  if (place(left) != place(right))
    return place(left) < place(right);
  return std::less<const TrafficNet*>()(left, right);
}

TrafficNet::TrafficNet(TrafficPath* path, NetType type, int index)
  : instance(type == READ || type == WRITE_RESP ? path->slave : path->master),
    type(type),
    path(path),
    index(index)
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
