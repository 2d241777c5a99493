#pragma once

#include "AttrValue.h"
#include "BaseConstraint.h"
#include "NameList.h"
#include "ipconfig_readwrite_export.h"

#include <string>
#include <vector>

namespace qpe::constraints {

// What the instance group and the dependent routing group share: a global
// constraint found by its own name, holding a group of nodes, each once.
class IPCONFIG_READWRITE_EXPORT NodeGroupConstr : public BaseConstraint {
public:
  // The group's name.
  std::string getObjName() const override;
  ObjectType getObjType() const override;
  // The location of a group stands inside its own object, under "srcInfo".
  void writeSrcInfo(JDocument& doc, JValue& parent, const std::string& key) const override;
  // A group of nodes does not depend on a column.
  void offsetColumn(int delta) override;

  virtual void getNodeGroup(std::vector<std::string>& out) const;
  virtual const std::vector<std::string>& getNodeGroup() const;
  // A name that the group holds already is not added again.
  virtual void addNode(const std::string& name);
  virtual void addNodeGroup(const std::vector<std::string>& names);
  virtual void setNodeGroup(const std::vector<std::string>& names);
  virtual bool isNodeGroupSet() const;

protected:
  NodeGroupConstr(ConstrType constrType, const std::string& name);

  // The group's object under `key`: "name", "isisomorphic" when `isomorphic`,
  // "nodeGroup" with the scoped names, "srcInfo". Nothing without a name.
  void writeGroup(JDocument& doc, JValue& parent, const BaseNameResolver* resolver,
                  const std::string& key, bool isomorphic) const;
  // `text` "(name)=(a,b,)".
  std::string groupText(const char* text) const;
  // The nodes through the resolver's plain operation.
  std::vector<std::string> resolvedNodes(const BaseNameResolver* resolver) const;

private:
  AttrValue groupName;
  NameList nodeGroup;
};

}  // namespace qpe::constraints
