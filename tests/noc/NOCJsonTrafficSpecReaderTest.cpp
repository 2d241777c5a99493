#include "TestSupport.h"

#include "HDGUIStatus.h"
#include "HIPLogicalObjectNameResolverInterfaceIdentity.h"
#include "HUTFile.h"
#include "NOCJsonReadWriteUtils.h"
#include "NOCJsonTrafficSpecReader.h"
#include "TrafficSpec.h"

namespace {

using namespace HrdIPToolCntr;
namespace Defs = DevHrdIP::Definitions;
using namespace testing_support;

const std::string fileName = "in/traffic.json";

// Wraps instances and paths into a traffic file.
std::string file(const std::string& instances, const std::string& paths = "",
                 const std::string& rest = "")
{
  return R"({"LogicalInstances": [)" + instances + R"(], "Paths": [)" + paths + "]" + rest + "}";
}

const std::string master = R"({"Name": "m", "IsMaster": true, "CompType": "PL_NMU"})";
const std::string slave = R"({"Name": "s", "CompType": "PL_NSU", "SysAddresses": []})";

// Prefixes every design name with "top/"; names starting with "gone" resolve to nothing.
class RenamingResolver : public HIPLogicalObjectNameResolverInterfaceIdentity {
public:
  std::string resolveLogicalInstanceName(const std::string& name) const override
  {
    return name.rfind("gone", 0) == 0 ? "" : "top/" + name;
  }
  std::string resolveLogicalInstancePropertyValue(const std::string& value) const override
  {
    return "prop/" + value;
  }
};

class NOCJsonTrafficSpecReaderTest : public MessageLogTest {
protected:
  void read(const std::string& text)
  {
    std::istringstream in(text);
    EXPECT_TRUE(NOC::NOCJsonTrafficSpecReader().readFromJsonFile(in, fileName, spec, status));
  }
  void readRenamed(const std::string& text)
  {
    std::istringstream in(text);
    RenamingResolver resolver;
    NOC::NOCJsonTrafficSpecReader().readFromJsonFile(in, fileName, resolver, spec, status);
  }
  const TrafficLInst& instance(const std::string& name) const
  {
    const TrafficLInst* found = spec.getLogicalMaster(name);
    if (!found)
      found = spec.getLogicalSlave(name);
    EXPECT_NE(found, nullptr) << name;
    return found ? *found : *spec.getOthers().at(name);
  }

  TrafficSpec spec;
  HDGUIStatus status;
};

TEST_F(NOCJsonTrafficSpecReaderTest, EmptyFileAddsNothingAndSystemPropertiesResetTheDeviceName)
{
  spec.deviceName = "kept";
  read("{}");
  EXPECT_EQ(spec.getNumPaths(), 0);
  EXPECT_TRUE(spec.getMasters().empty() && spec.getSlaves().empty() && spec.getOthers().empty());
  EXPECT_EQ(spec.deviceName, "kept");
  read(R"({"SystemProperties": {"Frequency": 800, "SECURE_SLR_PMC_TRAFFIC": true,
                                  "DfxPaths": ["top/rp///"]}})");
  EXPECT_EQ(spec.deviceName, "");
  EXPECT_EQ(spec.getUserSetFrequency(), 800);
  EXPECT_TRUE(spec.secureMode);
  EXPECT_EQ(spec.getDfxPaths(), std::vector<std::string>{"top/rp/"}) << "one trailing slash kept";
  expectSent({});
}

TEST_F(NOCJsonTrafficSpecReaderTest, ProgressIsReportedUnderTheLockInOrder)
{
  std::vector<std::pair<std::string, double>> updates;
  status.setListener([&](const std::string& text, double progress) {
    updates.emplace_back(text, progress);
  });
  read(file(master));
  const std::string text = "Reading Traffic File " + fileName;
  EXPECT_EQ(updates, (std::vector<std::pair<std::string, double>>{
                         {text, 0.0}, {text, 0.0}, {text, 20.0}, {text, 40.0}, {text, 100.0}}));
  EXPECT_TRUE(status.isBusy());
}

