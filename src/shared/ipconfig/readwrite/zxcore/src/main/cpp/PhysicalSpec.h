#pragma once

#include "AttrValue.h"
#include "HDPoint.h"
#include "HDRectangle.h"
#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <string>

namespace qpe::constraints {

class TileConstr;
class PortLocConstr;

// One location on the compute array as the user wrote it: by name, or by
// column and row (column and channel for a shim). Nothing is checked against
// a device. Every entry to one form clears the other, so a location is name
// based, coordinate based or unset. Unset fields read as -1 or "".
//
// Every operation is virtual and is called through the table, also from
// inside the class, so that a subclass's replacement is seen.
class IPCONFIG_READWRITE_EXPORT PhysicalSpec {
public:
  enum PhysicalType : std::int32_t {
    Core = 0,
    Shim = 1,
    Mem = 2,
    Unknown = 3,
  };

  enum ShimChannelType : std::int32_t {
    Trace = 0,
    Control = 1,
    Unset = 2,
  };

  // "core", "shim", "mem", else "unknown-tile-type".
  static std::string toString(PhysicalType type);
  // "trace", "control", else "unknown-channel-type".
  static std::string toString(ShimChannelType type);
  // Mem for exactly "mem", Shim for exactly "shim", Core for anything else.
  static PhysicalType toPhysicalSpecTileType(const std::string& text);
  // Control for exactly "control", Trace for exactly "trace", else Unset.
  static ShimChannelType toPhysicalSpecShimChannelType(const std::string& text);

  PhysicalSpec();
  explicit PhysicalSpec(PhysicalType type);
  PhysicalSpec(const PhysicalSpec&);
  PhysicalSpec& operator=(const PhysicalSpec&);

  virtual ~PhysicalSpec();
  // Unsets every field but the physical type.
  virtual void clear();
  virtual bool isShim() const;
  virtual bool isTile() const;
  virtual bool isMem() const;
  virtual PhysicalType getPhysicalType() const;
  virtual std::string getName() const;
  virtual int getColumn() const;
  virtual int getRow() const;
  virtual int getIndex() const;
  virtual int getBank() const;
  virtual int getOffset() const;
  virtual HDPoint<int> getXY() const;
  // Clears the coordinates, bank and offset first.
  virtual void setName(const std::string& name);
  // setXY with the other coordinate kept.
  virtual void setColumn(int column);
  virtual void setRow(int row);
  virtual void setBank(int bank);
  virtual void setOffset(int offset);
  virtual void setIndex(int index);
  // Clears name, bank and offset; the index survives the move.
  virtual void setXY(int column, int row);
  virtual void setXY(HDPoint<int> point);
  virtual void set(HDPoint<int> point);
  virtual void setShimChannelType(ShimChannelType type);
  virtual ShimChannelType getShimChannelType() const;
  // Name based or coordinate based.
  virtual bool isValid() const;
  virtual bool isNameSet() const;
  // A column makes a location coordinate based; the row plays no part.
  virtual bool isColumnSet() const;
  virtual bool isRowSet() const;
  virtual bool isIndexSet() const;
  virtual bool isBankSet() const;
  virtual bool isOffsetSet() const;
  virtual bool isChannelSet() const;
  virtual bool isShimChannelTypeSet() const;
  virtual bool isNameBased() const;
  virtual bool isXYBased() const;
  // "tile=(3,1)", "shim=(7,2)channel_type=(trace)", "mem=(name)".
  virtual std::string str() const;
  // Inclusive limits; an unset axis is not constrained.
  virtual bool isWithinBoundingBox(const HDRectangle<int>& rect) const;
  // Unsets name, column, row, index, bank and offset; both types stay.
  virtual void clearCoords();

  bool isSet() const;
  // Moves a coordinate-based location by `delta` columns through setXY, so
  // that its bank and offset are lost and its index kept; a name-based or
  // unset location stays.
  void offsetColumn(int delta);

protected:
  // A location keeps the type it was made with. The one exception is the
  // location of a tile constraint, whose tile type is this type.
  void setPhysicalType(PhysicalType type) { physicalType = type; }
  friend class TileConstr;
  friend class PortLocConstr;

private:
  AttrValue name;
  AttrValue column;
  AttrValue row;
  AttrValue index;
  PhysicalType physicalType;
  AttrValue bank;
  AttrValue offset;
  ShimChannelType shimChannelType = Unset;
};

}  // namespace qpe::constraints
