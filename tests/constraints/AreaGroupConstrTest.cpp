#include "ConstrSupport.h"

#include "AreaGroupConstr.h"
#include "ConstrReader.h"
#include "SpecBuilders.h"

#include <sstream>

namespace {

using namespace constr_support;
using namespace spec_builders;
using Ranges = std::vector<PhysicalRange>;

std::string rangesText(const Ranges& ranges)
{
  std::string text;
  for (const PhysicalRange& range : ranges)
    text += "[" + range.str() + "]";
  return text;
}

PhysicalSpec mem(int x, int y)
{
  return at(x, y, json::MemSpec());
}

TEST(AreaGroupConstrTest, NodesOnceInTheOrderOfTheirFirstAdd)
{
  AreaGroupConstr group("g");
  EXPECT_FALSE(group.isNodeGroupSet());
  group.addNode("b");
  group.addNodeGroup({"a", "b", "c", "a"});
  group.addNode("b");
  EXPECT_EQ(group.getNodeGroup(), (Names{"b", "a", "c"}));
  group.setNodeGroup({"d", "d"});
  group.addNode("c");
  EXPECT_EQ(group.getNodeGroup(), (Names{"d", "c"})) << "a name set aside is no longer held";
}

TEST(AreaGroupConstrTest, RangesNeedASetFirstEndExceptInAWholeGroup)
{
  AreaGroupConstr group("g");
  group.addPhysicalRange(PhysicalSpec(), at(1, 1));
  group.addPhysicalValue(row(2));
  group.addPhysicalRange(PhysicalRange(PhysicalSpec(), at(1, 1)));
  EXPECT_FALSE(group.isPhysicalGroupSet());
  group.addPhysicalRange(at(0, 1), bank(1, 2));
  group.addPhysicalValue(named("t"));
  group.addPhysicalRange(PhysicalRange(mem(0, 1), mem(3, 1)));
  group.addPhysicalGroup({PhysicalRange(PhysicalSpec(), at(1, 1))});
  EXPECT_EQ(rangesText(group.getPhysicalGroup()),
            "[low=tile=(0,1)][low=tile=(t)][low=mem=(0,1) high=mem=(3,1)][]");
  Ranges valid{PhysicalRange(named("kept"))};
  group.getValidPhysicalGroup(valid);
  EXPECT_EQ(rangesText(valid), "[low=tile=(kept)][low=tile=(0,1)][low=tile=(t)]");
  group.addPhysicalGroup(group.getPhysicalGroup());
  EXPECT_EQ(group.getPhysicalGroup().size(), 8u);
}

TEST(AreaGroupConstrTest, TextAndFileForm)
{
  AreaGroupConstr group("g");
  EXPECT_EQ(written(group), R"({"areaGroup":{"name":"g"}})");
  group.setFlags({true, false, false, true, false});
  group.addNodeGroup({"a", "b"});
  group.addPhysicalValue(at(1, 2));
  EXPECT_EQ(group.str(),
            " areaGroup(g)=(a,b,)(\n  low=tile=(1,2))\n exclude=(true) isSoft=(false) "
            "contain_routing=(false) exclusive_routing=(true) "
            "exclusive_placement=(false)");
  group.setFlags({false, true, true, false, true});
  group.addPhysicalRange(mem(3, 0), shim(4, 1));
  group.addPhysicalValue(shim(5, 2));
  group.addPhysicalValue(column(7));
  group.getSrcInfo().set(SrcInfo::SourceFile, "g.cpp", 1, 2);
  const Resolver scoping("top/");
  EXPECT_EQ(written(group, &scoping),
            R"j({"areaGroup":{"name":"g","issoft":true,"contain_routing":true,)j"
            R"j("exclusive_placement":true,"nodeGroup":["top/a","top/b"],)j"
            R"j("tileGroup":["(1,2)",7],"memGroup":["(3,0):(4,1)"],)j"
            R"j("shimGroup":["(3,0):(4,1)","(5,2)"],)j"
            R"j("srcInfo":{"file":"g.cpp","line":1,"column":2}}})j");
  EXPECT_EQ(written(AreaGroupConstr("")), "{}");
}

// The moves themselves are those of every kind (ConstrKindsTest).
TEST(AreaGroupConstrTest, OffsetColumnResetsUnsetEnds)
{
  AreaGroupConstr group("g");
  group.addPhysicalGroup({PhysicalRange(bank(2, 4, at(1, 0)), bank(5, 5, row(2, mem(-1, -1))))});
  group.offsetColumn(3);
  const PhysicalRange& range = group.getPhysicalGroup().front();
  EXPECT_EQ(range.str(), "low=tile=(4,0)");
  EXPECT_FALSE(range.getFirst().isBankSet());
  EXPECT_TRUE(range.getSecond().isTile() && !range.getSecond().isBankSet() &&
              !range.getSecond().isRowSet());
}

TEST(AreaGroupConstrTest, TheStoreMergesAddsAndReplacesOnSet)
{
  ConstrHandler handler;
  handler.addAreaGroupConstr("g", {"a", "b"}, {PhysicalRange(at(1, 1))}, true, false, true, false,
                             false);
  handler.addAreaGroupConstr("g", {"b", "c"}, {PhysicalRange(at(2, 2))}, false, true, false, true,
                             true);
  handler.addAreaGroupConstr("", {"x"}, {}, true, true, true, true, true);
  handler.setAreaGroupConstr("", {"x"}, {}, true, true, true, true, true);
  ASSERT_EQ(handler.size(), 1u);
  AreaGroupConstr* group = handler.getAreaGroupConstr("g");
  EXPECT_EQ(group->getNodeGroup(), (Names{"a", "b", "c"}));
  EXPECT_EQ(group->getPhysicalGroup().size(), 2u);
  const AreaGroupConstr::Flags& flags = group->getFlags();
  EXPECT_TRUE(flags.exclude && !flags.isSoft && flags.containRouting && !flags.exclusiveRouting &&
              !flags.exclusivePlacement)
      << "the flags of the first definition stand";
  EXPECT_EQ(handler.getAreaGroupConstr("G"), nullptr);

  handler.setAreaGroupConstr("g", {"d"}, {}, false, false, false, false, true);
  EXPECT_EQ(written(*group), R"({"areaGroup":{"name":"g","exclusive_placement":true,)"
                             R"("nodeGroup":["d"]}})");
}

class AreaGroupReadTest : public MessageLogTest {
protected:
  ConstrHandler handler;
};

// Groups of one name merge, only the value true is true, and each element of
// a group that gives no first location is dropped and reported, with its text
// if it has one. The ranges are read tile, shim, mem within each entry.
TEST_F(AreaGroupReadTest, GroupsOfAFile)
{
  const std::string file = IPCONFIG_RW_TESTS_DATA_DIR "/area_group_keys.json";
  ConstrReader reader(handler);
  reader.read(file, false);
  const auto bad = [&](const char* format, std::vector<std::string> args) {
    args.insert(args.begin(), {file, "g"});
    return ExpectedMsg{format, Mask::CriticalWarning, args};
  };
  const auto open = [](const char* text) {
    return ExpectedMsg{"@75-647@%s", Mask::CriticalWarning, {text}};
  };
  expectSent({open(":7"), bad("@75-596@%s%s%s", {":7"}), bad("@75-588@%s%s", {}),
              bad("@75-588@%s%s", {}), bad("@75-587@%s%s", {}), open(":6"),
              bad("@75-595@%s%s%s", {":6"}), open(":5"), bad("@75-748@%s%s%s", {":5"}),
              bad("@75-747@%s%s", {})});
  ASSERT_EQ(handler.size(), 2u);
  const AreaGroupConstr* g = handler.getAreaGroupConstr("g");
  EXPECT_EQ(g->getNodeGroup(), (Names{"a", "b"}));
  EXPECT_EQ(rangesText(g->getPhysicalGroup()),
            "[low=tile=(1,0) high=tile=(2,3)][low=shim=(2,-1)][low=mem=(1,0)][low=tile=(5,-1)]");
  EXPECT_TRUE(!g->getFlags().exclude && g->getFlags().isSoft);
  const AreaGroupConstr* h = handler.getAreaGroupConstr("h");
  EXPECT_TRUE(!h->getFlags().containRouting && h->getFlags().exclusiveRouting &&
              h->getFlags().exclusivePlacement);
  EXPECT_FALSE(h->isNodeGroupSet());

  EXPECT_EQ(where(g->getSrcInfo()), "1 graph.cpp 9:2");
  EXPECT_EQ(where(h->getSrcInfo()), "0 " + reader.getJsonPath() + " 9:15")
      << "where its name first stands";
}

TEST_F(AreaGroupReadTest, TheGroupsAloneWhateverTheRootSays)
{
  const Resolver prefixing("top/");
  std::istringstream in(R"({"isToolGenerated": true, "NodeConstraints": {"n": {"k": 1}},
    "GlobalConstraints": {"areaGroup": {"name": "g", "nodeGroup": ["n"]}}})");
  ConstrReader(handler, prefixing).readAreaGroupConstrs(in, "groups.json", true);
  ASSERT_EQ(handler.size(), 1u);
  EXPECT_EQ(handler.getAreaGroupConstr("g")->getNodeGroup(), Names{"top/n"});
}

}  // namespace
