#include "AttrConstr.h"

#include "ConstrHandler.h"
#include "ConstrUtils.h"

#include <sstream>

namespace qpe::constraints {

namespace {

using Utils = HCRapidJsonReadWriteUtils;

void stripPrefix(std::string& text, const std::string& prefix)
{
  if (istartsWith(text, prefix))
    text.erase(0, prefix.size());
  toLower(text);
}

// A negative value of these is no value.
bool isUnsetPredefinedValue(const std::string& key, const AttrConstr& attr)
{
  if (key == "runtime" || key == "utilization")
    return !isValSet(attr.getDoubleVal());
  if (key == "buffer_count" || key == "margin" || key == "fifo_depth")
    return !isValSet(attr.getIntVal());
  return false;
}

}  // namespace

const std::string& AttrConstr::getCanonicalPrefix()
{
  static const std::string prefix("qpe.");
  return prefix;
}

const std::string& AttrConstr::getOldZXPrefix()
{
  static const std::string prefix("zx.");
  return prefix;
}

bool AttrConstr::isCanonicalAttrName(const std::string& name)
{
  return istartsWith(name, getCanonicalPrefix());
}

bool AttrConstr::isOldZXAttrName(const std::string& name)
{
  return istartsWith(name, getOldZXPrefix());
}

bool AttrConstr::isPredefinedAttrName(const std::string& name)
{
  static const std::string predefined[] = {"QPE.RUNTIME", "QPE.UTILIZATION", "QPE.MARGIN",
                                           "QPE.FIFO_DEPTH", "QPE.BUFFER_COUNT"};
  for (const std::string& known : predefined)
    if (iequals(name, known))
      return true;
  return false;
}

std::string AttrConstr::makeCanonicalAttrName(const std::string& name)
{
  std::string canonical = isCanonicalAttrName(name) ? name : getCanonicalPrefix() + name;
  if (isPredefinedAttrName(canonical))
    toUpper(canonical);
  return canonical;
}

AttrConstr::AttrConstr(ObjectType objType, const std::string& objName, AttrType type,
                       const std::string& canonicalName)
    : BaseConstraint(Attr, canonicalName, objType, objName), value(type)
{
}

void AttrConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string resolved = getResolvedName(this, resolver);
  const std::string& attrName = getConstrName();
  switch (getAttrType()) {
  case HATAttrTypes::AttrBool:
    target.setAttrConstr(getObjType(), resolved, attrName, getBoolVal());
    break;
  case HATAttrTypes::AttrInt:
    target.setAttrConstr(getObjType(), resolved, attrName, getIntVal());
    break;
  case HATAttrTypes::AttrDouble:
    target.setAttrConstr(getObjType(), resolved, attrName, getDoubleVal());
    break;
  case HATAttrTypes::AttrString:
    target.setAttrConstr(getObjType(), resolved, attrName, getStringVal());
    break;
  case HATAttrTypes::AttrStringList: break;
  }
  if (AttrConstr* copy = target.getAttrConstr(resolved, attrName))
    copy->copySrcInfoFrom(this);
}

void AttrConstr::write(JDocument& doc, JValue& objectValue, const BaseNameResolver*) const
{
  if (!isSet())
    return;
  std::string key = getConstrName();
  stripQPEPrefix(key);
  stripOldZXPrefix(key);
  if (isUnsetPredefinedValue(key, *this))
    return;
  JAllocator& alloc = doc.GetAllocator();
  switch (getAttrType()) {
  case HATAttrTypes::AttrBool:
    Utils::AddBooleanProperty(objectValue, key, getBoolVal(), alloc);
    break;
  case HATAttrTypes::AttrInt:
    Utils::AddIntegrProperty(objectValue, key, getIntVal(), alloc);
    break;
  case HATAttrTypes::AttrDouble:
    Utils::AddDoubleProperty(objectValue, key, getDoubleVal(), alloc);
    break;
  case HATAttrTypes::AttrString:
    Utils::AddStringProperty(objectValue, key, getStringVal(), alloc);
    break;
  case HATAttrTypes::AttrStringList: break;
  }
  writeSrcInfo(doc, objectValue, key);
}

void AttrConstr::offsetColumn(int) {}

std::string AttrConstr::str() const
{
  std::ostringstream text;
  text << " attr(" << getObjName() << ")=";
  switch (getAttrType()) {
  case HATAttrTypes::AttrBool: text << "(" << (getBoolVal() ? "true" : "false") << ")"; break;
  case HATAttrTypes::AttrInt: text << "(" << getIntVal() << ")"; break;
  case HATAttrTypes::AttrDouble: text << "(" << getDoubleVal() << ")"; break;
  case HATAttrTypes::AttrString: text << "(" << getStringVal() << ")"; break;
  case HATAttrTypes::AttrStringList: break;
  }
  return text.str();
}

void AttrConstr::clear()
{
  value.clear();
}

AttrConstr::AttrType AttrConstr::getAttrType() const
{
  return value.getAttrType();
}

bool AttrConstr::getBoolVal() const
{
  return value.getBoolVal();
}

int AttrConstr::getIntVal() const
{
  return value.getIntVal();
}

double AttrConstr::getDoubleVal() const
{
  return value.getDoubleVal();
}

std::string AttrConstr::getStringVal() const
{
  return value.getStringVal();
}

void AttrConstr::setBoolVal(bool newValue)
{
  value.setBoolVal(newValue);
}

void AttrConstr::setIntVal(int newValue)
{
  value.setIntVal(newValue);
}

void AttrConstr::setDoubleVal(double newValue)
{
  value.setDoubleVal(newValue);
}

void AttrConstr::setStringVal(const std::string& newValue)
{
  value.setStringVal(newValue);
}

void AttrConstr::setVal(bool newValue)
{
  setBoolVal(newValue);
}

void AttrConstr::setVal(int newValue)
{
  setIntVal(newValue);
}

void AttrConstr::setVal(double newValue)
{
  setDoubleVal(newValue);
}

void AttrConstr::setVal(const std::string& newValue)
{
  setStringVal(newValue);
}

bool AttrConstr::isSet() const
{
  return value.isSet();
}

void stripQPEPrefix(std::string& text)
{
  stripPrefix(text, AttrConstr::getCanonicalPrefix());
}

void stripOldZXPrefix(std::string& text)
{
  stripPrefix(text, AttrConstr::getOldZXPrefix());
}

}  // namespace qpe::constraints