TEST_F(NOCJsonTrafficSpecReaderTest, BadFilesAreRefusedWithTheExactText)
{
  const BadText cases[] = {
      {"unknownType", file(R"({"Name": "x", "CompType": "NPS_9"})"),
       "Unknown component type : NPS_9"},
      {"emptyName", file(R"({"CompType": "PL_NMU"})"), "Empty logical instance name"},
      {"destIdOf13Bits", file(R"({"Name": "x", "CompType": "NPS", "DestId": 4096})"),
       "DestId entry is expected to be a 12 bit maximum"},
      {"negativeDestId", file(R"({"Name": "x", "CompType": "NPS", "DestId": -1})"),
       "DestId entry is expected to be a 12 bit maximum"},
      {"unknownFrom", file(master + "," + slave, R"({"From": "q", "To": "s"})"),
       "Path 'from' name is unknown: q"},
      {"unknownTo", file(master + "," + slave, R"({"From": "m", "To": "t"})"),
       "Path 'to' name is unknown: t"},
      {"wrongType", file(R"({"Name": "x", "IsMaster": 1})"), "/LogicalInstances/0/IsMaster"},
      {"negativeBandwidth", file("", R"({}, {"ReadBW": -1})"), "/Paths/1/ReadBW"},
      {"addressAsBoolean", file(R"({"SysAddresses": [{"Base": true}]})"),
       "/LogicalInstances/0/SysAddresses/0/Base"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    expectThrows([&] { read(c.text); }, "@90-2@%s%s", {fileName, c.detail});
  }
}

TEST_F(NOCJsonTrafficSpecReaderTest, DestIdIndexOutOfRangeIsReportedAgainstTheSchema)
{
  std::string schema;
  HUTFile(NOC::NOCJsonReadWriteUtils::getTrafficJsonSchemaFile()).getCanonicalName(schema);
  const std::string paths = R"({"From": "m", "To": "s", "Port": "PORT0", "DestIdIndex": 8})";
  expectThrows([&] { read(file(master + "," + slave, paths)); }, "@90-4@%s%s",
               {schema, "DestIdIndex field is out of expected range: [0,7]"});
  ASSERT_EQ(spec.getNumPaths(), 1);  // what was added stays
}

TEST_F(NOCJsonTrafficSpecReaderTest, DestIdsKeepTheirLow16BitsAndPresence)
{
  read(file(R"({"Name": "a", "CompType": "NPS", "DestId": 4095},
               {"Name": "b", "CompType": "NPS", "DestId": 65536},
               {"Name": "c", "CompType": "NPS"}, )" + master + "," + slave,
            R"({"From": "m", "To": "s", "Port": "PORT0", "DestIdIndex": 0},
               {"From": "m", "To": "s", "Port": "PORT0", "DestIdIndex": 65543},
               {"From": "m", "To": "s", "Port": "PORT0"})"));
  const auto& others = spec.getOthers();
  EXPECT_TRUE(others.at("a")->hasDestId && others.at("b")->hasDestId);
  EXPECT_EQ(others.at("a")->destId, 4095);
  EXPECT_EQ(others.at("b")->destId, 0);
  EXPECT_FALSE(others.at("c")->hasDestId);
  EXPECT_TRUE(spec.getPath(0)->hasDestIdIndex);
  EXPECT_EQ(spec.getPath(0)->destIdIndex, 0);
  EXPECT_EQ(spec.getPath(1)->destIdIndex, 7);
  EXPECT_FALSE(spec.getPath(2)->hasDestIdIndex);
}

TEST_F(NOCJsonTrafficSpecReaderTest, AddressFormsGiveTheSameAddress)
{
  read(file(R"({"Name": "a", "CompType": "PL_NSU", "SysAddresses": [
                  {"Base": "4096", "Size": 16}, {"Base": 4096, "Size": "0x10"},
                  {"Base": "0x1000", "Size": "020"}]},
               {"Name": "b", "CompType": "PL_NSU", "SysAddress": 4096, "SysAddressSize": 16},
               {"Name": "c", "CompType": "PL_NSU", "SysAddresses": [], "SysAddress": 1})"));
  const TrafficLInst& a = instance("a");
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(std::make_pair(a.getSysAddress(i), a.getSysAddrSize(i)),
              std::make_pair(4096ul, 16ul)) << i;
  EXPECT_FALSE(a.hasValidSysAddress(3));
  EXPECT_EQ(std::make_pair(instance("b").getSysAddress(0), instance("b").getSysAddrSize(0)),
            std::make_pair(4096ul, 16ul));
  EXPECT_FALSE(instance("c").hasValidSysAddress(0));  // the older form only without the newer
  EXPECT_EQ(instance("b").getSysAddressRanges(), a.getSysAddressRanges());
}

