#include "ShimHandOffSupport.h"

#include "ZXCompilerShimConstraintsWriterJSON.h"

#include <algorithm>

namespace {

using namespace shim_support;
using namespace testing_support;
using Writer = ZXCompilerShimConstraintsWriterJSON;

// The ports of the array, by hand: a two-channel stream port with two
// annotations, a memory port known by its name, and a port of two unmarked
// names that the file cannot place. Each is added by its own step so that
// tests can add them in any order.
class ZXCompilerShimConstraintsTest : public ShimDesign {
protected:
  ZXCompilerShimConstraintsTest() { array = model.addZXIPInstance("top/array"); }

  void addIn()
  {
    ZXLogicalPort* in = addPort(array, "in", {"top/array/in<0>_INST", "top/array/in<1>_INST"});
    in->annotation = {"samples_in", "samples_alias"};
    setStream(*in, 64, 312.5, true);
    in->dataWidth = 32;  // the bus width is what counts
    place("top/array/in<0>_INST", "QPE_SHIM_X1Y0/S_AXIS0");
    place("top/array/in<1>_INST", "QPE_SHIM_X1Y0/S_AXIS1");
  }

  void addBuf()
  {
    ZXLogicalPort* buf = addPort(array, "buf", {"top/array/buf"});
    buf->portType = ZXLogicalPort::MEM;
    buf->registeredInterface = true;
    buf->busWidth = 128;
    buf->clkFreq = 500.0;
    place("top/array/buf", "QPE_SHIM_X0Y0/M_AXIS3");
  }

  void addPair()
  {
    ZXLogicalPort* pair = addPort(array, "pair", {"top/array/pair_a", "top/array/pair_b"});
    pair->annotation = {"pair"};
    setStream(*pair, 32, 100.0, false);
    place("top/array/pair_a", "QPE_SHIM_X2Y0/S_AXIS0");
  }

  static void setStream(ZXLogicalPort& port, std::uint32_t busWidth, double clkFreq,
                        bool registered)
  {
    port.portType = ZXLogicalPort::STREAM;
    port.busWidth = busWidth;
    port.clkFreq = clkFreq;
    port.registeredInterface = registered;
  }

  std::string write(const std::string& instName = "top/array")
  {
    std::ostringstream out;
    EXPECT_TRUE(Writer().writeToJsonFile(out, model, spec, solution, demo(), instName, status));
    return out.str();
  }

  Writer::PortData portData(int rangeStart = -1, int rangeSize = -1)
  {
    Writer::PortData data;
    EXPECT_TRUE(Writer::getQPEPLIntefacePortData(model, spec, solution, demo(), "top/array",
                                                 rangeStart, rangeSize, status, data));
    return data;
  }

  std::string interfaceId()
  {
    std::string id = "unset";
    EXPECT_TRUE(Writer::computeQPEPLIntefaceID(model, spec, solution, demo(), "top/array", id,
                                               status));
    return id;
  }

  std::vector<std::string> interfaceIds(int rangeStart, int rangeSize, bool omitPortKey)
  {
    std::vector<std::string> ids;
    EXPECT_TRUE(Writer::computeQPEPLIntefaceIDs(model, spec, solution, demo(), "top/array",
                                                rangeStart, rangeSize, omitPortKey, status, ids));
    return ids;
  }

  ZXLogicalZXIPInstance* array = nullptr;
};

TEST_F(ZXCompilerShimConstraintsTest, EachNameOfAPortGetsTheBelOfItsEvenChannel)
{
  addIn();
  ZXLogicalPort* out = addPort(array, "out", {"top/array/out"});
  out->hw_annotation = "M_AXIS_OUT";
  place("top/array/out", "QPE_ML_SHIM_X4Y0/M_AXIS0");
  addBuf();
  addPair();
  addPort(array, "unplaced", {"top/array/unplaced"});
  model.addShimPort("bare", array);
  const std::string expected = R"({
  "Placement": [
    {
      "LogicalInstance": "samples_in",
      "PhysicalInstance": [
        "QPE_SHIM_X1Y0_S_AXIS0"
      ],
      "IsSoft": false
    },
    {
      "LogicalInstance": "samples_alias",
      "PhysicalInstance": [
        "QPE_SHIM_X1Y0_S_AXIS0"
      ],
      "IsSoft": false
    },
    {
      "LogicalInstance": "M_AXIS_OUT",
      "PhysicalInstance": [
        "QPE_ML_SHIM_X4Y0_M_AXIS0"
      ],
      "IsSoft": false
    },
    {
      "LogicalInstance": "buf",
      "PhysicalInstance": [
        "QPE_SHIM_X0Y0_M_AXIS3"
      ],
      "IsSoft": false
    }
  ]
})";
  EXPECT_EQ(write(), expected);
  const TempDir dir;
  EXPECT_TRUE(Writer().writeToJsonFile(dir.file("c.json"), model, spec, solution, demo(),
                                       "top/array", status));
  EXPECT_EQ(readFile(dir.file("c.json")), expected);
  EXPECT_FALSE(Writer().writeToJsonFile(dir.file("no/dir/c.json"), model, spec, solution, demo(),
                                        "top/array", status));
  expectSent({});

  // The port data takes every channel, and the unmarked pair too; the two
  // ports without annotations share the empty key, and the later one stays.
  EXPECT_EQ(portData(), (Writer::PortData{
                            {"", {"reg1", "QPE_SHIM_X0Y0_M_AXIS3"}},
                            {"pair", {"dw32", "cf100.000", "reg0", "QPE_SHIM_X2Y0_S_AXIS0"}},
                            {"samples_in",
                             {"dw64", "cf312.500", "reg1", "QPE_SHIM_X1Y0_S_AXIS0",
                              "QPE_SHIM_X1Y0_S_AXIS1"}},
                        }));
}

