#include "TestSupport.h"

#include "ArrayPlacements.h"
#include "BaseNameResolver.h"
#include "ConstrHandler.h"
#include "ConstraintsSvgWriter.h"
#include "SvgText.h"

#include <memory>
#include <sstream>

namespace {

using qpe::constraints::ArrayPlacements;
using qpe::constraints::ConstrHandler;
using qpe::constraints::ConstraintsSvgWriter;

// A store filled from the text of a constraints file.
std::unique_ptr<ConstrHandler> readText(const std::string& text)
{
  auto handler = std::make_unique<ConstrHandler>();
  std::istringstream in(text);
  handler->read(in, "", qpe::constraints::BaseNameResolver());
  return handler;
}

std::string drawn(const ConstrHandler& handler, const std::string& title)
{
  std::ostringstream out;
  ConstraintsSvgWriter(ArrayPlacements(handler), title).write(out);
  return out.str();
}

TEST(SvgTextTest, EscapesMarkupAndDropsControlCharacters)
{
  EXPECT_EQ(IPConfig::SvgText::escaped(""), "");
  EXPECT_EQ(IPConfig::SvgText::escaped("top/a b"), "top/a b");
  EXPECT_EQ(IPConfig::SvgText::escaped(R"j(a&b<c>d"e'f)j"), "a&amp;b&lt;c&gt;d&quot;e&apos;f");
  EXPECT_EQ(IPConfig::SvgText::escaped("x\x01y\tz\x7f"), "xyz");
  EXPECT_EQ(IPConfig::SvgText::escaped("caf\xc3\xa9"), "caf\xc3\xa9");
}

// Two columns and two rows: a pinned core tile, a memory placement beside it,
// a taken shim channel, a soft group over row 0 and a tile placed by name.
const char* const smallStore = R"j({
  "NodeConstraints": {
    "a<b": {"tile": {"column": 1, "row": 1, "tile_type": "core"},
            "mem": [{"column": 0, "row": 1, "bankId": 2, "offset": 64}]},
    "io": {"shim": {"column": 0, "channel": 1}},
    "n": {"tile": {"name": "t&1"}}
  },
  "GlobalConstraints": {
    "areaGroup": {"name": "g'1", "issoft": true, "nodeGroup": ["a<b"],
                  "tileGroup": ["(0,0):(1,0)"]}
  }
})j";

// The style sheet and the legend of every picture, which both pictures below
// place at the same height: the legend at 228, a line each 18 pixels.
const std::string pictureStyle = R"j(<style>
.cell{fill:#ffffff;stroke:#b0b0b0}
.core{fill:#cfe2ff}
.mem{fill:#d4f0c8}
.shimtile{fill:#fde0bd}
.other{fill:#e2e2e2}
.shim{fill:#f3ecfa;stroke:#b0b0b0}
.slot{fill:#ffffff;stroke:#9a7cb8}
.taken{fill:#7d4fa8}
.group{fill-opacity:0.15;stroke-width:2}
.soft{stroke-dasharray:6 4}
.tie{stroke-width:2;stroke-linecap:round}
.colocated{stroke:#c2185b}
.relative{stroke:#00796b;stroke-dasharray:2 4}
.pin{font-weight:bold}
.place{font-style:italic;fill:#404040}
.axis{fill:#606060}
.heading{font-size:16px;font-weight:bold}
</style>
)j";

const std::string pictureLegend = R"j(<g id="legend">
<rect class="cell core" x="16" y="228" width="24" height="12"/>
<text class="axis" x="48" y="238">core tile, with the nodes pinned to it</text>
<rect class="cell mem" x="16" y="246" width="24" height="12"/>
<text class="axis" x="48" y="256">memory tile, with the nodes pinned to it</text>
<rect class="cell shimtile" x="16" y="264" width="24" height="12"/>
<text class="axis" x="48" y="274">tile pinned with the shim type</text>
<rect class="cell other" x="16" y="282" width="24" height="12"/>
<text class="axis" x="48" y="292">tile pinned with an unknown type</text>
<rect class="cell" x="16" y="300" width="24" height="12"/>
<text class="axis" x="48" y="310">memory and buffer placements, in italics: owner, role, bank, @offset</text>
<rect class="slot taken" x="16" y="318" width="24" height="12"/>
<text class="axis" x="48" y="328">shim channel taken, its node named in the column</text>
<rect class="group" fill="#606060" stroke="#606060" x="16" y="336" width="24" height="12"/>
<text class="axis" x="48" y="346">area group, hard: solid outline</text>
<rect class="group soft" fill="#606060" stroke="#606060" x="16" y="354" width="24" height="12"/>
<text class="axis" x="48" y="364">area group, soft: dashed outline</text>
<line class="tie colocated" x1="16" y1="378" x2="40" y2="378"/>
<text class="axis" x="48" y="382">colocated nodes, pinned to different tiles</text>
<line class="tie relative" x1="16" y1="396" x2="40" y2="396"/>
<text class="axis" x="48" y="400">relative placement, from a pinned node to where the other is pinned or put</text>
</g>
)j";

// Worked out from the layout: rows of 8 + 14 * (1 + 1) = 36 pixels from y 64,
// the shim row at 64 + 2 * 36 + 8 = 144 and 12 + 12 + 14 * 2 = 52 high, slots
// (220 - 8) / 2 = 106 wide, the legend at 144 + 52 + 32 = 228, the groups at
// 228 + 10 * 18 + 8 = 416, the list of the rest at 416 + 14 + 18 + 8 = 456,
// and a height of 456 + 16 + 2 * 14 = 500.
const std::string smallPicture = std::string(R"j(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" width="560" height="500" viewBox="0 0 560 500" font-family="sans-serif" font-size="11">
<title>demo &amp; &apos;test&apos;</title>
)j") + pictureStyle + R"j(<rect fill="#ffffff" width="560" height="500"/>
<text class="heading" x="16" y="30">demo &amp; &apos;test&apos;</text>
<text class="axis" x="16" y="48">2 columns, 2 rows, 2 channels per shim column</text>
<g id="tiles">
<text class="axis" text-anchor="end" x="56" y="86">row 1</text>
<rect class="cell" x="64" y="64" width="220" height="36"/>
<rect class="cell core" x="284" y="64" width="220" height="36"/>
<text class="axis" text-anchor="end" x="56" y="122">row 0</text>
<rect class="cell" x="64" y="100" width="220" height="36"/>
<rect class="cell" x="284" y="100" width="220" height="36"/>
</g>
<g id="interface">
<text class="axis" text-anchor="end" x="56" y="174">shim</text>
<rect class="shim" x="64" y="144" width="220" height="52"/>
<rect class="slot" x="68" y="148" width="105" height="12"/>
<rect class="slot taken" x="174" y="148" width="105" height="12"/>
<text class="axis" text-anchor="middle" x="174" y="212">column 0</text>
<rect class="shim" x="284" y="144" width="220" height="52"/>
<rect class="slot" x="288" y="148" width="105" height="12"/>
<rect class="slot" x="394" y="148" width="105" height="12"/>
<text class="axis" text-anchor="middle" x="394" y="212">column 1</text>
</g>
<g id="areaGroups">
<rect class="group soft" fill="#d62728" stroke="#d62728" x="67" y="103" width="434" height="30"/>
<text class="pin" fill="#d62728" text-anchor="start" x="71" y="128">g&apos;1</text>
</g>
<g id="ties">
</g>
<g id="tileTexts">
<text class="place" x="70" y="78">a&lt;b: mem ping bank 2 @64</text>
<text class="pin" x="290" y="78">a&lt;b</text>
</g>
<g id="shimTexts">
<text class="pin" x="70" y="176">ch 1: io</text>
</g>
)j" + pictureLegend + R"j(<g id="groupList">
<text class="pin" x="16" y="426">Area groups:</text>
<rect class="group soft" fill="#d62728" stroke="#d62728" x="16" y="430" width="24" height="12"/>
<text class="axis" x="48" y="440">g&apos;1: soft; nodes a&lt;b</text>
</g>
<g id="offGrid">
<text class="pin" x="16" y="466">Not on the grid:</text>
<text class="axis" x="32" y="480">n: tile t&amp;1</text>
</g>
</svg>
)j";

TEST(ConstraintsSvgWriterTest, SmallStoreGivesTheWorkedOutPicture)
{
  const auto handler = readText(smallStore);
  EXPECT_EQ(drawn(*handler, "demo & 'test'"), smallPicture);
}

// One colocation of two pinned nodes and one relative placement of a node
// that is not pinned: (X=1,Y=1) from a at (0,0) puts d at (1,1).
const char* const tiesStore = R"j({
  "NodeConstraints": {
    "a": {"tile": {"column": 0, "row": 0, "tile_type": "core"},
          "colocated_nodes": ["b&c"],
          "relative_nodes": ["d:(X=1,Y=1)"]},
    "b&c": {"tile": {"column": 1, "row": 0, "tile_type": "core"}}
  }
})j";

// Rows of 36 pixels from y 64, so the centres of the tiles (0,0), (1,0) and
// (1,1) are (64 + 110, 100 + 18) = (174, 118), (394, 118) and (394, 82). The
// shim row at 144, 52 high, one slot of 212; the legend at 228, its two tie
// lines at 228 + 8 * 18 = 372 and 390; a height of 228 + 10 * 18 + 16 = 424.
const std::string tiesPicture = std::string(R"j(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" width="560" height="424" viewBox="0 0 560 424" font-family="sans-serif" font-size="11">
<title>ties</title>
)j") + pictureStyle + R"j(<rect fill="#ffffff" width="560" height="424"/>
<text class="heading" x="16" y="30">ties</text>
<text class="axis" x="16" y="48">2 columns, 2 rows, 1 channels per shim column</text>
<g id="tiles">
<text class="axis" text-anchor="end" x="56" y="86">row 1</text>
<rect class="cell" x="64" y="64" width="220" height="36"/>
<rect class="cell" x="284" y="64" width="220" height="36"/>
<text class="axis" text-anchor="end" x="56" y="122">row 0</text>
<rect class="cell core" x="64" y="100" width="220" height="36"/>
<rect class="cell core" x="284" y="100" width="220" height="36"/>
</g>
<g id="interface">
<text class="axis" text-anchor="end" x="56" y="174">shim</text>
<rect class="shim" x="64" y="144" width="220" height="52"/>
<rect class="slot" x="68" y="148" width="211" height="12"/>
<text class="axis" text-anchor="middle" x="174" y="212">column 0</text>
<rect class="shim" x="284" y="144" width="220" height="52"/>
<rect class="slot" x="288" y="148" width="211" height="12"/>
<text class="axis" text-anchor="middle" x="394" y="212">column 1</text>
</g>
<g id="areaGroups">
</g>
<g id="ties">
<line class="tie colocated" x1="174" y1="118" x2="394" y2="118"><title>a colocated with b&amp;c</title></line>
<line class="tie relative" x1="174" y1="118" x2="394" y2="82"><title>d relative to a</title></line>
</g>
<g id="tileTexts">
<text class="pin" x="70" y="114">a</text>
<text class="pin" x="290" y="114">b&amp;c</text>
<text class="place" x="290" y="78">d: relative to a</text>
</g>
<g id="shimTexts">
</g>
)j" + pictureLegend + R"j(</svg>
)j";

TEST(ConstraintsSvgWriterTest, TiesAreLinesBetweenTheCentresOfTheirTiles)
{
  const auto handler = readText(tiesStore);
  EXPECT_EQ(drawn(*handler, "ties"), tiesPicture);
}

TEST(ConstraintsSvgWriterTest, EmptyStoreIsOneTileAndOneChannelWithTheLegendOnly)
{
  const std::string picture = drawn(ConstrHandler(), "empty");
  EXPECT_NE(picture.find("1 columns, 1 rows, 1 channels per shim column"), std::string::npos);
  EXPECT_NE(picture.find("<g id=\"legend\">"), std::string::npos);
  EXPECT_EQ(picture.find("<g id=\"groupList\">"), std::string::npos);
  EXPECT_EQ(picture.find("<g id=\"offGrid\">"), std::string::npos);
}

// What the placements make of each kind of location.
TEST(ArrayPlacementsTest, ExtentAndWhatStaysOffTheGrid)
{
  const struct {
    const char* name;
    const char* file;
    int columns;
    int rows;
    int channels;
    std::vector<std::string> offGrid;
  } cases[] = {
      {"coreTile", R"j({"NodeConstraints": {"n": {"tile": {"column": 3, "row": 2}}}})j",
       4, 3, 1, {}},
      {"rowLeftOut", R"j({"NodeConstraints": {"n": {"tile": {"column": 3}}}})j", 1,
       1, 1, {"n: tile (3,-1)"}},
      {"negativeColumn",
       R"j({"NodeConstraints": {"n": {"tile": {"column": -4, "row": 1}}}})j", 1, 1, 1,
       {"n: tile (-4,1)"}},
      {"beyondTheGrid",
       R"j({"NodeConstraints": {"n": {"tile": {"column": 256, "row": 0}}}})j", 1, 1,
       1, {"n: tile (256,0)"}},
      {"lastDrawnColumn",
       R"j({"NodeConstraints": {"n": {"tile": {"column": 255, "row": 0}}}})j", 256, 1, 1, {}},
      {"shimWithoutChannel",
       R"j({"NodeConstraints": {"n": {"shim": {"column": 5}}}})j", 6, 1, 1, {}},
      {"shimByName", R"j({"NodeConstraints": {"n": {"shim": {"name": "s_1"}}}})j",
       1, 1, 1, {"n: shim s_1"}},
      {"addressByBankOnly",
       R"j({"NodeConstraints": {"n": {"reserved_memory": {"bankId": 1, "offset": 8}}}})j",
       1, 1, 1, {"n: reserved memory (-1,-1,1,8)"}},
      {"buffersOfAPort", R"j({"PortConstraints": {"p": {"buffers": [{"column": 1, "row": 4},
           {"bankId": 0, "offset": 0}, {"column": 2, "row": 0}]}}})j",
       3, 5, 1, {"p: buffer pong (-1,-1,0,0)"}},
      {"groupRanges", R"j({"GlobalConstraints": {"areaGroup": {"name": "g",
           "tileGroup": ["(1,1):(3,2)", 6, "t_a:t_b"],
           "shimGroup": ["(2,3):(4,7)"], "memGroup": ["(0,5)"]}}})j",
       7, 6, 8, {"area group g: core t_a:t_b"}},
      {"secondEndOffTheGrid", R"j({"GlobalConstraints": {"areaGroup": {"name": "g",
           "tileGroup": ["(1,1):(300,1)"], "shimGroup": ["(2,0):(t_c)"]}}})j", 3, 2, 1,
       {"area group g: core (1,1):(300,1)", "area group g: shim (2,0):t_c"}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const auto handler = readText(c.file);
    const ArrayPlacements placements(*handler);
    EXPECT_EQ(placements.getColumns(), c.columns);
    EXPECT_EQ(placements.getRows(), c.rows);
    EXPECT_EQ(placements.getChannels(), c.channels);
    EXPECT_EQ(placements.getOffGrid(), c.offGrid);
  }
}

