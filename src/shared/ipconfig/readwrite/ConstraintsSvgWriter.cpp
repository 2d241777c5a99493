#include "ConstraintsSvgWriter.h"

#include "SvgText.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <utility>

namespace qpe::constraints {

namespace {

using IPConfig::SvgText;

constexpr int margin = 16;
constexpr int titleHeight = 48;
constexpr int gutter = 48;
constexpr int gridLeft = margin + gutter;
constexpr int gridTop = margin + titleHeight;
constexpr int cellWidth = 220;
constexpr int lineHeight = 14;
constexpr int slotHeight = 12;
constexpr int legendLine = 18;
constexpr int minimumWidth = 560;
// A group's line lists this many of its nodes at most.
constexpr std::size_t listedNodes = 8;

// Colours of the area groups, in the order the store holds them.
constexpr std::array<const char*, 8> groupColours{"#d62728", "#1f77b4", "#2ca02c", "#ff7f0e",
                                                  "#9467bd", "#8c564b", "#e377c2", "#17becf"};

const char* const style = ".cell{fill:#ffffff;stroke:#b0b0b0}\n"
                          ".core{fill:#cfe2ff}\n"
                          ".mem{fill:#d4f0c8}\n"
                          ".shimtile{fill:#fde0bd}\n"
                          ".other{fill:#e2e2e2}\n"
                          ".shim{fill:#f3ecfa;stroke:#b0b0b0}\n"
                          ".slot{fill:#ffffff;stroke:#9a7cb8}\n"
                          ".taken{fill:#7d4fa8}\n"
                          ".group{fill-opacity:0.15;stroke-width:2}\n"
                          ".soft{stroke-dasharray:6 4}\n"
                          ".tie{stroke-width:2;stroke-linecap:round}\n"
                          ".colocated{stroke:#c2185b}\n"
                          ".relative{stroke:#00796b;stroke-dasharray:2 4}\n"
                          ".pin{font-weight:bold}\n"
                          ".place{font-style:italic;fill:#404040}\n"
                          ".axis{fill:#606060}\n"
                          ".heading{font-size:16px;font-weight:bold}\n";

// The legend, a swatch and its text per line.
struct LegendEntry {
  const char* swatch;
  const char* text;
};
const std::array<LegendEntry, 8> legend{{
    {"class=\"cell core\"", "core tile, with the nodes pinned to it"},
    {"class=\"cell mem\"", "memory tile, with the nodes pinned to it"},
    {"class=\"cell shimtile\"", "tile pinned with the shim type"},
    {"class=\"cell other\"", "tile pinned with an unknown type"},
    {"class=\"cell\"", "memory and buffer placements, in italics: owner, role, bank, @offset"},
    {"class=\"slot taken\"", "shim channel taken, its node named in the column"},
    {"class=\"group\" fill=\"#606060\" stroke=\"#606060\"", "area group, hard: solid outline"},
    {"class=\"group soft\" fill=\"#606060\" stroke=\"#606060\"",
     "area group, soft: dashed outline"},
}};
// The ties, a stroke and its text per line, below the swatches.
const std::array<LegendEntry, 2> tieLegend{{
    {"class=\"tie colocated\"", "colocated nodes, pinned to different tiles"},
    {"class=\"tie relative\"",
     "relative placement, from a pinned node to where the other is pinned or put"},
}};

const char* tieClass(ArrayPlacements::TieKind kind)
{
  return kind == ArrayPlacements::Colocation ? "class=\"tie colocated\"" : "class=\"tie relative\"";
}

// "a colocated with b", "b relative to a", for the line's title.
std::string tieTitle(const ArrayPlacements::Tie& tie)
{
  return tie.kind == ArrayPlacements::Colocation ? tie.from + " colocated with " + tie.to
                                                 : tie.to + " relative to " + tie.from;
}

// "name: hard, exclude, contain routing; nodes a, b, c and 2 more".
std::string describe(const ArrayPlacements::Group& group)
{
  const AreaGroupConstr::Flags& flags = group.flags;
  std::string text = group.name + (flags.isSoft ? ": soft" : ": hard");
  if (flags.exclude)
    text += ", exclude";
  if (flags.containRouting)
    text += ", contain routing";
  if (flags.exclusiveRouting)
    text += ", exclusive routing";
  if (flags.exclusivePlacement)
    text += ", exclusive placement";
  const char* separator = "; nodes ";
  for (std::size_t index = 0; index < std::min(group.nodes.size(), listedNodes); ++index) {
    text += separator + group.nodes[index];
    separator = ", ";
  }
  if (group.nodes.size() > listedNodes)
    text += " and " + std::to_string(group.nodes.size() - listedNodes) + " more";
  return text;
}

template <typename Key>
int mostLines(const std::map<Key, ArrayPlacements::Lines>& cells)
{
  std::size_t most = 1;
  for (const auto& cell : cells)
    most = std::max(most, cell.second.size());
  return static_cast<int>(most);
}

const char* cellClass(const ArrayPlacements::Lines& lines)
{
  for (const ArrayPlacements::Line& line : lines) {
    switch (line.kind) {
    case ArrayPlacements::CoreTile:
      return "cell core";
    case ArrayPlacements::MemTile:
      return "cell mem";
    case ArrayPlacements::ShimTile:
      return "cell shimtile";
    case ArrayPlacements::OtherTile:
      return "cell other";
    default:
      break;
    }
  }
  return "cell";
}

void writeRect(std::ostream& out, const char* attributes, int x, int y, int width, int height)
{
  out << "<rect " << attributes << " x=\"" << x << "\" y=\"" << y << "\" width=\"" << width
      << "\" height=\"" << height << "\"/>\n";
}

void writeLine(std::ostream& out, const char* attributes, int x1, int y1, int x2, int y2,
               const std::string& title)
{
  out << "<line " << attributes << " x1=\"" << x1 << "\" y1=\"" << y1 << "\" x2=\"" << x2
      << "\" y2=\"" << y2 << "\"";
  if (title.empty())
    out << "/>\n";
  else
    out << "><title>" << SvgText::escaped(title) << "</title></line>\n";
}

void writeText(std::ostream& out, const char* attributes, int x, int y, const std::string& text)
{
  out << "<text " << attributes << " x=\"" << x << "\" y=\"" << y << "\">"
      << SvgText::escaped(text) << "</text>\n";
}

}  // namespace

ConstraintsSvgWriter::ConstraintsSvgWriter(const ArrayPlacements& placements, std::string title)
    : placements(placements), title(std::move(title))
{
  tileRowHeight = 8 + lineHeight * (mostLines(placements.getTiles()) + 1);
  interfaceTop = gridTop + placements.getRows() * tileRowHeight + 8;
  interfaceHeight = 12 + slotHeight + lineHeight * (mostLines(placements.getShimColumns()) + 1);
  slotWidth = std::max(1, (cellWidth - 8) / placements.getChannels());
  legendTop = interfaceTop + interfaceHeight + 32;
  groupListTop = legendTop + static_cast<int>(legend.size() + tieLegend.size()) * legendLine;
  if (!placements.getGroups().empty())
    groupListTop += 8;
  offGridTop = groupListTop;
  if (!placements.getGroups().empty())
    offGridTop += lineHeight + static_cast<int>(placements.getGroups().size()) * legendLine;
  if (!placements.getOffGrid().empty())
    offGridTop += 8;
  width = std::max(gridLeft + placements.getColumns() * cellWidth + margin, minimumWidth);
  height = offGridTop + margin;
  if (!placements.getOffGrid().empty())
    height += static_cast<int>(placements.getOffGrid().size() + 1) * lineHeight;
}

void ConstraintsSvgWriter::write(std::ostream& out) const
{
  writeHeader_(out);
  writeTitle_(out);
  writeTileGrid_(out);
  writeInterfaceRow_(out);
  writeAreaGroups_(out);
  writeTies_(out);
  writeTileTexts_(out);
  writeShimTexts_(out);
  writeLegend_(out);
  writeGroupList_(out);
  writeOffGrid_(out);
  out << "</svg>\n";
}

void ConstraintsSvgWriter::writeHeader_(std::ostream& out) const
{
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << width << "\" height=\"" << height
      << "\" viewBox=\"0 0 " << width << ' ' << height
      << "\" font-family=\"sans-serif\" font-size=\"11\">\n"
      << "<title>" << SvgText::escaped(title) << "</title>\n"
      << "<style>\n"
      << style << "</style>\n"
      << "<rect fill=\"#ffffff\" width=\"" << width << "\" height=\"" << height << "\"/>\n";
}

void ConstraintsSvgWriter::writeTitle_(std::ostream& out) const
{
  writeText(out, "class=\"heading\"", margin, 30, title);
  std::string extent = std::to_string(placements.getColumns()) + " columns, " +
                       std::to_string(placements.getRows()) + " rows, " +
                       std::to_string(placements.getChannels()) + " channels per shim column";
  if (!placements.getDeviceName().empty())
    extent += ", device " + placements.getDeviceName();
  writeText(out, "class=\"axis\"", margin, 48, extent);
}

void ConstraintsSvgWriter::writeTileGrid_(std::ostream& out) const
{
  static const ArrayPlacements::Lines none;
  out << "<g id=\"tiles\">\n";
  for (int row = placements.getRows() - 1; row >= 0; --row) {
    writeText(out, "class=\"axis\" text-anchor=\"end\"", gridLeft - 8,
              rowY_(row) + tileRowHeight / 2 + 4, "row " + std::to_string(row));
    for (int column = 0; column < placements.getColumns(); ++column) {
      const auto found = placements.getTiles().find({column, row});
      const char* kind = cellClass(found == placements.getTiles().end() ? none : found->second);
      out << "<rect class=\"" << kind << "\" x=\"" << columnX_(column) << "\" y=\"" << rowY_(row)
          << "\" width=\"" << cellWidth << "\" height=\"" << tileRowHeight << "\"/>\n";
    }
  }
  out << "</g>\n";
}

void ConstraintsSvgWriter::writeInterfaceRow_(std::ostream& out) const
{
  out << "<g id=\"interface\">\n";
  writeText(out, "class=\"axis\" text-anchor=\"end\"", gridLeft - 8,
            interfaceTop + interfaceHeight / 2 + 4, "shim");
  for (int column = 0; column < placements.getColumns(); ++column) {
    writeRect(out, "class=\"shim\"", columnX_(column), interfaceTop, cellWidth, interfaceHeight);
    for (int channel = 0; channel < placements.getChannels(); ++channel) {
      const char* slot =
          placements.isChannelTaken(column, channel) ? "class=\"slot taken\"" : "class=\"slot\"";
      writeRect(out, slot, slotX_(column, channel), interfaceTop + 4,
                std::max(1, slotWidth - 1), slotHeight);
    }
    writeText(out, "class=\"axis\" text-anchor=\"middle\"", columnX_(column) + cellWidth / 2,
              interfaceTop + interfaceHeight + 16, "column " + std::to_string(column));
  }
  out << "</g>\n";
}

void ConstraintsSvgWriter::writeAreaGroups_(std::ostream& out) const
{
  out << "<g id=\"areaGroups\">\n";
  const std::vector<ArrayPlacements::Group>& groups = placements.getGroups();
  for (std::size_t index = 0; index < groups.size(); ++index) {
    for (const ArrayPlacements::GroupBox& box : groups[index].boxes)
      writeGroupBox_(out, groups[index], box, index);
  }
  out << "</g>\n";
}

void ConstraintsSvgWriter::writeTies_(std::ostream& out) const
{
  out << "<g id=\"ties\">\n";
  for (const ArrayPlacements::Tie& tie : placements.getTies())
    writeLine(out, tieClass(tie.kind), cellCentreX_(tie.fromCell), cellCentreY_(tie.fromCell),
              cellCentreX_(tie.toCell), cellCentreY_(tie.toCell), tieTitle(tie));
  out << "</g>\n";
}

void ConstraintsSvgWriter::writeTileTexts_(std::ostream& out) const
{
  out << "<g id=\"tileTexts\">\n";
  for (const auto& [cell, lines] : placements.getTiles()) {
    int y = rowY_(cell.second) + 14;
    for (const ArrayPlacements::Line& line : lines) {
      const bool placed =
          line.kind == ArrayPlacements::Memory || line.kind == ArrayPlacements::RelativeNode;
      const char* kind = placed ? "class=\"place\"" : "class=\"pin\"";
      writeText(out, kind, columnX_(cell.first) + 6, y, line.text);
      y += lineHeight;
    }
  }
  out << "</g>\n";
}

void ConstraintsSvgWriter::writeShimTexts_(std::ostream& out) const
{
  out << "<g id=\"shimTexts\">\n";
  for (const auto& [column, lines] : placements.getShimColumns()) {
    int y = interfaceTop + 8 + slotHeight + 12;
    for (const ArrayPlacements::Line& line : lines) {
      writeText(out, "class=\"pin\"", columnX_(column) + 6, y, line.text);
      y += lineHeight;
    }
  }
  out << "</g>\n";
}

void ConstraintsSvgWriter::writeLegend_(std::ostream& out) const
{
  out << "<g id=\"legend\">\n";
  int y = legendTop;
  for (const LegendEntry& entry : legend) {
    writeRect(out, entry.swatch, margin, y, 24, 12);
    writeText(out, "class=\"axis\"", margin + 32, y + 10, entry.text);
    y += legendLine;
  }
  for (const LegendEntry& entry : tieLegend) {
    writeLine(out, entry.swatch, margin, y + 6, margin + 24, y + 6, "");
    writeText(out, "class=\"axis\"", margin + 32, y + 10, entry.text);
    y += legendLine;
  }
  out << "</g>\n";
}

void ConstraintsSvgWriter::writeGroupList_(std::ostream& out) const
{
  const std::vector<ArrayPlacements::Group>& groups = placements.getGroups();
  if (groups.empty())
    return;
  out << "<g id=\"groupList\">\n";
  writeText(out, "class=\"pin\"", margin, groupListTop + 10, "Area groups:");
  int y = groupListTop + lineHeight;
  for (std::size_t index = 0; index < groups.size(); ++index) {
    const ArrayPlacements::Group& group = groups[index];
    const char* colour = groupColours[index % groupColours.size()];
    out << "<rect class=\"" << (group.flags.isSoft ? "group soft" : "group") << "\" fill=\""
        << colour << "\" stroke=\"" << colour << "\" x=\"" << margin << "\" y=\"" << y
        << "\" width=\"24\" height=\"12\"/>\n";
    writeText(out, "class=\"axis\"", margin + 32, y + 10, describe(group));
    y += legendLine;
  }
  out << "</g>\n";
}

void ConstraintsSvgWriter::writeOffGrid_(std::ostream& out) const
{
  if (placements.getOffGrid().empty())
    return;
  out << "<g id=\"offGrid\">\n";
  int y = offGridTop + 10;
  writeText(out, "class=\"pin\"", margin, y, "Not on the grid:");
  for (const std::string& line : placements.getOffGrid()) {
    y += lineHeight;
    writeText(out, "class=\"axis\"", margin + 16, y, line);
  }
  out << "</g>\n";
}

void ConstraintsSvgWriter::writeGroupBox_(std::ostream& out, const ArrayPlacements::Group& group,
                                          const ArrayPlacements::GroupBox& box,
                                          std::size_t index) const
{
  int x = columnX_(box.firstColumn) + 3;
  int right = columnX_(box.lastColumn + 1) - 3;
  int y = 0;
  int bottom = 0;
  if (box.onInterfaceRow) {
    if (box.first != -1) {
      x = slotX_(box.firstColumn, box.first) - 1;
      right = slotX_(box.lastColumn, box.last) + slotWidth;
    }
    y = interfaceTop + 2;
    bottom = interfaceTop + interfaceHeight - 2;
  } else {
    const bool allRows = box.first == -1;
    y = rowY_(allRows ? placements.getRows() - 1 : box.last) + 3;
    bottom = rowY_(allRows ? 0 : box.first) + tileRowHeight - 3;
  }
  const char* colour = groupColours[index % groupColours.size()];
  out << "<rect class=\"" << (group.flags.isSoft ? "group soft" : "group") << "\" fill=\"" << colour
      << "\" stroke=\"" << colour << "\" x=\"" << x << "\" y=\"" << y << "\" width=\""
      << right - x << "\" height=\"" << bottom - y << "\"/>\n";
  // Labels of neighbouring groups, and of a group's tiles and memories,
  // alternate between the two lower corners.
  const bool atLeft = (index % 2 == 0) != box.memory;
  out << "<text class=\"pin\" fill=\"" << colour << "\" text-anchor=\""
      << (atLeft ? "start" : "end") << "\" x=\"" << (atLeft ? x + 4 : right - 4) << "\" y=\""
      << bottom - 5 << "\">"
      << SvgText::escaped(box.memory ? group.name + " (memory)" : group.name)
      << "</text>\n";
}

int ConstraintsSvgWriter::cellCentreX_(const ArrayPlacements::Cell& cell) const
{
  return columnX_(cell.first) + cellWidth / 2;
}

int ConstraintsSvgWriter::cellCentreY_(const ArrayPlacements::Cell& cell) const
{
  return rowY_(cell.second) + tileRowHeight / 2;
}

int ConstraintsSvgWriter::columnX_(int column) const
{
  return gridLeft + column * cellWidth;
}

int ConstraintsSvgWriter::rowY_(int row) const
{
  return gridTop + (placements.getRows() - 1 - row) * tileRowHeight;
}

int ConstraintsSvgWriter::slotX_(int column, int channel) const
{
  return columnX_(column) + 4 + channel * slotWidth;
}

}  // namespace qpe::constraints
