#include "ConstrSupport.h"

#include "ConstrCast.h"
#include "FifoLocationsConstr.h"
#include "PortLocConstr.h"
#include "StreamChannelConstr.h"

#include <sstream>

namespace {

using namespace constr_support;

TEST(PortLocConstrTest, WrittenByNameOrByCoordinatesInTheirKeyOrder)
{
  ConstrHandler handler;
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[&] { handler.setPortLocConstr("p", "s", 1, PhysicalSpec::Control); },
       R"({"port_loc":{"name":"s","channel":1,"channel_type":"control"}})"},
      {[&] { handler.setPortLocConstr("p", "s", -1); }, R"({"port_loc":{"name":"s"}})"},
      {[&] { handler.setPortLocConstr("p", PhysicalSpec::Mem, 3, 1, 2); },
       R"({"port_loc":{"tile_type":"mem","row":1,"column":3,"channel":2}})"},
      {[&] { handler.setPortLocConstr("p", PhysicalSpec::Core, 3, -1, -1, PhysicalSpec::Trace); },
       R"({"port_loc":{"tile_type":"core","column":3,"channel_type":"trace"}})"},
      {[&] { handler.setPortLocConstr("p", PhysicalSpec::Shim, -1, 2, 4); }, "{}"},
  };
  for (const auto& [set, json] : cases) {
    set();
    EXPECT_EQ(written(*handler.getPortLocConstr("p")), json);
  }
  EXPECT_EQ(handler.size(), 1u);
  handler.setPortLocConstr("", "s", 1);
  EXPECT_EQ(handler.size(), 1u);
}

TEST(PortLocConstrTest, NameClearsTheChannelColumnsMoveAndTheTextSaysShim)
{
  PortLocConstr location(Base::PORT, "p");
  location.setTileType(PhysicalSpec::Mem);
  location.setColumn(2);
  location.setRow(1);
  location.setChannel(3);
  EXPECT_TRUE(location.isSet());
  location.offsetColumn(4);
  EXPECT_EQ(location.str(), " abs(p,shim)=(6,3)");
  EXPECT_EQ(location.getRow(), 1);
  location.setName("s");
  EXPECT_FALSE(location.isChannelSet() || location.isSet());
  location.offsetColumn(4);
  EXPECT_EQ(location.str(), " abs(p,shim)=(-1,-1)");
  EXPECT_EQ(location.getName(), "s");
}

TEST(StreamChannelConstrTest, BothFormsAreWrittenPrintedAsRelativeAndClonedAsAbsolute)
{
  ConstrHandler handler;
  handler.setStreamChannelConstr("p", 1, 2, 4, "east");
  handler.setStreamChannelConstr("p", 3, 4, "East");
  StreamChannelConstr* stream = handler.getStreamChannelConstr("p");
  ASSERT_NE(stream, nullptr);
  EXPECT_TRUE(stream->isSet());
  EXPECT_EQ(written(*stream),
            R"({"stream_channel":{"column":1,"row":2,"offset":3,"direction":"East","channel":4}})");
  EXPECT_EQ(stream->str(), " stream_chan(p)=Relative:(3,4,East)");
  stream->offsetColumn(2);
  EXPECT_EQ(stream->getColumn(), 3);
  EXPECT_EQ(stream->getOffset(), 3);

  ConstrHandler copy;
  copy.copy(handler);
  EXPECT_EQ(written(*copy.getStreamChannelConstr("p")),
            R"({"stream_channel":{"column":3,"row":2,"direction":"East","channel":4}})");
  EXPECT_EQ(copy.getStreamChannelConstr("p")->str(), " stream_chan(p)=Absolute:(3,2,4,East)");

  StreamChannelConstr unset(Base::PORT, "u");
  EXPECT_EQ(written(unset), "{}");
  unset.clone(copy, nullptr);
  EXPECT_NE(copy.getStreamChannelConstr("u"), nullptr) << "an unset channel clones all the same";
}

