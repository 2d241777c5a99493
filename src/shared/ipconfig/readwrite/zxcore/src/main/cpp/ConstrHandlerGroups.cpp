// The handler's operations of the instance, routing and isomorphic groups.

#include "ConstrCast.h"
#include "ConstrHandler.h"
#include "ConstrHandlerTemplates.h"
#include "DependentRoutingGroupConstr.h"
#include "InstGroupConstr.h"
#include "IsomorphicGraphGroupConstr.h"

namespace qpe::constraints {

void ConstrHandler::setInstGroupConstr(const std::string& name,
                                       const std::vector<std::string>& nodes, bool isIsomorphic)
{
  if (InstGroupConstr* group =
          findOrCreateGroup_(BaseConstraint::InstGroup, name, &ConstrCast::toInstGroup)) {
    group->setNodeGroup(nodes);
    group->setIsomorphic(isIsomorphic);
  }
}

void ConstrHandler::setDependentRoutingGroupConstr(const std::string& name,
                                                   const std::vector<std::string>& nodes)
{
  if (DependentRoutingGroupConstr* group = findOrCreateGroup_(
          BaseConstraint::DependentRoutingGroup, name, &ConstrCast::toDependentRoutingGroup))
    group->setNodeGroup(nodes);
}

void ConstrHandler::setIsomorphicGraphGroupConstr(const std::string& name,
                                                  const std::string& referenceGraph,
                                                  const std::vector<std::string>& stampedGraphs)
{
  if (IsomorphicGraphGroupConstr* group = findOrCreateGroup_(
          BaseConstraint::IsomorphicGraphGroup, name, &ConstrCast::toIsomorphicGraphGroup)) {
    group->setReferenceGraph(referenceGraph);
    group->setStampedGraphGroup(stampedGraphs);
  }
}

void ConstrHandler::addInstGroupConstr(const std::string& name,
                                       const std::vector<std::string>& nodes, bool isIsomorphic)
{
  if (name.empty())
    return;
  if (InstGroupConstr* group = getInstGroupConstr(name))
    group->addNodeGroup(nodes);
  else
    setInstGroupConstr(name, nodes, isIsomorphic);
}

void ConstrHandler::addDependentRoutingGroupConstr(const std::string& name,
                                                   const std::vector<std::string>& nodes)
{
  if (DependentRoutingGroupConstr* group = findOrCreateGroup_(
          BaseConstraint::DependentRoutingGroup, name, &ConstrCast::toDependentRoutingGroup))
    group->addNodeGroup(nodes);
}

void ConstrHandler::addIsomorphicGraphGroupConstr(const std::string& name,
                                                  const std::string& referenceGraph,
                                                  const std::vector<std::string>& stampedGraphs)
{
  if (IsomorphicGraphGroupConstr* group = findOrCreateGroup_(
          BaseConstraint::IsomorphicGraphGroup, name, &ConstrCast::toIsomorphicGraphGroup)) {
    group->setReferenceGraph(referenceGraph);
    group->addStampedGraphGroup(stampedGraphs);
  }
}

}  // namespace qpe::constraints
