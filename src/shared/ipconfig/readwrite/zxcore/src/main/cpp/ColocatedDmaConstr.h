#pragma once

#include "BaseConstraint.h"
#include "NameList.h"
#include "ipconfig_readwrite_export.h"

#include <string>
#include <vector>

namespace qpe::constraints {

// The ports whose DMA is to be placed with a port's, "colocated_dma": a bare
// list of names, without soft flags.
class IPCONFIG_READWRITE_EXPORT ColocatedDmaConstr : public BaseConstraint {
public:
  ColocatedDmaConstr(ObjectType objType, const std::string& objName);

  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // "colocated_dma": the names, when any is left after the scoped resolver.
  void write(JDocument& doc, JValue& objectValue, const BaseNameResolver* resolver) const override;
  void offsetColumn(int delta) override;
  // " rel(object,colocated_dma)=(a,b,)"
  std::string str() const override;
  // The object's name and the listed ports.
  void renamePorts(const std::map<std::string, std::string>& oldToNew) override;

  virtual void getPortNames(std::vector<std::string>& out) const;
  virtual const std::vector<std::string>& getPortNames() const;
  // Appends the names not listed yet.
  virtual void addPortNames(const std::vector<std::string>& names);
  virtual void setPortNames(const std::vector<std::string>& names);
  virtual bool isSet() const;
  virtual bool containsColocatedPort(const std::string& name) const;

private:
  NameList ports;
};

}  // namespace qpe::constraints
