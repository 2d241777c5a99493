#include "PhysicalSpec.h"

namespace qpe::constraints {

namespace {

AttrValue intValue(int value)
{
  return AttrValue(value, -1);
}

}  // namespace

std::string PhysicalSpec::toString(PhysicalType type)
{
  switch (type) {
  case Core: return "core";
  case Shim: return "shim";
  case Mem: return "mem";
  case Unknown: break;
  }
  return "unknown-tile-type";
}

std::string PhysicalSpec::toString(ShimChannelType type)
{
  switch (type) {
  case Trace: return "trace";
  case Control: return "control";
  case Unset: break;
  }
  return "unknown-channel-type";
}

PhysicalSpec::PhysicalType PhysicalSpec::toPhysicalSpecTileType(const std::string& text)
{
  if (text == "mem")
    return Mem;
  if (text == "shim")
    return Shim;
  return Core;
}

PhysicalSpec::ShimChannelType PhysicalSpec::toPhysicalSpecShimChannelType(const std::string& text)
{
  if (text == "control")
    return Control;
  if (text == "trace")
    return Trace;
  return Unset;
}

PhysicalSpec::PhysicalSpec() : PhysicalSpec(Core) {}

PhysicalSpec::PhysicalSpec(PhysicalType type)
    : name(HATAttrTypes::AttrString), column(HATAttrTypes::AttrInt), row(HATAttrTypes::AttrInt),
      index(HATAttrTypes::AttrInt), physicalType(type), bank(HATAttrTypes::AttrInt),
      offset(HATAttrTypes::AttrInt)
{
}

PhysicalSpec::PhysicalSpec(const PhysicalSpec&) = default;
PhysicalSpec& PhysicalSpec::operator=(const PhysicalSpec&) = default;
PhysicalSpec::~PhysicalSpec() = default;

void PhysicalSpec::clear()
{
  clearCoords();
  shimChannelType = Unset;
}

bool PhysicalSpec::isShim() const
{
  return getPhysicalType() == Shim;
}

bool PhysicalSpec::isTile() const
{
  return getPhysicalType() == Core;
}

bool PhysicalSpec::isMem() const
{
  return getPhysicalType() == Mem;
}

PhysicalSpec::PhysicalType PhysicalSpec::getPhysicalType() const
{
  return physicalType;
}

std::string PhysicalSpec::getName() const
{
  return name.getStringVal();
}

int PhysicalSpec::getColumn() const
{
  return column.getIntVal();
}

int PhysicalSpec::getRow() const
{
  return row.getIntVal();
}

int PhysicalSpec::getIndex() const
{
  return index.getIntVal();
}

int PhysicalSpec::getBank() const
{
  return bank.getIntVal();
}

int PhysicalSpec::getOffset() const
{
  return offset.getIntVal();
}

HDPoint<int> PhysicalSpec::getXY() const
{
  return {getColumn(), getRow()};
}

void PhysicalSpec::setName(const std::string& newName)
{
  clearCoords();
  name = AttrValue(newName, "");
}

void PhysicalSpec::setColumn(int newColumn)
{
  setXY(newColumn, getRow());
}

void PhysicalSpec::setRow(int newRow)
{
  setXY(getColumn(), newRow);
}

void PhysicalSpec::setBank(int newBank)
{
  bank = intValue(newBank);
}

void PhysicalSpec::setOffset(int newOffset)
{
  offset = intValue(newOffset);
}

void PhysicalSpec::setIndex(int newIndex)
{
  index = intValue(newIndex);
}

void PhysicalSpec::setXY(int newColumn, int newRow)
{
  const int keptIndex = getIndex();
  clearCoords();
  column = intValue(newColumn);
  row = intValue(newRow);
  index = intValue(keptIndex);
}

void PhysicalSpec::setXY(HDPoint<int> point)
{
  setXY(point.x, point.y);
}

void PhysicalSpec::set(HDPoint<int> point)
{
  setXY(point);
}

void PhysicalSpec::setShimChannelType(ShimChannelType type)
{
  shimChannelType = type;
}

PhysicalSpec::ShimChannelType PhysicalSpec::getShimChannelType() const
{
  return shimChannelType;
}

bool PhysicalSpec::isValid() const
{
  return isNameSet() || isColumnSet();
}

bool PhysicalSpec::isNameSet() const
{
  return name.isSet();
}

bool PhysicalSpec::isColumnSet() const
{
  return column.isSet();
}

bool PhysicalSpec::isRowSet() const
{
  return row.isSet();
}

bool PhysicalSpec::isIndexSet() const
{
  return index.isSet();
}

bool PhysicalSpec::isBankSet() const
{
  return bank.isSet();
}

bool PhysicalSpec::isOffsetSet() const
{
  return offset.isSet();
}

bool PhysicalSpec::isChannelSet() const
{
  return isIndexSet();
}

bool PhysicalSpec::isShimChannelTypeSet() const
{
  return getShimChannelType() != Unset;
}

bool PhysicalSpec::isNameBased() const
{
  return isNameSet();
}

bool PhysicalSpec::isXYBased() const
{
  return isColumnSet();
}

std::string PhysicalSpec::str() const
{
  std::string text;
  switch (getPhysicalType()) {
  case Core: text = "tile="; break;
  case Shim: text = "shim="; break;
  case Mem: text = "mem="; break;
  case Unknown: break;
  }
  if (isNameBased()) {
    text += "(" + getName() + ")";
  } else {
    const int second = isTile() || isMem() ? getRow() : getIndex();
    text += "(" + std::to_string(getColumn()) + "," + std::to_string(second) + ")";
  }
  if (isShimChannelTypeSet())
    text += "channel_type=(" + toString(getShimChannelType()) + ")";
  return text;
}

bool PhysicalSpec::isWithinBoundingBox(const HDRectangle<int>& rect) const
{
  if (isColumnSet() && (getColumn() < rect.lowX || getColumn() > rect.highX))
    return false;
  if (isRowSet() && (getRow() < rect.lowY || getRow() > rect.highY))
    return false;
  return true;
}

void PhysicalSpec::clearCoords()
{
  name.clear();
  column.clear();
  row.clear();
  index.clear();
  bank.clear();
  offset.clear();
}

bool PhysicalSpec::isSet() const
{
  return isNameSet() || isColumnSet();
}

void PhysicalSpec::offsetColumn(int delta)
{
  if (isColumnSet() && !isNameSet())
    setXY(getColumn() + delta, getRow());
}

}  // namespace qpe::constraints
