#include "ColocatedPortsConstr.h"

#include "ConstrHandler.h"
#include "PortRenamer.h"

namespace qpe::constraints {

namespace {

void renameList(const PortRenamer& renamer, NameList& list)
{
  std::vector<std::string> renamed;
  renamer.getNewPortNames(list.get(), renamed);
  if (!renamed.empty())
    list.set(renamed);
}

void keepSoft(const std::string& name, ConstrProperties props, ConstrPropertiesMap& properties)
{
  if (props.isSoft)
    properties[name] = props;
}

}  // namespace

ColocatedPortsConstr::ColocatedPortsConstr(ObjectType objType, const std::string& objName)
    : BaseConstraint(ColocatedPorts, objType, objName)
{
}

void ColocatedPortsConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string resolved = getResolvedName(this, resolver);
  // Each list in turn: its names through the resolver into the target's
  // constraint, then its soft flags, re-keyed the same way.
  const auto cloneList = [&](const NameList& list, const ConstrPropertiesMap& properties,
                             const auto& set, ConstrPropertiesMap& (*copyProperties)(
                                                 ColocatedPortsConstr&)) {
    std::vector<std::string> names = list.get();
    resolvePortNames(names, resolver);
    if (names.empty())
      return;
    set(names);
    if (ColocatedPortsConstr* copy = target.getColocatedPortsConstr(resolved)) {
      ConstrPropertiesMap resolvedProperties = properties;
      resolvePortNames(resolvedProperties, resolver);
      copyProperties(*copy) = resolvedProperties;
    }
  };
  cloneList(
      colocated, getConstrObjectsProperties(),
      [&](const auto& names) { target.setColocatedPortsConstr(getObjType(), resolved, names, false); },
      [](ColocatedPortsConstr& copy) -> ConstrPropertiesMap& {
        return copy.mutableConstrObjectsProperties();
      });
  cloneList(
      notColocated.names, notColocated.properties,
      [&](const auto& names) { target.setColocatedPortsConstr(getObjType(), resolved, names, true); },
      [](ColocatedPortsConstr& copy) -> ConstrPropertiesMap& {
        return copy.notColocated.properties;
      });
  cloneList(
      exclusive.names, exclusive.properties,
      [&](const auto& names) {
        target.setExclusiveColocatedPortsConstr(getObjType(), resolved, names);
      },
      [](ColocatedPortsConstr& copy) -> ConstrPropertiesMap& { return copy.exclusive.properties; });
  if (ColocatedPortsConstr* copy = target.getColocatedPortsConstr(resolved))
    copy->copySrcInfoFrom(this);
}

void ColocatedPortsConstr::write(JDocument& doc, JValue& objectValue,
                                 const BaseNameResolver* resolver) const
{
  static const std::string key("colocated_ports");
  static const std::string notKey("not_colocated_ports");
  static const std::string exclusiveKey("exclusive_colocated_ports");
  if (hasColocatedPorts() &&
      writeNamesWithProperties(doc, objectValue, key.c_str(), getPortNames(),
                               getConstrObjectsProperties(), PORT, resolver))
    writeSrcInfo(doc, objectValue, key);
  if (hasNotColocatedPorts() &&
      writeNamesWithProperties(doc, objectValue, notKey.c_str(), getNotColocatedPortNames(),
                               notColocated.properties, PORT, resolver))
    writeSrcInfoObject(doc, objectValue, notKey, notColocated.srcInfo);
  if (hasExclusiveColocatedPorts() &&
      writeNamesWithProperties(doc, objectValue, exclusiveKey.c_str(),
                               getExclusiveColocatedPortNames(), exclusive.properties, PORT,
                               resolver))
    writeSrcInfoObject(doc, objectValue, exclusiveKey, exclusive.srcInfo);
}

void ColocatedPortsConstr::offsetColumn(int) {}

std::string ColocatedPortsConstr::str() const
{
  const std::string objName = getObjName();
  return colocated.relationText(objName, ",colocated_ports)=(") +
         notColocated.names.relationText(objName, ",not_colocated_ports)=(") +
         exclusive.names.relationText(objName, ",exclusive_colocated_ports)=(");
}

void ColocatedPortsConstr::renamePorts(const std::map<std::string, std::string>& oldToNew)
{
  BaseConstraint::renamePorts(oldToNew);
  const PortRenamer renamer(oldToNew);
  renameList(renamer, colocated);
  renamer.renameConstrObjectProperties(mutableConstrObjectsProperties());
  renameList(renamer, notColocated.names);
  renamer.renameConstrObjectProperties(notColocated.properties);
  renameList(renamer, exclusive.names);
  renamer.renameConstrObjectProperties(exclusive.properties);
}

