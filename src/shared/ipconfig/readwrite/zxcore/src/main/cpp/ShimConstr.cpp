#include "ShimConstr.h"

#include "ConstrHandler.h"

namespace qpe::constraints {

namespace {

using Utils = HCRapidJsonReadWriteUtils;

}  // namespace

ShimConstr::ShimConstr(ObjectType objType, const std::string& objName)
    : BaseConstraint(Shim, objType, objName)
{
}

void ShimConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string resolved = getResolvedName(this, resolver);
  if (isNameBased())
    target.setShimConstr(resolved, getName());
  else if (isXYBased())
    target.setShimConstr(resolved, getColumn(), getChannel());
  if (ShimConstr* copy = target.getShimConstr(resolved))
    copy->copySrcInfoFrom(this);
}

void ShimConstr::write(JDocument& doc, JValue& objectValue, const BaseNameResolver*) const
{
  static const std::string key("shim");
  JAllocator& alloc = doc.GetAllocator();
  JValue shim(rapidjson::kObjectType);
  if (isNameBased()) {
    Utils::AddStringProperty(shim, "name", getName(), alloc);
  } else if (isXYBased()) {
    Utils::AddIntegrProperty(shim, "column", getColumn(), alloc);
    if (isChannelSet())
      Utils::AddIntegrProperty(shim, "channel", getChannel(), alloc);
  }
  if (shim.MemberCount() == 0)
    return;
  Utils::AddGenericValueProperty(objectValue, key, shim, alloc);
  writeSrcInfo(doc, objectValue, key);
}

void ShimConstr::offsetColumn(int delta)
{
  spec.offsetColumn(delta);
}

std::string ShimConstr::str() const
{
  return " abs(" + getObjName() + ",shim)=(" + std::to_string(getColumn()) + "," +
         std::to_string(getChannel()) + ")";
}

std::string ShimConstr::getName() const
{
  return spec.getName();
}

int ShimConstr::getColumn() const
{
  return spec.getColumn();
}

int ShimConstr::getChannel() const
{
  return spec.getIndex();
}

void ShimConstr::setName(const std::string& name)
{
  spec.setName(name);
}

void ShimConstr::setColumn(int column)
{
  spec.setXY(column, spec.getRow());
}

void ShimConstr::setChannel(int channel)
{
  spec.setIndex(channel);
}

bool ShimConstr::isSet() const
{
  return (isNameSet() || isColumnSet()) && isChannelSet();
}

bool ShimConstr::isNameSet() const
{
  return spec.isNameSet();
}

bool ShimConstr::isColumnSet() const
{
  return spec.isColumnSet();
}

bool ShimConstr::isChannelSet() const
{
  return spec.isChannelSet();
}

bool ShimConstr::isNameBased() const
{
  return spec.isNameBased();
}

bool ShimConstr::isXYBased() const
{
  return spec.isXYBased();
}

}  // namespace qpe::constraints
