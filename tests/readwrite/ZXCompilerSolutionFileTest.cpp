#include "ShimHandOffSupport.h"

#include "ZXCompilerSolutionReaderJSON.h"
#include "ZXCompilerSolutionWriterJSON.h"

namespace {

using namespace shim_support;
using namespace testing_support;
using Reader = ZXCompilerSolutionReaderJSON;

// The written form of a two-channel port and a one-channel port, by hand:
// keys in writing order, channels as the device numbers them, two blanks of
// indent, no newline at the end.
const std::string twoPorts = R"({
  "Placement": [
    {
      "LogicalInstance": {
        "InstanceName": "top/array",
        "PortName": "in"
      },
      "PhysicalInstance": [
        {
          "name": "QPE_SHIM_X1Y0_S_AXIS0",
          "column": 1,
          "channel": 0
        },
        {
          "name": "QPE_SHIM_X1Y0_S_AXIS1",
          "column": 1,
          "channel": 1
        }
      ],
      "IsSoft": false
    },
    {
      "LogicalInstance": {
        "InstanceName": "top/array",
        "PortName": "out"
      },
      "PhysicalInstance": [
        {
          "name": "QPE_ML_SHIM_X4Y0_M_AXIS0",
          "column": 4,
          "channel": 4
        }
      ],
      "IsSoft": false
    }
  ]
})";

class ZXCompilerSolutionFileTest : public ShimDesign {
protected:
  ZXCompilerSolutionFileTest()
  {
    array = model.addZXIPInstance("top/array");
    addPort(array, "in", {"top/array/in<0>_INST", "top/array/in<1>_INST"});
    addPort(array, "out", {"top/array/out"});
    addPort(array, "idle", {"top/array/idle"});
    model.addShimPort("bare", array);
  }

  void placeTwoPorts()
  {
    place("top/array/in<0>_INST", "QPE_SHIM_X1Y0/S_AXIS0");
    place("top/array/in<1>_INST", "QPE_SHIM_X1Y0/S_AXIS1");
    place("top/array/out", "QPE_ML_SHIM_X4Y0/M_AXIS0");
  }

  std::string write(const std::string& prefix = "")
  {
    std::ostringstream out;
    EXPECT_TRUE(ZXCompilerSolutionWriterJSON().writeToJsonFile(prefix, out, model, spec, solution,
                                                               demo(), status));
    return out.str();
  }

  void read(const std::string& text, QPEShimInterfaceSolution& into, const std::string& prefix = "")
  {
    std::istringstream in(text);
    EXPECT_TRUE(Reader().readFromJsonFile(in, "in.json", demo(), model, spec, prefix, into,
                                          status));
  }

  ZXLogicalZXIPInstance* array = nullptr;
};

TEST_F(ZXCompilerSolutionFileTest, WritesEachPlacedPortAndReadsItBackByteStable)
{
  placeTwoPorts();
  EXPECT_EQ(write(), twoPorts);

  QPEShimInterfaceSolution back(demo());
  read(twoPorts, back);
  EXPECT_EQ(placements(back), placements(solution));
  EXPECT_EQ(back.reversePlaced.size(), 3u);
  std::vector<QPEShimInterfaceSolution::Instance> locked;
  back.getAllLockedInstances(locked);
  EXPECT_TRUE(locked.empty());
  EXPECT_EQ(status.getProgress(), 100.0);

  solution.clear();
  read(twoPorts, solution);
  EXPECT_EQ(write(), twoPorts);
  expectSent({});
}