TEST(FifoLocationsTest, OnePlaceOneRecordSharedByThePortsAndFoundByItsContents)
{
  ConstrHandler handler;
  handler.setDmaFifoLocationConstr(Base::PORT, "p", PhysicalSpec::Mem, 1, 2, 3, 4, 5);
  handler.setDmaFifoLocationConstr(Base::PORT, "q", PhysicalSpec::Mem, 1, 2, 3, 4, 5);
  handler.addDmaFifoLocationConstr(Base::PORT, "q", PhysicalSpec::Mem, 1, 2, 3, 4, 6);
  handler.setStreamFifoLocationConstr(Base::PORT, "p", PhysicalSpec::Core, 1, 2, 0);
  handler.addStreamFifoLocationConstr(Base::PORT, "r", PhysicalSpec::Core, 1, 2, 0);
  handler.addStreamFifoLocationConstr(Base::PORT, "r", PhysicalSpec::Core, 1, 2, -1);
  EXPECT_EQ(handler.getFifoLocationsRecords().getRecords().size(), 4u);
  EXPECT_EQ(handler.getFifoLocationsConstr("p")->getFifoLocationsRecordNames(), (Names{"swfr0"}))
      << "set replaces";
  EXPECT_EQ(handler.getFifoLocationsConstr("q")->getFifoLocationsRecordNames(),
            (Names{"dmsfr0", "dmsfr1"}));
  EXPECT_EQ(handler.getFifoLocationsConstr("r")->getFifoLocationsRecordNames(),
            (Names{"swfr0", "swfr1"}));
  std::vector<FifoLocationsConstr*> users;
  handler.getFifoLocationsConstrs("swfr0", users);
  handler.getFifoLocationsConstrs("dmsfr1", users);
  EXPECT_EQ(users, (std::vector<FifoLocationsConstr*>{handler.getFifoLocationsConstr("p"),
                                                      handler.getFifoLocationsConstr("r"),
                                                      handler.getFifoLocationsConstr("q")}));
  expectRefused(
      [&] { handler.setStreamFifoLocationConstr(Base::NODE, "n", PhysicalSpec::Core, 9, 9, 9); },
      "ConstrHandler::setFifoLocationsConstr() - objType must be PORT");
  EXPECT_NE(handler.getFifoLocationsRecord("swfr2"), nullptr) << "the record is made first";
}

TEST(FifoLocationsTest, NamesAppendWithRepeatsAndAreWrittenAsTheyStand)
{
  ConstrHandler handler;
  handler.addFifoLocationsConstr(Base::PORT, "p", {"a"});
  handler.addFifoLocationsConstr(Base::PORT, "p", {"b", "a"});
  FifoLocationsConstr* fifos = handler.getFifoLocationsConstr("p");
  EXPECT_EQ(fifos->getFifoLocationsRecordNames(), (Names{"a", "b", "a"}));
  EXPECT_EQ(fifos->getFifoLocationsRecordName(1), "b");
  EXPECT_EQ(fifos->getFifoLocationsRecordName(5), "");
  EXPECT_TRUE(fifos->containsFifoRecord("b") && !fifos->containsFifoRecord("c"));
  EXPECT_EQ(fifos->str(), " rel(p,fifo_locations)=(a,b,a,)");
  fifos->getSrcInfo().set(SrcInfo::SourceFile, "f.cc", 1, 2);
  const Resolver resolver("top/");
  EXPECT_EQ(written(*fifos, &resolver),
            R"({"fifo_locations":["a","b","a"],)"
            R"("fifo_locations_src_info":{"file":"f.cc","line":1,"column":2}})");
  fifos->offsetColumn(3);
  handler.addDmaFifoRecord("a", PhysicalSpec::Mem, 1, 1, 1, 1, 1);

  ConstrHandler copy;
  copy.copy(handler, resolver);
  const FifoLocationsConstr* copied = copy.getFifoLocationsConstr("top/p");
  ASSERT_NE(copied, nullptr);
  EXPECT_EQ(copied->getFifoLocationsRecordNames(), (Names{"a", "b", "a"}));
  EXPECT_EQ(where(copied->getSrcInfo()), "1 f.cc 1:2");
  EXPECT_TRUE(copy.getFifoLocationsRecords().equals(handler.getFifoLocationsRecords()));
  fifos->setFifoLocationsRecordNames({});
  EXPECT_EQ(written(*fifos), "{}");
}

