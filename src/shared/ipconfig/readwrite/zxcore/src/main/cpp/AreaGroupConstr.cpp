#include "AreaGroupConstr.h"

#include "ConstrHandler.h"
#include "PhysicalRangeArray.h"

#include <sstream>

namespace qpe::constraints {

namespace {

using Utils = HCRapidJsonReadWriteUtils;
using Push = void (PhysicalRangeArray::*)(const PhysicalRange&);

// The ranges that `push` takes, under `key` when there is one.
void writeRanges(const std::vector<PhysicalRange>& ranges, Push push, const char* key,
                 JValue& group, JAllocator& alloc)
{
  PhysicalRangeArray array(alloc);
  for (const PhysicalRange& range : ranges)
    (array.*push)(range);
  if (!array.empty())
    Utils::AddGenericValueProperty(group, key, array.get(), alloc);
}

const char* text(bool value)
{
  return value ? "true" : "false";
}

}  // namespace

AreaGroupConstr::AreaGroupConstr(const std::string& name)
    : BaseConstraint(AreaGroup), groupName(name, "")
{
}

std::string AreaGroupConstr::getObjName() const
{
  return groupName.getStringVal();
}

BaseConstraint::ObjectType AreaGroupConstr::getObjType() const
{
  return GLOBAL;
}

void AreaGroupConstr::clone(ConstrHandler& target, const BaseNameResolver* resolver) const
{
  std::vector<std::string> nodes = getNodeGroup();
  resolveNodeNames(nodes, resolver);
  const std::string name = getObjName();
  target.setAreaGroupConstr(name, nodes, getPhysicalGroup(), flags.exclude, flags.isSoft,
                            flags.containRouting, flags.exclusiveRouting,
                            flags.exclusivePlacement);
  if (AreaGroupConstr* copy = target.getAreaGroupConstr(name))
    copy->copySrcInfoFrom(this);
}

void AreaGroupConstr::write(JDocument& doc, JValue& parent, const BaseNameResolver* resolver) const
{
  if (!groupName.isSet())
    return;
  static const std::string key("areaGroup");
  JAllocator& alloc = doc.GetAllocator();
  JValue group(rapidjson::kObjectType);
  Utils::AddStringProperty(group, "name", getObjName(), alloc);
  const std::pair<const char*, bool> flagKeys[] = {
      {"exclude", flags.exclude},
      {"issoft", flags.isSoft},
      {"contain_routing", flags.containRouting},
      {"exclusive_routing", flags.exclusiveRouting},
      {"exclusive_placement", flags.exclusivePlacement},
  };
  for (const auto& [flagKey, value] : flagKeys)
    if (value)
      Utils::AddBooleanProperty(group, flagKey, true, alloc);
  if (isNodeGroupSet()) {
    std::vector<std::string> nodes = getNodeGroup();
    resolveScopedNodeNames(nodes, resolver);
    if (!nodes.empty())
      Utils::AddStringArrayProperty(group, "nodeGroup", nodes, alloc);
  }
  if (isPhysicalGroupSet()) {
    writeRanges(physicalGroup, &PhysicalRangeArray::pushTileRangeBack, "tileGroup", group, alloc);
    writeRanges(physicalGroup, &PhysicalRangeArray::pushMemRangeBack, "memGroup", group, alloc);
    writeRanges(physicalGroup, &PhysicalRangeArray::pushShimRangeBack, "shimGroup", group, alloc);
  }
  writeSrcInfo(doc, group, key);
  Utils::AddGenericValueProperty(parent, key, group, alloc);
}

void AreaGroupConstr::writeSrcInfo(JDocument& doc, JValue& parent, const std::string&) const
{
  writeGroupSrcInfo(doc, parent, getSrcInfo());
}

// The list is rebuilt and swapped in whole.
void AreaGroupConstr::offsetColumn(int delta)
{
  std::vector<PhysicalRange> shifted;
  shifted.reserve(physicalGroup.size());
  for (PhysicalRange range : physicalGroup) {
    range.offsetColumn(delta);
    PhysicalRange& made = shifted.emplace_back(PhysicalSpec());
    if (range.getFirst().isSet())
      made.setFirst(range.getFirst());
    if (range.getSecond().isSet())
      made.setSecond(range.getSecond());
  }
  setPhysicalGroup(shifted);
}

std::string AreaGroupConstr::str() const
{
  std::ostringstream out;
  out << " areaGroup(" << getObjName() << ")=(";
  for (const std::string& node : nodeGroup)
    out << node << ",";
  out << ")(";
  for (const PhysicalRange& range : physicalGroup)
    out << "\n  " << range.str();
  out << ")\n exclude=(" << text(flags.exclude) << ") isSoft=(" << text(flags.isSoft)
      << ") contain_routing=(" << text(flags.containRouting) << ") exclusive_routing=("
      << text(flags.exclusiveRouting) << ") exclusive_placement=("
      << text(flags.exclusivePlacement) << ")";
  return out.str();
}

void AreaGroupConstr::getNodeGroup(std::vector<std::string>& out) const
{
  out = nodeGroup;
}

std::vector<std::string> AreaGroupConstr::getNodeGroup() const
{
  return nodeGroup;
}

void AreaGroupConstr::getPhysicalGroup(std::vector<PhysicalRange>& out) const
{
  out = physicalGroup;
}

const std::vector<PhysicalRange>& AreaGroupConstr::getPhysicalGroup() const
{
  return physicalGroup;
}

void AreaGroupConstr::getValidPhysicalGroup(std::vector<PhysicalRange>& out) const
{
  for (const PhysicalRange& range : physicalGroup)
    if (range.isValid())
      out.push_back(range);
}

void AreaGroupConstr::addNode(const std::string& name)
{
  addNodeGroup({name});
}

void AreaGroupConstr::addNodeGroup(const std::vector<std::string>& names)
{
  for (const std::string& name : names)
    if (nodeNames.insert(name).second)
      nodeGroup.push_back(name);
}

void AreaGroupConstr::setNodeGroup(const std::vector<std::string>& names)
{
  nodeGroup.clear();
  nodeNames.clear();
  addNodeGroup(names);
}

void AreaGroupConstr::addPhysicalValue(const PhysicalSpec& spec)
{
  if (spec.isSet())
    physicalGroup.emplace_back(spec);
}

void AreaGroupConstr::addPhysicalRange(const PhysicalSpec& first, const PhysicalSpec& second)
{
  if (!first.isSet())
    return;
  if (second.isSet())
    physicalGroup.emplace_back(first, second);
  else
    physicalGroup.emplace_back(first);
}

void AreaGroupConstr::addPhysicalRange(const PhysicalRange& range)
{
  if (range.getFirst().isSet())
    physicalGroup.push_back(range);
}

void AreaGroupConstr::addPhysicalGroup(const std::vector<PhysicalRange>& ranges)
{
  if (&ranges == &physicalGroup) {
    const std::vector<PhysicalRange> held = ranges;
    addPhysicalGroup(held);
    return;
  }
  physicalGroup.insert(physicalGroup.end(), ranges.begin(), ranges.end());
}

void AreaGroupConstr::setPhysicalGroup(const std::vector<PhysicalRange>& ranges)
{
  physicalGroup = ranges;
}

bool AreaGroupConstr::isNodeGroupSet() const
{
  return !nodeGroup.empty();
}

bool AreaGroupConstr::isPhysicalGroupSet() const
{
  return !physicalGroup.empty();
}

}  // namespace qpe::constraints
