#pragma once

#include "BaseConstraint.h"
#include "PhysicalSpec.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

// Pins a compute node to one tile, by the tile's name or by its column and
// row. The tile type is the type of the location held, which starts as an
// unset core tile.
class IPCONFIG_READWRITE_EXPORT TileConstr : public BaseConstraint {
public:
  TileConstr(ObjectType objType, const std::string& objName);

  void clone(ConstrHandler& target, const BaseNameResolver* resolver) const override;
  // "tile": {"name"} or {"column", "row", "tile_type"}. A tile without a
  // name or a column writes nothing and says so ("@75-586@%s", info).
  void write(JDocument& doc, JValue& objectValue, const BaseNameResolver* resolver) const override;
  // A tile given by name stays.
  void offsetColumn(int delta) override;
  // " abs(object,tile)=(column,row)", unset numbers as -1.
  std::string str() const override;

  virtual std::string getName() const;
  virtual int getColumn() const;
  virtual int getRow() const;
  virtual HDPoint<int> getXY() const;
  virtual void setTileType(PhysicalSpec::PhysicalType type);
  virtual PhysicalSpec::PhysicalType getTileType() const;
  // Core, the type of a new tile constraint.
  virtual bool isTileTypeValueDefault() const;
  virtual bool isTileTypeValueUnknown() const;
  virtual void setName(const std::string& name);
  // The other coordinate stays; a name, bank and offset do not.
  virtual void setColumn(int column);
  virtual void setRow(int row);
  virtual void setXY(int column, int row);
  virtual void setXY(HDPoint<int> point);
  virtual void set(HDPoint<int> point);
  // A name or a column: a row alone sets nothing.
  virtual bool isSet() const;
  virtual bool isNameSet() const;
  virtual bool isColumnSet() const;
  virtual bool isRowSet() const;
  virtual bool isNameBased() const;
  virtual bool isXYBased() const;

private:
  PhysicalSpec spec;
};

}  // namespace qpe::constraints
