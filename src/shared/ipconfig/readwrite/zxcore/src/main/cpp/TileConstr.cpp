#include "TileConstr.h"

#include "ConstrHandler.h"
#include "IPConfigMessages.h"

namespace qpe::constraints {

namespace {

using Utils = HCRapidJsonReadWriteUtils;

}  // namespace

TileConstr::TileConstr(ObjectType objType, const std::string& objName)
    : BaseConstraint(Tile, objType, objName)
{
}

void TileConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string resolved = getResolvedName(this, resolver);
  if (isNameBased())
    target.setTileConstr(resolved, getName());
  else if (isXYBased())
    target.setTileConstr(resolved, getColumn(), getRow(), getTileType());
  if (TileConstr* copy = target.getTileConstr(resolved))
    copy->copySrcInfoFrom(this);
}

void TileConstr::write(JDocument& doc, JValue& objectValue, const BaseNameResolver*) const
{
  static const std::string key("tile");
  JAllocator& alloc = doc.GetAllocator();
  JValue tile(rapidjson::kObjectType);
  if (isNameBased()) {
    Utils::AddStringProperty(tile, "name", getName(), alloc);
  } else if (isXYBased()) {
    Utils::AddIntegrProperty(tile, "column", getColumn(), alloc);
    if (isRowSet())
      Utils::AddIntegrProperty(tile, "row", getRow(), alloc);
    Utils::AddStringProperty(tile, "tile_type", PhysicalSpec::toString(getTileType()), alloc);
  }
  if (tile.MemberCount() == 0) {
    IPCONFIG_SEND_MSG(ComMsgMgr::Info, "@75-586@%s", getObjName());
    return;
  }
  Utils::AddGenericValueProperty(objectValue, key, tile, alloc);
  writeSrcInfo(doc, objectValue, key);
}

void TileConstr::offsetColumn(int delta)
{
  spec.offsetColumn(delta);
}

std::string TileConstr::str() const
{
  return " abs(" + getObjName() + ",tile)=(" + std::to_string(getColumn()) + "," +
         std::to_string(getRow()) + ")";
}

std::string TileConstr::getName() const
{
  return spec.getName();
}

int TileConstr::getColumn() const
{
  return spec.getColumn();
}

int TileConstr::getRow() const
{
  return spec.getRow();
}

HDPoint<int> TileConstr::getXY() const
{
  return spec.getXY();
}

void TileConstr::setTileType(PhysicalSpec::PhysicalType type)
{
  spec.setPhysicalType(type);
}

PhysicalSpec::PhysicalType TileConstr::getTileType() const
{
  return spec.getPhysicalType();
}

bool TileConstr::isTileTypeValueDefault() const
{
  return getTileType() == PhysicalSpec::Core;
}

bool TileConstr::isTileTypeValueUnknown() const
{
  return getTileType() == PhysicalSpec::Unknown;
}

void TileConstr::setName(const std::string& name)
{
  spec.setName(name);
}

void TileConstr::setColumn(int column)
{
  setXY(column, getRow());
}

void TileConstr::setRow(int row)
{
  setXY(getColumn(), row);
}

void TileConstr::setXY(int column, int row)
{
  spec.setXY(column, row);
}

void TileConstr::setXY(HDPoint<int> point)
{
  spec.setXY(point);
}

void TileConstr::set(HDPoint<int> point)
{
  spec.set(point);
}

bool TileConstr::isSet() const
{
  return isNameSet() || isColumnSet();
}

bool TileConstr::isNameSet() const
{
  return spec.isNameSet();
}

bool TileConstr::isColumnSet() const
{
  return spec.isColumnSet();
}

bool TileConstr::isRowSet() const
{
  return spec.isRowSet();
}

bool TileConstr::isNameBased() const
{
  return spec.isNameBased();
}

bool TileConstr::isXYBased() const
{
  return spec.isXYBased();
}

}  // namespace qpe::constraints