TEST_F(NOCJsonTrafficSpecReaderTest, KeysAreReadOnlyForTheirKindOfInstance)
{
  const std::string remap =
      R"("Remap": [{"Logical": "0x10", "Physical": "0x20", "Range": "0x30"}])";
  const std::string memory =
      R"("Ports": ["PORT0", "PC1_PORT1"], "InterleaveSize": 65792, "InterleaveSel": 2)";
  read(file(R"({"Name": "m", "IsMaster": true, "CompType": "PL_NMU",
                "SysAddresses": [{"Base": 1, "Size": 1}], )" + remap +
                R"(, "AxiDataWidth": 512, "ReadRateLimiter": 3, "NumReadOutstanding": 65537}, )"
            R"({"Name": "s", "CompType": "PL_NSU", )" + remap + R"(, "ReadTC": "LL",
                "MemoryParams": [{"Name": "k", "Value": "1"}, {"Name": "k", "Value": "2"}]},
               {"Name": "ddr", "CompType": "DDRC", )" + memory + R"(},
               {"Name": "ddr6", "CompType": "DDR6", )" + memory + R"(},
               {"Name": "hbm", "CompType": "HBMMC", )" + memory + R"(},
               {"Name": "nmu", "IsMaster": true, "CompType": "PS_NMU", "AxiDataWidth": 64})"));
  const TrafficLInst& m = instance("m");
  EXPECT_FALSE(m.hasValidSysAddress(0));
  ASSERT_EQ(m.remapAddrSpecs.size(), 1u);
  EXPECT_EQ(m.remapAddrSpecs[0].physical, 0x20u);
  EXPECT_EQ(m.axiWidth, 512u);
  EXPECT_EQ(m.readRateLimiter, 3.0f);
  EXPECT_EQ(m.numReadOutstanding, 1);
  const TrafficLInst& s = instance("s");
  EXPECT_TRUE(s.remapAddrSpecs.empty());
  EXPECT_EQ(s.readTC, Defs::BE);
  EXPECT_EQ(s.memoryParams, (std::map<std::string, std::string>{{"k", "1"}}));
  const std::vector<Defs::PORT_TYPE> ports{Defs::PORT0, Defs::PORT3};
  EXPECT_EQ(instance("ddr").getPortTypes(), ports);
  EXPECT_EQ(instance("ddr").ddrInterleaveSize, 256u);
  EXPECT_EQ(instance("ddr").getDdrInterleaveSel(), 2);
  EXPECT_TRUE(instance("ddr6").getPortTypes().empty());
  EXPECT_EQ(instance("ddr6").ddrInterleaveSize, 0u);
  EXPECT_EQ(instance("hbm").getPortTypes(), ports);
  EXPECT_EQ(instance("hbm").getDdrInterleaveSel(), 0);
  EXPECT_EQ(instance("nmu").axiWidth, 0u);
}

TEST_F(NOCJsonTrafficSpecReaderTest, BadPortsAreReportedAndSkipped)
{
  read(file(R"({"Name": "ddr", "CompType": "DDR5", "Ports": ["PORT4", "PORT2"]}, )" + master,
            R"({"From": "m", "To": "ddr", "Port": "PORTERR"},
               {"From": "m", "To": "ddr", "Port": "PORT2"})"));
  expectSent({{"@73-30@%s%s", ComMsgMgr::CriticalWarning, {"PORT4", "ddr"}},
              {"@73-448@%s", ComMsgMgr::CriticalWarning, {"PORTERR"}}});
  EXPECT_EQ(instance("ddr").getPortTypes(), std::vector<Defs::PORT_TYPE>{Defs::PORT2});
  EXPECT_EQ(spec.getPath(0)->slavePort, Defs::PORT_NONE);
  EXPECT_EQ(spec.getPath(1)->slavePort, Defs::PORT2);
}

TEST_F(NOCJsonTrafficSpecReaderTest, PathsTakeTheirFiguresPhasesAndMastersTrafficClass)
{
  read(file(master + "," + slave + R"(, {"Name": "n", "CompType": "NPS"},
            {"Name": "st", "IsMaster": true, "CompType": "QPE_NMU", "Protocol": "AXI_STRM"})",
            R"({"From": "m", "To": "s", "Port": "PORT0", "ReadTC": "LL",
                "ReadBW": 10, "ReadLatency": 5,
                "WriteBW": 4294967297, "WriteLatency": 6, "WriteOrder": "doorbell",
                "PhaseGroups": [{"Name": "G", "Phases": [
                  {"Name": "P2", "ReadBW": 30, "WriteBW": 0, "ReadAvgBurst": 65540},
                  {"Name": "P1", "ReadBW": 20, "WriteBW": 21}]}]},
               {"From": "m", "To": "s", "Port": "PORT0", "ReadTC": "ISOC", "WriteOrder": "none"},
               {"From": "m", "To": "n", "Port": "PORT0"},
               {"From": "s", "To": "s", "Port": "PORT0"},
               {"From": "st", "To": "s", "Port": "PORT0", "CommType": "STRM", "ReadBW": 9,
                "ReadAvgBurst": 9, "WriteBW": 8, "WriteAvgBurst": 7, "ReadLatency": 11,
                "WriteLatency": 12, "PhaseGroups": [{"Name": "H", "Phases": [
                  {"Name": "Q1", "ReadBW": 3, "WriteBW": 2}]}]})"));
  ASSERT_EQ(spec.getNumPaths(), 3);  // the paths to "n" and from "s" vanish without a word
  expectSent({});
  const TrafficPath& mm = *spec.getPath(0);
  EXPECT_EQ(mm.getReadPerfSpec().bandwidth, 10u);
  EXPECT_EQ(mm.getWritePerfSpec().bandwidth, 1u);
  EXPECT_EQ(mm.writeOrder, Defs::WO_DOORBELL);
  EXPECT_EQ(spec.getPath(1)->writeOrder, Defs::WO_INVALID);
  EXPECT_EQ(instance("m").readTC, Defs::ISOC);  // the later path wins
  EXPECT_EQ(*spec.getAllPhasesForPhaseGroup("G"), (std::set<std::string>{"P1", "P2"}));
  EXPECT_EQ(spec.getPhaseNumber("P2"), 0u);
  EXPECT_EQ(spec.getPhaseNumber("P1"), 1u);
  EXPECT_EQ(mm.getReadPerfSpec("P2").bandwidth, 30u);
  EXPECT_EQ(mm.getReadPerfSpec("P2").latency, 5u);
  EXPECT_EQ(mm.getWritePerfSpec("P1").latency, 6u);
  EXPECT_EQ(mm.getReadAvgBurst("P2"), 4);
  EXPECT_TRUE(mm.hasMultipleReadPhases());
  EXPECT_EQ(mm.phaseGroupName, "G");
  const TrafficPath& stream = *spec.getPath(2);
  EXPECT_EQ(stream.getReadPerfSpec().bandwidth, 0u);
  EXPECT_EQ(stream.getReadAvgBurst(), 0);
  EXPECT_EQ(stream.getWritePerfSpec().bandwidth, 8u);
  EXPECT_EQ(stream.getWriteAvgBurst(), 7);
  EXPECT_EQ(stream.getNumNets(), 1);
  // A stream's phases still take the path's read latency from the file.
  EXPECT_EQ(stream.getReadPerfSpec("Q1").bandwidth, 3u);
  EXPECT_EQ(stream.getReadPerfSpec("Q1").latency, 11u);
  EXPECT_EQ(stream.getWritePerfSpec("Q1").latency, 12u);
}

