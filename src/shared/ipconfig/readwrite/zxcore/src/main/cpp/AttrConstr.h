#pragma once

#include "AttrValue.h"
#include "BaseConstraint.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

// One named value on a node, port or net: any key of an object's entry that
// is no known constraint. The constraint name is the attribute's canonical
// name, so that one object can bear many attributes.
class IPCONFIG_READWRITE_EXPORT AttrConstr : public BaseConstraint {
public:
  // Bool, int, double and string are handled; the other types of the
  // enumeration are neither written nor printed.
  using AttrType = HATAttrTypes::AttrType;

  // "qpe." and "zx.".
  static const std::string& getCanonicalPrefix();
  static const std::string& getOldZXPrefix();
  // Prefix tests in any case.
  static bool isCanonicalAttrName(const std::string& name);
  static bool isOldZXAttrName(const std::string& name);
  // One of "QPE.RUNTIME", "QPE.UTILIZATION", "QPE.MARGIN", "QPE.FIFO_DEPTH",
  // "QPE.BUFFER_COUNT", in any case.
  static bool isPredefinedAttrName(const std::string& name);
  // "runtime", "Runtime", "qpe.runtime" all give "QPE.RUNTIME"; a name that
  // is not predefined keeps its case behind "qpe.". An old "zx." name is not
  // migrated: it gains the prefix like any other, and the written key loses
  // both prefixes.
  static std::string makeCanonicalAttrName(const std::string& name);

  // Unset, at the default of `type`. `canonicalName` is taken as it is.
  AttrConstr(ObjectType objType, const std::string& objName, AttrType type,
             const std::string& canonicalName);

  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // The key is the canonical name without its prefixes, in lower case. An
  // unset attribute, and a negative value of a predefined one, write nothing.
  void write(JDocument& doc, JValue& objectValue,
             const BaseNameResolver* resolver) const override;
  void offsetColumn(int delta) override;
  // " attr(object)=(value)", without the attribute's name.
  std::string str() const override;

  // Back to the default of the type, unset.
  virtual void clear();
  virtual AttrType getAttrType() const;
  virtual bool getBoolVal() const;
  virtual int getIntVal() const;
  virtual double getDoubleVal() const;
  virtual std::string getStringVal() const;
  // Each setter leaves the attribute unset when the value is the default.
  virtual void setBoolVal(bool value);
  virtual void setIntVal(int value);
  virtual void setDoubleVal(double value);
  virtual void setStringVal(const std::string& value);
  virtual void setVal(bool value);
  virtual void setVal(int value);
  virtual void setVal(double value);
  virtual void setVal(const std::string& value);
  virtual bool isSet() const;

  // A text literal is a string, not a bool.
  void setVal(const char* value) { setVal(std::string(value)); }

private:
  AttrValue value;
};

// Remove a leading "qpe." or "zx." in any case, then turn the whole text to
// lower case, prefix or not.
IPCONFIG_READWRITE_EXPORT void stripQPEPrefix(std::string& text);
IPCONFIG_READWRITE_EXPORT void stripOldZXPrefix(std::string& text);

}  // namespace qpe::constraints
