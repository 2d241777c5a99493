#pragma once

#include "AttrValue.h"
#include "BaseConstraint.h"
#include "NameList.h"
#include "ipconfig_readwrite_export.h"

#include <string>
#include <vector>

namespace qpe::constraints {

// Ties stamped copies of a graph to their reference graph,
// "isomorphicGraphGroup". Graph names are no node names: no resolver sees
// them. No visitor operation reaches this kind.
class IPCONFIG_READWRITE_EXPORT IsomorphicGraphGroupConstr : public BaseConstraint {
public:
  explicit IsomorphicGraphGroupConstr(const std::string& name);

  // The group's name.
  std::string getObjName() const override;
  ObjectType getObjType() const override;
  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // "isomorphicGraphGroup": {"name", "referenceGraph", "stampedGraphs",
  // "srcInfo"}, each but the name only when set. Nothing without a name.
  void write(JDocument& doc, JValue& parent, const BaseNameResolver* resolver) const override;
  // The location of a group stands inside its own object, under "srcInfo".
  void writeSrcInfo(JDocument& doc, JValue& parent, const std::string& key) const override;
  void offsetColumn(int delta) override;
  // " isomorphicGraphGroup(name)=(reference - a,b,)"
  std::string str() const override;

  virtual void getStampedGraphGroup(std::vector<std::string>& out) const;
  virtual const std::vector<std::string>& getStampedGraphGroup() const;
  virtual void setReferenceGraph(const std::string& name);
  // A graph that the group holds already is not added again.
  virtual void addStampedGraph(const std::string& name);
  virtual void addStampedGraphGroup(const std::vector<std::string>& names);
  virtual void setStampedGraphGroup(const std::vector<std::string>& names);
  virtual bool isReferenceGraphSet() const;
  virtual bool isStampedGraphGroupSet() const;

  std::string getReferenceGraph() const { return referenceGraph.getStringVal(); }

private:
  AttrValue groupName;
  AttrValue referenceGraph{"", ""};
  NameList stampedGraphs;
};

}  // namespace qpe::constraints