TEST_F(NOCJsonTrafficSpecReaderTest, NamesPassThroughTheResolver)
{
  readRenamed(file(master + "," + slave + R"(,
      {"Name": "v", "CompType": "PL_NSU", "IsVirtual": true, "ExternalConn": "a  b,,c"},
      {"Name": "x/noc_error_slave", "CompType": "PS_NSU"})",
                   R"({"From": "m", "To": "v", "Port": "PORT0"})",
                   R"(, "SystemProperties": {"DfxPaths": ["rp///", "gone/rp/"]})"));
  EXPECT_NE(spec.getLogicalMaster("top/m"), nullptr);
  const TrafficLInst* virtualSlave = spec.getLogicalSlave("prop/v");
  ASSERT_NE(virtualSlave, nullptr);
  EXPECT_TRUE(virtualSlave->isVirtual);
  EXPECT_EQ(virtualSlave->externalConns,
            (TrafficSpec::ExternalConns{{"prop/a", "prop/b"}, {}, {"prop/c"}}));
  EXPECT_EQ(spec.getLogicalSlaveUsingExternalConns("prop/b"), virtualSlave);
  ASSERT_NE(spec.getLogicalSlave("prop/x/noc_error_slave"), nullptr);
  EXPECT_TRUE(spec.getLogicalSlave("prop/x/noc_error_slave")->isErrorSlave());
  EXPECT_EQ(spec.getPath(0)->slave, virtualSlave);
  EXPECT_EQ(spec.getDfxPaths(), (std::vector<std::string>{"top/rp/", "gone/rp/"}));
  expectThrows([&] { readRenamed(file(R"({"Name": "gone", "CompType": "NPS"})")); }, "@90-2@%s%s",
               {fileName, "Could not find netlist instance for traffic spec instance: gone"});
}

TEST_F(NOCJsonTrafficSpecReaderTest, DefaultSlaveIsAddedOnce)
{
  read(file(master + "," + slave, R"({"From": "m", "To": "s", "Port": "PORT0"})"));
  NOC::NOCJsonTrafficSpecReader reader;
  EXPECT_TRUE(reader.enableDefaultSlv(spec));
  EXPECT_TRUE(reader.enableDefaultSlv(spec));
  EXPECT_TRUE(spec.hasErrorSlave());
  EXPECT_EQ(spec.getNumPaths(), 2);
}

}  // namespace
