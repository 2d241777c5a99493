#include "PortLocConstr.h"

#include "ConstrHandler.h"

namespace qpe::constraints {

namespace {

using Utils = HCRapidJsonReadWriteUtils;

}  // namespace

PortLocConstr::PortLocConstr(ObjectType objType, const std::string& objName)
    : BaseConstraint(PortLoc, objType, objName)
{
}

void PortLocConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string resolved = getResolvedName(this, resolver);
  if (isNameBased())
    target.setPortLocConstr(resolved, getName(), getChannel(), getShimChannelType());
  else if (isXYBased())
    target.setPortLocConstr(resolved, getTileType(), getColumn(), getRow(), getChannel(),
                            getShimChannelType());
  if (PortLocConstr* copy = target.getPortLocConstr(resolved))
    copy->copySrcInfoFrom(this);
}

void PortLocConstr::write(JDocument& doc, JValue& objectValue, const BaseNameResolver*) const
{
  static const std::string key("port_loc");
  JAllocator& alloc = doc.GetAllocator();
  JValue location(rapidjson::kObjectType);
  if (isNameBased()) {
    Utils::AddStringProperty(location, "name", getName(), alloc);
  } else if (isXYBased()) {
    Utils::AddStringProperty(location, "tile_type", PhysicalSpec::toString(getTileType()), alloc);
    if (isRowSet())
      Utils::AddIntegrProperty(location, "row", getRow(), alloc);
    Utils::AddIntegrProperty(location, "column", getColumn(), alloc);
  }
  if (location.MemberCount() == 0)
    return;
  if (isChannelSet())
    Utils::AddIntegrProperty(location, "channel", getChannel(), alloc);
  if (isShimChannelTypeSet())
    Utils::AddStringProperty(location, "channel_type",
                             PhysicalSpec::toString(getShimChannelType()), alloc);
  Utils::AddGenericValueProperty(objectValue, key, location, alloc);
  writeSrcInfo(doc, objectValue, key);
}

void PortLocConstr::offsetColumn(int delta)
{
  spec.offsetColumn(delta);
}

std::string PortLocConstr::str() const
{
  return " abs(" + getObjName() + ",shim)=(" + std::to_string(getColumn()) + "," +
         std::to_string(getChannel()) + ")";
}

void PortLocConstr::setTileType(PhysicalSpec::PhysicalType type)
{
  spec.setPhysicalType(type);
}

PhysicalSpec::PhysicalType PortLocConstr::getTileType() const
{
  return spec.getPhysicalType();
}

std::string PortLocConstr::getName() const
{
  return spec.getName();
}

int PortLocConstr::getColumn() const
{
  return spec.getColumn();
}

int PortLocConstr::getRow() const
{
  return spec.getRow();
}

int PortLocConstr::getChannel() const
{
  return spec.getIndex();
}

void PortLocConstr::setName(const std::string& name)
{
  spec.setName(name);
}

void PortLocConstr::setColumn(int column)
{
  spec.setXY(column, spec.getRow());
}

void PortLocConstr::setRow(int row)
{
  spec.setXY(spec.getColumn(), row);
}

void PortLocConstr::setChannel(int channel)
{
  spec.setIndex(channel);
}

void PortLocConstr::setShimChannelType(PhysicalSpec::ShimChannelType type)
{
  spec.setShimChannelType(type);
}

PhysicalSpec::ShimChannelType PortLocConstr::getShimChannelType() const
{
  return spec.getShimChannelType();
}

bool PortLocConstr::isSet() const
{
  return (isNameSet() || isColumnSet()) && isChannelSet();
}

bool PortLocConstr::isNameSet() const
{
  return spec.isNameSet();
}

bool PortLocConstr::isColumnSet() const
{
  return spec.isColumnSet();
}

bool PortLocConstr::isRowSet() const
{
  return spec.isRowSet();
}

bool PortLocConstr::isChannelSet() const
{
  return spec.isIndexSet();
}

bool PortLocConstr::isShimChannelTypeSet() const
{
  return spec.isShimChannelTypeSet();
}

bool PortLocConstr::isNameBased() const
{
  return spec.isNameBased();
}

bool PortLocConstr::isXYBased() const
{
  return spec.isXYBased();
}

}  // namespace qpe::constraints
