#pragma once

#include "NodeGroupConstr.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

// A named group of node instances, "instGroup", which may be isomorphic.
class IPCONFIG_READWRITE_EXPORT InstGroupConstr : public NodeGroupConstr {
public:
  explicit InstGroupConstr(const std::string& name);

  // The nodes pass the resolver; the group's name does not.
  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // "instGroup": {"name", "isisomorphic" when true, "nodeGroup", "srcInfo"}.
  void write(JDocument& doc, JValue& parent, const BaseNameResolver* resolver) const override;
  // " instGroup(name)=(a,b,) isIsomorphic=(true)"
  std::string str() const override;

  bool isIsomorphic() const { return isomorphic; }
  void setIsomorphic(bool value) { isomorphic = value; }

private:
  bool isomorphic = false;
};

}  // namespace qpe::constraints
