#pragma once

#include "BaseConstraint.h"
#include "PhysicalSpec.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

// Pins a node to a shim location: by name, or by column and channel (the
// index of the location held).
class IPCONFIG_READWRITE_EXPORT ShimConstr : public BaseConstraint {
public:
  ShimConstr(ObjectType objType, const std::string& objName);

  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // "shim": {"name"} or {"column", "channel"}; nothing, silently, without a
  // name or a column.
  void write(JDocument& doc, JValue& objectValue, const BaseNameResolver* resolver) const override;
  // A shim given by name stays; the channel moves with the column.
  void offsetColumn(int delta) override;
  // " abs(object,shim)=(column,channel)", unset numbers as -1.
  std::string str() const override;

  virtual std::string getName() const;
  virtual int getColumn() const;
  virtual int getChannel() const;
  virtual void setName(const std::string& name);
  // Keeps the channel.
  virtual void setColumn(int column);
  virtual void setChannel(int channel);
  // A name or a column, and a channel.
  virtual bool isSet() const;
  virtual bool isNameSet() const;
  virtual bool isColumnSet() const;
  virtual bool isChannelSet() const;
  virtual bool isNameBased() const;
  virtual bool isXYBased() const;

private:
  PhysicalSpec spec;
};

}  // namespace qpe::constraints
