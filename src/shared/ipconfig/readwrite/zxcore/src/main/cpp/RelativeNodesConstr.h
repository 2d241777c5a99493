#pragma once

#include "BaseConstraint.h"
#include "HDPoint.h"
#include "ipconfig_readwrite_export.h"

#include <map>
#include <string>
#include <vector>

namespace qpe::constraints {

// Places other nodes at fixed offsets, column (X) and row (Y), from the node
// that holds the constraint. An axis left free holds the not-set value of
// DefaultXYValues; -1 is a proper offset.
class IPCONFIG_READWRITE_EXPORT RelativeNodesConstr : public BaseConstraint {
public:
  using Offsets = std::map<std::string, HDPoint<int>>;

  RelativeNodesConstr(ObjectType objType, const std::string& objName);

  // A name that resolves to several gives each the same offset.
  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // "relative_nodes": ["name:(X=1,Y=2)", "name:(Y=2)", ...] in name order; a
  // name with two free axes is left out.
  void write(JDocument& doc, JValue& objectValue, const BaseNameResolver* resolver) const override;
  // Offsets are relative: nothing moves.
  void offsetColumn(int delta) override;
  // " rel(object,relative_nodes)=(name:(X=1,Y=2),...)", free axes as -9999.
  std::string str() const override;
  // Only from another constraint of this kind.
  void copySrcInfoFrom(const BaseConstraint* other) override;

  // Appends the names in order.
  virtual void getNodeNames(std::vector<std::string>& out) const;
  virtual void getNodesWithOffset(Offsets& out) const;
  virtual const Offsets& getNodesWithOffset() const;
  // Each name given takes its offset; other names stay.
  virtual void addNodesWithOffset(const Offsets& offsets);
  virtual void setNodesWithOffset(const Offsets& offsets);
  virtual void unloadObject(const std::string& name);
  virtual bool isSet() const;
  virtual bool hasRelativeNodes() const;
  virtual void setNodeOffset(const std::string& name, HDPoint<int> offset);
  // Both axes free for a name without an offset.
  virtual HDPoint<int> getNodeOffset(const std::string& name) const;

private:
  Offsets offsets;
};

}  // namespace qpe::constraints
