#include "DependentRoutingGroupConstr.h"

#include "ConstrHandler.h"

namespace qpe::constraints {

DependentRoutingGroupConstr::DependentRoutingGroupConstr(const std::string& name)
    : NodeGroupConstr(DependentRoutingGroup, name)
{
}

void DependentRoutingGroupConstr::clone(ConstrHandler& target,
                                        const BaseNameResolver* resolver) const
{
  const std::string name = getObjName();
  target.setDependentRoutingGroupConstr(name, resolvedNodes(resolver));
  if (DependentRoutingGroupConstr* copy = target.getDependentRoutingGroupConstr(name))
    copy->copySrcInfoFrom(this);
}

void DependentRoutingGroupConstr::write(JDocument& doc, JValue& parent,
                                        const BaseNameResolver* resolver) const
{
  static const std::string key("dependentRoutingGroup");
  writeGroup(doc, parent, resolver, key, false);
}

std::string DependentRoutingGroupConstr::str() const
{
  return groupText(" dependentRoutingGroup");
}

}  // namespace qpe::constraints
