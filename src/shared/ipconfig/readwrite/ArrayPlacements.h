#pragma once

#include "AreaGroupConstr.h"
#include "ConstrForward.h"
#include "HDPoint.h"
#include "ipconfig_readwrite_export.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

class HDARPart;

namespace qpe::constraints {

class Address;
class PhysicalRange;
class PhysicalSpec;

// Where the constraints of a store put things on the compute array, in the
// terms of a picture: the lines of text that each tile and each shim column
// carries, the shim channels taken, the rectangles of the area groups, the
// ties of colocated and relatively placed nodes between tiles, and,
// for what has no place on the grid (a location by name, a row or channel
// left out, a negative or far-off coordinate), a line of its own. The grid
// starts at column 0 and row 0; its extent is what the constraints reach,
// widened to the columns and channels of a device when one is given.
class IPCONFIG_READWRITE_EXPORT ArrayPlacements {
public:
  // Coordinates beyond this one are not drawn, so that a typing slip in a
  // file cannot ask for a picture of millions of tiles.
  static constexpr int maxGridIndex = 255;

  // What a line of a cell tells, which decides how it is drawn. A
  // RelativeNode is a node that its offset from a pinned node puts there.
  enum LineKind { CoreTile, MemTile, ShimTile, OtherTile, Memory, Channel, RelativeNode };

  struct Line {
    LineKind kind;
    std::string text;
  };
  using Lines = std::vector<Line>;
  using Cell = std::pair<int, int>;  // column, then row or channel

  // A range of one area group, inclusive; -1 for an axis that the range
  // leaves free, which spans the whole grid.
  struct GroupBox {
    bool onInterfaceRow;
    bool memory;  // a range of memory tiles
    int firstColumn;
    int lastColumn;
    int first;  // row, or channel on the interface row
    int last;
  };
  struct Group {
    std::string name;
    AreaGroupConstr::Flags flags;
    std::vector<std::string> nodes;
    std::vector<GroupBox> boxes;
  };

  enum TieKind { Colocation, Relative };
  // Two nodes that a constraint of `from` joins, on their tiles.
  struct Tie {
    TieKind kind;
    std::string from;
    std::string to;
    Cell fromCell;
    Cell toCell;
  };

  explicit ArrayPlacements(const ConstrHandler& handler, const HDARPart* device = nullptr);

  int getColumns() const { return columns; }
  int getRows() const { return rows; }
  int getChannels() const { return channels; }
  const std::string& getDeviceName() const { return deviceName; }

  // The tiles by column and row, and the shim columns by column.
  const std::map<Cell, Lines>& getTiles() const { return tiles; }
  const std::map<int, Lines>& getShimColumns() const { return shimColumns; }
  bool isChannelTaken(int column, int channel) const;
  const std::vector<Group>& getGroups() const { return groups; }
  // The colocations, then the relative placements, each in store order and
  // within a constraint in the order of its names.
  const std::vector<Tie>& getTies() const { return ties; }
  const std::vector<std::string>& getOffGrid() const { return offGrid; }

private:
  void addTile_(const TileConstr& tile);
  void addShim_(const ShimConstr& shim);
  void addAddress_(const std::string& owner, const char* role, const Address& address);
  void addGroup_(const AreaGroupConstr& group);
  void addGroupRange_(Group& group, const PhysicalRange& range);
  // `joined` holds the pairs tied already, the smaller name first.
  void addColocationTies_(const ColocatedNodesConstr& colocation,
                          std::set<std::pair<std::string, std::string>>& joined);
  void addRelativeTies_(const RelativeNodesConstr& relative);
  // Where `offset` from the pinned `anchor` puts `node`.
  std::optional<Cell> placeByOffset_(const std::string& node,
                                     const std::pair<const std::string, Cell>& anchor,
                                     const HDPoint<int>& offset);
  void addDevice_(const HDARPart& device);
  // Widens the extent to `column`, and to `row` or `channel` when it is set.
  void reach_(int column, int row, int channel);

  std::map<Cell, Lines> tiles;
  std::map<int, Lines> shimColumns;
  std::set<Cell> takenChannels;
  std::vector<Group> groups;
  std::vector<Tie> ties;
  // The tile of each node pinned on the grid, the first pin where it has more.
  std::unordered_map<std::string, Cell> pinnedTiles;
  std::vector<std::string> offGrid;
  int columns = 1;
  int rows = 1;
  int channels = 1;
  std::string deviceName;
};

}  // namespace qpe::constraints
