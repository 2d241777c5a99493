#include "MemConstr.h"

#include "ConstrHandler.h"

namespace qpe::constraints {

MemConstr::MemConstr(ObjectType objType, const std::string& objName)
    : BaseConstraint(Mem, objType, objName)
{
}

void MemConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string resolved = getResolvedName(this, resolver);
  target.setMemConstr(resolved, ping, pong);
  if (MemConstr* copy = target.getMemConstr(resolved))
    copy->copySrcInfoFrom(this);
}

void MemConstr::write(JDocument& doc, JValue& objectValue, const BaseNameResolver*) const
{
  static const std::string key("mem");
  if (writeAddresses(doc, objectValue, key.c_str(), {&ping, &pong}))
    writeSrcInfo(doc, objectValue, key);
}

void MemConstr::offsetColumn(int delta)
{
  ping.offsetColumn(delta);
  pong.offsetColumn(delta);
}

std::string MemConstr::str() const
{
  return " mem(" + getObjName() + ",shared_buffer)=" + ping.labelledStr("ping") +
         pong.labelledStr("pong");
}

}  // namespace qpe::constraints