TEST_F(ZXCompilerSolutionFileTest, NothingPlacedWritesNothing)
{
  place("top/array/idle", "QPE_SHIM_X0Y0/S_AXIS0");
  solution.placed.begin()->second.first = HDDMBel();  // a placement without a valid bel
  EXPECT_EQ(write(), "");
  const TempDir dir;
  EXPECT_TRUE(ZXCompilerSolutionWriterJSON().writeToJsonFile(dir.file("s.json"), model, spec,
                                                             solution, demo(), status));
  EXPECT_EQ(readFile(dir.file("s.json")), "");
  EXPECT_FALSE(ZXCompilerSolutionWriterJSON().writeToJsonFile(dir.file("no/dir/s.json"), model,
                                                              spec, solution, demo(), status));
  expectSent({});
}

TEST_F(ZXCompilerSolutionFileTest, ThePrefixIsTakenOffWithALeadingSlash)
{
  ZXLogicalZXIPInstance* other = model.addZXIPInstance("top/a");
  addPort(other, "p", {"top/a/p"});
  place("top/a/p", "QPE_SHIM_X0Y0/M_AXIS0");
  place("top/array/out", "QPE_SHIM_X2Y0/M_AXIS1");
  const std::string relativeToTop = R"({
  "Placement": [
    {
      "LogicalInstance": {
        "InstanceName": "array",
        "PortName": "out"
      },
      "PhysicalInstance": [
        {
          "name": "QPE_SHIM_X2Y0_M_AXIS1",
          "column": 2,
          "channel": 5
        }
      ],
      "IsSoft": false
    },
    {
      "LogicalInstance": {
        "InstanceName": "a",
        "PortName": "p"
      },
      "PhysicalInstance": [
        {
          "name": "QPE_SHIM_X0Y0_M_AXIS0",
          "column": 0,
          "channel": 4
        }
      ],
      "IsSoft": false
    }
  ]
})";
  EXPECT_EQ(write("top"), relativeToTop);
  EXPECT_EQ(write("top/"), relativeToTop);
  // A prefix is a beginning of text, not a level of the hierarchy.
  const std::string underTopA = write("top/a");
  EXPECT_NE(underTopA.find(R"("InstanceName": "rray")"), std::string::npos) << underTopA;
  EXPECT_NE(underTopA.find(R"("InstanceName": "")"), std::string::npos) << underTopA;
  EXPECT_EQ(write("elsewhere"), "");
}

TEST_F(ZXCompilerSolutionFileTest, TwoPortsOfOneLogicalInstanceBothWriteAndTheFirstReadWins)
{
  addPort(array, "twin", {"top/array/out"});
  place("top/array/out", "QPE_SHIM_X3Y0/M_AXIS2");
  const std::string text = write();
  EXPECT_NE(text.find(R"("PortName": "out")"), std::string::npos);
  EXPECT_NE(text.find(R"("PortName": "twin")"), std::string::npos);

  QPEShimInterfaceSolution back(demo());
  read(R"({"Placement": [
    {"LogicalInstance": {"InstanceName": "top/array", "PortName": "out"},
     "PhysicalInstance": [{"name": "QPE_SHIM_X0Y0_S_AXIS0"}]},
    {"LogicalInstance": {"InstanceName": "top/array", "PortName": "twin"},
     "PhysicalInstance": [{"name": "QPE_SHIM_X0Y0_S_AXIS1"}]}]})",
       back);
  EXPECT_EQ(placements(back),
            (std::map<std::string, std::string>{{"top/array/out", "QPE_SHIM_X0Y0/S_AXIS0"}}));
  EXPECT_EQ(back.reversePlaced.size(), 1u);
}

// Which logical instance a channel of a port takes, by the port's names.
TEST(ZXCompilerSolutionReaderTest, ChannelsFindTheirInstanceByParityAndMarker)
{
  struct Case {
    std::vector<std::string> names;
    unsigned channel;
    std::string expected;
  };
  const Case cases[] = {
      {{"solo"}, 0, "solo"},
      {{"solo"}, 5, "solo"},  // one name: the parity plays no part
      {{"p<0>_INST", "p<1>_INST"}, 4, "p<0>_INST"},
      {{"p<0>_INST", "p<1>_INST"}, 5, "p<1>_INST"},
      {{"p<1>_INST", "p<0>_INST"}, 2, "p<0>_INST"},
      {{"p_a", "p_b"}, 0, ""},
      {{"p<0>_INST", "q<0>_INST"}, 1, ""},
      {{"a<0>_INST", "b<0>_INST"}, 0, "a<0>_INST"},
      {{}, 0, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.expected + " channel " + std::to_string(c.channel));
    EXPECT_EQ(Reader::findInstanceNameForChannel(c.names, c.channel), c.expected);
  }
}

