#include "IsomorphicGraphGroupConstr.h"

#include "ConstrHandler.h"

namespace qpe::constraints {

namespace {

using Utils = HCRapidJsonReadWriteUtils;

}  // namespace

IsomorphicGraphGroupConstr::IsomorphicGraphGroupConstr(const std::string& name)
    : BaseConstraint(IsomorphicGraphGroup), groupName(name, "")
{
}

std::string IsomorphicGraphGroupConstr::getObjName() const
{
  return groupName.getStringVal();
}

BaseConstraint::ObjectType IsomorphicGraphGroupConstr::getObjType() const
{
  return GLOBAL;
}

void IsomorphicGraphGroupConstr::clone(ConstrHandler& target, const BaseNameResolver*) const
{
  const std::string name = getObjName();
  target.setIsomorphicGraphGroupConstr(name, getReferenceGraph(), getStampedGraphGroup());
  if (IsomorphicGraphGroupConstr* copy = target.getIsomorphicGraphGroupConstr(name))
    copy->copySrcInfoFrom(this);
}

void IsomorphicGraphGroupConstr::write(JDocument& doc, JValue& parent,
                                       const BaseNameResolver*) const
{
  static const std::string key("isomorphicGraphGroup");
  if (!groupName.isSet())
    return;
  JAllocator& alloc = doc.GetAllocator();
  JValue group(rapidjson::kObjectType);
  Utils::AddStringProperty(group, "name", getObjName(), alloc);
  if (isReferenceGraphSet())
    Utils::AddStringProperty(group, "referenceGraph", getReferenceGraph(), alloc);
  if (isStampedGraphGroupSet() && !getStampedGraphGroup().empty())
    Utils::AddStringArrayProperty(group, "stampedGraphs", getStampedGraphGroup(), alloc);
  writeSrcInfo(doc, group, key);
  Utils::AddGenericValueProperty(parent, key, group, alloc);
}

void IsomorphicGraphGroupConstr::writeSrcInfo(JDocument& doc, JValue& parent,
                                              const std::string&) const
{
  writeGroupSrcInfo(doc, parent, getSrcInfo());
}

void IsomorphicGraphGroupConstr::offsetColumn(int) {}

std::string IsomorphicGraphGroupConstr::str() const
{
  std::string text = " isomorphicGraphGroup(" + getObjName() + ")=(" + getReferenceGraph() + " - ";
  for (const std::string& graph : getStampedGraphGroup())
    text += graph + ",";
  return text + ")";
}

void IsomorphicGraphGroupConstr::getStampedGraphGroup(std::vector<std::string>& out) const
{
  out = stampedGraphs.get();
}

const std::vector<std::string>& IsomorphicGraphGroupConstr::getStampedGraphGroup() const
{
  return stampedGraphs.get();
}

void IsomorphicGraphGroupConstr::setReferenceGraph(const std::string& name)
{
  referenceGraph = AttrValue(name, "");
}

void IsomorphicGraphGroupConstr::addStampedGraph(const std::string& name)
{
  stampedGraphs.add({name});
}

void IsomorphicGraphGroupConstr::addStampedGraphGroup(const std::vector<std::string>& names)
{
  stampedGraphs.add(names);
}

void IsomorphicGraphGroupConstr::setStampedGraphGroup(const std::vector<std::string>& names)
{
  stampedGraphs.set(names);
}

bool IsomorphicGraphGroupConstr::isReferenceGraphSet() const
{
  return referenceGraph.isSet();
}

bool IsomorphicGraphGroupConstr::isStampedGraphGroupSet() const
{
  return stampedGraphs.isSet();
}

}  // namespace qpe::constraints
