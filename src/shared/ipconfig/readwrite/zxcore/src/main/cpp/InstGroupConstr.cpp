#include "InstGroupConstr.h"

#include "ConstrHandler.h"

namespace qpe::constraints {

InstGroupConstr::InstGroupConstr(const std::string& name) : NodeGroupConstr(InstGroup, name) {}

void InstGroupConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string name = getObjName();
  target.setInstGroupConstr(name, resolvedNodes(resolver), isomorphic);
  if (InstGroupConstr* copy = target.getInstGroupConstr(name))
    copy->copySrcInfoFrom(this);
}

void InstGroupConstr::write(JDocument& doc, JValue& parent, const BaseNameResolver* resolver) const
{
  static const std::string key("instGroup");
  writeGroup(doc, parent, resolver, key, isomorphic);
}

std::string InstGroupConstr::str() const
{
  return groupText(" instGroup") + " isIsomorphic=(" + (isomorphic ? "true" : "false") + ")";
}

}  // namespace qpe::constraints
