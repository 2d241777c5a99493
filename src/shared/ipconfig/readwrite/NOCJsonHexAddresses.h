#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace HrdIPToolCntr {
class TrafficAddressSpace;
}  // namespace HrdIPToolCntr

namespace NOC {

// Addresses in the NoC files are written as text: "0x" and upper-case
// hexadecimal digits, so that 4096 is "0x1000" and 0 is "0x0".
class IPCONFIG_READWRITE_EXPORT NOCJsonHexAddresses {
public:
  static std::string toHexText(unsigned long value);

  // "SysAddresses": one {"Base", "Size"} object per system address, in order;
  // the key is added even when the array stays empty.
  static void addSysAddresses(const HrdIPToolCntr::TrafficAddressSpace& space, JValue& object,
                              JAllocator& alloc);
  // "Remap": one {"Logical", "Physical", "Range"} object per entry; the key is
  // added only when there are entries.
  static void addRemap(const HrdIPToolCntr::TrafficAddressSpace& space, JValue& object,
                       JAllocator& alloc);
};

}  // namespace NOC
