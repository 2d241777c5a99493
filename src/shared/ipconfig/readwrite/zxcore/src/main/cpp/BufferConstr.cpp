#include "BufferConstr.h"

#include "ConstrHandler.h"

namespace qpe::constraints {

BufferConstr::BufferConstr(ObjectType objType, const std::string& objName)
    : BaseConstraint(Buffer, objType, objName)
{
}

void BufferConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string resolved = getResolvedName(this, resolver);
  target.setBufferConstr(resolved, ping, pong, rtpSelector);
  if (BufferConstr* copy = target.getBufferConstr(resolved))
    copy->copySrcInfoFrom(this);
}

void BufferConstr::write(JDocument& doc, JValue& objectValue, const BaseNameResolver*) const
{
  static const std::string key("buffers");
  if (writeAddresses(doc, objectValue, key.c_str(), {&ping, &pong, &rtpSelector}))
    writeSrcInfo(doc, objectValue, key);
}

void BufferConstr::offsetColumn(int delta)
{
  ping.offsetColumn(delta);
  pong.offsetColumn(delta);
  rtpSelector.offsetColumn(delta);
}

std::string BufferConstr::str() const
{
  return " buf(" + getObjName() + ",data_buffer)=" + ping.labelledStr("ping") +
         pong.labelledStr("pong") + rtpSelector.labelledStr("rtpSelector");
}

}  // namespace qpe::constraints
