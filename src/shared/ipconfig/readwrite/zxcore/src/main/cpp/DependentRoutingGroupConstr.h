#pragma once

#include "NodeGroupConstr.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

// A named group of nodes whose routing depends on one another,
// "dependentRoutingGroup".
class IPCONFIG_READWRITE_EXPORT DependentRoutingGroupConstr : public NodeGroupConstr {
public:
  explicit DependentRoutingGroupConstr(const std::string& name);

  // The nodes pass the resolver; the group's name does not.
  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // "dependentRoutingGroup": {"name", "nodeGroup", "srcInfo"}.
  void write(JDocument& doc, JValue& parent, const BaseNameResolver* resolver) const override;
  // " dependentRoutingGroup(name)=(a,b,)"
  std::string str() const override;
};

}  // namespace qpe::constraints
