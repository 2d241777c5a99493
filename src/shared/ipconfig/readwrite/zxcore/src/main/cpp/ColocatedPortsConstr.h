#pragma once

#include "BaseConstraint.h"
#include "ColocationList.h"
#include "NameList.h"
#include "ipconfig_readwrite_export.h"

#include <string>
#include <vector>

namespace qpe::constraints {

// The ports to place with a port, "colocated_ports", those to keep apart from
// it, "not_colocated_ports", and those to place with it alone,
// "exclusive_colocated_ports". Each name has a soft flag. The first list's
// soft flags and source location are the constraint's own; the other two
// keep their own.
class IPCONFIG_READWRITE_EXPORT ColocatedPortsConstr : public BaseConstraint {
public:
  ColocatedPortsConstr(ObjectType objType, const std::string& objName);

  // Names pass the resolver, soft flags go with them.
  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // Each list that has names, with its soft names in object form and its
  // source location.
  void write(JDocument& doc, JValue& objectValue, const BaseNameResolver* resolver) const override;
  void offsetColumn(int delta) override;
  // " rel(object,<list>)=(a,b,)" for each list that has names.
  std::string str() const override;
  // The object's name, the three lists and their soft flags.
  void renamePorts(const std::map<std::string, std::string>& oldToNew) override;
  // Also the locations of the other two lists, from a constraint of this kind.
  void copySrcInfoFrom(const BaseConstraint* other) override;

  virtual void getPortNames(std::vector<std::string>& out) const;
  virtual const std::vector<std::string>& getPortNames() const;
  virtual void getNotColocatedPortNames(std::vector<std::string>& out) const;
  virtual const std::vector<std::string>& getNotColocatedPortNames() const;
  virtual void getExclusiveColocatedPortNames(std::vector<std::string>& out) const;
  virtual const std::vector<std::string>& getExclusiveColocatedPortNames() const;
  // Appends the names not listed yet.
  virtual void addPortNames(const std::vector<std::string>& names);
  virtual void setPortNames(const std::vector<std::string>& names);
  virtual void addNotColocatedPortNames(const std::vector<std::string>& names);
  virtual void setNotColocatedPortNames(const std::vector<std::string>& names);
  virtual void addExclusiveColocatedPortNames(const std::vector<std::string>& names);
  virtual void setExclusiveColocatedPortNames(const std::vector<std::string>& names);
  virtual bool isSet() const;
  virtual bool hasColocatedPorts() const;
  virtual bool hasNotColocatedPorts() const;
  virtual bool hasExclusiveColocatedPorts() const;
  virtual bool containsColocatedPort(const std::string& name) const;
  virtual bool containsNotColocatedPort(const std::string& name) const;
  virtual bool containsExclusiveColocatedPort(const std::string& name) const;
  virtual bool isColocatedSoftPort(const std::string& name) const;
  // The listed names that are soft, in list order.
  virtual std::vector<std::string> getColocatedSoftPorts() const;
  virtual bool isNotColocatedSoftPort(const std::string& name) const;
  virtual bool isExclusiveColocatedSoftPort(const std::string& name) const;

  void setColocatedSoftPort(const std::string& name, bool soft);
  void setNotColocatedSoftPort(const std::string& name, bool soft);
  void setExclusiveColocatedSoftPort(const std::string& name, bool soft);
  std::vector<std::string> getNotColocatedSoftPorts() const;
  std::vector<std::string> getExclusiveColocatedSoftPorts() const;
  // Soft properties of a name of a list; default ones are not kept.
  using BaseConstraint::setConstrObjectProperties;
  void setNotColocatedConstrObjectProperties(const std::string& name, ConstrProperties props);
  void setExclusiveColocatedConstrObjectProperties(const std::string& name,
                                                   ConstrProperties props);
  const ConstrPropertiesMap& getNotColocatedProperties() const { return notColocated.properties; }
  const ConstrPropertiesMap& getExclusiveColocatedProperties() const
  {
    return exclusive.properties;
  }
  const SrcInfo& getNotColocatedSrcInfo() const { return notColocated.srcInfo; }
  SrcInfo& getNotColocatedSrcInfo() { return notColocated.srcInfo; }
  const SrcInfo& getExclusiveSrcInfo() const { return exclusive.srcInfo; }
  SrcInfo& getExclusiveSrcInfo() { return exclusive.srcInfo; }

private:
  NameList colocated;
  ColocationList notColocated;
  ColocationList exclusive;
};

}  // namespace qpe::constraints
