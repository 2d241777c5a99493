#include "ConstrSupport.h"

#include "AreaGroupConstr.h"
#include "ConstrReader.h"
#include "MemConstr.h"
#include "ReservedMemoryConstr.h"
#include "ShimConstr.h"
#include "TileConstr.h"

#include <functional>
#include <sstream>

namespace {

using namespace constr_support;
using Ranges = std::vector<PhysicalRange>;

// A constraint of each kind: what it writes, what it writes after
// offsetColumn(3), the name under which its copy through a resolver that
// prefixes "top/" is found, and what the copy writes when that differs from
// the original.
TEST(ConstrKindTest, ClonesThroughAResolverAndShiftsItsColumns)
{
  struct KindCase {
    const char* name;
    std::function<void(ConstrHandler&)> make;
    std::string copyName;
    std::string keys;
    std::string shiftedKeys;
    std::string copyKeys = keys;
  };
  const KindCase cases[] = {
      {"TileByCoordinates",
       [](ConstrHandler& h) { h.setTileConstr("n", 1, 2, PhysicalSpec::Mem); },
       "top/n", R"({"tile":{"column":1,"row":2,"tile_type":"mem"}})",
       R"({"tile":{"column":4,"row":2,"tile_type":"mem"}})"},
      {"TileByName", [](ConstrHandler& h) { h.setTileConstr("n", "t"); }, "top/n",
       R"({"tile":{"name":"t"}})", R"({"tile":{"name":"t"}})"},
      {"Shim", [](ConstrHandler& h) { h.setShimConstr("n", 1, 2); }, "top/n",
       R"({"shim":{"column":1,"channel":2}})", R"({"shim":{"column":4,"channel":2}})"},
      {"ShimByName", [](ConstrHandler& h) { h.setShimConstr("n", "s"); }, "top/n",
       R"({"shim":{"name":"s"}})", R"({"shim":{"name":"s"}})"},
      {"Mem",
       [](ConstrHandler& h) {
         h.setMemConstr("n", address(1, 0, 2, 8), address(-1, -1, 1, 4));
       },
       "top/n", R"({"mem":[{"column":1,"row":0,"bankId":2,"offset":8},)"
                R"({"bankId":1,"offset":4}]})",
       R"({"mem":[{"column":4,"row":0,"bankId":2,"offset":8},)"
       R"({"bankId":1,"offset":4}]})"},
      {"Buffers",
       [](ConstrHandler& h) {
         h.setBufferConstr("p", address(0, 1, -1, -1), Address(), address(-4, 1, -1, -1));
       },
       "top/p", R"({"buffers":[{"column":0,"row":1},{"column":-4,"row":1}]})",
       R"({"buffers":[{"column":3,"row":1},{"row":1}]})"},
      {"ReservedMemory",
       [](ConstrHandler& h) { h.setReservedMemoryConstr("n", address(5, 1, 0, 0)); },
       "top/n", R"({"reserved_memory":{"column":5,"row":1,"bankId":0,"offset":0}})",
       R"({"reserved_memory":{"column":8,"row":1,"bankId":0,"offset":0}})"},
      {"AreaGroup",
       [](ConstrHandler& h) {
         h.setAreaGroupConstr("g", {"a", "b"},
                              {PhysicalRange(at(1, 0), at(2, 0)),
                               PhysicalRange(named("m", json::MemSpec())),
                               PhysicalRange(shim(3, 1))},
                              true, false, false, false, true);
       },
       "g",
       R"j({"areaGroup":{"name":"g","exclude":true,"exclusive_placement":true,)j"
       R"j("nodeGroup":["a","b"],"tileGroup":["(1,0):(2,0)"],)j"
       R"j("memGroup":["m"],"shimGroup":["(3,1)"]}})j",
       R"j({"areaGroup":{"name":"g","exclude":true,"exclusive_placement":true,)j"
       R"j("nodeGroup":["a","b"],"tileGroup":["(4,0):(5,0)"],)j"
       R"j("memGroup":["m"],"shimGroup":["(6,1)"]}})j",
       R"j({"areaGroup":{"name":"g","exclude":true,"exclusive_placement":true,)j"
       R"j("nodeGroup":["top/a","top/b"],"tileGroup":["(1,0):(2,0)"],)j"
       R"j("memGroup":["m"],"shimGroup":["(3,1)"]}})j"}};
  for (const KindCase& c : cases) {
    SCOPED_TRACE(c.name);
    ConstrHandler source;
    c.make(source);
    ASSERT_EQ(source.size(), 1u);
    BaseConstraint* constr = source.getConstrs().front();
    constr->getSrcInfo().set(SrcInfo::UserJson, "c.json", 3, 4);
    EXPECT_EQ(written(*constr), c.keys);

    ConstrHandler target;
    const Resolver renamer("top/");
    constr->clone(target, &renamer);
    ConstrHandler::Constrs copies;
    target.getConstrs(c.copyName, copies);
    ASSERT_EQ(copies.size(), 1u);
    const BaseConstraint* copy = copies.front();
    EXPECT_EQ(copy->getConstrType(), constr->getConstrType());
    EXPECT_EQ(copy->getObjType(), constr->getObjType());
    EXPECT_EQ(written(*copy), c.copyKeys);
    EXPECT_EQ(copy->getSrcInfo().getLine(), 3u);

    constr->offsetColumn(3);
    EXPECT_EQ(written(*constr), c.shiftedKeys);
    EXPECT_EQ(written(*copy), c.copyKeys) << "the copy is a copy";
  }
}

class ConstrKindFileTest : public MessageLogTest {
protected:
  ConstrHandler handler;
};
using PlacementConstrTest = ConstrKindFileTest;
using AreaGroupReadTest = ConstrKindFileTest;

TEST_F(ConstrKindFileTest, TheGroupsAreWrittenAloneWithoutReports)
{
  const std::string examples = IPCONFIG_RW_EXAMPLES_DIR;
  handler.read(examples + "/placement.json");
  std::ostringstream out;
  handler.writeAreaGroupConstrs(out, "groups.json", BaseNameResolver());
  EXPECT_EQ(out.str(), "{}") << "no group";
  handler.read(examples + "/area_groups.json");
  ComMsgLog::clear();
  out.str("");
  handler.writeAreaGroupConstrs(out, "groups.json", BaseNameResolver());
  EXPECT_EQ(out.str(), readFile(IPCONFIG_RW_TESTS_DATA_DIR "/area_groups_written.json"));
  expectSent({});
}

TEST_F(PlacementConstrTest, ATileNeedsANameOrAColumnToBeWritten)
{
  TileConstr tile(Base::NODE, "n");
  EXPECT_TRUE(tile.isTileTypeValueDefault());
  tile.setRow(3);
  EXPECT_FALSE(tile.isSet());
  EXPECT_EQ(written(tile), "{}");
  expectSent({{"@75-586@%s", Mask::Info, {"n"}}});
  EXPECT_EQ(tile.str(), " abs(n,tile)=(-1,3)");

  tile.setColumn(2);
  tile.setTileType(PhysicalSpec::Unknown);
  EXPECT_TRUE(tile.isTileTypeValueUnknown());
  EXPECT_EQ(written(tile), R"({"tile":{"column":2,"row":3,"tile_type":"unknown-tile-type"}})");
  tile.getSrcInfo().set(SrcInfo::SourceFile, "g.cpp", 4, 5);
  tile.setName("t");
  EXPECT_EQ(written(tile), R"({"tile":{"name":"t"},"tile_src_info":{"file":"g.cpp","line":4,)"
                           R"("column":5}})");
  EXPECT_EQ(tile.str(), " abs(n,tile)=(-1,-1)") << "a name is not shown";
  EXPECT_EQ(tile.getTileType(), PhysicalSpec::Unknown) << "a name leaves the type";

  TileConstr(Base::NODE, "unset").clone(handler, nullptr);
  EXPECT_TRUE(handler.empty()) << "an unset tile makes no copy";
}

TEST_F(PlacementConstrTest, AShimIsSetWithAChannelAndWrittenWithoutOneSilently)
{
  ShimConstr shim(Base::NODE, "n");
  EXPECT_EQ(written(shim), "{}");
  shim.setColumn(3);
  EXPECT_FALSE(shim.isSet());
  EXPECT_EQ(written(shim), R"({"shim":{"column":3}})");
  shim.setChannel(2);
  shim.setColumn(5);
  EXPECT_TRUE(shim.isSet()) << "the channel stays when the column moves";
  EXPECT_EQ(shim.str(), " abs(n,shim)=(5,2)");
  EXPECT_EQ(written(shim), R"({"shim":{"column":5,"channel":2}})");
  shim.setName("s");
  EXPECT_FALSE(shim.isSet());
  EXPECT_EQ(written(shim), R"({"shim":{"name":"s"}})");
  expectSent({});
}

TEST_F(PlacementConstrTest, MemoryAddressesAreWrittenWhenGivenAndShownWhenComplete)
{
  MemConstr mem(Base::NODE, "n");
  EXPECT_EQ(written(mem), "{}");
  mem.pong = address(1, -1, 2, -1);
  EXPECT_EQ(mem.str(), " mem(n,shared_buffer)=") << "column and bank make no place";
  EXPECT_EQ(written(mem), R"({"mem":[{"column":1,"bankId":2}]})") << "pong comes back as ping";
  mem.ping = address(-1, -1, 3, 4);
  EXPECT_EQ(mem.str(), " mem(n,shared_buffer)=ping=(-1,-1,3,4)");

  ReservedMemoryConstr reserved(Base::NODE, "n");
  EXPECT_EQ(written(reserved), "{}");
  EXPECT_EQ(reserved.str(), " buf(n,reserved_memory)=(-1,-1,-1,-1)");
  reserved.address = address(-1, 4, -1, -1);
  EXPECT_EQ(written(reserved), R"({"reserved_memory":{"row":4}})");
}

// Each object holds one case, read with validation off so that the schema
// does not stand in the way. What the store holds is compared as
// ConstrHandler::dump prints it.
TEST_F(PlacementConstrTest, KeysOfAFile)
{
  const std::string file = IPCONFIG_RW_TESTS_DATA_DIR "/placement_keys.json";
  ConstrReader reader(handler);
  reader.read(file, false);
  std::string dump;
  for (const BaseConstraint* constr : handler.getConstrs())
    dump += constr->str() + "\n";
  EXPECT_EQ(dump, " abs(tileByName,tile)=(-1,-1)\n abs(tileRowOnly,tile)=(-1,2)\n"
                  " abs(unknownType,tile)=(1,-1)\n abs(memType,tile)=(1,-1)\n"
                  " abs(memType,shim)=(0,-1)\n buf(reserved,reserved_memory)=(-1,-1,1,0)\n"
                  " mem(memOfThree,shared_buffer)=pong=(1,0,-1,-1)\n"
                  " buf(buffers,data_buffer)=ping=(0,1,-1,-1)rtpSelector=(-1,-1,0,3)\n"
                  " attr(nodeKeys)=(t)\n");
  const auto refused = [&](const char* format, const char* object) {
    return ExpectedMsg{format, Mask::CriticalWarning, {file, object}};
  };
  expectSent({refused("@75-579@%s%s", "memNoArray"), refused("@75-574@%s%s", "memEmpty"),
              refused("@75-584@%s%s", "memOfFour"), refused("@75-579@%s%s", "buffersNoArray"),
              refused("@75-584@%s%s", "buffersOfFour")});

  EXPECT_EQ(handler.getTileConstr("unknownType")->getTileType(), PhysicalSpec::Core);
  const TileConstr* tile = handler.getTileConstr("memType");
  EXPECT_EQ(tile->getTileType(), PhysicalSpec::Mem);
  EXPECT_EQ(where(tile->getSrcInfo()), "0 " + reader.getJsonPath() + " 9:7")
      << "a source key before its key counts not";
  EXPECT_EQ(where(handler.getShimConstr("memType")->getSrcInfo()), "1 graph.cpp 3:4");
}

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
  ASSERT_EQ(handler.size(), 3u);
  EXPECT_NE(handler.getInstGroupConstr("g"), nullptr) << "a group of another kind, same name";
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
