#include "TestSupport.h"

#include "AllTrafficSpecFilterObj.h"
#include "HDGUIStatus.h"
#include "HIPLogicalObjectNameResolverInterfaceIdentity.h"
#include "HPAParamMgr.h"
#include "NOCJsonTrafficSpecReader.h"
#include "NOCJsonTrafficSpecWriter.h"
#include "TrafficSpec.h"

#include <rapidjson/pointer.h>

#include <functional>

namespace {

using namespace HrdIPToolCntr;
namespace Defs = DevHrdIP::Definitions;
using namespace testing_support;

const std::string everyKeyFile = IPCONFIG_RW_TESTS_DATA_DIR "/traffic_every_key_written.json";

// The model behind traffic_every_key_written.json: every key of an instance
// and of a path set once, a remap on a slave that the file has no place for,
// two phase groups that each path writes in full, and a default phase that
// is never written.
void fillEveryKey(TrafficSpec& spec)
{
  spec.setFrequency(1200, true);
  spec.addDfxPath("top/rp/");
  spec.setSecureMode(true);
  spec.deviceName = "dev";

  TrafficLInst& m1 = *spec.addLogicalInstance("top/m1", Defs::AXI_MM, Defs::PL_NMU,
                                              {{"top/x", "top/y"}, {"top/z"}});
  m1.designName = "m1_design";
  m1.useDestIdIdx = true;
  m1.setHasParityAddr(true);
  m1.setHasParityData(true);
  m1.firewall = true;
  m1.setReadTC(Defs::LL);
  m1.setWriteTC(Defs::ISOC);
  m1.setAxiWidth(256);
  m1.setNumReadOutstanding(32);
  m1.setNumWriteOutstanding(16);
  m1.addRemapAddrSpec(0x80000000, 0, 0x10000000);
  m1.configParams = {{"b", "2"}, {"a", "1"}};
  m1.isVirtual = true;
  m1.ipName = "ip_m1";
  m1.hasDestId = true;
  m1.destId = 4095;

  TrafficLInst& ddr = *spec.addLogicalInstance("top/ddr", Defs::AXI_MM, Defs::DDRC, {});
  spec.addPortTypeForMC(&ddr, Defs::PORT3);
  spec.addPortTypeForMC(&ddr, Defs::PORT0);
  ddr.setDdrInterleaveSize(4096);
  ddr.setDdrInterleaveSel(2);
  ddr.addSysAddress({0, 0x80000000});
  ddr.addSysAddress({0xA4000000, 0x10000});
  ddr.addRemapAddrSpec(1, 2, 3);
  ddr.addMemoryParam("Width", "64");
  ddr.addMemoryParam("Frequency", "3200");
  ddr.hasDestId = true;

  TrafficLInst& q = *spec.addLogicalInstance("top/q", Defs::AXI_STRM, Defs::QPE_NMU, {});
  TrafficLInst& pl = *spec.addLogicalInstance("top/pl", Defs::AXI_STRM, Defs::PL_NSU, {});

  TrafficPath& p0 = *spec.addPath(&m1, &ddr);
  p0.phase = 2;
  p0.setSlavePort(Defs::PORT3);
  p0.setReadPerfSpec({Defs::LL, 4000, 300});
  p0.setWritePerfSpec({Defs::ISOC, 2000, 310});
  p0.setReadAvgBurst(4);
  p0.setWriteAvgBurst(8);
  p0.setWoc(Defs::WO_RELAXED);
  p0.exclusiveGroup = "ex";
  p0.separateRoutingGroup = "sep";
  p0.hasDestIdIndex = true;
  p0.destIdIndex = 7;
  p0.initialBoot = true;
  p0.addDestIdIdx({0, 3});
  p0.addDestIdIdx({4, 7});
  p0.highPriorityRouting = true;
  p0.setReadPerfSpec("G", "A", {Defs::BE, 100, 300});
  p0.setWritePerfSpec("G", "A", {Defs::BE, 200, 310});
  p0.setReadAvgBurst(1, "A");
  p0.setWriteAvgBurst(2, "A");
  p0.setReadPerfSpec("G", DEFAULT_PHASE, {Defs::BE, 9, 9});
  p0.addSysAddress({0x1000, 0x100});
  p0.addRemapAddrSpec(1, 2, 3);

  TrafficPath& p1 = *spec.addPath(&m1, &ddr);
  p1.setSlavePort(Defs::PORT0);
  p1.setWritePerfSpec({Defs::BE, 500, 20});
  p1.setWriteAvgBurst(3);
  p1.setWoc(Defs::WO_STRICT);
  p1.setReadPerfSpec("H", "B", {Defs::BE, 5, 0});
  p1.setWritePerfSpec("H", "B", {Defs::BE, 6, 20});
  p1.setReadAvgBurst(1, "B");
  p1.setWriteAvgBurst(1, "B");

  spec.addPath(&q, &pl)->setSlavePort(Defs::PORT0);
}

// The block "blk": its names lie in scope and are written without "blk/".
// Scoped names are marked "sn:" and scoped property values "pv:", so that a
// written name tells which of the two it went through.
class BlockResolver : public HIPLogicalObjectNameResolverInterfaceIdentity {
public:
  std::string resolveLogicalInstanceScopedName(const std::string& name) const override
  {
    return "sn:" + local(name);
  }
  std::string resolveLogicalInstancePropertyValuedScoped(const std::string& value) const override
  {
    return "pv:" + local(value);
  }
  bool isPropertyValueWithinScope(const std::string& value) const override
  {
    return value.rfind("blk/", 0) == 0;
  }
  bool getScopeName(std::string& out) const override
  {
    out = "blk";
    return true;
  }

private:
  static std::string local(const std::string& name)
  {
    return name.rfind("blk/", 0) == 0 ? name.substr(4) : name;
  }
};

// Sets the host parameter for the scope.
class BlockModelParam {
public:
  explicit BlockModelParam(bool on) { set(on); }
  ~BlockModelParam() { set(false); }
  BlockModelParam(const BlockModelParam&) = delete;
  BlockModelParam& operator=(const BlockModelParam&) = delete;

private:
  static void set(bool on)
  {
    HPAParamMgr::getParamMgr().setValueAsBool("project.enableBlockModel", on);
  }
};

class NOCJsonTrafficSpecWriterTest : public MessageLogTest {
protected:
  std::string write(const TrafficSpec& model)
  {
    std::ostringstream out;
    EXPECT_TRUE(NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(out, model, status));
    return out.str();
  }
  std::string writeScoped(const TrafficSpec& model)
  {
    std::ostringstream out;
    BlockResolver resolver;
    EXPECT_TRUE(NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(
        out, model, NOC::AllTrafficSpecFilterObj(), resolver, status));
    return out.str();
  }
  void read(const std::string& text, TrafficSpec& model)
  {
    std::istringstream in(text);
    NOC::NOCJsonTrafficSpecReader().readFromJsonFile(in, "in.json", model, status);
  }
  // The compact text of the value at `pointer` in the written `text`, or
  // "absent".
  static std::string at(const std::string& text, const char* pointer)
  {
    const JDocument document = parseJson(text.c_str());
    const JValue* value = rapidjson::GetValueByPointer(document, rapidjson::Pointer(pointer));
    return value ? toText(*value) : "absent";
  }

