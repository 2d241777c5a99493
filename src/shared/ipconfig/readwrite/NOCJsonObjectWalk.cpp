#include "NOCJsonObjectWalk.h"

#include "TrafficAddressSpace.h"

#include <cstdlib>

namespace NOC {

namespace {

using Json = HCRapidJsonReadWriteUtils;

// Addresses are numbers, or text in any base that strtoull takes.
unsigned long address(const JValue& object, const char* key)
{
  if (Json::IsStringProperty(object, key))
    return std::strtoull(Json::GetStringProperty(object, key).c_str(), nullptr, 0);
  return Json::GetULongProperty(object, key);
}

}  // namespace

const JValue* NOCJsonObjectWalk::objectMember(const JValue& object, const char* key)
{
  if (!object.IsObject())
    return nullptr;
  const auto found = object.FindMember(key);
  return found != object.MemberEnd() && found->value.IsObject() ? &found->value : nullptr;
}

bool NOCJsonObjectWalk::hasMember(const JValue& object, const char* key)
{
  return object.IsObject() && object.FindMember(key) != object.MemberEnd();
}

void NOCJsonObjectWalk::readSysAddresses(const JValue& element,
                                         HrdIPToolCntr::TrafficAddressSpace& target)
{
  if (hasMember(element, "SysAddresses")) {
    forEachObject(element, "SysAddresses", [&](const JValue& entry) {
      target.addSysAddress({address(entry, "Base"), address(entry, "Size")});
    });
  } else if (hasMember(element, "SysAddress")) {
    target.addSysAddress({Json::GetULongProperty(element, "SysAddress"),
                          Json::GetULongProperty(element, "SysAddressSize")});
  }
}

void NOCJsonObjectWalk::readRemap(const JValue& element,
                                  HrdIPToolCntr::TrafficAddressSpace& target)
{
  forEachObject(element, "Remap", [&](const JValue& entry) {
    target.addRemapAddrSpec(address(entry, "Logical"), address(entry, "Physical"),
                            address(entry, "Range"));
  });
}

}  // namespace NOC