TEST(ArrayPlacementsTest, GroupBoxesSpanAFreeAxisAndKeepTheirBand)
{
  const auto handler = readText(R"j({"GlobalConstraints": {"areaGroup": {"name": "g",
      "exclude": true, "nodeGroup": ["x", "y"],
      "tileGroup": ["(3,2):(1,1)", 6], "shimGroup": ["(2,3):(4,7)", 5],
      "memGroup": ["(0,5)"]}}})j");
  const ArrayPlacements placements(*handler);
  ASSERT_EQ(placements.getGroups().size(), 1u);
  const ArrayPlacements::Group& group = placements.getGroups()[0];
  EXPECT_EQ(group.name, "g");
  EXPECT_TRUE(group.flags.exclude);
  EXPECT_FALSE(group.flags.isSoft);
  EXPECT_EQ(group.nodes, (std::vector<std::string>{"x", "y"}));
  // The reader files the ranges tile, shim, mem.
  ASSERT_EQ(group.boxes.size(), 5u);
  const auto expectBox = [](const ArrayPlacements::GroupBox& box, bool onInterfaceRow,
                            bool memory, int firstColumn, int lastColumn, int first, int last) {
    EXPECT_EQ(box.onInterfaceRow, onInterfaceRow);
    EXPECT_EQ(box.memory, memory);
    EXPECT_EQ(box.firstColumn, firstColumn);
    EXPECT_EQ(box.lastColumn, lastColumn);
    EXPECT_EQ(box.first, first);
    EXPECT_EQ(box.last, last);
  };
  expectBox(group.boxes[0], false, false, 1, 3, 1, 2);
  expectBox(group.boxes[1], false, false, 6, 6, -1, -1);
  expectBox(group.boxes[2], true, false, 2, 4, 3, 7);
  expectBox(group.boxes[3], true, false, 5, 5, -1, -1);
  expectBox(group.boxes[4], false, true, 0, 0, 5, 5);
}

