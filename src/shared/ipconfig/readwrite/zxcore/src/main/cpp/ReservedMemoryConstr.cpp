#include "ReservedMemoryConstr.h"

#include "ConstrHandler.h"

namespace qpe::constraints {

ReservedMemoryConstr::ReservedMemoryConstr(ObjectType objType, const std::string& objName)
    : BaseConstraint(ReservedMemory, objType, objName)
{
}

void ReservedMemoryConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string resolved = getResolvedName(this, resolver);
  target.setReservedMemoryConstr(resolved, address);
  if (ReservedMemoryConstr* copy = target.getReservedMemoryConstr(resolved))
    copy->copySrcInfoFrom(this);
}

void ReservedMemoryConstr::write(JDocument& doc, JValue& objectValue,
                                 const BaseNameResolver*) const
{
  static const std::string key("reserved_memory");
  JValue object(rapidjson::kObjectType);
  writeAddress(doc, object, address);
  if (object.MemberCount() == 0)
    return;
  HCRapidJsonReadWriteUtils::AddGenericValueProperty(objectValue, key, object, doc.GetAllocator());
  writeSrcInfo(doc, objectValue, key);
}

void ReservedMemoryConstr::offsetColumn(int delta)
{
  address.offsetColumn(delta);
}

std::string ReservedMemoryConstr::str() const
{
  return " buf(" + getObjName() + ",reserved_memory)=" + address.str();
}

}  // namespace qpe::constraints