  TrafficSpec spec;
  HDGUIStatus status;
};

TEST_F(NOCJsonTrafficSpecWriterTest, EveryKeyWritesTheExactBytesAndReadsBackToThem)
{
  fillEveryKey(spec);
  const std::string golden = readFile(everyKeyFile);
  EXPECT_EQ(write(spec), golden);
  TrafficSpec reread;
  read(golden, reread);
  EXPECT_EQ(write(reread), golden);
  expectSent({});
}

TEST_F(NOCJsonTrafficSpecWriterTest, NothingToWriteGivesFalseAndNoText)
{
  spec.setFrequency(800, false);
  spec.deviceName = "dev";
  spec.setSecureMode(true);
  std::ostringstream out;
  EXPECT_FALSE(NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(out, spec, status));
  EXPECT_EQ(out.str(), "");

  spec.setFrequency(800, true);
  EXPECT_EQ(write(spec), "{\n"
                         "  \"SystemProperties\": {\n"
                         "    \"Frequency\": 800,\n"
                         "    \"SECURE_SLR_PMC_TRAFFIC\": true,\n"
                         "    \"DeviceName\": \"dev\"\n"
                         "  },\n"
                         "  \"LogicalInstances\": [],\n"
                         "  \"Paths\": []\n"
                         "}");
  expectSent({});
}

// A DFX path alone is something to write; the user-set flag alone guards
// "Frequency", so a frequency of 0 that the user set is written.
TEST_F(NOCJsonTrafficSpecWriterTest, DfxPathsAloneAreWrittenWithAUserSetZeroFrequency)
{
  spec.addDfxPath("top/rp_a/");
  spec.addDfxPath("top/rp_b/");
  spec.setFrequency(0, true);
  EXPECT_EQ(write(spec), "{\n"
                         "  \"SystemProperties\": {\n"
                         "    \"Frequency\": 0,\n"
                         "    \"DfxPaths\": [\n"
                         "      \"top/rp_a/\",\n"
                         "      \"top/rp_b/\"\n"
                         "    ]\n"
                         "  },\n"
                         "  \"LogicalInstances\": [],\n"
                         "  \"Paths\": []\n"
                         "}");
}

TEST_F(NOCJsonTrafficSpecWriterTest, AnInstanceAloneHasNoSystemPropertiesAndHexAddresses)
{
  TrafficLInst& slave = *spec.addLogicalInstance("s", Defs::AXI_MM, Defs::PL_NSU, {});
  slave.addSysAddress({0, 0xabcdef0123ul});
  slave.addSysAddress({0xFFFFFFFFFFFFFFFFul, 1});
  EXPECT_EQ(write(spec), "{\n"
                         "  \"LogicalInstances\": [\n"
                         "    {\n"
                         "      \"Name\": \"s\",\n"
                         "      \"IsMaster\": false,\n"
                         "      \"CompType\": \"PL_NSU\",\n"
                         "      \"Protocol\": \"AXI_MM\",\n"
                         "      \"SysAddresses\": [\n"
                         "        {\n"
                         "          \"Base\": \"0x0\",\n"
                         "          \"Size\": \"0xABCDEF0123\"\n"
                         "        },\n"
                         "        {\n"
                         "          \"Base\": \"0xFFFFFFFFFFFFFFFF\",\n"
                         "          \"Size\": \"0x1\"\n"
                         "        }\n"
                         "      ]\n"
                         "    }\n"
                         "  ],\n"
                         "  \"Paths\": []\n"
                         "}");
}

// The names of a list within a text, the blank before every name but the
// first, also right behind a comma; the reader gives the same lists back.
TEST_F(NOCJsonTrafficSpecWriterTest, ExternalConnJoinsListsAndReadsBackToThem)
{
  const struct {
    TrafficSpec::ExternalConns lists;
    std::string text;
  } cases[] = {
      {{{"a", "b"}, {"c"}}, R"("a b, c")"},
      {{{}, {"a"}}, R"(", a")"},
      {{{"a"}, {}, {"b"}}, R"("a,, b")"},
      {{{"a"}, {}}, R"("a,")"},
      {{{}}, "absent"},
      {{}, "absent"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    TrafficSpec model;
    model.addLogicalInstance("m", Defs::AXI_MM, Defs::PL_NMU, c.lists);
    const std::string text = write(model);
    EXPECT_EQ(at(text, "/LogicalInstances/0/ExternalConn"), c.text);
    if (c.text == "absent")
      continue;
    TrafficSpec reread;
    read(text, reread);
    EXPECT_EQ(reread.getLogicalMaster("m")->externalConns, c.lists);
  }
}

TEST_F(NOCJsonTrafficSpecWriterTest, CommTypeFollowsTheMastersProtocolAndTheZeroFigures)
{
  const struct {
    Defs::AxiProt protocol;
    TrafficPath::PerfSpec read, write;
    const char* commType;
  } cases[] = {
      {Defs::AXI_MM, {Defs::BE, 1, 0}, {Defs::BE, 0, 1}, R"("MM_ReadWrite")"},
      {Defs::AXI_MM, {Defs::BE, 0, 0}, {Defs::BE, 5, 5}, R"("MM_WriteOnly")"},
      {Defs::AXI_MM, {Defs::BE, 5, 5}, {Defs::BE, 0, 0}, R"("MM_ReadOnly")"},
      {Defs::AXI_MM, {Defs::BE, 0, 0}, {Defs::BE, 0, 0}, R"("MM_ReadOnly")"},
      {Defs::AXI_STRM, {Defs::BE, 5, 5}, {Defs::BE, 0, 0}, R"("STRM")"},
      {Defs::AXI_STRM, {Defs::BE, 5, 5}, {Defs::BE, 5, 5}, R"("STRM")"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.commType);
    TrafficSpec model;
    TrafficLInst* master = model.addLogicalInstance("m", c.protocol, Defs::PL_NMU, {});
    TrafficLInst* slave = model.addLogicalInstance("s", Defs::AXI_MM, Defs::PL_NSU, {});
    TrafficPath& path = *model.addPath(master, slave);
    path.setReadPerfSpec(c.read);
    path.setWritePerfSpec(c.write);
    EXPECT_EQ(at(write(model), "/Paths/0/CommType"), c.commType);
  }
}

// The default order 3 is left out; a path without a slave port writes
// "PORTERR", which the reader reports and passes over.
TEST_F(NOCJsonTrafficSpecWriterTest, WriteOrderTextsAndAPathWithoutPort)
{
  TrafficLInst* master = spec.addLogicalInstance("m", Defs::AXI_MM, Defs::PL_NMU, {});
  TrafficLInst* slave = spec.addLogicalInstance("s", Defs::AXI_MM, Defs::PL_NSU, {});
  const char* const texts[] = {R"("strict")", R"("relaxed")", R"("doorbell")", "absent"};
  for (int order = Defs::WO_STRICT; order <= Defs::WO_INVALID; ++order)
    spec.addPath(master, slave)->setWoc(static_cast<Defs::Write_Order>(order));
  const std::string text = write(spec);
  for (int order = Defs::WO_STRICT; order <= Defs::WO_INVALID; ++order) {
    const std::string path = "/Paths/" + std::to_string(order);
    EXPECT_EQ(at(text, (path + "/WriteOrder").c_str()), texts[order]);
    EXPECT_EQ(at(text, (path + "/Port").c_str()), R"("PORTERR")");
  }
  TrafficSpec reread;
  read(text, reread);
  expectSent(std::vector<ExpectedMsg>(4, {"@73-448@%s", ComMsgMgr::CriticalWarning, {"PORTERR"}}));
  EXPECT_EQ(write(reread), text);
}

// Written as doubles and read with the integer getter: the limiters do not
// come back, and the second write leaves them out.
TEST_F(NOCJsonTrafficSpecWriterTest, RateLimitersAreWrittenAsDoublesAndReadBackAsZero)
{
  TrafficLInst& master = *spec.addLogicalInstance("m", Defs::AXI_MM, Defs::PL_NMU, {});
  master.setReadRateLimiter(2.5f);
  master.setWriteRateLimiter(-1.0f);
  const std::string text = write(spec);
  EXPECT_NE(text.find("\"ReadRateLimiter\": 2.5,\n      \"WriteRateLimiter\": -1.0,\n"),
            std::string::npos)
      << text;
  TrafficSpec reread;
  read(text, reread);
  EXPECT_EQ(reread.getLogicalMaster("m")->readRateLimiter, 0.0f);
  EXPECT_EQ(reread.getLogicalMaster("m")->writeRateLimiter, 0.0f);
  EXPECT_EQ(at(write(reread), "/LogicalInstances/0/ReadRateLimiter"), "absent");
}

// Inside the block an instance keeps its scoped name; outside it takes the
// first connection inside, even behind an empty list, or "" when it has none,
// and is virtual. Path ends go through the scoped property values. A scope
// keeps the DFX paths out.
TEST_F(NOCJsonTrafficSpecWriterTest, AScopedResolverWritesTheBlocksNames)
{
  spec.setFrequency(500, true);
  spec.addDfxPath("blk/rp/");
  TrafficLInst* inside = spec.addLogicalInstance("blk/m", Defs::AXI_MM, Defs::PL_NMU, {});
  TrafficLInst* outside = spec.addLogicalInstance("top/m", Defs::AXI_MM, Defs::PL_NMU,
                                                  {{"top/a"}, {"blk/c1"}, {"blk/c2", "top/b"}});
  TrafficLInst* lost = spec.addLogicalInstance("top/s", Defs::AXI_MM, Defs::PL_NSU, {{"top/a"}});
  TrafficLInst* errorSlave = spec.addLogicalInstance("blk/" + TrafficSpec::getErrorSlaveName(),
                                                     Defs::AXI_MM, Defs::PS_NSU, {});
  spec.addPath(inside, lost);
  spec.addPath(outside, errorSlave);

  const std::string text = writeScoped(spec);
  EXPECT_EQ(at(text, "/SystemProperties"), R"({"Frequency":500})");
  EXPECT_EQ(at(text, "/LogicalInstances/0"),
            R"({"Name":"sn:m","IsMaster":true,"CompType":"PL_NMU","Protocol":"AXI_MM",)"
            R"("ReadTC":"BE","WriteTC":"BE","SysAddresses":[]})");
  EXPECT_EQ(at(text, "/LogicalInstances/1"),
            R"({"Name":"pv:c1","IsMaster":true,"CompType":"PL_NMU","Protocol":"AXI_MM",)"
            R"("ReadTC":"BE","WriteTC":"BE","SysAddresses":[],"IsVirtual":true,)"
            R"("ExternalConn":", pv:c1, pv:c2"})");
  EXPECT_EQ(at(text, "/LogicalInstances/2/Name"), R"("")");
  EXPECT_EQ(at(text, "/LogicalInstances/2/IsVirtual"), "true");
  EXPECT_EQ(at(text, "/LogicalInstances/3/Name"), R"("pv:noc_error_slave")");
  EXPECT_EQ(at(text, "/Paths/0/From") + at(text, "/Paths/0/To"), R"("pv:m""pv:top/s")");
  EXPECT_EQ(at(text, "/Paths/1/From") + at(text, "/Paths/1/To"),
            R"("pv:c1""pv:noc_error_slave")");
}

// With the block model on, a DDRC end looks only at the list of its port and
// a path whose list has no name in scope is left out; a port past the lists,
// any other type, or the parameter off looks at every list.
TEST_F(NOCJsonTrafficSpecWriterTest, BlockModelTakesAMemoryControllersListByPort)
{
  TrafficLInst* master = spec.addLogicalInstance("blk/m", Defs::AXI_MM, Defs::PL_NMU, {});
  const TrafficSpec::ExternalConns lists{{"blk/p0"}, {"top/x"}, {"top/y", "blk/p2"}};
  TrafficLInst* ddr = spec.addLogicalInstance("top/ddr", Defs::AXI_MM, Defs::DDRC, lists);
  TrafficLInst* ddr5 = spec.addLogicalInstance("top/ddr5", Defs::AXI_MM, Defs::DDR5, lists);
  for (const Defs::PORT_TYPE port : {Defs::PORT2, Defs::PORT1, Defs::PORT0, Defs::PORT3})
    spec.addPath(master, ddr)->setSlavePort(port);
  spec.addPath(master, ddr5)->setSlavePort(Defs::PORT2);

  const auto ends = [&](const std::string& text) {
    std::string all;
    for (int i = 0; at(text, ("/Paths/" + std::to_string(i)).c_str()) != "absent"; ++i)
      all += at(text, ("/Paths/" + std::to_string(i) + "/Port").c_str()) + ">" +
             at(text, ("/Paths/" + std::to_string(i) + "/To").c_str()) + " ";
    return all;
  };
  {
    const BlockModelParam on(true);
    EXPECT_EQ(ends(writeScoped(spec)),
              R"("PORT2">"pv:p2" "PORT0">"pv:p0" "PORT3">"pv:p0" "PORT2">"pv:p0" )");
  }
  EXPECT_EQ(ends(writeScoped(spec)),
            R"("PORT2">"pv:p0" "PORT1">"pv:p0" "PORT0">"pv:p0" "PORT3">"pv:p0" )"
            R"("PORT2">"pv:p0" )");
}

TEST_F(NOCJsonTrafficSpecWriterTest, GetScopedNameAsksForTheScopedNameFirst)
{
  class CountingResolver : public BlockResolver {
  public:
    std::string resolveLogicalInstanceScopedName(const std::string& name) const override
    {
      asked.push_back(name);
      return BlockResolver::resolveLogicalInstanceScopedName(name);
    }
    mutable std::vector<std::string> asked;
  } resolver;
  const TrafficLInst* outside =
      spec.addLogicalInstance("top/m", Defs::AXI_MM, Defs::PL_NMU, {{"top/a"}});
  EXPECT_EQ(NOC::NOCJsonTrafficSpecWriter::getScopedName(resolver, outside, 0), "pv:top/m");
  EXPECT_EQ(resolver.asked, std::vector<std::string>{"top/m"});
}

// A rejected instance is not written, nor is any path that ends at it.
TEST_F(NOCJsonTrafficSpecWriterTest, FilterDropsInstancesWithTheirPaths)
{
  fillEveryKey(spec);
  HIPLogicalObjectNameResolverInterfaceIdentity identity;
  std::ostringstream out;
  EXPECT_TRUE(NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(
      out, spec,
      [](const TrafficLInst* instance) {
        return instance->name != "top/q" && instance->name != "top/ddr";
      },
      identity, status));
  EXPECT_EQ(at(out.str(), "/LogicalInstances/0/Name"), R"("top/m1")");
  EXPECT_EQ(at(out.str(), "/LogicalInstances/1/Name"), R"("top/pl")");
  EXPECT_EQ(at(out.str(), "/LogicalInstances/2"), "absent");
  EXPECT_EQ(at(out.str(), "/Paths"), "[]");

  std::ostringstream unfiltered;
  EXPECT_THROW(NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(
                   unfiltered, spec, NOC::NOCJsonTrafficSpecWriter::Filter(), identity, status),
               std::bad_function_call);
}

TEST_F(NOCJsonTrafficSpecWriterTest, DocumentFailingTheSchemaStopsTheTextAndGivesFalse)
{
  const ScopedSchema schema("parts/tarnel/common/noc/schemas/traffic.json",
                            R"({"properties": {"SystemProperties": {"properties": {
                  "DeviceName": {"type": "string", "maxLength": 2}}}}})");
  spec.setFrequency(800, true);
  spec.deviceName = "dev";
  std::ostringstream out;
  EXPECT_FALSE(NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(out, spec, status));
  EXPECT_EQ(out.str(), "{\n  \"SystemProperties\": {\n    \"Frequency\": 800,\n    \"DeviceName\"");
  expectSent({{"@75-585@%s", ComMsgMgr::Error, {"NoC Traffic Spec"}}});
}

TEST_F(NOCJsonTrafficSpecWriterTest, PathFormWritesTheFileOrGivesFalse)
{
  const TempDir dir;
  fillEveryKey(spec);
  EXPECT_TRUE(NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(dir.file("out.json"), spec, status));
  EXPECT_EQ(readFile(dir.file("out.json")), readFile(everyKeyFile));
  EXPECT_FALSE(
      NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(dir.file("no/dir/out.json"), spec, status));
  expectSent({});
}

}  // namespace
