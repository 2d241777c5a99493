#include "ShimSpec.h"

namespace qpe::constraints::json {

ShimSpec::ShimSpec() : PhysicalSpec(Shim) {}

bool ShimSpec::isChannelSet() const
{
  return isIndexSet();
}

int ShimSpec::getChannel() const
{
  return getIndex();
}

void ShimSpec::setChannel(int channel)
{
  setIndex(channel);
}

}  // namespace qpe::constraints::json