TEST_F(ZXCompilerSolutionFileTest, TheOnlyComputeArrayInstanceTakesAnyName)
{
  EXPECT_EQ(Reader::findZXIPInstance(model, "", "unrelated"), array);
  EXPECT_EQ(Reader::findZXIPInstance(model, "elsewhere/", "array"), array);

  ZXLogicalZXIPInstance* second = model.addZXIPInstance("top/array2");
  EXPECT_EQ(Reader::findZXIPInstance(model, "", "unrelated"), nullptr);
  EXPECT_EQ(Reader::findZXIPInstance(model, "", "array"), array);  // the first that contains it
  EXPECT_EQ(Reader::findZXIPInstance(model, "", "array2"), second);
  EXPECT_EQ(Reader::findZXIPInstance(model, "top/array2", "array"), second);
  EXPECT_EQ(Reader::findZXIPInstance(model, "", ""), array);

  QPEShimInterfaceSolution back(demo());
  read(R"({"Placement": [
    {"LogicalInstance": {"InstanceName": "unrelated", "PortName": "out"},
     "PhysicalInstance": [{"name": "QPE_SHIM_X0Y0_S_AXIS0"}]}]})",
       back);
  EXPECT_TRUE(back.placed.empty());
}

TEST_F(ZXCompilerSolutionFileTest, WhatCannotBeTiedToTheModelsIsDroppedWithoutAWord)
{
  QPEShimInterfaceSolution back(demo());
  read(R"({"Placement": [
    {"PhysicalInstance": [{"name": "QPE_SHIM_X0Y0_S_AXIS0"}]},
    {"LogicalInstance": {"InstanceName": "top/array", "PortName": "nosuch"},
     "PhysicalInstance": [{"name": "QPE_SHIM_X0Y0_S_AXIS0"}]},
    {"LogicalInstance": {"InstanceName": "top/array", "PortName": "bare"},
     "PhysicalInstance": [{"name": "QPE_SHIM_X0Y0_S_AXIS0"}]},
    {"LogicalInstance": {"InstanceName": "top/array", "PortName": "out"}, "IsSoft": true},
    {"LogicalInstance": {"InstanceName": "top/array", "PortName": "in"},
     "PhysicalInstance": [{"name": "QPE_SHIM_X9Y0_S_AXIS0"}, {"column": 0, "channel": 1},
                          {"name": "QPE_SHIM_X2Y0_S_AXIS3", "column": 7, "channel": 7}]},
    {"LogicalInstance": {"InstanceName": "top/array", "PortName": "idle"},
     "PhysicalInstance": [{"name": "QPE_SHIM_X3Y0_S_AXIS0"}]}]})",
       back);
  // The channel comes from the device, not from the file: S_AXIS3 is odd.
  EXPECT_EQ(placements(back), (std::map<std::string, std::string>{
                                  {"top/array/in<1>_INST", "QPE_SHIM_X2Y0/S_AXIS3"},
                                  {"top/array/idle", "QPE_SHIM_X3Y0/S_AXIS0"}}));
  expectSent({});
}

