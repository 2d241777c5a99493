#include "ConstrSupport.h"

#include "ConstrReader.h"
#include "MemConstr.h"
#include "ReservedMemoryConstr.h"
#include "ShimConstr.h"
#include "SpecBuilders.h"
#include "TileConstr.h"

namespace {

using namespace constr_support;
using spec_builders::address;

class PlacementConstrTest : public MessageLogTest {};

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

  ConstrHandler target;
  TileConstr(Base::NODE, "unset").clone(target, nullptr);
  EXPECT_TRUE(target.empty()) << "an unset tile makes no copy";
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

TEST_F(PlacementConstrTest, TheStoreMakesOnePlacementOfAKindPerObjectAndReplacesIt)
{
  ConstrHandler handler;
  handler.setTileConstr("n", 1, 2, PhysicalSpec::Mem);
  handler.setTileConstr("n", "t");
  handler.setShimConstr("n", 4, 1);
  handler.setShimConstr("n", 6, 2);
  handler.setTileConstr("", 1, 2, PhysicalSpec::Core);
  handler.setBufferConstr("", Address(), Address(), Address());
  ASSERT_EQ(handler.size(), 2u);
  EXPECT_EQ(handler.getTileConstr("n")->getName(), "t");
  EXPECT_EQ(handler.getTileConstr("n")->getTileType(), PhysicalSpec::Mem);
  EXPECT_EQ(handler.getConstr("n", "shim")->str(), " abs(n,shim)=(6,2)");
}

// Each object holds one case, read with validation off so that the schema
// does not stand in the way. What the store holds is compared as
// ConstrHandler::dump prints it.
TEST_F(PlacementConstrTest, KeysOfAFile)
{
  const std::string file = IPCONFIG_RW_TESTS_DATA_DIR "/placement_keys.json";
  ConstrHandler handler;
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

}  // namespace