TEST(ArrayPlacementsTest, CellsCollectTheirLinesInStoreOrder)
{
  const auto handler = readText(R"j({"NodeConstraints": {
      "a": {"tile": {"column": 0, "row": 0, "tile_type": "mem"}},
      "b": {"tile": {"column": 0, "row": 0}, "shim": {"column": 0, "channel": 2}},
      "c": {"shim": {"column": 0}}}})j");
  const ArrayPlacements placements(*handler);
  const ArrayPlacements::Lines& tile = placements.getTiles().at({0, 0});
  ASSERT_EQ(tile.size(), 2u);
  EXPECT_EQ(tile[0].kind, ArrayPlacements::MemTile);
  EXPECT_EQ(tile[0].text, "a");
  EXPECT_EQ(tile[1].kind, ArrayPlacements::CoreTile);
  const ArrayPlacements::Lines& shim = placements.getShimColumns().at(0);
  ASSERT_EQ(shim.size(), 2u);
  EXPECT_EQ(shim[0].text, "ch 2: b");
  EXPECT_EQ(shim[1].text, "any ch: c");
  EXPECT_TRUE(placements.isChannelTaken(0, 2));
  EXPECT_FALSE(placements.isChannelTaken(0, 1));
}

std::string tieText(const ArrayPlacements::Tie& tie)
{
  const auto cell = [](const ArrayPlacements::Cell& at) {
    return "(" + std::to_string(at.first) + "," + std::to_string(at.second) + ")";
  };
  return std::string(tie.kind == ArrayPlacements::Colocation ? "colocation " : "relative ") +
         tie.from + " " + cell(tie.fromCell) + " - " + tie.to + " " + cell(tie.toCell);
}

