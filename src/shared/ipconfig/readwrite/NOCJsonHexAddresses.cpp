#include "NOCJsonHexAddresses.h"

#include "TrafficAddressSpace.h"

namespace NOC {

namespace {

using Json = HCRapidJsonReadWriteUtils;

}  // namespace

std::string NOCJsonHexAddresses::toHexText(unsigned long value)
{
  static const char digits[] = "0123456789ABCDEF";
  char text[2 + 2 * sizeof value];
  char* begin = text + sizeof text;
  do {
    *--begin = digits[value & 0xF];
    value >>= 4;
  } while (value != 0);
  return "0x" + std::string(begin, text + sizeof text);
}

void NOCJsonHexAddresses::addSysAddresses(const HrdIPToolCntr::TrafficAddressSpace& space,
                                          JValue& object, JAllocator& alloc)
{
  JValue addresses(rapidjson::kArrayType);
  for (int i = 0; space.hasValidSysAddress(i); ++i) {
    JValue entry(rapidjson::kObjectType);
    Json::AddStringProperty(entry, "Base", toHexText(space.getSysAddress(i)), alloc);
    Json::AddStringProperty(entry, "Size", toHexText(space.getSysAddrSize(i)), alloc);
    addresses.PushBack(entry, alloc);
  }
  Json::AddGenericValueProperty(object, "SysAddresses", addresses, alloc);
}

void NOCJsonHexAddresses::addRemap(const HrdIPToolCntr::TrafficAddressSpace& space,
                                   JValue& object, JAllocator& alloc)
{
  if (space.remapAddrSpecs.empty())
    return;
  JValue remaps(rapidjson::kArrayType);
  for (const HrdIPToolCntr::RemapAddrSpec& remap : space.remapAddrSpecs) {
    JValue entry(rapidjson::kObjectType);
    Json::AddStringProperty(entry, "Logical", toHexText(remap.logical), alloc);
    Json::AddStringProperty(entry, "Physical", toHexText(remap.physical), alloc);
    Json::AddStringProperty(entry, "Range", toHexText(remap.range), alloc);
    remaps.PushBack(entry, alloc);
  }
  Json::AddGenericValueProperty(object, "Remap", remaps, alloc);
}

}  // namespace NOC
