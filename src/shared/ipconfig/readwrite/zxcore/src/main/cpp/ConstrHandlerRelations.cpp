// The handler's operations of the colocation kinds, and the relations
// between objects that they state.

#include "ColocatedDmaConstr.h"
#include "ColocatedMemoriesConstr.h"
#include "ColocatedNodesConstr.h"
#include "ColocatedPortsConstr.h"
#include "ConstrCast.h"
#include "ConstrHandler.h"
#include "ConstrHandlerTemplates.h"
#include "RelativeNodesConstr.h"

#include <unordered_set>

namespace qpe::constraints {

namespace {

using Names = std::vector<std::string>;

// One side of a relation: `out` starts as the object's own list, and each
// further name joins it once. Linear in the store and the names, whatever
// the length of the lists.
class Relation {
public:
  Relation(const ConstrHandler& handler, const std::string& name, Names& out)
      : constrs(handler.getConstrs()), name(name), out(out)
  {
  }

  template <typename Kind>
  void startWith(const Kind* own, const Names& (Kind::*list)() const)
  {
    this->own = own;
    if (own)
      out = (own->*list)();
    seen.insert(out.begin(), out.end());
  }

  // The objects with a constraint of the kind, other than the object's own,
  // whose list holds the name; with `objType`, only objects of that type.
  template <typename Kind, typename Lists>
  void addListers(Kind* (*cast)(BaseConstraint*), bool (Lists::*holds)(const std::string&) const,
                  int objType = -1)
  {
    for (BaseConstraint* constr : constrs) {
      const Kind* kind = cast(constr);
      if (!kind || kind == own || (objType >= 0 && kind->getObjType() != objType) ||
          !(kind->*holds)(name))
        continue;
      std::string objName = kind->getObjName();
      if (!objName.empty() && seen.insert(objName).second)
        out.push_back(std::move(objName));
    }
  }

private:
  const ConstrHandler::Constrs& constrs;
  const std::string& name;
  Names& out;
  const BaseConstraint* own = nullptr;
  std::unordered_set<std::string> seen;
};

template <typename Kind>
Kind* castTo(BaseConstraint* constr);

template <>
ColocatedNodesConstr* castTo(BaseConstraint* constr)
{
  return ConstrCast::toColocatedNodes(constr);
}

template <>
ColocatedPortsConstr* castTo(BaseConstraint* constr)
{
  return ConstrCast::toColocatedPorts(constr);
}

template <>
ColocatedMemoriesConstr* castTo(BaseConstraint* constr)
{
  return ConstrCast::toColocatedMemories(constr);
}

}  // namespace

template <typename Kind>
void ConstrHandler::getConstrs(std::vector<Kind*>& out) const
{
  out.clear();
  for (BaseConstraint* constr : constrs)
    if (Kind* kind = castTo<Kind>(constr))
      out.push_back(kind);
}

template IPCONFIG_READWRITE_EXPORT void ConstrHandler::getConstrs(
    std::vector<ColocatedNodesConstr*>& out) const;
template IPCONFIG_READWRITE_EXPORT void ConstrHandler::getConstrs(
    std::vector<ColocatedPortsConstr*>& out) const;
template IPCONFIG_READWRITE_EXPORT void ConstrHandler::getConstrs(
    std::vector<ColocatedMemoriesConstr*>& out) const;

void ConstrHandler::getColocatedNodes(const std::string& name, Names& out) const
{
  Relation relation(*this, name, out);
  relation.startWith<NodeColocationConstr>(getColocatedNodesConstr(name),
                                           &NodeColocationConstr::getNodeNames);
  relation.addListers(&ConstrCast::toColocatedNodes, &NodeColocationConstr::containsColocatedNode,
                      BaseConstraint::NODE);
}

void ConstrHandler::getNotColocatedNodes(const std::string& name, Names& out) const
{
  Relation relation(*this, name, out);
  relation.startWith<NodeColocationConstr>(getColocatedNodesConstr(name),
                                           &NodeColocationConstr::getNotColocatedNodeNames);
  relation.addListers(&ConstrCast::toColocatedNodes,
                      &NodeColocationConstr::containsNotColocatedNode, BaseConstraint::NODE);
}

void ConstrHandler::getColocatedPorts(const std::string& name, Names& out) const
{
  Relation relation(*this, name, out);
  relation.startWith(getColocatedPortsConstr(name), &ColocatedPortsConstr::getPortNames);
  relation.addListers(&ConstrCast::toColocatedPorts, &ColocatedPortsConstr::containsColocatedPort);
  relation.addListers(&ConstrCast::toColocatedNodes, &NodeColocationConstr::containsColocatedNode,
                      BaseConstraint::PORT);
  relation.addListers(&ConstrCast::toColocatedMemories,
                      &NodeColocationConstr::containsColocatedNode, BaseConstraint::PORT);
}

void ConstrHandler::getNotColocatedPorts(const std::string& name, Names& out) const
{
  Relation relation(*this, name, out);
  relation.startWith(getColocatedPortsConstr(name),
                     &ColocatedPortsConstr::getNotColocatedPortNames);
  relation.addListers(&ConstrCast::toColocatedPorts,
                      &ColocatedPortsConstr::containsNotColocatedPort);
  relation.addListers(&ConstrCast::toColocatedNodes,
                      &NodeColocationConstr::containsNotColocatedNode, BaseConstraint::PORT);
  relation.addListers(&ConstrCast::toColocatedMemories,
                      &NodeColocationConstr::containsNotColocatedNode, BaseConstraint::PORT);
}

void ConstrHandler::getExclusiveColocatedPorts(const std::string& name, Names& out) const
{
  Relation relation(*this, name, out);
  relation.startWith(getColocatedPortsConstr(name),
                     &ColocatedPortsConstr::getExclusiveColocatedPortNames);
  relation.addListers(&ConstrCast::toColocatedPorts,
                      &ColocatedPortsConstr::containsExclusiveColocatedPort);
}

void ConstrHandler::getColocatedDma(const std::string& name, Names& out) const
{
  Relation relation(*this, name, out);
  relation.startWith(getColocatedDmaConstr(name), &ColocatedDmaConstr::getPortNames);
  relation.addListers(&ConstrCast::toColocatedDma, &ColocatedDmaConstr::containsColocatedPort);
}

void ConstrHandler::getColocatedMemories(const std::string& name, Names& out) const
{
  Relation relation(*this, name, out);
  relation.startWith<NodeColocationConstr>(getColocatedMemoriesConstr(name),
                                           &NodeColocationConstr::getNodeNames);
  relation.addListers(&ConstrCast::toColocatedMemories,
                      &NodeColocationConstr::containsColocatedNode, BaseConstraint::NODE);
}

void ConstrHandler::getNotColocatedMemories(const std::string& name, Names& out) const
{
  Relation relation(*this, name, out);
  relation.startWith<NodeColocationConstr>(getColocatedMemoriesConstr(name),
                                           &NodeColocationConstr::getNotColocatedNodeNames);
  relation.addListers(&ConstrCast::toColocatedMemories,
                      &NodeColocationConstr::containsNotColocatedNode, BaseConstraint::NODE);
}

void ConstrHandler::setColocatedNodesConstr(ObjectType objType, const std::string& objName,
                                            const Names& names, bool isNot)
{
  if (ColocatedNodesConstr* colocation =
          findOrCreateKind_(BaseConstraint::ColocatedNodes, objType, objName,
                            &ConstrCast::toColocatedNodes)) {
    if (isNot)
      colocation->setNotColocatedNodeNames(names);
    else
      colocation->setNodeNames(names);
  }
}

void ConstrHandler::setRelativeNodesConstr(ObjectType objType, const std::string& objName,
                                           const std::map<std::string, HDPoint<int>>& offsets)
{
  if (RelativeNodesConstr* relative =
          findOrCreateKind_(BaseConstraint::RelativeNodes, objType, objName,
                            &ConstrCast::toRelativeNodes))
    relative->setNodesWithOffset(offsets);
}

void ConstrHandler::setColocatedPortsConstr(ObjectType objType, const std::string& objName,
                                            const Names& names, bool isNot)
{
  if (ColocatedPortsConstr* colocation =
          findOrCreatePortKind_("setColocatedPortsConstr", BaseConstraint::ColocatedPorts,
                                objType, objName, &ConstrCast::toColocatedPorts)) {
    if (isNot)
      colocation->setNotColocatedPortNames(names);
    else
      colocation->setPortNames(names);
  }
}

void ConstrHandler::setExclusiveColocatedPortsConstr(ObjectType objType,
                                                     const std::string& objName,
                                                     const Names& names)
{
  if (ColocatedPortsConstr* colocation = findOrCreatePortKind_(
          "setExclusiveColocatedPortsConstr", BaseConstraint::ColocatedPorts, objType, objName,
          &ConstrCast::toColocatedPorts))
    colocation->setExclusiveColocatedPortNames(names);
}

void ConstrHandler::setColocatedDmaConstr(ObjectType objType, const std::string& objName,
                                          const Names& names)
{
  if (ColocatedDmaConstr* dma =
          findOrCreatePortKind_("setColocatedDmaConstr", BaseConstraint::ColocatedDma, objType,
                                objName, &ConstrCast::toColocatedDma))
    dma->setPortNames(names);
}

void ConstrHandler::setColocatedMemoriesConstr(ObjectType objType, const std::string& objName,
                                               const Names& names, bool isNot)
{
  if (ColocatedMemoriesConstr* colocation =
          findOrCreateKind_(BaseConstraint::ColocatedMemories, objType, objName,
                            &ConstrCast::toColocatedMemories)) {
    if (isNot)
      colocation->setNotColocatedNodeNames(names);
    else
      colocation->setNodeNames(names);
  }
}

void ConstrHandler::addColocatedNodesConstr(ObjectType objType, const std::string& objName,
                                            const Names& names, bool isNot)
{
  addOrSet_(
      objName, &ConstrCast::toColocatedNodes,
      [&](ColocatedNodesConstr& colocation) {
        if (isNot)
          colocation.addNotColocatedNodeNames(names);
        else
          colocation.addNodeNames(names);
      },
      [&] { setColocatedNodesConstr(objType, objName, names, isNot); });
}

void ConstrHandler::addRelativeNodesConstr(ObjectType objType, const std::string& objName,
                                           const std::map<std::string, HDPoint<int>>& offsets)
{
  addOrSet_(
      objName, &ConstrCast::toRelativeNodes,
      [&](RelativeNodesConstr& relative) { relative.addNodesWithOffset(offsets); },
      [&] { setRelativeNodesConstr(objType, objName, offsets); });
}

void ConstrHandler::addColocatedPortsConstr(ObjectType objType, const std::string& objName,
                                            const Names& names, bool isNot)
{
  requirePort("addColocatedPortsConstr", objType);
  addOrSet_(
      objName, &ConstrCast::toColocatedPorts,
      [&](ColocatedPortsConstr& colocation) {
        if (isNot)
          colocation.addNotColocatedPortNames(names);
        else
          colocation.addPortNames(names);
      },
      [&] { setColocatedPortsConstr(objType, objName, names, isNot); });
}

// Made if need be, and always added to.
void ConstrHandler::addExclusiveColocatedPortsConstr(ObjectType objType,
                                                     const std::string& objName,
                                                     const Names& names)
{
  if (ColocatedPortsConstr* colocation = findOrCreatePortKind_(
          "addExclusiveColocatedPortsConstr", BaseConstraint::ColocatedPorts, objType, objName,
          &ConstrCast::toColocatedPorts))
    colocation->addExclusiveColocatedPortNames(names);
}

void ConstrHandler::addColocatedDmaConstr(ObjectType objType, const std::string& objName,
                                          const Names& names)
{
  requirePort("addColocatedDmaConstr", objType);
  addOrSet_(
      objName, &ConstrCast::toColocatedDma,
      [&](ColocatedDmaConstr& dma) { dma.addPortNames(names); },
      [&] { setColocatedDmaConstr(objType, objName, names); });
}

void ConstrHandler::addColocatedMemoriesConstr(ObjectType objType, const std::string& objName,
                                               const Names& names, bool isNot)
{
  addOrSet_(
      objName, &ConstrCast::toColocatedMemories,
      [&](ColocatedMemoriesConstr& colocation) {
        if (isNot)
          colocation.addNotColocatedNodeNames(names);
        else
          colocation.addNodeNames(names);
      },
      [&] { setColocatedMemoriesConstr(objType, objName, names, isNot); });
}

}  // namespace qpe::constraints
