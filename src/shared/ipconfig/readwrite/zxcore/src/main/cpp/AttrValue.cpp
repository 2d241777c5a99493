#include "AttrValue.h"

#include <utility>

namespace qpe::constraints {

namespace {
constexpr unsigned char defaultBit = 0x20;
}

AttrValue::AttrValue(HATAttrTypes::AttrType attrType) : HATAttr(attrType), type(attrType)
{
  clear();
  setDefault(true);
}

AttrValue::AttrValue(int value, int defaultValue)
    : HATAttr(HATAttrTypes::AttrInt), type(HATAttrTypes::AttrInt), defaultInt(defaultValue)
{
  setIntVal(value);
}

AttrValue::AttrValue(const std::string& value, const std::string& defaultValue)
    : HATAttr(HATAttrTypes::AttrString), type(HATAttrTypes::AttrString),
      defaultString(defaultValue.empty() ? nullptr : std::make_unique<const std::string>(defaultValue))
{
  setStringVal(value);
}

// The caches are not copied: they are refilled at each use.
AttrValue::AttrValue(const AttrValue& other)
    : HATAttr(other), type(other.type), defaultBool(other.defaultBool),
      defaultInt(other.defaultInt), defaultDouble(other.defaultDouble),
      defaultString(other.defaultString ? std::make_unique<const std::string>(*other.defaultString)
                                        : nullptr)
{
}

AttrValue& AttrValue::operator=(const AttrValue& other)
{
  if (this == &other)
    return *this;
  HATAttr::operator=(other);
  type = other.type;
  defaultBool = other.defaultBool;
  defaultInt = other.defaultInt;
  defaultDouble = other.defaultDouble;
  defaultString = other.defaultString
                      ? std::make_unique<const std::string>(*other.defaultString)
                      : nullptr;
  return *this;
}

AttrValue::~AttrValue() = default;

const std::string& AttrValue::getDefaultString() const
{
  static const std::string none;
  return defaultString ? *defaultString : none;
}

bool AttrValue::isDefault() const
{
  return (*getFlags() & defaultBit) != 0;
}

void AttrValue::setDefault(bool isDefaultValue)
{
  unsigned char& flags = *getFlags();
  flags = static_cast<unsigned char>(isDefaultValue ? flags | defaultBit : flags & ~defaultBit);
}

void AttrValue::clear()
{
  switch (type) {
  case HATAttrTypes::AttrBool: setBoolVal(defaultBool); break;
  case HATAttrTypes::AttrInt: setIntVal(defaultInt); break;
  case HATAttrTypes::AttrDouble: setDoubleVal(defaultDouble); break;
  case HATAttrTypes::AttrString: setStringVal(getDefaultString()); break;
  case HATAttrTypes::AttrStringList: setStringVecVal({}); break;
  }
}

void AttrValue::setBoolVal(bool value)
{
  HATAttr::setBoolVal(value);
  setDefault(value == defaultBool);
}

void AttrValue::setIntVal(int value)
{
  HATAttr::setIntVal(value);
  setDefault(value == defaultInt);
}

void AttrValue::setDoubleVal(double value)
{
  HATAttr::setDoubleVal(value);
  setDefault(value == defaultDouble);
}

void AttrValue::setStringVal(const std::string& value)
{
  HATAttr::setStringVal(value.c_str());
  setDefault(value == getDefaultString());
}

const std::string& AttrValue::getStringVal() const
{
  if (!holder)
    holder = std::make_unique<std::string>();
  *holder = HATAttr::getStringVal();
  return *holder;
}

void AttrValue::setStringVecVal(const std::vector<std::string>& values)
{
  setStringList(HSTSList<std::string>(values.begin(), values.end()));
  setDefault(values.empty());
}

void AttrValue::addStringVecVal(const std::string& value)
{
  // The host's list only goes forward from the front: find its end to append.
  HSTSList<std::string> values = getStringList();
  auto last = values.before_begin();
  for (auto next = values.begin(); next != values.end(); ++next)
    last = next;
  values.insert_after(last, value);
  setStringList(std::move(values));
  setDefault(false);
}

const std::vector<std::string>& AttrValue::getStringVecVal() const
{
  const HSTSList<std::string>& values = getStringList();
  if (!vecCache)
    vecCache = std::make_unique<std::vector<std::string>>();
  vecCache->assign(values.begin(), values.end());
  return *vecCache;
}

}  // namespace qpe::constraints
