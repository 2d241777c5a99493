#include "ZXLogicalConnection.h"

#include "ZXLogicalArchLInst.h"
#include "ZXLogicalArchModelRenameInterface.h"
#include "ZXLogicalArchModelVisitorInterface.h"

namespace IPConfig::Frameworks {

ZXLogicalConnection::ZXLogicalConnection(const std::string& name) : name(name) {}

ZXLogicalConnection::ZXLogicalConnection(const ZXLogicalConnection& other)
    : name(other.name),
      connectionType(other.connectionType),
      memMode(other.memMode),
      addrType(other.addrType),
      connectionDirection(other.connectionDirection)
{
}

ZXLogicalConnection* ZXLogicalConnection::clone() const
{
  return new ZXLogicalConnection(*this);
}

void ZXLogicalConnection::accept(const ZXLogicalArchModelVisitorInterface& visitor)
{
  if (srcPort)
    srcPort->accept(visitor);
  for (ZXLogicalPort* port : dstPorts)
    if (port)
      port->accept(visitor);
  visitor.visit(this);
}

void ZXLogicalConnection::rename(ZXLogicalArchModelRenameInterface& renamer)
{
  renamer.rename(this);
  // The renamer may rename the ports from here too: their owners look again.
  const auto portMayBeRenamed = [](ZXLogicalPort* port) {
    if (port && port->owner)
      port->owner->portRenamed_();
  };
  portMayBeRenamed(srcPort);
  for (ZXLogicalPort* port : dstPorts)
    portMayBeRenamed(port);
}

std::size_t ZXLogicalConnection::getDstPorts(std::vector<ZXLogicalPort*>& out) const
{
  out.insert(out.end(), dstPorts.begin(), dstPorts.end());
  return out.size();
}

}  // namespace IPConfig::Frameworks