TEST_F(ZXCompilerSolutionFileTest, ALooserSchemaLetsValuesOfOtherTypesPassWithoutHarm)
{
  const ScopedSchema schema("parts/tarnel/common/merrow/ZXSolutionSchema.json", "{}");
  QPEShimInterfaceSolution back(demo());
  read("[]", back);
  read(R"({"Placement": [1, {"LogicalInstance": 2, "PhysicalInstance": 3},
    {"LogicalInstance": {"InstanceName": "top/array", "PortName": "out"}, "PhysicalInstance": 5},
    {"LogicalInstance": {"InstanceName": 1, "PortName": "out"},
     "PhysicalInstance": [7, {"name": "QPE_SHIM_X0Y0_S_AXIS0"}]}]})",
       back);
  EXPECT_EQ(placements(back),
            (std::map<std::string, std::string>{{"top/array/out", "QPE_SHIM_X0Y0/S_AXIS0"}}));
}

TEST_F(ZXCompilerSolutionFileTest, ReadingAddsToThePlacementsThereAre)
{
  place("top/array/out", "QPE_SHIM_X0Y0/M_AXIS3");
  solution.lockAll();
  read(twoPorts, solution);
  EXPECT_EQ(placements(solution), (std::map<std::string, std::string>{
                                      {"top/array/in<0>_INST", "QPE_SHIM_X1Y0/S_AXIS0"},
                                      {"top/array/in<1>_INST", "QPE_SHIM_X1Y0/S_AXIS1"},
                                      {"top/array/out", "QPE_SHIM_X0Y0/M_AXIS3"}}));
  EXPECT_TRUE(solution.placed.at(logical("top/array/out")).second);
  EXPECT_EQ(solution.reversePlaced.count(bel("QPE_ML_SHIM_X4Y0/M_AXIS0")), 0u);
}

TEST_F(ZXCompilerSolutionFileTest, BadFilesAreRefusedWithTheKeyThatBrokeTheSchema)
{
  const std::pair<const char*, std::string> cases[] = {
      {"{", "Missing a name for object member. (offset 1)"},
      {R"({"Placement": {}})", "/Placement"},
      {R"({"Placement": [{"LogicalInstance": "top/array"}]})", "/Placement/0/LogicalInstance"},
      {R"({"Placement": [{"PhysicalInstance": [{"column": "1"}]}]})",
       "/Placement/0/PhysicalInstance/0/column"},
      {R"({"Placement": [{"IsSoft": 0}]})", "/Placement/0/IsSoft"},
  };
  for (const auto& [text, detail] : cases) {
    SCOPED_TRACE(text);
    QPEShimInterfaceSolution back(demo());
    expectThrows([&] { read(text, back); }, "@90-2@%s%s", {"in.json", detail});
  }
  const TempDir dir;
  expectThrows(
      [&] {
        Reader().readFromJsonFile(dir.file("missing.json"), demo(), model, spec, solution, status);
      },
      "@90-1@%s", {dir.file("missing.json")});
}

TEST_F(ZXCompilerSolutionFileTest, ADocumentThatFailsItsSchemaNamesWhereAndStops)
{
  const ScopedSchema schema("parts/tarnel/common/merrow/ZXSolutionSchema.json",
                            R"({"properties": {"Placement": {"items": {"properties": {
                  "PhysicalInstance": {"maxItems": 1}}}}}})");
  placeTwoPorts();
  std::ostringstream out;
  EXPECT_FALSE(ZXCompilerSolutionWriterJSON().writeToJsonFile(out, model, spec, solution, demo(),
                                                              status));
  expectSent({{"@75-645@%s%s%s", ComMsgMgr::Error,
               {"/properties/Placement/items/properties/PhysicalInstance", "maxItems",
                "/Placement/0/PhysicalInstance"}}});
  EXPECT_EQ(out.str().rfind(R"({
  "Placement": [
    {
      "LogicalInstance": {
        "InstanceName": "top/array",
        "PortName": "in"
      },
      "PhysicalInstance": [
        {
          "name": "QPE_SHIM_X1Y0_S_AXIS0",)", 0), 0u) << out.str();
}

}  // namespace
