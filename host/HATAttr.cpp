#include "HATAttr.h"

#include <cmath>
#include <limits>
#include <utility>

HATAttr::HATAttr(HATAttrTypes::AttrType type) : type_(type)
{
  switch (type) {
  case HATAttrTypes::AttrBool: value_ = false; break;
  case HATAttrTypes::AttrInt: value_ = 0; break;
  case HATAttrTypes::AttrDouble: value_ = 0.0; break;
  case HATAttrTypes::AttrString: value_ = std::string(); break;
  case HATAttrTypes::AttrStringList: value_ = HSTSList<std::string>(); break;
  }
}

HATAttr::HATAttr(const HATAttr&) = default;
HATAttr& HATAttr::operator=(const HATAttr&) = default;
HATAttr::~HATAttr() = default;

void HATAttr::setBoolVal(bool value)
{
  value_ = value;
}

void HATAttr::setIntVal(int value)
{
  value_ = value;
}

void HATAttr::setDoubleVal(double value)
{
  value_ = value;
}

void HATAttr::setStringVal(const char* value)
{
  value_ = std::string(value ? value : "");
}

void HATAttr::setStringList(HSTSList<std::string> value)
{
  value_ = std::move(value);
}

bool HATAttr::getBoolVal() const
{
  if (const bool* held = std::get_if<bool>(&value_))
    return *held;
  if (const int* held = std::get_if<int>(&value_))
    return *held != 0;
  if (const double* held = std::get_if<double>(&value_))
    return *held != 0.0;
  return false;
}

int HATAttr::getIntVal() const
{
  if (const int* held = std::get_if<int>(&value_))
    return *held;
  if (const bool* held = std::get_if<bool>(&value_))
    return *held ? 1 : 0;
  if (const double* held = std::get_if<double>(&value_)) {
    const double truncated = std::trunc(*held);
    const bool fits = truncated >= std::numeric_limits<int>::min() &&
                      truncated <= std::numeric_limits<int>::max();
    return fits ? static_cast<int>(truncated) : 0;
  }
  return 0;
}

double HATAttr::getDoubleVal() const
{
  if (const double* held = std::get_if<double>(&value_))
    return *held;
  if (const int* held = std::get_if<int>(&value_))
    return *held;
  if (const bool* held = std::get_if<bool>(&value_))
    return *held ? 1.0 : 0.0;
  return 0.0;
}

const char* HATAttr::getStringVal() const
{
  if (const std::string* held = std::get_if<std::string>(&value_))
    return held->c_str();
  return "";
}

const HSTSList<std::string>& HATAttr::getStringList() const
{
  static const HSTSList<std::string> empty;
  if (const auto* held = std::get_if<HSTSList<std::string>>(&value_))
    return *held;
  return empty;
}