TEST_F(ZXCompilerShimConstraintsTest, OnlyTheNamedInstanceCountsAndNothingPlacedWritesNothing)
{
  addIn();
  EXPECT_EQ(write("top"), "");
  EXPECT_EQ(write("array"), "");
  EXPECT_NE(write("top/array"), "");
  Writer::PortData data{{"stale", {}}};
  EXPECT_TRUE(Writer::getQPEPLIntefacePortData(model, spec, solution, demo(), "array", -1, -1,
                                               status, data));
  EXPECT_TRUE(data.empty());

  solution.clear();
  EXPECT_EQ(write(), "");
  EXPECT_EQ(interfaceId(), "");
  expectSent({});
}

TEST_F(ZXCompilerShimConstraintsTest, WithoutAComputeArrayInstanceThePortDataIsLeftAlone)
{
  ZXLogicalArchModel empty;
  Writer::PortData data{{"kept", {"x"}}};
  EXPECT_FALSE(Writer::getQPEPLIntefacePortData(empty, spec, solution, demo(), "top/array", -1,
                                                -1, status, data));
  EXPECT_EQ(data, (Writer::PortData{{"kept", {"x"}}}));
  std::string id = "unset";
  EXPECT_TRUE(Writer::computeQPEPLIntefaceID(empty, spec, solution, demo(), "top/array", id,
                                             status));
  EXPECT_EQ(id, "");
  std::ostringstream out;
  EXPECT_TRUE(Writer().writeToJsonFile(out, empty, spec, solution, demo(), "top/array", status));
  EXPECT_EQ(out.str(), "");
}

