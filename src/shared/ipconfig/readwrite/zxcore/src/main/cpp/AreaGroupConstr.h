#pragma once

#include "AttrValue.h"
#include "BaseConstraint.h"
#include "PhysicalRange.h"
#include "ipconfig_readwrite_export.h"

#include <string>
#include <unordered_set>
#include <vector>

namespace qpe::constraints {

// A named group of nodes and the ranges of the array within which they are to
// live: tiles, memory tiles and shims, in one list. A global constraint, found
// by its own name.
class IPCONFIG_READWRITE_EXPORT AreaGroupConstr : public BaseConstraint {
public:
  // What the group asks of its area, for the consumers of the file.
  struct Flags {
    bool exclude = false;
    bool isSoft = false;
    bool containRouting = false;
    bool exclusiveRouting = false;
    bool exclusivePlacement = false;
  };

  explicit AreaGroupConstr(const std::string& name);

  // The group's name.
  std::string getObjName() const override;
  ObjectType getObjType() const override;
  // The nodes pass the resolver; the group's name does not.
  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // An "areaGroup" member: "name", the flags that are true, "nodeGroup", then
  // the ranges by the kind of their ends in "tileGroup", "memGroup" and
  // "shimGroup", then "srcInfo". Nothing for a group without a name.
  void write(JDocument& doc, JValue& parent, const BaseNameResolver* resolver) const override;
  // The location of a group stands inside its own object, under "srcInfo".
  void writeSrcInfo(JDocument& doc, JValue& parent, const std::string& key) const override;
  // Each coordinate-based end moves; an unset end comes out default.
  void offsetColumn(int delta) override;
  // " areaGroup(name)=(a,b,)(" a line for each range ")" and a line of the flags.
  std::string str() const override;

  virtual void getNodeGroup(std::vector<std::string>& out) const;
  virtual std::vector<std::string> getNodeGroup() const;
  virtual void getPhysicalGroup(std::vector<PhysicalRange>& out) const;
  virtual const std::vector<PhysicalRange>& getPhysicalGroup() const;
  // Appends the valid ranges to `out`, which is not cleared.
  virtual void getValidPhysicalGroup(std::vector<PhysicalRange>& out) const;
  // A name that the group holds already is not added again.
  virtual void addNode(const std::string& name);
  virtual void addNodeGroup(const std::vector<std::string>& names);
  virtual void setNodeGroup(const std::vector<std::string>& names);
  // A set location, as a range with a default second end.
  virtual void addPhysicalValue(const PhysicalSpec& spec);
  // Nothing without a set first end; an unset second end is left default.
  virtual void addPhysicalRange(const PhysicalSpec& first, const PhysicalSpec& second);
  virtual void addPhysicalRange(const PhysicalRange& range);
  // Appends every range, set or not.
  virtual void addPhysicalGroup(const std::vector<PhysicalRange>& ranges);
  virtual void setPhysicalGroup(const std::vector<PhysicalRange>& ranges);
  virtual bool isNodeGroupSet() const;
  virtual bool isPhysicalGroupSet() const;

  const Flags& getFlags() const { return flags; }
  void setFlags(const Flags& newFlags) { flags = newFlags; }

private:
  std::vector<PhysicalRange> physicalGroup;
  AttrValue groupName;
  Flags flags;
  // The node names in order, and as a set so that an add need not walk the
  // list: a group grown one node at a time stays linear.
  std::vector<std::string> nodeGroup;
  std::unordered_set<std::string> nodeNames;
};

}  // namespace qpe::constraints
