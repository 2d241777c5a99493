#pragma once

#include "ArrayPlacements.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <string>

namespace qpe::constraints {

// Draws the placements of a constraints store as an SVG picture of the
// compute array: a grid of tiles, highest row at the top, and the interface
// row of shim columns beneath it with a slot per channel. Pinned tiles carry
// their nodes, memory and buffer placements their owners; taken channels are
// filled and named; each area-group range is a translucent rectangle in the
// group's colour, solid for a hard group and dashed for a soft one. Ties of
// colocated and of relatively placed nodes are lines between the centres of
// their tiles, over the groups and under the texts, each with a title that
// names both ends. A legend, the list of the groups with their flags and
// nodes, and the list of what has no place on the grid close the picture.
// All coordinates are whole numbers, so the same store gives the same bytes.
class IPCONFIG_READWRITE_EXPORT ConstraintsSvgWriter {
public:
  // `title` names the picture, usually the file that filled the store.
  ConstraintsSvgWriter(const ArrayPlacements& placements, std::string title);

  void write(std::ostream& out) const;

private:
  void writeHeader_(std::ostream& out) const;
  void writeTitle_(std::ostream& out) const;
  void writeTileGrid_(std::ostream& out) const;
  void writeInterfaceRow_(std::ostream& out) const;
  void writeAreaGroups_(std::ostream& out) const;
  void writeTies_(std::ostream& out) const;
  void writeTileTexts_(std::ostream& out) const;
  void writeShimTexts_(std::ostream& out) const;
  void writeLegend_(std::ostream& out) const;
  void writeGroupList_(std::ostream& out) const;
  void writeOffGrid_(std::ostream& out) const;

  void writeGroupBox_(std::ostream& out, const ArrayPlacements::Group& group,
                      const ArrayPlacements::GroupBox& box, std::size_t index) const;

  int cellCentreX_(const ArrayPlacements::Cell& cell) const;
  int cellCentreY_(const ArrayPlacements::Cell& cell) const;
  int columnX_(int column) const;
  int rowY_(int row) const;
  int slotX_(int column, int channel) const;

  const ArrayPlacements& placements;
  std::string title;
  int tileRowHeight;
  int interfaceTop;
  int interfaceHeight;
  int slotWidth;
  int legendTop;
  int groupListTop;
  int offGridTop;
  int width;
  int height;
};

}  // namespace qpe::constraints
