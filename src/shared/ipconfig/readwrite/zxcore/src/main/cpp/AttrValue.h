#pragma once

#include "HATAttr.h"
#include "ipconfig_readwrite_export.h"

#include <memory>
#include <string>
#include <vector>

namespace qpe::constraints {

// A typed value that knows its default and keeps the host's default bit set
// exactly when the value equals that default. The bit, never a sentinel
// value, is what tells an unset field of a constraint from a set one.
//
// The setters here hide HATAttr's so that every store keeps the bit true.
// Types 4 and 5 of HATAttrTypes are not used by the constraints.
class IPCONFIG_READWRITE_EXPORT AttrValue : public HATAttr {
public:
  // The type's default value, unset.
  explicit AttrValue(HATAttrTypes::AttrType type);
  AttrValue(int value, int defaultValue);
  AttrValue(const std::string& value, const std::string& defaultValue);
  AttrValue(const AttrValue&);
  AttrValue& operator=(const AttrValue&);
  ~AttrValue();

  HATAttrTypes::AttrType getAttrType() const { return type; }
  // The host's default bit.
  bool isDefault() const;
  bool isSet() const { return !isDefault(); }

  // Back to the type's default, unset. Types 4, 5 and above 6 stay as they are.
  void clear();

  void setBoolVal(bool value);
  void setIntVal(int value);
  void setDoubleVal(double value);
  void setStringVal(const std::string& value);
  // The value as a string; refills a cache inside this object.
  const std::string& getStringVal() const;

  // A list is unset exactly when it is empty.
  void setStringVecVal(const std::vector<std::string>& values);
  void addStringVecVal(const std::string& value);
  // The list; refills a cache inside this object.
  const std::vector<std::string>& getStringVecVal() const;

private:
  void setDefault(bool isDefaultValue);

  const std::string& getDefaultString() const;

  // The caches and the string default are made only when needed: most
  // values never need them, and a store holds very many values.
  HATAttrTypes::AttrType type;
  mutable std::unique_ptr<std::string> holder;
  mutable std::unique_ptr<std::vector<std::string>> vecCache;
  bool defaultBool = false;
  int defaultInt = -1;
  double defaultDouble = -1.0;
  std::unique_ptr<const std::string> defaultString;  // null for ""
};

}  // namespace qpe::constraints
