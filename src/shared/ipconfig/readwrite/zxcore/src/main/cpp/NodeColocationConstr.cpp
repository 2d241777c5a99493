#include "NodeColocationConstr.h"

#include "ConstrHandler.h"

namespace qpe::constraints {

NodeColocationConstr::NodeColocationConstr(ConstrType constrType, ObjectType objType,
                                           const std::string& objName,
                                           const Vocabulary& vocabulary)
    : BaseConstraint(constrType, objType, objName), vocabulary(vocabulary)
{
}

void NodeColocationConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string resolved = getResolvedName(this, resolver);
  const auto copyIn = [&]() {
    return dynamic_cast<NodeColocationConstr*>(target.getConstr(resolved, getConstrType()));
  };
  std::vector<std::string> names = getNodeNames();
  resolveNodeNames(names, resolver);
  if (!names.empty()) {
    (target.*vocabulary.set)(getObjType(), resolved, names, false);
    if (NodeColocationConstr* copy = copyIn())
      copy->cloneColocatedNodeProps(this, resolver);
  }
  names = getNotColocatedNodeNames();
  resolveNodeNames(names, resolver);
  if (!names.empty()) {
    (target.*vocabulary.set)(getObjType(), resolved, names, true);
    if (NodeColocationConstr* copy = copyIn())
      copy->cloneNotColocatedNodeProps(this, resolver);
  }
  if (NodeColocationConstr* copy = copyIn())
    copy->copySrcInfoFrom(this);
}

void NodeColocationConstr::write(JDocument& doc, JValue& objectValue,
                                 const BaseNameResolver* resolver) const
{
  if (hasColocatedNodes() &&
      writeNamesWithProperties(doc, objectValue, vocabulary.key, getNodeNames(),
                               getConstrObjectsProperties(), NODE, resolver))
    writeSrcInfo(doc, objectValue, vocabulary.key);
  if (hasNotColocatedNodes() &&
      writeNamesWithProperties(doc, objectValue, vocabulary.notKey, getNotColocatedNodeNames(),
                               notColocated.properties, NODE, resolver))
    writeNotConstrSrcInfo(doc, objectValue, vocabulary.notKey);
}

void NodeColocationConstr::offsetColumn(int) {}

std::string NodeColocationConstr::str() const
{
  return colocated.relationText(getObjName(), vocabulary.text) +
         notColocated.names.relationText(getObjName(), vocabulary.notText);
}

void NodeColocationConstr::copySrcInfoFrom(const BaseConstraint* other)
{
  if (!other || other->getConstrType() != getConstrType())
    return;
  const auto* same = dynamic_cast<const NodeColocationConstr*>(other);
  if (!same)
    return;
  BaseConstraint::copySrcInfoFrom(other);
  notColocated.srcInfo = same->notColocated.srcInfo;
}

void NodeColocationConstr::getNodeNames(std::vector<std::string>& out) const
{
  out = colocated.get();
}

const std::vector<std::string>& NodeColocationConstr::getNodeNames() const
{
  return colocated.get();
}

void NodeColocationConstr::getNotColocatedNodeNames(std::vector<std::string>& out) const
{
  out = notColocated.names.get();
}

const std::vector<std::string>& NodeColocationConstr::getNotColocatedNodeNames() const
{
  return notColocated.names.get();
}

void NodeColocationConstr::addNodeNames(const std::vector<std::string>& names)
{
  colocated.add(names);
}

void NodeColocationConstr::setNodeNames(const std::vector<std::string>& names)
{
  colocated.set(names);
}

void NodeColocationConstr::addNotColocatedNodeNames(const std::vector<std::string>& names)
{
  notColocated.names.add(names);
}

void NodeColocationConstr::setNotColocatedNodeNames(const std::vector<std::string>& names)
{
  notColocated.names.set(names);
}

bool NodeColocationConstr::isSet() const
{
  return hasColocatedNodes() || hasNotColocatedNodes();
}

bool NodeColocationConstr::hasColocatedNodes() const
{
  return colocated.isSet();
}

bool NodeColocationConstr::hasNotColocatedNodes() const
{
  return notColocated.names.isSet();
}

bool NodeColocationConstr::containsColocatedNode(const std::string& name) const
{
  return colocated.contains(name);
}

bool NodeColocationConstr::containsNotColocatedNode(const std::string& name) const
{
  return notColocated.names.contains(name);
}

void NodeColocationConstr::setColocatedSoftNode(const std::string& name, bool soft)
{
  setSoftConstraintForObject(name, soft, mutableConstrObjectsProperties());
}

bool NodeColocationConstr::isColocatedSoftNode(const std::string& name) const
{
  return isSoftConstraintForObject(name, getConstrObjectsProperties());
}

std::vector<std::string> NodeColocationConstr::getColocatedSoftNodes() const
{
  return colocated.softNames(getConstrObjectsProperties());
}

bool NodeColocationConstr::isNotColocatedSoftNode(const std::string& name) const
{
  return isSoftConstraintForObject(name, notColocated.properties);
}

std::vector<std::string> NodeColocationConstr::getNotColocatedSoftNodes() const
{
  return notColocated.names.softNames(notColocated.properties);
}

void NodeColocationConstr::setNotColocatedSoftNode(const std::string& name, bool soft)
{
  setSoftConstraintForObject(name, soft, notColocated.properties);
}

void NodeColocationConstr::setNotColocatedConstrObjectProperties(const std::string& name,
                                                                 ConstrProperties props)
{
  if (props.isSoft)
    notColocated.properties[name] = props;
}

void NodeColocationConstr::cloneColocatedNodeProps(const NodeColocationConstr* source,
                                                   const BaseNameResolver* resolver)
{
  ConstrPropertiesMap properties = source->getConstrObjectsProperties();
  resolveNodeNames(properties, resolver);
  mutableConstrObjectsProperties() = properties;
}

void NodeColocationConstr::cloneNotColocatedNodeProps(const NodeColocationConstr* source,
                                                      const BaseNameResolver* resolver)
{
  ConstrPropertiesMap properties = source->notColocated.properties;
  resolveNodeNames(properties, resolver);
  notColocated.properties = properties;
}

void NodeColocationConstr::writeNotConstrSrcInfo(JDocument& doc, JValue& parent,
                                                 const std::string& key) const
{
  writeSrcInfoObject(doc, parent, key, notColocated.srcInfo);
}

}  // namespace qpe::constraints
