#include "ConstrHandler.h"
#include "ConstrHandlerTemplates.h"

#include "AreaGroupConstr.h"
#include "BaseNameResolver.h"
#include "BaseVisitor.h"
#include "BufferConstr.h"
#include "ColocatedDmaConstr.h"
#include "ColocatedMemoriesConstr.h"
#include "ColocatedNodesConstr.h"
#include "ColocatedPortsConstr.h"
#include "ConstBaseVisitor.h"
#include "ConstrCast.h"
#include "ConstrReader.h"
#include "ConstrUtils.h"
#include "ConstrWriter.h"
#include "DependentRoutingGroupConstr.h"
#include "HEXAlgException.h"
#include "InstGroupConstr.h"
#include "IsomorphicGraphGroupConstr.h"
#include "FifoLocationsConstr.h"
#include "MemConstr.h"
#include "PortLocConstr.h"
#include "PortRenamer.h"
#include "RelativeNodesConstr.h"
#include "ReservedMemoryConstr.h"
#include "ShimConstr.h"
#include "StreamChannelConstr.h"
#include "TileConstr.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <utility>

namespace qpe::constraints {

namespace {

bool isGroup(BaseConstraint::ConstrType constrType)
{
  return constrType >= BaseConstraint::AreaGroup;
}

HEXAlgException unsupportedType(const char* operation, BaseConstraint::ConstrType constrType)
{
  return HEXAlgException(std::string("ConstrHandler::") + operation +
                         "() - this function does not support creating constraints of type '" +
                         BaseConstraint::getConstrTypeAsStr(constrType) + "'");
}

}  // namespace

template <typename Kind, typename... Args>
Kind* ConstrHandler::make_(Args&&... args)
{
  auto constr = std::make_unique<Kind>(std::forward<Args>(args)...);
  Kind* made = constr.get();
  addConstraint(constr.release());
  return made;
}

void ConstrHandler::destroy_(BaseConstraint* constr)
{
  delete constr;
}

const ObjectConstrs* ConstrHandler::entry_(const std::string& objName) const
{
  if (lastName && *lastName == objName)
    return lastEntry;
  const auto entry = objects.find(objName);
  if (entry == objects.end())
    return nullptr;
  lastName = &entry->first;
  // The entry is this handler's own: only a const lookup found it.
  lastEntry = const_cast<ObjectConstrs*>(&entry->second);
  return lastEntry;
}

ObjectConstrs& ConstrHandler::fileUnder_(const std::string& objName)
{
  if (lastName && *lastName == objName)
    return *lastEntry;
  const auto entry = objects.try_emplace(objName).first;
  lastName = &entry->first;
  lastEntry = &entry->second;
  return *lastEntry;
}

template <typename Value>
void ConstrHandler::setAttr_(ObjectType objType, const std::string& objName,
                             const std::string& attrName, AttrConstr::AttrType type, Value value)
{
  if (attrName.empty())
    return;
  AttrConstr* attr = findOrCreate_(
      objName, [&] { return getAttrConstr(objName, attrName); },
      [&] { return createAttrConstr(objType, objName, type, attrName); });
  if (attr)
    attr->setVal(value);
}

template <typename Visit>
void ConstrHandler::forEachOfType_(ObjectType objType, const Visit& visit) const
{
  for (std::size_t i = 0; i < constrs.size(); ++i)
    if (objTypes[i] == objType)
      visit(constrs[i]);
}

void ConstrHandler::getAllConstrained_(ObjectType objType, std::vector<std::string>& out) const
{
  Constrs ofType;
  forEachOfType_(objType, [&ofType](BaseConstraint* constr) { ofType.push_back(constr); });
  getUniqueObjNames(ofType.begin(), ofType.end(), out);
}

void ConstrHandler::copy_(const ConstrHandler& from, const BaseNameResolver* resolver)
{
  // A copy of the list, since `from` may be this handler.
  const Constrs sources = from.getConstrs();
  for (const BaseConstraint* constr : sources)
    constr->clone(*this, resolver);
  records.copy(from);
}

void ConstrHandler::unfile_(Index& index, const std::string& name, const BaseConstraint* constr)
{
  if (index[name].remove(constr))
    return;
  // Filed under another name: renamePorts moves entries by name, and an
  // entry can hold constraints of other objects of the old name.
  for (auto& entry : index)
    if (entry.second.remove(constr))
      return;
}

ConstrHandler::ConstrHandler() = default;

ConstrHandler::~ConstrHandler()
{
  ConstrHandler::clear();
}

bool ConstrHandler::read(std::istream& in, const std::string& path,
                         const BaseNameResolver& resolver)
{
  ConstrReader(*this, resolver).read(in, path, true);
  return true;
}

bool ConstrHandler::read(const std::string& path)
{
  ConstrReader(*this).read(path, true);
  return true;
}

bool ConstrHandler::write(const std::string& path) const
{
  ConstrWriter(*this).write(path, true);
  return true;
}

bool ConstrHandler::write(std::ostream& out, const std::string& path,
                          const BaseNameResolver& resolver) const
{
  ConstrWriter(*this, resolver).write(out, path, true);
  return true;
}

bool ConstrHandler::writeAreaGroupConstrs(std::ostream& out, const std::string& path,
                                          const BaseNameResolver& resolver) const
{
  ConstrWriter(*this, resolver).writeAreaGroupConstrs(out, path, true);
  return true;
}

void ConstrHandler::clear()
{
  Constrs doomed;
  doomed.swap(constrs);
  objTypes.clear();
  lastName = nullptr;
  objects.clear();
  groups.clear();
  for (BaseConstraint* constr : doomed)
    destroy_(constr);
  records.clear();
}

bool ConstrHandler::empty() const
{
  return constrs.empty();
}

std::size_t ConstrHandler::size() const
{
  return constrs.size();
}

void ConstrHandler::unload(const BaseConstraint* constr)
{
  if (!constr)
    return;
  const auto owned = std::find(constrs.begin(), constrs.end(), constr);
  if (owned == constrs.end())
    return;
  BaseConstraint* doomed = *owned;
  objTypes.erase(objTypes.begin() + (owned - constrs.begin()));
  constrs.erase(owned);
  unfile_(objects, doomed->getObjName(), doomed);
  if (isGroup(doomed->getConstrType()))
    unfile_(groups, doomed->getObjName(), doomed);
  destroy_(doomed);
}

const ConstrHandler::Constrs& ConstrHandler::getConstrs() const
{
  return constrs;
}

void ConstrHandler::getConstrs(Constrs& out) const
{
  out = constrs;
}

void ConstrHandler::getConstrs(const std::string& objName, Constrs& out) const
{
  const ObjectConstrs* entry = entry_(objName);
  if (entry && !entry->empty())
    out = entry->all();
}

void ConstrHandler::getConstrs(ObjectType objType, Constrs& out) const
{
  out.clear();
  forEachOfType_(objType, [&out](BaseConstraint* constr) { out.push_back(constr); });
}

void ConstrHandler::getConstrs(const std::string& objName, const std::string& constrName,
                               Constrs& out) const
{
  const ObjectConstrs* entry = entry_(objName);
  if (!entry)
    return;
  out.clear();
  for (BaseConstraint* constr : *entry)
    if (iequals(constr->getConstrName(), constrName))
      out.push_back(constr);
}

BaseConstraint* ConstrHandler::getConstr(const std::string& objName, ConstrType constrType) const
{
  const ObjectConstrs* entry = entry_(objName);
  return entry ? entry->firstOfType(constrType) : nullptr;
}

BaseConstraint* ConstrHandler::getConstr(const std::string& objName,
                                         const std::string& constrName) const
{
  const ObjectConstrs* entry = entry_(objName);
  if (!entry)
    return nullptr;
  if (BaseConstraint* named = entry->firstNamed(constrName))
    return named;
  return entry->firstNamed(AttrConstr::makeCanonicalAttrName(constrName));
}

void ConstrHandler::getConstrs(const std::string& objName, ConstrType constrType,
                               Constrs& out) const
{
  const ObjectConstrs* entry = entry_(objName);
  if (!entry)
    return;
  out.clear();
  for (BaseConstraint* constr : *entry)
    if (constr->getConstrType() == constrType)
      out.push_back(constr);
}

BufferConstr* ConstrHandler::getBufferConstr(const std::string& objName) const
{
  return firstOfKind_(objName, &ConstrCast::toBuffer);
}

ColocatedNodesConstr* ConstrHandler::getColocatedNodesConstr(const std::string& objName) const
{
  return firstOfKind_(objName, &ConstrCast::toColocatedNodes);
}

RelativeNodesConstr* ConstrHandler::getRelativeNodesConstr(const std::string& objName) const
{
  return firstOfKind_(objName, &ConstrCast::toRelativeNodes);
}

ColocatedPortsConstr* ConstrHandler::getColocatedPortsConstr(const std::string& objName) const
{
  return firstOfKind_(objName, &ConstrCast::toColocatedPorts);
}

ColocatedDmaConstr* ConstrHandler::getColocatedDmaConstr(const std::string& objName) const
{
  return firstOfKind_(objName, &ConstrCast::toColocatedDma);
}

ColocatedMemoriesConstr* ConstrHandler::getColocatedMemoriesConstr(
    const std::string& objName) const
{
  return firstOfKind_(objName, &ConstrCast::toColocatedMemories);
}

ReservedMemoryConstr* ConstrHandler::getReservedMemoryConstr(const std::string& objName) const
{
  return firstOfKind_(objName, &ConstrCast::toReservedMemory);
}

FifoLocationsConstr* ConstrHandler::getFifoLocationsConstr(const std::string& objName) const
{
  return firstOfKind_(objName, &ConstrCast::toFifoLocations);
}

TileConstr* ConstrHandler::getTileConstr(const std::string& objName) const
{
  return firstOfKind_(objName, &ConstrCast::toTile);
}

MemConstr* ConstrHandler::getMemConstr(const std::string& objName) const
{
  return firstOfKind_(objName, &ConstrCast::toMem);
}

ShimConstr* ConstrHandler::getShimConstr(const std::string& objName) const
{
  return firstOfKind_(objName, &ConstrCast::toShim);
}

PortLocConstr* ConstrHandler::getPortLocConstr(const std::string& objName) const
{
  return firstOfKind_(objName, &ConstrCast::toPortLoc);
}

StreamChannelConstr* ConstrHandler::getStreamChannelConstr(const std::string& objName) const
{
  return firstOfKind_(objName, &ConstrCast::toStreamChannel);
}

AttrConstr* ConstrHandler::getAttrConstr(const std::string& objName,
                                         const std::string& attrName) const
{
  if (attrName.empty())
    throw HEXAlgException("ConstrHandler::get() - attrName must be specified when T == AttrConstr");
  return ConstrCast::toAttr(getConstr(objName, AttrConstr::makeCanonicalAttrName(attrName)));
}

AreaGroupConstr* ConstrHandler::getAreaGroupConstr(const std::string& name) const
{
  return firstGroup_(BaseConstraint::AreaGroup, name, &ConstrCast::toAreaGroup);
}

InstGroupConstr* ConstrHandler::getInstGroupConstr(const std::string& name) const
{
  return firstGroup_(BaseConstraint::InstGroup, name, &ConstrCast::toInstGroup);
}

DependentRoutingGroupConstr* ConstrHandler::getDependentRoutingGroupConstr(
    const std::string& name) const
{
  return firstGroup_(BaseConstraint::DependentRoutingGroup, name,
                     &ConstrCast::toDependentRoutingGroup);
}

IsomorphicGraphGroupConstr* ConstrHandler::getIsomorphicGraphGroupConstr(
    const std::string& name) const
{
  return firstGroup_(BaseConstraint::IsomorphicGraphGroup, name,
                     &ConstrCast::toIsomorphicGraphGroup);
}

const FifoLocationsRecord* ConstrHandler::getFifoLocationsRecord(const std::string& name) const
{
  return records.get(name);
}

const FifoLocationsRecords& ConstrHandler::getFifoLocationsRecords() const
{
  return records;
}

const FifoLocationsRecords& ConstrHandler::getRecords() const
{
  return records;
}

FifoLocationsRecords& ConstrHandler::getRecords()
{
  return records;
}

void ConstrHandler::setAttrConstr(ObjectType objType, const std::string& objName,
                                  const std::string& attrName, bool value)
{
  setAttr_(objType, objName, attrName, HATAttrTypes::AttrBool, value);
}

void ConstrHandler::setAttrConstr(ObjectType objType, const std::string& objName,
                                  const std::string& attrName, int value)
{
  setAttr_(objType, objName, attrName, HATAttrTypes::AttrInt, value);
}

void ConstrHandler::setAttrConstr(ObjectType objType, const std::string& objName,
                                  const std::string& attrName, double value)
{
  setAttr_(objType, objName, attrName, HATAttrTypes::AttrDouble, value);
}

void ConstrHandler::setAttrConstr(ObjectType objType, const std::string& objName,
                                  const std::string& attrName, const std::string& value)
{
  setAttr_(objType, objName, attrName, HATAttrTypes::AttrString, value);
}

void ConstrHandler::setAttrConstr(ObjectType objType, const std::string& objName,
                                  const std::string& attrName, const char* value)
{
  setAttrConstr(objType, objName, attrName, std::string(value));
}

void ConstrHandler::setBufferConstr(const std::string& objName, const Address& ping,
                                    const Address& pong, const Address& rtpSelector)
{
  if (BufferConstr* buffer = findOrCreateKind_(BaseConstraint::Buffer, BaseConstraint::PORT,
                                               objName, &ConstrCast::toBuffer)) {
    buffer->ping = ping;
    buffer->pong = pong;
    buffer->rtpSelector = rtpSelector;
  }
}

void ConstrHandler::setTileConstr(const std::string& objName, int column, int row,
                                  PhysicalSpec::PhysicalType tileType)
{
  if (TileConstr* tile = findOrCreateKind_(BaseConstraint::Tile, BaseConstraint::NODE, objName,
                                           &ConstrCast::toTile)) {
    tile->setXY(column, row);
    tile->setTileType(tileType);
  }
}

void ConstrHandler::setTileConstr(const std::string& objName, const std::string& name)
{
  if (TileConstr* tile = findOrCreateKind_(BaseConstraint::Tile, BaseConstraint::NODE, objName,
                                           &ConstrCast::toTile))
    tile->setName(name);
}

void ConstrHandler::setMemConstr(const std::string& objName, const Address& ping,
                                 const Address& pong)
{
  if (MemConstr* mem = findOrCreateKind_(BaseConstraint::Mem, BaseConstraint::NODE, objName,
                                         &ConstrCast::toMem)) {
    mem->ping = ping;
    mem->pong = pong;
  }
}

void ConstrHandler::setReservedMemoryConstr(const std::string& objName, const Address& address)
{
  if (ReservedMemoryConstr* reserved =
          findOrCreateKind_(BaseConstraint::ReservedMemory, BaseConstraint::NODE, objName,
                            &ConstrCast::toReservedMemory))
    reserved->address = address;
}

void ConstrHandler::setShimConstr(const std::string& objName, const std::string& name)
{
  if (ShimConstr* shim = findOrCreateKind_(BaseConstraint::Shim, BaseConstraint::NODE, objName,
                                           &ConstrCast::toShim))
    shim->setName(name);
}

void ConstrHandler::setShimConstr(const std::string& objName, int column, int channel)
{
  if (ShimConstr* shim = findOrCreateKind_(BaseConstraint::Shim, BaseConstraint::NODE, objName,
                                           &ConstrCast::toShim)) {
    shim->setColumn(column);
    shim->setChannel(channel);
  }
}

void ConstrHandler::setAreaGroupConstr(const std::string& name,
                                       const std::vector<std::string>& nodes,
                                       const std::vector<PhysicalRange>& ranges, bool exclude,
                                       bool isSoft, bool containRouting, bool exclusiveRouting,
                                       bool exclusivePlacement)
{
  AreaGroupConstr* group =
      findOrCreateGroup_(BaseConstraint::AreaGroup, name, &ConstrCast::toAreaGroup);
  if (!group)
    return;
  group->setNodeGroup(nodes);
  group->setPhysicalGroup(ranges);
  group->setFlags({exclude, isSoft, containRouting, exclusiveRouting, exclusivePlacement});
}

const DmaFifoRecord* ConstrHandler::addDmaFifoRecord(const std::string& name,
                                                     PhysicalSpec::PhysicalType tileType,
                                                     int column, int row, int size, int offset,
                                                     int bankId)
{
  return records.addDmaFifoRecord(name, tileType, column, row, size, offset, bankId);
}

const StreamFifoRecord* ConstrHandler::addStreamFifoRecord(const std::string& name,
                                                           PhysicalSpec::PhysicalType tileType,
                                                           int column, int row, int channel)
{
  return records.addStreamFifoRecord(name, tileType, column, row, channel);
}

void ConstrHandler::addAreaGroupConstr(const std::string& name,
                                       const std::vector<std::string>& nodes,
                                       const std::vector<PhysicalRange>& ranges, bool exclude,
                                       bool isSoft, bool containRouting, bool exclusiveRouting,
                                       bool exclusivePlacement)
{
  if (name.empty())
    return;
  if (AreaGroupConstr* group = getAreaGroupConstr(name)) {
    group->addNodeGroup(nodes);
    group->addPhysicalGroup(ranges);
    return;
  }
  setAreaGroupConstr(name, nodes, ranges, exclude, isSoft, containRouting, exclusiveRouting,
                     exclusivePlacement);
}

void ConstrHandler::copy(const ConstrHandler& from, const BaseNameResolver& resolver)
{
  copy_(from, &resolver);
}

void ConstrHandler::copy(const ConstrHandler& from)
{
  copy_(from, nullptr);
}

void ConstrHandler::accept(BaseVisitor& visitor) const
{
  // By position, so that a visitor that adds constraints cannot invalidate the walk.
  for (std::size_t i = 0; i < constrs.size(); ++i)
    visitor.visit(constrs[i]);
}

void ConstrHandler::accept(ConstBaseVisitor& visitor) const
{
  for (std::size_t i = 0; i < constrs.size(); ++i)
    visitor.visit(constrs[i]);
}

void ConstrHandler::getAllConstrainedNodes(std::vector<std::string>& out) const
{
  getAllConstrained_(BaseConstraint::NODE, out);
}

void ConstrHandler::getAllConstrainedPorts(std::vector<std::string>& out) const
{
  getAllConstrained_(BaseConstraint::PORT, out);
}

void ConstrHandler::getAllConstrainedNets(std::vector<std::string>& out) const
{
  getAllConstrained_(BaseConstraint::NET, out);
}

void ConstrHandler::addConstraint(BaseConstraint* constr)
{
  if (!constr)
    return;
  constrs.push_back(constr);
  objTypes.push_back(constr->getObjType());
  const std::string& name = constr->getObjName();
  fileUnder_(name).add(constr);
  if (isGroup(constr->getConstrType()))
    groups[name].add(constr);
}

BaseConstraint* ConstrHandler::createConstr(ConstrType constrType, ObjectType objType,
                                            const std::string& objName)
{
  switch (constrType) {
  case BaseConstraint::Buffer: return make_<BufferConstr>(objType, objName);
  case BaseConstraint::ReservedMemory: return make_<ReservedMemoryConstr>(objType, objName);
  case BaseConstraint::Tile: return make_<TileConstr>(objType, objName);
  case BaseConstraint::Mem: return make_<MemConstr>(objType, objName);
  case BaseConstraint::Shim: return make_<ShimConstr>(objType, objName);
  case BaseConstraint::PortLoc: return make_<PortLocConstr>(objType, objName);
  case BaseConstraint::StreamChannel: return make_<StreamChannelConstr>(objType, objName);
  case BaseConstraint::ColocatedNodes: return make_<ColocatedNodesConstr>(objType, objName);
  case BaseConstraint::ColocatedPorts: return make_<ColocatedPortsConstr>(objType, objName);
  case BaseConstraint::ColocatedDma: return make_<ColocatedDmaConstr>(objType, objName);
  case BaseConstraint::ColocatedMemories:
    return make_<ColocatedMemoriesConstr>(objType, objName);
  case BaseConstraint::FifoLocations: return make_<FifoLocationsConstr>(objType, objName);
  // Offsets between nodes belong to a node, whatever is asked.
  case BaseConstraint::RelativeNodes:
    return make_<RelativeNodesConstr>(BaseConstraint::NODE, objName);
  default: throw unsupportedType("createConstr", constrType);
  }
}

BaseConstraint* ConstrHandler::createGlobalConstr(ConstrType constrType, const std::string& name)
{
  switch (constrType) {
  case BaseConstraint::AreaGroup: return make_<AreaGroupConstr>(name);
  case BaseConstraint::InstGroup: return make_<InstGroupConstr>(name);
  case BaseConstraint::DependentRoutingGroup: return make_<DependentRoutingGroupConstr>(name);
  case BaseConstraint::IsomorphicGraphGroup: return make_<IsomorphicGraphGroupConstr>(name);
  default: throw unsupportedType("createGlobalConstr", constrType);
  }
}

AttrConstr* ConstrHandler::createAttrConstr(ObjectType objType, const std::string& objName,
                                            AttrConstr::AttrType type,
                                            const std::string& attrName)
{
  if (objName.empty() || attrName.empty())
    return nullptr;
  return make_<AttrConstr>(objType, objName, type, AttrConstr::makeCanonicalAttrName(attrName));
}

bool ConstrHandler::isParent() const
{
  return true;
}

bool ConstrHandler::isToolGenerated() const
{
  return false;
}

bool ConstrHandler::isSoft() const
{
  return false;
}

void ConstrHandler::isParent(bool) {}

void ConstrHandler::isToolGenerated(bool) {}

void ConstrHandler::isSoft(bool) {}

ConstrHandler* ConstrHandler::getChildCstHandler(bool) const
{
  return nullptr;
}

void ConstrHandler::dump() const
{
  for (const BaseConstraint* constr : constrs)
    std::cout << constr->str() << std::endl;
}

void ConstrHandler::renamePorts(const std::map<std::string, std::string>& oldToNew)
{
  const PortRenamer::HashedScope hashed(oldToNew);
  lastName = nullptr;
  for (std::size_t i = 0; i < constrs.size(); ++i)
    constrs[i]->renamePorts(oldToNew);
  for (const auto& [oldName, newName] : oldToNew) {
    const auto entry = objects.find(oldName);
    if (entry == objects.end() || entry->second.empty())
      continue;
    ObjectConstrs moved = std::move(entry->second);
    objects.erase(entry);
    objects[newName] = std::move(moved);
  }
}

}  // namespace qpe::constraints