// Which ties a store gives, each as "kind from (column,row) - to (column,row)",
// and what of them stays off the grid.
TEST(ArrayPlacementsTest, TiesJoinTilesThatBothEndsHave)
{
  const struct {
    const char* name;
    const char* nodes;  // the members of "NodeConstraints"
    std::vector<std::string> ties;
    std::vector<std::string> offGrid;
  } cases[] = {
      {"colocationNamedFromBothSidesIsOneTie",
       R"j("a": {"tile": {"column": 0, "row": 0}, "colocated_nodes": ["b"]},
           "b": {"tile": {"column": 2, "row": 1}, "colocated_nodes": ["a"]})j",
       {"colocation a (0,0) - b (2,1)"}, {}},
      {"colocationOnOneTileOrWithAFreeNodeHasNoLine",
       R"j("a": {"tile": {"column": 1, "row": 1}, "colocated_nodes": ["b", "c"]},
           "b": {"tile": {"column": 1, "row": 1}}, "d": {"colocated_nodes": ["a"]})j", {}, {}},
      {"notColocatedNodesAreNoTie",
       R"j("a": {"tile": {"column": 0, "row": 0}, "not_colocated_nodes": ["b"]},
           "b": {"tile": {"column": 1, "row": 0}})j", {}, {}},
      {"relativeNodesGoByOffsetOrByTheirOwnPin", R"j("a": {"tile": {"column": 1, "row": 1},
                 "relative_nodes": ["p:(X=5,Y=5)", "q:(X=-1,Y=2)", "r:(X=0,Y=0)"]},
           "p": {"tile": {"column": 3, "row": 0}})j",
       {"relative a (1,1) - p (3,0)", "relative a (1,1) - q (0,3)"}, {}},
      {"relativeNodeWithAFreeAxisOrOffTheGridHasNoTie", R"j("a": {"tile": {"column": 1, "row": 0},
                 "relative_nodes": ["x:(X=1)", "y:(Y=2)", "z:(X=-2,Y=0)",
                                    "w:(X=2147483647,Y=0)"]})j",
       {}, {"w: relative to a (2147483648,0)", "z: relative to a (-1,0)"}},
      {"relativeToANodeThatIsNotPinnedTiesNothing", R"j("a": {"relative_nodes": ["b:(X=1,Y=1)"]},
           "b": {"tile": {"column": 0, "row": 0}})j", {}, {}},
      {"colocationsComeBeforeRelativePlacements",
       R"j("a": {"tile": {"column": 0, "row": 0}, "relative_nodes": ["b:(X=1,Y=0)"]},
           "b": {"tile": {"column": 0, "row": 1}, "colocated_nodes": ["a"]})j",
       {"colocation b (0,1) - a (0,0)", "relative a (0,0) - b (0,1)"}, {}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const auto handler = readText(std::string(R"j({"NodeConstraints": {)j") + c.nodes + "}}");
    const ArrayPlacements placements(*handler);
    std::vector<std::string> ties;
    for (const ArrayPlacements::Tie& tie : placements.getTies())
      ties.push_back(tieText(tie));
    EXPECT_EQ(ties, c.ties);
    EXPECT_EQ(placements.getOffGrid(), c.offGrid);
  }
}

TEST(ArrayPlacementsTest, NodePutByAnOffsetIsNamedOnItsTile)
{
  const auto handler = readText(R"j({"NodeConstraints": {
      "a": {"tile": {"column": 0, "row": 0}, "relative_nodes": ["b:(X=2,Y=3)"]}}})j");
  const ArrayPlacements placements(*handler);
  const ArrayPlacements::Lines& tile = placements.getTiles().at({2, 3});
  ASSERT_EQ(tile.size(), 1u);
  EXPECT_EQ(tile[0].kind, ArrayPlacements::RelativeNode);
  EXPECT_EQ(tile[0].text, "b: relative to a");
  EXPECT_EQ(placements.getColumns(), 3);
  EXPECT_EQ(placements.getRows(), 4);
}

}  // namespace
