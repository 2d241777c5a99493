#include "RelativeNodesConstr.h"

#include "ConstrHandler.h"
#include "DefaultXYValues.h"

#include <boost/format.hpp>

namespace qpe::constraints {

namespace {

bool isXSet(HDPoint<int> offset)
{
  return offset.x != DefaultXYValues::XCoordinateNotSetValue;
}

bool isYSet(HDPoint<int> offset)
{
  return offset.y != DefaultXYValues::YCoordinateNotSetValue;
}

// The element of a name in a file; empty with both axes free.
std::string offsetText(const std::string& name, HDPoint<int> offset)
{
  if (isXSet(offset) && isYSet(offset))
    return (boost::format("%s:(X=%d,Y=%d)") % name % offset.x % offset.y).str();
  if (isXSet(offset))
    return (boost::format("%s:(X=%d)") % name % offset.x).str();
  if (isYSet(offset))
    return (boost::format("%s:(Y=%d)") % name % offset.y).str();
  return "";
}

}  // namespace

RelativeNodesConstr::RelativeNodesConstr(ObjectType objType, const std::string& objName)
    : BaseConstraint(RelativeNodes, objType, objName)
{
}

void RelativeNodesConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  const std::string resolved = getResolvedName(this, resolver);
  Offsets resolvedOffsets;
  std::vector<std::string> names;
  for (const auto& [name, offset] : offsets) {
    names.assign(1, name);
    resolveNodeNames(names, resolver);
    for (const std::string& each : names)
      resolvedOffsets[each] = offset;
  }
  if (!resolvedOffsets.empty())
    target.setRelativeNodesConstr(getObjType(), resolved, resolvedOffsets);
  if (RelativeNodesConstr* copy = target.getRelativeNodesConstr(resolved))
    copy->copySrcInfoFrom(this);
}

void RelativeNodesConstr::write(JDocument& doc, JValue& objectValue,
                                const BaseNameResolver* resolver) const
{
  static const std::string key("relative_nodes");
  std::vector<std::string> texts;
  std::vector<std::string> names;
  for (const auto& [name, offset] : offsets) {
    names.assign(1, name);
    resolveScopedNodeNames(names, resolver);
    for (const std::string& each : names) {
      std::string text = offsetText(each, offset);
      if (!text.empty())
        texts.push_back(std::move(text));
    }
  }
  if (texts.empty())
    return;
  HCRapidJsonReadWriteUtils::AddStringArrayProperty(objectValue, key, texts, doc.GetAllocator());
  writeSrcInfo(doc, objectValue, key);
}

void RelativeNodesConstr::offsetColumn(int) {}

std::string RelativeNodesConstr::str() const
{
  std::string text = " rel(" + getObjName() + ",relative_nodes)=(";
  const char* separator = "";
  for (const auto& [name, offset] : offsets) {
    text += separator + (boost::format("%s:(X=%d,Y=%d)") % name % offset.x % offset.y).str();
    separator = ",";
  }
  return text + ")";
}

void RelativeNodesConstr::copySrcInfoFrom(const BaseConstraint* other)
{
  if (other && other->getConstrType() == RelativeNodes &&
      dynamic_cast<const RelativeNodesConstr*>(other))
    BaseConstraint::copySrcInfoFrom(other);
}

void RelativeNodesConstr::getNodeNames(std::vector<std::string>& out) const
{
  for (const auto& entry : offsets)
    out.push_back(entry.first);
}

void RelativeNodesConstr::getNodesWithOffset(Offsets& out) const
{
  out = offsets;
}

const RelativeNodesConstr::Offsets& RelativeNodesConstr::getNodesWithOffset() const
{
  return offsets;
}

void RelativeNodesConstr::addNodesWithOffset(const Offsets& added)
{
  for (const auto& [name, offset] : added)
    offsets[name] = offset;
}

void RelativeNodesConstr::setNodesWithOffset(const Offsets& replacement)
{
  offsets = replacement;
}

void RelativeNodesConstr::unloadObject(const std::string& name)
{
  offsets.erase(name);
}

bool RelativeNodesConstr::isSet() const
{
  return hasRelativeNodes();
}

bool RelativeNodesConstr::hasRelativeNodes() const
{
  return !offsets.empty();
}

void RelativeNodesConstr::setNodeOffset(const std::string& name, HDPoint<int> offset)
{
  offsets[name] = offset;
}

HDPoint<int> RelativeNodesConstr::getNodeOffset(const std::string& name) const
{
  const auto found = offsets.find(name);
  if (found != offsets.end())
    return found->second;
  return {DefaultXYValues::XCoordinateNotSetValue, DefaultXYValues::YCoordinateNotSetValue};
}

}  // namespace qpe::constraints