// The entries of one port: widths with two digits, clocks six places wide.
TEST_F(ZXCompilerShimConstraintsTest, PortEntriesAreFormattedAsPrintfWould)
{
  struct Case {
    ZXLogicalPort::PortType type;
    std::uint32_t busWidth;
    double clkFreq;
    bool registered;
    std::vector<std::string> expected;
  };
  const Case cases[] = {
      {ZXLogicalPort::STREAM, 64, 312.5, true, {"dw64", "cf312.500", "reg1"}},
      {ZXLogicalPort::STREAM, 8, 5.0, false, {"dw08", "cf 5.000", "reg0"}},
      {ZXLogicalPort::EVENT, 0, 0.0, false, {"dw00", "cf 0.000", "reg0"}},
      {ZXLogicalPort::UNSET_PORT_TYPE, 1024, 1250.125, true, {"dw1024", "cf1250.125", "reg1"}},
      {ZXLogicalPort::MEM, 128, 400.0, true, {"reg1"}},
      {ZXLogicalPort::MEM, 128, 400.0, false, {"reg0"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.expected.front());
    model.clear();
    solution.clear();
    array = model.addZXIPInstance("top/array");
    ZXLogicalPort* port = addPort(array, "p", {"top/array/p"});
    port->annotation = {"p"};
    setStream(*port, c.busWidth, c.clkFreq, c.registered);
    port->portType = c.type;
    place("top/array/p", "QPE_SHIM_X3Y0/S_AXIS2");
    std::vector<std::string> expected = c.expected;
    expected.push_back("QPE_SHIM_X3Y0_S_AXIS2");
    EXPECT_EQ(portData(), (Writer::PortData{{"p", expected}}));
  }
}

TEST_F(ZXCompilerShimConstraintsTest, TheRangeKeepsTheElementIdsFromItsStartUpToItsEnd)
{
  addBuf();  // element id 7
  ZXLogicalPort* wide =
      addPort(array, "wide", {"top/array/w3", "top/array/w4", "top/array/w5", "top/array/w6"});
  wide->annotation = {"wide"};
  setStream(*wide, 128, 250.0, false);
  place("top/array/w3", "QPE_SHIM_X0Y0/S_AXIS3");  // element ids 3 to 6
  place("top/array/w4", "QPE_SHIM_X0Y0/M_AXIS0");
  place("top/array/w5", "QPE_SHIM_X0Y0/M_AXIS1");
  place("top/array/w6", "QPE_SHIM_X0Y0/M_AXIS2");
  EXPECT_EQ(portData(4, 2), (Writer::PortData{{"wide",
                                               {"dw128", "cf250.000", "reg0",
                                                "QPE_SHIM_X0Y0_M_AXIS0",
                                                "QPE_SHIM_X0Y0_M_AXIS1"}}}));
  EXPECT_EQ(interfaceIds(4, 2, false),
            (std::vector<std::string>{
                "wideQPE_SHIM_X0Y0_M_AXIS0QPE_SHIM_X0Y0_M_AXIS1cf250.000dw128reg0"}));
  EXPECT_EQ(portData(-1, 0).size(), 2u);  // a negative start takes every channel
  EXPECT_TRUE(portData(8, 100).empty());
}

TEST_F(ZXCompilerShimConstraintsTest, TheIdentifierIsCanonical)
{
  addIn();
  addBuf();
  addPair();
  const std::string id = interfaceId();
  EXPECT_EQ(id,
            "QPE_SHIM_X0Y0_M_AXIS3reg1"
            "pairQPE_SHIM_X2Y0_S_AXIS0cf100.000dw32reg0"
            "samples_inQPE_SHIM_X1Y0_S_AXIS0QPE_SHIM_X1Y0_S_AXIS1cf312.500dw64reg1");
  EXPECT_EQ(interfaceIds(-1, -1, false),
            (std::vector<std::string>{
                "QPE_SHIM_X0Y0_M_AXIS3reg1", "pairQPE_SHIM_X2Y0_S_AXIS0cf100.000dw32reg0",
                "samples_inQPE_SHIM_X1Y0_S_AXIS0QPE_SHIM_X1Y0_S_AXIS1cf312.500dw64reg1"}));
  const std::vector<std::string> anonymous = interfaceIds(-1, -1, true);
  EXPECT_EQ(anonymous, (std::vector<std::string>{
                           "QPE_SHIM_X0Y0_M_AXIS3reg1", "QPE_SHIM_X2Y0_S_AXIS0cf100.000dw32reg0",
                           "QPE_SHIM_X1Y0_S_AXIS0QPE_SHIM_X1Y0_S_AXIS1cf312.500dw64reg1"}));

  // The same ports added in the opposite order.
  model.clear();
  solution.clear();
  array = model.addZXIPInstance("top/array");
  addPair();
  addBuf();
  addIn();
  EXPECT_EQ(interfaceId(), id);

  // Other port names: the anonymous strings stay.
  for (const auto& port : array->getPorts())
    for (std::string& annotation : port->annotation)
      annotation = "renamed_" + annotation;
  std::vector<std::string> renamed = interfaceIds(-1, -1, true);
  EXPECT_NE(interfaceId(), id);
  std::vector<std::string> sortedAnonymous = anonymous;
  std::sort(sortedAnonymous.begin(), sortedAnonymous.end());
  std::sort(renamed.begin(), renamed.end());
  EXPECT_EQ(renamed, sortedAnonymous);
}

TEST_F(ZXCompilerShimConstraintsTest, ADocumentThatFailsItsSchemaNamesWhereAndStops)
{
  const ScopedSchema schema("parts/tarnel/common/noc/schemas/constraints.json",
                            R"({"properties": {"Placement": {"items": {"properties": {
                  "IsSoft": {"enum": [true]}}}}}})");
  addBuf();
  std::ostringstream out;
  EXPECT_FALSE(Writer().writeToJsonFile(out, model, spec, solution, demo(), "top/array", status));
  expectSent({{"@75-645@%s%s%s", ComMsgMgr::Error,
               {"/properties/Placement/items/properties/IsSoft", "enum",
                "/Placement/0/IsSoft"}}});
  EXPECT_EQ(out.str(), R"({
  "Placement": [
    {
      "LogicalInstance": "buf",
      "PhysicalInstance": [
        "QPE_SHIM_X0Y0_M_AXIS3"
      ],
      "IsSoft")");
}

}  // namespace
