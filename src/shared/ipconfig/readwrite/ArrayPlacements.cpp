#include "ArrayPlacements.h"

#include "Address.h"
#include "AreaGroupConstr.h"
#include "BufferConstr.h"
#include "ColocatedNodesConstr.h"
#include "ConstrCast.h"
#include "ConstrHandler.h"
#include "DefaultXYValues.h"
#include "HDARPart.h"
#include "MemConstr.h"
#include "PhysicalRange.h"
#include "PhysicalSpec.h"
#include "PhysicalSpecFormatter.h"
#include "RelativeNodesConstr.h"
#include "ReservedMemoryConstr.h"
#include "ShimConstr.h"
#include "TileConstr.h"

#include <algorithm>

namespace qpe::constraints {

namespace {

bool onGrid(long long index)
{
  return index >= 0 && index <= ArrayPlacements::maxGridIndex;
}

// -1, a free axis, or a place on the grid.
bool freeOrOnGrid(int index)
{
  return index == -1 || onGrid(index);
}

ArrayPlacements::LineKind tileKind(PhysicalSpec::PhysicalType type)
{
  switch (type) {
  case PhysicalSpec::Core:
    return ArrayPlacements::CoreTile;
  case PhysicalSpec::Mem:
    return ArrayPlacements::MemTile;
  case PhysicalSpec::Shim:
    return ArrayPlacements::ShimTile;
  default:
    return ArrayPlacements::OtherTile;
  }
}

std::string pair(long long first, long long second)
{
  return "(" + std::to_string(first) + "," + std::to_string(second) + ")";
}

// The range as a group array of a file holds it: "first" or "first:second".
std::string rangeText(const PhysicalRange& range)
{
  std::string text = PhysicalSpecFormatter(range.getFirst()).toString();
  if (range.getSecond().isValid())
    text += ":" + PhysicalSpecFormatter(range.getSecond()).toString();
  return text;
}

}  // namespace

ArrayPlacements::ArrayPlacements(const ConstrHandler& handler, const HDARPart* device)
{
  // A tie needs the tiles of both its ends, which the store may pin later.
  std::vector<const ColocatedNodesConstr*> colocations;
  std::vector<const RelativeNodesConstr*> relatives;
  for (const BaseConstraint* constr : handler.getConstrs()) {
    if (const TileConstr* tile = ConstrCast::toTile(constr))
      addTile_(*tile);
    else if (const ShimConstr* shim = ConstrCast::toShim(constr))
      addShim_(*shim);
    else if (const MemConstr* mem = ConstrCast::toMem(constr)) {
      addAddress_(mem->getObjName(), "mem ping", mem->ping);
      addAddress_(mem->getObjName(), "mem pong", mem->pong);
    } else if (const BufferConstr* buffer = ConstrCast::toBuffer(constr)) {
      addAddress_(buffer->getObjName(), "buffer ping", buffer->ping);
      addAddress_(buffer->getObjName(), "buffer pong", buffer->pong);
      addAddress_(buffer->getObjName(), "buffer rtpSelector", buffer->rtpSelector);
    } else if (const ReservedMemoryConstr* reserved = ConstrCast::toReservedMemory(constr))
      addAddress_(reserved->getObjName(), "reserved memory", reserved->address);
    else if (const AreaGroupConstr* group = ConstrCast::toAreaGroup(constr))
      addGroup_(*group);
    else if (const ColocatedNodesConstr* colocation = ConstrCast::toColocatedNodes(constr))
      colocations.push_back(colocation);
    else if (const RelativeNodesConstr* relative = ConstrCast::toRelativeNodes(constr))
      relatives.push_back(relative);
  }
  std::set<std::pair<std::string, std::string>> joined;
  for (const ColocatedNodesConstr* colocation : colocations)
    addColocationTies_(*colocation, joined);
  for (const RelativeNodesConstr* relative : relatives)
    addRelativeTies_(*relative);
  if (device)
    addDevice_(*device);
}

bool ArrayPlacements::isChannelTaken(int column, int channel) const
{
  return takenChannels.count({column, channel}) != 0;
}

void ArrayPlacements::addTile_(const TileConstr& tile)
{
  const std::string& node = tile.getObjName();
  if (tile.isNameBased()) {
    offGrid.push_back(node + ": tile " + tile.getName());
  } else if (onGrid(tile.getColumn()) && onGrid(tile.getRow())) {
    tiles[{tile.getColumn(), tile.getRow()}].push_back({tileKind(tile.getTileType()), node});
    pinnedTiles.emplace(node, Cell{tile.getColumn(), tile.getRow()});
    reach_(tile.getColumn(), tile.getRow(), -1);
  } else if (tile.isSet() || tile.isRowSet()) {
    offGrid.push_back(node + ": tile " + pair(tile.getColumn(), tile.getRow()));
  }
}

void ArrayPlacements::addShim_(const ShimConstr& shim)
{
  const std::string& node = shim.getObjName();
  if (shim.isNameBased()) {
    offGrid.push_back(node + ": shim " + shim.getName());
  } else if (onGrid(shim.getColumn()) && freeOrOnGrid(shim.getChannel())) {
    Lines& lines = shimColumns[shim.getColumn()];
    if (shim.isChannelSet()) {
      lines.push_back({Channel, "ch " + std::to_string(shim.getChannel()) + ": " + node});
      takenChannels.insert({shim.getColumn(), shim.getChannel()});
    } else {
      lines.push_back({Channel, "any ch: " + node});
    }
    reach_(shim.getColumn(), -1, shim.getChannel());
  } else if (shim.isColumnSet() || shim.isChannelSet()) {
    offGrid.push_back(node + ": shim " + pair(shim.getColumn(), shim.getChannel()));
  }
}

void ArrayPlacements::addAddress_(const std::string& owner, const char* role,
                                  const Address& address)
{
  const int column = address.column.getIntVal();
  const int row = address.row.getIntVal();
  if (!onGrid(column) || !onGrid(row)) {
    if (address.column.isSet() || address.row.isSet() || address.bankId.isSet() ||
        address.offset.isSet())
      offGrid.push_back(owner + ": " + role + " " + address.str());
    return;
  }
  std::string text = owner + ": " + role;
  if (address.bankId.isSet())
    text += " bank " + std::to_string(address.bankId.getIntVal());
  if (address.offset.isSet())
    text += " @" + std::to_string(address.offset.getIntVal());
  tiles[{column, row}].push_back({Memory, text});
  reach_(column, row, -1);
}

void ArrayPlacements::addGroup_(const AreaGroupConstr& group)
{
  groups.push_back({group.getObjName(), group.getFlags(), group.getNodeGroup(), {}});
  for (const PhysicalRange& range : group.getPhysicalGroup())
    addGroupRange_(groups.back(), range);
}

// A range is drawn on the band of its first end. A second end of the other
// band, by name or off the grid leaves the first end drawn alone, and the
// whole range listed as off the grid.
void ArrayPlacements::addGroupRange_(Group& group, const PhysicalRange& range)
{
  const PhysicalSpec& first = range.getFirst();
  const bool onInterfaceRow = first.isShim();
  const auto placeable = [onInterfaceRow](const PhysicalSpec& end) {
    const int other = onInterfaceRow ? end.getIndex() : end.getRow();
    return end.isXYBased() && end.isShim() == onInterfaceRow && onGrid(end.getColumn()) &&
           freeOrOnGrid(other);
  };
  const bool wholeRange = placeable(range.getSecond()) || !range.getSecond().isValid();
  if (!placeable(first) || !wholeRange) {
    if (first.isValid())
      offGrid.push_back("area group " + group.name + ": " +
                        PhysicalSpec::toString(first.getPhysicalType()) + " " + rangeText(range));
    if (!placeable(first))
      return;
  }
  const PhysicalSpec& second = placeable(range.getSecond()) ? range.getSecond() : first;
  const auto axis = [onInterfaceRow](const PhysicalSpec& end) {
    return onInterfaceRow ? end.getIndex() : end.getRow();
  };
  GroupBox box{onInterfaceRow,
               first.isMem(),
               std::min(first.getColumn(), second.getColumn()),
               std::max(first.getColumn(), second.getColumn()),
               std::min(axis(first), axis(second)),
               std::max(axis(first), axis(second))};
  // An axis that one end leaves free is free for the whole range.
  if (axis(first) == -1 || axis(second) == -1)
    box.first = box.last = -1;
  group.boxes.push_back(box);
  reach_(box.lastColumn, onInterfaceRow ? -1 : box.last, onInterfaceRow ? box.last : -1);
}

// Nodes pinned to two tiles. A pair that both its nodes name is one tie, and
// a pair on one tile needs no line: both names stand in it.
void ArrayPlacements::addColocationTies_(const ColocatedNodesConstr& colocation,
                                         std::set<std::pair<std::string, std::string>>& joined)
{
  const auto from = pinnedTiles.find(colocation.getObjName());
  if (colocation.getObjType() != BaseConstraint::NODE || from == pinnedTiles.end())
    return;
  for (const std::string& name : colocation.getNodeNames()) {
    const auto to = pinnedTiles.find(name);
    if (to == pinnedTiles.end() || to->second == from->second ||
        !joined.insert(std::minmax(from->first, to->first)).second)
      continue;
    ties.push_back({Colocation, from->first, name, from->second, to->second});
  }
}

// From a pinned anchor to each of its nodes: to the node's own tile where it
// is pinned too, else to the tile that its offset gives. An anchor that is not
// pinned ties nothing: a picture shows the offsets that the file settles, and
// does not follow chains of them.
void ArrayPlacements::addRelativeTies_(const RelativeNodesConstr& relative)
{
  const auto anchor = pinnedTiles.find(relative.getObjName());
  if (anchor == pinnedTiles.end())
    return;
  for (const auto& [name, offset] : relative.getNodesWithOffset()) {
    const auto pinned = pinnedTiles.find(name);
    const std::optional<Cell> to = pinned != pinnedTiles.end()
                                       ? pinned->second
                                       : placeByOffset_(name, *anchor, offset);
    if (to && *to != anchor->second)
      ties.push_back({Relative, anchor->first, name, anchor->second, *to});
  }
}

// The tile, which then names the node; none for an offset with a free axis,
// nor for one off the grid, which is listed as such.
std::optional<ArrayPlacements::Cell> ArrayPlacements::placeByOffset_(
    const std::string& node, const std::pair<const std::string, Cell>& anchor,
    const HDPoint<int>& offset)
{
  if (offset.x == DefaultXYValues::XCoordinateNotSetValue ||
      offset.y == DefaultXYValues::YCoordinateNotSetValue)
    return std::nullopt;
  const long long column = static_cast<long long>(anchor.second.first) + offset.x;
  const long long row = static_cast<long long>(anchor.second.second) + offset.y;
  const std::string text = node + ": relative to " + anchor.first;
  if (!onGrid(column) || !onGrid(row)) {
    offGrid.push_back(text + " " + pair(column, row));
    return std::nullopt;
  }
  const Cell cell{static_cast<int>(column), static_cast<int>(row)};
  tiles[cell].push_back({RelativeNode, text});
  reach_(cell.first, cell.second, -1);
  return cell;
}

void ArrayPlacements::addDevice_(const HDARPart& device)
{
  deviceName = device.getName();
  const HDDMQpeOracle& oracle = device.getQpeOracle();
  for (int column : oracle.getZXShimColumns()) {
    if (!onGrid(column))
      continue;
    int channel = 0;
    while (channel <= maxGridIndex && oracle.getZXShimBel(column, channel).isValid())
      ++channel;
    reach_(column, -1, channel - 1);
  }
}

void ArrayPlacements::reach_(int column, int row, int channel)
{
  columns = std::max(columns, column + 1);
  rows = std::max(rows, row + 1);
  channels = std::max(channels, channel + 1);
}

}  // namespace qpe::constraints
