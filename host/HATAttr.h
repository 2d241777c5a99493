#pragma once

#include "HSTSList.h"
#include "ipconfig_host_export.h"

#include <string>
#include <variant>

namespace HATAttrTypes {
// 4 and 5 belong to host types this library never uses.
enum AttrType : int {
  AttrBool = 0,
  AttrInt = 1,
  AttrDouble = 2,
  AttrString = 3,
  AttrStringList = 6,
};
}  // namespace HATAttrTypes

// A typed attribute value with a flag byte. The flag bits are the owner's to
// interpret; the library's AttrValue keeps its "is the default" bit there.
class IPCONFIG_HOST_EXPORT HATAttr {
public:
  explicit HATAttr(HATAttrTypes::AttrType type);
  HATAttr(const HATAttr&);
  HATAttr& operator=(const HATAttr&);
  ~HATAttr();

  HATAttrTypes::AttrType getType() const { return type_; }

  void setBoolVal(bool value);
  void setIntVal(int value);
  void setDoubleVal(double value);
  void setStringVal(const char* value);
  void setStringList(HSTSList<std::string> value);

  // Numeric getters convert between bool, int and double (a double is
  // truncated towards zero, 0 when out of the int range); any other held
  // value gives false, 0 or 0.0.
  bool getBoolVal() const;
  int getIntVal() const;
  double getDoubleVal() const;
  // An empty string unless a string is held.
  const char* getStringVal() const;
  // An empty list unless a list is held.
  const HSTSList<std::string>& getStringList() const;

  unsigned char* getFlags() { return &flags_; }
  const unsigned char* getFlags() const { return &flags_; }

private:
  using Value = std::variant<std::monostate, bool, int, double, std::string, HSTSList<std::string>>;

  HATAttrTypes::AttrType type_;
  Value value_;
  unsigned char flags_ = 0;
};