class PortKindsReaderTest : public MessageLogTest {
protected:
  void read(const std::string& text)
  {
    std::istringstream in(text);
    handler.read(in, "", Resolver("top/"));
  }

  ConstrHandler handler;
};

TEST_F(PortKindsReaderTest, PortLocationsDefaultToShimAndNeedANameOrAColumn)
{
  read(R"({"PortConstraints": {
    "a": {"loc": {"name": "s", "channel": 2, "channel_type": "Trace", "column": 5}},
    "b": {"port_loc": {"column": 4, "row": 0, "channel": "x"}},
    "c": {"port_loc": {"column": 4, "tile_type": "memory", "channel_type": "control"}},
    "d": {"port_loc": {"row": 3, "channel": 1}},
    "e": {"port_loc": {"column": -2, "name": ""}}}})");
  const PortLocConstr* a = handler.getPortLocConstr("top/a");
  ASSERT_NE(a, nullptr);
  EXPECT_EQ(a->getName(), "s");
  EXPECT_EQ(a->getChannel(), 2);
  EXPECT_EQ(a->getShimChannelType(), PhysicalSpec::Unset) << "the comparison is exact";
  EXPECT_FALSE(a->isColumnSet());
  const PortLocConstr* b = handler.getPortLocConstr("top/b");
  EXPECT_EQ(b->getTileType(), PhysicalSpec::Shim);
  EXPECT_FALSE(b->isChannelSet());
  EXPECT_EQ(written(*b), R"({"port_loc":{"tile_type":"shim","row":0,"column":4}})");
  EXPECT_EQ(written(*handler.getPortLocConstr("top/c")),
            R"({"port_loc":{"tile_type":"core","column":4,"channel_type":"control"}})");
  EXPECT_EQ(handler.size(), 3u) << "a row alone and a negative column make nothing";
}

TEST_F(PortKindsReaderTest, StreamChannelsAbsoluteElseRelativeWithADirection)
{
  read(R"({"PortConstraints": {
    "a": {"stream_channel": {"column": 1, "row": 2, "offset": 3, "direction": "NORTH",
                             "channel": 4}},
    "b": {"stream_channel": {"column": -1, "row": 2, "offset": 2, "direction": "west"}},
    "c": {"stream_channel": {"offset": 2, "channel": 1}},
    "d": {"stream_channel": {"column": 1, "direction": "East"}}}})");
  EXPECT_EQ(handler.getStreamChannelConstr("top/a")->str(),
            " stream_chan(top/a)=Absolute:(1,2,4,North)");
  EXPECT_EQ(handler.getStreamChannelConstr("top/b")->str(),
            " stream_chan(top/b)=Relative:(2,-1,West)");
  EXPECT_EQ(handler.size(), 2u);
  expectSent({{"@75-857@", Mask::Warning, {}}, {"@75-857@", Mask::Warning, {}}});
}

TEST_F(PortKindsReaderTest, FifoLocationNamesAndRecordNamesAreNotResolved)
{
  read(R"({"PortConstraints": {
    "p": {"fifo_locations": ["r", "", 3, "later"]},
    "fifo_locations_records": {
      "stream_fifos": {"r": {"column": 1, "row": 2, "channel": "x", "tile_type": "mem"}},
      "other": {"x": {}}}}})");
  EXPECT_EQ(handler.getFifoLocationsConstr("top/p")->getFifoLocationsRecordNames(),
            (Names{"r", "later"}));
  EXPECT_EQ(written(handler.getFifoLocationsRecords()),
            R"({"fifo_locations_records":{"dma_fifos":{},)"
            R"("stream_fifos":{"r":{"tile_type":"mem","row":2,"column":1}}}})");
}

}  // namespace
