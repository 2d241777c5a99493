#include "TrafficAddressSpace.h"

namespace HrdIPToolCntr {

void TrafficAddressSpace::addRemapAddrSpec(unsigned long logical, unsigned long physical,
                                           unsigned long range)
{
  remapAddrSpecs.push_back({logical, physical, range});
}

void TrafficAddressSpace::addSysAddress(std::pair<unsigned long, unsigned long> baseAndSize)
{
  sysAddresses.add(baseAndSize);
  const auto [base, size] = baseAndSize;
  if (size != 0 && base + size > base)
    sysAddressIntervals.add(
        boost::icl::discrete_interval<unsigned long>::right_open(base, base + size));
}

TrafficAddressSpace::AddressRanges TrafficAddressSpace::getSysAddressRanges() const
{
  return {sysAddressIntervals.begin(), sysAddressIntervals.end()};
}

}  // namespace HrdIPToolCntr
