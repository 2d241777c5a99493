#pragma once

#include "BaseConstraint.h"
#include "PhysicalSpec.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

// Places a port on a tile or shim location, by the location's name or by its
// coordinates, with a channel and what that channel carries. The channel is
// the location's index; a new constraint is an unset core location.
class IPCONFIG_READWRITE_EXPORT PortLocConstr : public BaseConstraint {
public:
  PortLocConstr(ObjectType objType, const std::string& objName);

  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // "port_loc": {"name", "channel", "channel_type"} or {"tile_type", "row",
  // "column", "channel", "channel_type"}, each but the name and the tile type
  // only when set. Nothing for an unset location.
  void write(JDocument& doc, JValue& objectValue, const BaseNameResolver* resolver) const override;
  // A location given by name stays.
  void offsetColumn(int delta) override;
  // " abs(object,shim)=(column,channel)", whatever the tile type.
  std::string str() const override;

  virtual void setTileType(PhysicalSpec::PhysicalType type);
  virtual PhysicalSpec::PhysicalType getTileType() const;
  virtual std::string getName() const;
  virtual int getColumn() const;
  virtual int getRow() const;
  virtual int getChannel() const;
  // Clears the coordinates and the channel: a name with a channel is set first.
  virtual void setName(const std::string& name);
  // The other coordinate and the channel stay.
  virtual void setColumn(int column);
  virtual void setRow(int row);
  virtual void setChannel(int channel);
  virtual void setShimChannelType(PhysicalSpec::ShimChannelType type);
  virtual PhysicalSpec::ShimChannelType getShimChannelType() const;
  // A name or a column, and a channel.
  virtual bool isSet() const;
  virtual bool isNameSet() const;
  virtual bool isColumnSet() const;
  virtual bool isRowSet() const;
  virtual bool isChannelSet() const;
  virtual bool isShimChannelTypeSet() const;
  virtual bool isNameBased() const;
  virtual bool isXYBased() const;

private:
  PhysicalSpec spec;
};

}  // namespace qpe::constraints
