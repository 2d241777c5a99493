#pragma once

#include "IndexedPairs.h"
#include "ipconfig_hrdip_export.h"

#include <boost/icl/interval_set.hpp>
#include <boost/range/iterator_range.hpp>

#include <cstdint>
#include <utility>
#include <vector>

namespace HrdIPToolCntr {

// One remapping of addresses: `range` bytes at `logical` are seen at `physical`.
struct RemapAddrSpec {
  std::uint64_t logical;
  std::uint64_t physical;
  std::uint64_t range;
};

// The system addresses and remappings that a logical instance or a path
// carries. Entries are kept in the order given; the ranges are also merged
// into a set of intervals, which compares and can key a map.
class IPCONFIG_HRDIP_EXPORT TrafficAddressSpace {
public:
  using AddressIntervals = boost::icl::interval_set<unsigned long>;  // of discrete_interval
  using AddressRanges = boost::iterator_range<AddressIntervals::const_iterator>;

  std::vector<RemapAddrSpec> remapAddrSpecs;

  void addRemapAddrSpec(unsigned long logical, unsigned long physical, unsigned long range);

  // Base and size. A size of 0, or one that runs past the end of the address
  // space, adds the entry but no interval.
  void addSysAddress(std::pair<unsigned long, unsigned long> baseAndSize);
  // Walked from 0 until false.
  bool hasValidSysAddress(int index) const { return sysAddresses.hasValid(index); }
  unsigned long getSysAddress(int index) const { return sysAddresses.first(index); }
  unsigned long getSysAddrSize(int index) const { return sysAddresses.second(index); }
  AddressRanges getSysAddressRanges() const;

private:
  IndexedPairs<unsigned long> sysAddresses;
  AddressIntervals sysAddressIntervals;
};

}  // namespace HrdIPToolCntr