void ColocatedPortsConstr::copySrcInfoFrom(const BaseConstraint* other)
{
  const auto* same = other && other->getConstrType() == ColocatedPorts
                         ? dynamic_cast<const ColocatedPortsConstr*>(other)
                         : nullptr;
  if (!same)
    return;
  BaseConstraint::copySrcInfoFrom(other);
  notColocated.srcInfo = same->notColocated.srcInfo;
  exclusive.srcInfo = same->exclusive.srcInfo;
}

void ColocatedPortsConstr::getPortNames(std::vector<std::string>& out) const
{
  out = colocated.get();
}

const std::vector<std::string>& ColocatedPortsConstr::getPortNames() const
{
  return colocated.get();
}

void ColocatedPortsConstr::getNotColocatedPortNames(std::vector<std::string>& out) const
{
  out = notColocated.names.get();
}

const std::vector<std::string>& ColocatedPortsConstr::getNotColocatedPortNames() const
{
  return notColocated.names.get();
}

void ColocatedPortsConstr::getExclusiveColocatedPortNames(std::vector<std::string>& out) const
{
  out = exclusive.names.get();
}

const std::vector<std::string>& ColocatedPortsConstr::getExclusiveColocatedPortNames() const
{
  return exclusive.names.get();
}

void ColocatedPortsConstr::addPortNames(const std::vector<std::string>& names)
{
  colocated.add(names);
}

void ColocatedPortsConstr::setPortNames(const std::vector<std::string>& names)
{
  colocated.set(names);
}

void ColocatedPortsConstr::addNotColocatedPortNames(const std::vector<std::string>& names)
{
  notColocated.names.add(names);
}

void ColocatedPortsConstr::setNotColocatedPortNames(const std::vector<std::string>& names)
{
  notColocated.names.set(names);
}

void ColocatedPortsConstr::addExclusiveColocatedPortNames(const std::vector<std::string>& names)
{
  exclusive.names.add(names);
}

void ColocatedPortsConstr::setExclusiveColocatedPortNames(const std::vector<std::string>& names)
{
  exclusive.names.set(names);
}

bool ColocatedPortsConstr::isSet() const
{
  return hasColocatedPorts() || hasNotColocatedPorts() || hasExclusiveColocatedPorts();
}

bool ColocatedPortsConstr::hasColocatedPorts() const
{
  return colocated.isSet();
}

bool ColocatedPortsConstr::hasNotColocatedPorts() const
{
  return notColocated.names.isSet();
}

bool ColocatedPortsConstr::hasExclusiveColocatedPorts() const
{
  return exclusive.names.isSet();
}

bool ColocatedPortsConstr::containsColocatedPort(const std::string& name) const
{
  return colocated.contains(name);
}

bool ColocatedPortsConstr::containsNotColocatedPort(const std::string& name) const
{
  return notColocated.names.contains(name);
}

bool ColocatedPortsConstr::containsExclusiveColocatedPort(const std::string& name) const
{
  return exclusive.names.contains(name);
}

bool ColocatedPortsConstr::isColocatedSoftPort(const std::string& name) const
{
  return isSoftConstraintForObject(name, getConstrObjectsProperties());
}

std::vector<std::string> ColocatedPortsConstr::getColocatedSoftPorts() const
{
  return colocated.softNames(getConstrObjectsProperties());
}

bool ColocatedPortsConstr::isNotColocatedSoftPort(const std::string& name) const
{
  return isSoftConstraintForObject(name, notColocated.properties);
}

bool ColocatedPortsConstr::isExclusiveColocatedSoftPort(const std::string& name) const
{
  return isSoftConstraintForObject(name, exclusive.properties);
}

void ColocatedPortsConstr::setColocatedSoftPort(const std::string& name, bool soft)
{
  setSoftConstraintForObject(name, soft, mutableConstrObjectsProperties());
}

void ColocatedPortsConstr::setNotColocatedSoftPort(const std::string& name, bool soft)
{
  setSoftConstraintForObject(name, soft, notColocated.properties);
}

void ColocatedPortsConstr::setExclusiveColocatedSoftPort(const std::string& name, bool soft)
{
  setSoftConstraintForObject(name, soft, exclusive.properties);
}

std::vector<std::string> ColocatedPortsConstr::getNotColocatedSoftPorts() const
{
  return notColocated.names.softNames(notColocated.properties);
}

std::vector<std::string> ColocatedPortsConstr::getExclusiveColocatedSoftPorts() const
{
  return exclusive.names.softNames(exclusive.properties);
}

void ColocatedPortsConstr::setNotColocatedConstrObjectProperties(const std::string& name,
                                                                 ConstrProperties props)
{
  keepSoft(name, props, notColocated.properties);
}

void ColocatedPortsConstr::setExclusiveColocatedConstrObjectProperties(const std::string& name,
                                                                       ConstrProperties props)
{
  keepSoft(name, props, exclusive.properties);
}

}  // namespace qpe::constraints
