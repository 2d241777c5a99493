#include "NodeGroupConstr.h"

namespace qpe::constraints {

NodeGroupConstr::NodeGroupConstr(ConstrType constrType, const std::string& name)
    : BaseConstraint(constrType), groupName(name, "")
{
}

std::string NodeGroupConstr::getObjName() const
{
  return groupName.getStringVal();
}

BaseConstraint::ObjectType NodeGroupConstr::getObjType() const
{
  return GLOBAL;
}

void NodeGroupConstr::writeSrcInfo(JDocument& doc, JValue& parent, const std::string&) const
{
  writeGroupSrcInfo(doc, parent, getSrcInfo());
}

void NodeGroupConstr::offsetColumn(int) {}

void NodeGroupConstr::getNodeGroup(std::vector<std::string>& out) const
{
  out = nodeGroup.get();
}

const std::vector<std::string>& NodeGroupConstr::getNodeGroup() const
{
  return nodeGroup.get();
}

void NodeGroupConstr::addNode(const std::string& name)
{
  nodeGroup.add({name});
}

void NodeGroupConstr::addNodeGroup(const std::vector<std::string>& names)
{
  nodeGroup.add(names);
}

void NodeGroupConstr::setNodeGroup(const std::vector<std::string>& names)
{
  nodeGroup.set(names);
}

bool NodeGroupConstr::isNodeGroupSet() const
{
  return nodeGroup.isSet();
}

void NodeGroupConstr::writeGroup(JDocument& doc, JValue& parent, const BaseNameResolver* resolver,
                                 const std::string& key, bool isomorphic) const
{
  if (!groupName.isSet())
    return;
  JAllocator& alloc = doc.GetAllocator();
  JValue group(rapidjson::kObjectType);
  HCRapidJsonReadWriteUtils::AddStringProperty(group, "name", getObjName(), alloc);
  if (isomorphic)
    HCRapidJsonReadWriteUtils::AddBooleanProperty(group, "isisomorphic", true, alloc);
  if (isNodeGroupSet()) {
    std::vector<std::string> nodes = getNodeGroup();
    resolveScopedNodeNames(nodes, resolver);
    if (!nodes.empty())
      HCRapidJsonReadWriteUtils::AddStringArrayProperty(group, "nodeGroup", nodes, alloc);
  }
  writeSrcInfo(doc, group, key);
  HCRapidJsonReadWriteUtils::AddGenericValueProperty(parent, key, group, alloc);
}

std::string NodeGroupConstr::groupText(const char* text) const
{
  std::string out = std::string(text) + "(" + getObjName() + ")=(";
  for (const std::string& node : getNodeGroup())
    out += node + ",";
  return out + ")";
}

std::vector<std::string> NodeGroupConstr::resolvedNodes(const BaseNameResolver* resolver) const
{
  std::vector<std::string> nodes = getNodeGroup();
  resolveNodeNames(nodes, resolver);
  return nodes;
}

}  // namespace qpe::constraints
