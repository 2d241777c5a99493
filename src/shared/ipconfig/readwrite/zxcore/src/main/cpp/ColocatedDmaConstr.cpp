#include "ColocatedDmaConstr.h"

#include "ConstrHandler.h"
#include "PortRenamer.h"

namespace qpe::constraints {

ColocatedDmaConstr::ColocatedDmaConstr(ObjectType objType, const std::string& objName)
    : BaseConstraint(ColocatedDma, objType, objName)
{
}

void ColocatedDmaConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string resolved = getResolvedName(this, resolver);
  std::vector<std::string> names = getPortNames();
  resolvePortNames(names, resolver);
  if (names.empty())
    return;
  target.setColocatedDmaConstr(getObjType(), resolved, names);
  if (ColocatedDmaConstr* copy = target.getColocatedDmaConstr(resolved))
    copy->copySrcInfoFrom(this);
}

void ColocatedDmaConstr::write(JDocument& doc, JValue& objectValue,
                               const BaseNameResolver* resolver) const
{
  static const std::string key("colocated_dma");
  if (!isSet())
    return;
  std::vector<std::string> names = getPortNames();
  resolveScopedPortNames(names, resolver);
  if (names.empty())
    return;
  HCRapidJsonReadWriteUtils::AddStringArrayProperty(objectValue, key, names, doc.GetAllocator());
  writeSrcInfo(doc, objectValue, key);
}

void ColocatedDmaConstr::offsetColumn(int) {}

std::string ColocatedDmaConstr::str() const
{
  return ports.relationText(getObjName(), ",colocated_dma)=(");
}

void ColocatedDmaConstr::renamePorts(const std::map<std::string, std::string>& oldToNew)
{
  BaseConstraint::renamePorts(oldToNew);
  std::vector<std::string> renamed;
  PortRenamer::getNewPortNames(oldToNew, getPortNames(), renamed);
  if (!renamed.empty())
    ports.set(renamed);
}

void ColocatedDmaConstr::getPortNames(std::vector<std::string>& out) const
{
  out = ports.get();
}

const std::vector<std::string>& ColocatedDmaConstr::getPortNames() const
{
  return ports.get();
}

void ColocatedDmaConstr::addPortNames(const std::vector<std::string>& names)
{
  ports.add(names);
}

void ColocatedDmaConstr::setPortNames(const std::vector<std::string>& names)
{
  ports.set(names);
}

bool ColocatedDmaConstr::isSet() const
{
  return ports.isSet();
}

bool ColocatedDmaConstr::containsColocatedPort(const std::string& name) const
{
  return ports.contains(name);
}

}  // namespace qpe::constraints
