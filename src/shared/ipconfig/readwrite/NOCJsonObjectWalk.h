#pragma once

#include "HCRapidJsonReadWriteUtils.h"

#include <cstdint>
#include <string>

namespace HrdIPToolCntr {
class TrafficAddressSpace;
}

namespace NOC {

// Walks over the objects and arrays that the NoC files share, where the
// property getters of HCRapidJsonReadWriteUtils stop: nested arrays of
// objects, string maps and the address records of instances and paths.
class NOCJsonObjectWalk {
public:
  // Calls `read` on each object of the array under `key`, if there is one.
  template <typename Read>
  static void forEachObject(const JValue& object, const char* key, const Read& read)
  {
    if (!object.IsObject())
      return;
    const auto found = object.FindMember(key);
    if (found == object.MemberEnd() || !found->value.IsArray())
      return;
    for (const JValue& element : found->value.GetArray())
      if (element.IsObject())
        read(element);
  }

  // Calls `store(name, value)` for each member of `object` whose value is a string.
  template <typename Store>
  static void forEachStringMember(const JValue& object, const Store& store)
  {
    for (const auto& member : object.GetObject())
      if (member.value.IsString())
        store(std::string(member.name.GetString(), member.name.GetStringLength()),
              std::string(member.value.GetString(), member.value.GetStringLength()));
  }

  // The member's value when it is an object, else null.
  static const JValue* objectMember(const JValue& object, const char* key);
  static bool hasMember(const JValue& object, const char* key);
  static std::uint16_t low16(int value) { return static_cast<std::uint16_t>(value); }

  // "SysAddresses", or the older "SysAddress" with "SysAddressSize".
  static void readSysAddresses(const JValue& element, HrdIPToolCntr::TrafficAddressSpace& target);
  static void readRemap(const JValue& element, HrdIPToolCntr::TrafficAddressSpace& target);
};

}  // namespace NOC
