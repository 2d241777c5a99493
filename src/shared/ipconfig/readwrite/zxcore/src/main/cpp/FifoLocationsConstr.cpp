#include "FifoLocationsConstr.h"

#include "ConstrHandler.h"
#include "ConstrUtils.h"

namespace qpe::constraints {

FifoLocationsConstr::FifoLocationsConstr(ObjectType objType, const std::string& objName)
    : BaseConstraint(FifoLocations, objType, objName)
{
}

void FifoLocationsConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string resolved = getResolvedName(this, resolver);
  // A copy: the target may be this handler.
  const std::vector<std::string> names = getFifoLocationsRecordNames();
  if (!names.empty())
    target.setFifoLocationsConstr(getObjType(), resolved, names);
  if (FifoLocationsConstr* copy = target.getFifoLocationsConstr(resolved))
    copy->copySrcInfoFrom(this);
}

void FifoLocationsConstr::write(JDocument& doc, JValue& objectValue,
                                const BaseNameResolver*) const
{
  static const std::string key("fifo_locations");
  if (!isSet() || getFifoLocationsRecordNames().empty())
    return;
  HCRapidJsonReadWriteUtils::AddStringArrayProperty(objectValue, key,
                                                    getFifoLocationsRecordNames(),
                                                    doc.GetAllocator());
  writeSrcInfo(doc, objectValue, key);
}

void FifoLocationsConstr::offsetColumn(int) {}

std::string FifoLocationsConstr::str() const
{
  std::string text = " rel(" + getObjName() + ",fifo_locations)=(";
  for (const std::string& name : getFifoLocationsRecordNames())
    text += name + ",";
  return text + ")";
}

void FifoLocationsConstr::getFifoLocationsRecordNames(std::vector<std::string>& out) const
{
  out = getFifoLocationsRecordNames();
}

const std::vector<std::string>& FifoLocationsConstr::getFifoLocationsRecordNames() const
{
  return recordNames.getStringVecVal();
}

std::string FifoLocationsConstr::getFifoLocationsRecordName(std::size_t index) const
{
  const std::vector<std::string>& names = getFifoLocationsRecordNames();
  return index < names.size() ? names[index] : std::string();
}

void FifoLocationsConstr::addFifoLocationsRecordNames(const std::vector<std::string>& names)
{
  std::vector<std::string> combined = getFifoLocationsRecordNames();
  combined.insert(combined.end(), names.begin(), names.end());
  recordNames.setStringVecVal(combined);
}

void FifoLocationsConstr::setFifoLocationsRecordNames(const std::vector<std::string>& names)
{
  recordNames.setStringVecVal(names);
}

bool FifoLocationsConstr::isSet() const
{
  return recordNames.isSet();
}

bool FifoLocationsConstr::containsFifoRecord(const std::string& name) const
{
  return contains(getFifoLocationsRecordNames(), name);
}

}  // namespace qpe::constraints
