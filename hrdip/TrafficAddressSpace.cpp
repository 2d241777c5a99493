#include "TrafficAddressSpace.h"

namespace HrdIPToolCntr {

void TrafficAddressSpace::addRemapAddrSpec(unsigned long logical, unsigned long physical,
                                           unsigned long range)
{
  remapAddrSpecs.push_back({logical, physical, range});
}

void TrafficAddressSpace::addSysAddress(std::pair<unsigned long, unsigned long> baseAndSize)
{
  sysAddresses.push_back(baseAndSize);
  const auto [base, size] = baseAndSize;
  if (size != 0 && base + size > base)
    sysAddressIntervals.add(
        boost::icl::discrete_interval<unsigned long>::right_open(base, base + size));
}

bool TrafficAddressSpace::hasValidSysAddress(int index) const
{
  return index >= 0 && static_cast<std::size_t>(index) < sysAddresses.size();
}

unsigned long TrafficAddressSpace::getSysAddress(int index) const
{
  return hasValidSysAddress(index) ? sysAddresses[index].first : 0;
}

unsigned long TrafficAddressSpace::getSysAddrSize(int index) const
{
  return hasValidSysAddress(index) ? sysAddresses[index].second : 0;
}

TrafficAddressSpace::AddressRanges TrafficAddressSpace::getSysAddressRanges() const
{
  return {sysAddressIntervals.begin(), sysAddressIntervals.end()};
}

}  // namespace HrdIPToolCntr
