#include "TestSupport.h"

#include "CompRes.h"
#include "HDGUIStatus.h"
#include "HIPDevice.h"
#include "HIPLogicalObjectNameResolverInterfaceIdentity.h"
#include "NOCJsonSolutionReader.h"
#include "NOCJsonTrafficSpecReader.h"
#include "NOCModel.h"
#include "TrafficSpec.h"

#include <stdexcept>

namespace {

using namespace HrdIPToolCntr;
using DevHrdIP::Component;
using DevHrdIP::Link;
namespace Defs = DevHrdIP::Definitions;
using namespace testing_support;

const std::string fileName = "in/solution.json";

// m -> s asks for phases A and B of group G; m -> mc goes to port 0 of a
// memory controller, p -> s is a stream.
const char* const traffic = R"({"LogicalInstances": [
  {"Name": "m", "IsMaster": true, "CompType": "PS_CCI_NMU", "Protocol": "AXI_MM"},
  {"Name": "p", "IsMaster": true, "CompType": "PL_NMU", "Protocol": "AXI_STRM"},
  {"Name": "s", "CompType": "PL_NSU", "Protocol": "AXI_MM",
   "SysAddresses": [{"Base": "0x1000", "Size": "0x100"}]},
  {"Name": "mc", "CompType": "DDRC", "Protocol": "AXI_MM", "Ports": ["PORT0", "PORT1"]}],
 "Paths": [
  {"From": "m", "To": "s", "Port": "PORT0", "CommType": "MM_ReadWrite", "ReadBW": 100,
   "ReadLatency": 9, "WriteBW": 200, "WriteLatency": 9,
   "PhaseGroups": [{"Name": "G", "Phases": [{"Name": "A", "ReadBW": 10, "WriteBW": 20},
                                            {"Name": "B", "ReadBW": 30, "WriteBW": 40}]}]},
  {"From": "m", "To": "mc", "Port": "PORT0", "CommType": "MM_ReadWrite", "ReadBW": 1,
   "ReadLatency": 1, "WriteBW": 1, "WriteLatency": 1},
  {"From": "p", "To": "s", "Port": "PORT0", "CommType": "STRM", "WriteBW": 5,
   "WriteLatency": 5}]})";

const char* const master = R"({"Name": "m", "IsMaster": true, "CompType": "PS_CCI_NMU"})";
const char* const slave = R"({"Name": "s", "CompType": "PL_NSU",
                              "SysAddresses": [{"Base": "0x1000", "Size": "0x100"}]})";

// A path of the solution from m to s: `more` are further keys, `nets` the nets.
std::string path(const std::string& more, const std::string& nets)
{
  return R"({"From": "m", "To": "s", "Port": "PORT0")" + more + R"(, "Nets": [)" + nets + "]}";
}

std::string net(const std::string& commType, const std::string& more = "")
{
  return R"({"CommType": ")" + commType + "\"" + more + "}";
}

std::string solution(const std::string& paths, const std::string& rest = "")
{
  return R"({"SolutionType": "OPTIMAL", "LogicalInstances": [)" + std::string(master) + "," +
         slave + R"(], "Paths": [)" + paths + "]" + rest + "}";
}

class NOCJsonSolutionReaderTest : public MessageLogTest {
protected:
  NOCJsonSolutionReaderTest()
  {
    std::istringstream in(traffic);
    NOC::NOCJsonTrafficSpecReader().readFromJsonFile(in, "traffic.json", spec, status);
    nmu = model.addComponent("NMU", Defs::PS_CCI_NMU, Component::MASTER_SIDE);
    nsu = model.addComponent("NSU", Defs::PL_NSU, Component::SLAVE_SIDE);
    sw = model.addComponent("SW", Defs::NPS, Component::NO_SIDE);
    mc = model.addComponent("MC", Defs::DDRC, Component::SLAVE_SIDE);
    mcPort0 = model.addSubComponent(*mc, "MC_P0", Defs::DDRC_NSU, Component::SLAVE_SIDE);
    mcPort1 = model.addSubComponent(*mc, "MC_P1", Defs::DDRC_NSU, Component::SLAVE_SIDE);
    toSwitch = model.addLink(*nmu, "OUT", *sw, "IN");
    toSlave = model.addLink(*sw, "OUT", *nsu, "IN");
  }

  void read(const std::string& text)
  {
    std::istringstream in(text);
    EXPECT_TRUE(NOC::NOCJsonSolutionReader().readFromJsonFile(in, fileName, spec, result, status));
  }

  void readWith(const std::string& text, const NOC::NOCJsonSolutionReader::PhysicalToLogical& names,
                const NOC::NOCJsonSolutionReader::RangeOwners& owners = {})
  {
    std::istringstream in(text);
    HIPLogicalObjectNameResolverInterfaceIdentity identity;
    NOC::NOCJsonSolutionReader().readFromJsonFile(in, fileName, identity, spec, result, status,
                                                  names, owners, &ranges, &initialBoot);
  }

  const TrafficPath* pathTo(const std::string& slaveName) const
  {
    for (int i = 0; i < spec.getNumPaths(); ++i)
      if (spec.getPath(i)->slave->name == slaveName)
        return spec.getPath(i);
    return nullptr;
  }
  const TrafficNet* netOf(const std::string& slaveName, TrafficNet::NetType type) const
  {
    const TrafficPath* found = pathTo(slaveName);
    for (int i = 0; found && found->getNet(i); ++i)
      if (found->getNet(i)->type == type)
        return found->getNet(i);
    return nullptr;
  }

  TrafficSpec spec;
  HDGUIStatus status;
  DevHrdIP::NOCModel model;
  DevHrdIP::HIPDevice device{&model};
  CompRes result{&device};
  NOC::NOCJsonSolutionReader::InstanceRanges ranges;
  NOC::NOCJsonSolutionReader::InitialBootCount initialBoot{0, 0};
  Component* nmu;
  Component* nsu;
  Component* sw;
  Component* mc;
  Component* mcPort0;
  Component* mcPort1;
  const Link* toSwitch;
  const Link* toSlave;
};

TEST_F(NOCJsonSolutionReaderTest, SolutionTypeTextsAndLockAllDestIds)
{
  const std::vector<std::pair<std::string, int>> cases{
      {R"("SolutionType": "NO_SOLUTION")", 0}, {R"("SolutionType": "OPTIMAL")", 1},
      {R"("SolutionType": "SUBOPTIMAL")", 2},  {R"("SolutionType": "DEADLOCKS")", 3},
      {R"("SolutionType": "optimal")", 0},     {R"("LockAllDestIds": true)", 0}};
  for (const auto& [keys, type] : cases) {
    SCOPED_TRACE(keys);
    result.solutionType = 7;
    read("{" + keys + "}");
    EXPECT_EQ(result.solutionType, type);
    EXPECT_EQ(result.hasLockedDestIdsForAllComps(), keys.find("Lock") != std::string::npos);
  }
  EXPECT_TRUE(result.routes.empty() && result.placements.empty() && result.destIds.empty());
  expectSent({});
}

TEST_F(NOCJsonSolutionReaderTest, ConnectionsBecomeTheLinksOfTheRoute)
{
  read(solution(path(R"(, "PathLocked": true)",
                     R"({"CommType": "WRITE", "VC": 258, "AchievedBW": 180, "AchievedLatency": 7,
                         "Connections": ["NMU", "OUT", "SW", "IN", "SW", "OUT", "NSU", "IN"]})")));
  const Route* route = result.getRouteForNet(netOf("s", TrafficNet::WRITE));
  ASSERT_NE(route, nullptr);
  EXPECT_EQ(route->links, (std::vector<const Link*>{toSwitch, toSlave}));
  EXPECT_EQ(route->vc, 2) << "the low 8 bits of 258";
  EXPECT_EQ(route->achievedBw, 180u);
  EXPECT_TRUE(route->locked);
  EXPECT_EQ(route->limitingPhase, "");
  EXPECT_EQ(result.routes.size(), 1u);
  expectSent({});
}

TEST_F(NOCJsonSolutionReaderTest, ALinkTheDeviceLacksEndsTheReadAndKeepsEarlierRoutes)
{
  const std::string nets = net("READ", R"(, "Connections": ["NMU", "OUT", "SW", "IN"])") + "," +
                           net("WRITE", R"(, "Connections": ["NMU", "OUT", "SW", "IN",
                                                             "SW", "OUT", "MC_P0", "IN"])");
  try {
    read(solution(path("", nets)));
    ADD_FAILURE() << "expected std::runtime_error";
  } catch (const std::runtime_error& failure) {
    EXPECT_STREQ(failure.what(), "No Connection between SW:OUT to MC_P0:IN\n"
                                 "Device Model version mismatch!\n"
                                 "Please make sure checkpoint and Ostrand versions match!");
  }
  ASSERT_EQ(result.routes.size(), 1u);
  EXPECT_NE(result.getRouteForNet(netOf("s", TrafficNet::READ)), nullptr);
}

TEST_F(NOCJsonSolutionReaderTest, LatencySumsCountOnlyMatchedNetsAndNeedANonZeroLatency)
{
  // "READ" and "READ_REQ" add to the read sum, the rest to the write sum; a
  // net type that matches nothing adds nothing anywhere.
  const std::string nets =
      net("READ", R"(, "AchievedLatency": 3)") + "," +
      net("READ_REQ", R"(, "AchievedLatency": 4)") + "," +
      net("WRITE", R"(, "AchievedLatency": 5)") + "," +
      net("WRITE_RESP", R"(, "AchievedLatency": 6)") + "," +
      net("READ_RESP", R"(, "AchievedLatency": 100)");
  read(solution(path(R"(, "ReadAchievedBW": 70, "WriteAchievedBW": 80, "ReadLatency": 1,
                        "WriteLatency": 1)", nets)));
  const TrafficPath* toS = pathTo("s");
  EXPECT_EQ(result.readLatencyBw.at(toS), (CompRes::LatencyAndBw{7, 70}));
  EXPECT_EQ(result.writeLatencyBw.at(toS), (CompRes::LatencyAndBw{11, 80}));
  EXPECT_EQ(result.routes.size(), 4u);

  result.readLatencyBw.clear();
  result.writeLatencyBw.clear();
  read(solution(path(R"(, "ReadAchievedBW": 70, "WriteAchievedBW": -1, "ReadLatency": 0,
                        "WriteLatency": 2)", nets)));
  EXPECT_TRUE(result.readLatencyBw.empty()) << "ReadLatency 0 leaves the read side alone";
  EXPECT_EQ(result.writeLatencyBw.at(toS), (CompRes::LatencyAndBw{11, 0}))
      << "an achieved bandwidth that is no unsigned number reads as 0";
  expectSent({});
}

TEST_F(NOCJsonSolutionReaderTest, TheLaterOfTwoPathsWithTheSameEndsAndPortTakesTheRoute)
{
  TrafficPath* second = spec.addPath(spec.getLogicalMaster("m"), spec.getLogicalSlave("s"));
  second->setSlavePort(Defs::PORT0);
  read(solution(path("", net("READ"))));
  ASSERT_EQ(result.routes.size(), 1u);
  EXPECT_EQ(result.routes.begin()->first->path, second);

  // Another port matches neither.
  result.routes.clear();
  read(solution(R"({"From": "m", "To": "s", "Port": "PORT1", "Nets": [)" + net("READ") + "]}"));
  EXPECT_TRUE(result.routes.empty());
}

TEST_F(NOCJsonSolutionReaderTest, UnknownEndsAreReportedAndTheirNetsMatchNothing)
{
  read(solution(R"({"From": "ghost", "To": "s", "Port": "PORT0", "Nets": [)" + net("READ") +
                R"(]}, {"From": "m", "To": "nowhere", "Port": "PORT0"})"));
  EXPECT_TRUE(result.routes.empty());
  expectSent({{"@75-698@%s%s%s", ComMsgMgr::CriticalWarning, {fileName, "Master", "ghost"}},
              {"@75-698@%s%s%s", ComMsgMgr::CriticalWarning, {fileName, "Slave", "nowhere"}}});
}

TEST_F(NOCJsonSolutionReaderTest, PhysicalNamesPlaceAPathWhoseEndsTheModelDoesNotKnow)
{
  // The first net starts at a PS master and ends at a PL slave: the master
  // comes from the start's name, and the slave from the owners of the file's
  // address ranges of "s_old".
  TrafficLInst local =
      spec.createNonTrafficSpecLogicalInstance("x", Defs::AXI_MM, Defs::PL_NSU, {});
  local.addSysAddress({0x1000, 0x100});
  const NOC::NOCJsonSolutionReader::RangeOwners owners{
      {local.getSysAddressRanges(), {"nothing", "s"}}};
  const std::string text =
      R"({"LogicalInstances": [{"Name": "s_old", "CompType": "PL_NSU",
                                "SysAddresses": [{"Base": 4096, "Size": 256}]}],
          "Paths": [{"From": "cpu_old", "To": "s_old", "Port": "PORT0", "InitialBoot": true,
                     "Nets": [{"PhyInstanceStart": "NMU", "PhyInstanceEnd": "NSU",
                               "CommType": "READ", "AchievedBW": 50}]},
                    {"From": "m", "To": "s", "Port": "PORT0", "InitialBoot": false}]})";
  readWith(text, {{"NMU", "m"}}, owners);
  ASSERT_EQ(result.routes.size(), 1u);
  EXPECT_EQ(result.routes.begin()->first, netOf("s", TrafficNet::READ));
  ASSERT_EQ(ranges.count("s_old"), 1u);
  EXPECT_EQ(ranges.at("s_old"), spec.getLogicalSlave("s")->getSysAddressRanges());
  EXPECT_EQ(initialBoot, (NOC::NOCJsonSolutionReader::InitialBootCount{1, 1}));
  expectSent({});

  // Without physical names no fallback happens.
  ComMsgLog::clear();
  result.routes.clear();
  read(text);
  EXPECT_TRUE(result.routes.empty());
  expectSent({{"@75-698@%s%s%s", ComMsgMgr::CriticalWarning, {fileName, "Master", "cpu_old"}},
              {"@75-698@%s%s%s", ComMsgMgr::CriticalWarning, {fileName, "Slave", "s_old"}}});
}

TEST_F(NOCJsonSolutionReaderTest, AnUnlockedPathLocksTheEndsItNamesAndALockedPathItsRoutes)
{
  const TrafficLInst* m = spec.getLogicalMaster("m");
  const TrafficLInst* s = spec.getLogicalSlave("s");
  result.addPlacement(m, nmu);
  result.addPlacement(s, nsu);
  read(solution(path(R"(, "FromLocked": true, "ToLocked": true, "PathLocked": true)",
                     net("READ"))));
  EXPECT_FALSE(result.placements.at(m).second || result.placements.at(s).second);
  EXPECT_TRUE(result.isLocked(pathTo("s")));
  read(solution(path(R"(, "ToLocked": true)", net("READ"))));
  EXPECT_FALSE(result.placements.at(m).second);
  EXPECT_TRUE(result.placements.at(s).second);
  EXPECT_FALSE(result.isLocked(pathTo("s")));
}

TEST_F(NOCJsonSolutionReaderTest, PhasesOfANetFillTheRouteAndUnknownNamesAreReported)
{
  // A is given and equals the net's bandwidth; B is left out and takes what
  // the path asks for it; C and the group H are not known.
  const std::string groups = R"(, "AchievedBW": 55, "PhaseGroups": [
      {"Name": "G", "Phases": [{"Name": "A", "AchievedBW": 55}, {"Name": "C", "AchievedBW": 1}]},
      {"Name": "H", "Phases": [{"Name": "A", "AchievedBW": 2}]}])";
  read(solution(path("", net("READ", groups))));
  const Route* route = result.getRouteForNet(netOf("s", TrafficNet::READ));
  ASSERT_NE(route, nullptr);
  EXPECT_EQ(route->achievedPhaseBw, (std::map<std::string, unsigned>{{"A", 55}, {"B", 30}}));
  EXPECT_EQ(route->limitingPhase, "A");
  EXPECT_EQ(route->achievedBw, 55u);
  expectSent({{"@75-4365@%s%s%s%s%s", ComMsgMgr::Error, {fileName, "C", "s", "s", "READ"}},
              {"@75-4367@%s%s%s%s%s", ComMsgMgr::Error, {fileName, "H", "s", "s", "READ"}}});
}

TEST_F(NOCJsonSolutionReaderTest, PhasesOfAPathGoToTheCompResAndLeftOutPhasesAreFilledIn)
{
  // Read is routed, so B takes the 33 its route achieved; write is not, so
  // B takes the 40 the path asks for.
  const std::string groups = R"(, "ReadLatency": 1, "WriteLatency": 1, "PhaseGroups": [
      {"Name": "G", "Phases": [{"Name": "A", "ReadAchievedBW": 11, "WriteAchievedBW": 22},
                               {"Name": "Z", "ReadAchievedBW": 1}]},
      {"Name": "H", "Phases": []}])";
  read(solution(path(groups, net("READ", R"(, "AchievedBW": 33)"))));
  const TrafficPath* toS = pathTo("s");
  EXPECT_EQ(result.readPhaseBw.at(toS), (CompRes::PhaseBw{{"A", 11}, {"B", 33}}));
  EXPECT_EQ(result.writePhaseBw.at(toS), (CompRes::PhaseBw{{"A", 22}, {"B", 40}}));
  expectSent({{"@75-4366@%s%s%s%s", ComMsgMgr::Error, {fileName, "Z", "m", "s"}},
              {"@75-4368@%s%s%s%s", ComMsgMgr::Error, {fileName, "H", "m", "s"}}});
}

TEST_F(NOCJsonSolutionReaderTest, APathGroupWithoutAMatchedNetIsReported)
{
  read(solution(path(R"(, "PhaseGroups": [{"Name": "G", "Phases": []}])", "")));
  expectSent({{"@75-4368@%s%s%s%s", ComMsgMgr::Error, {fileName, "G", "m", "s"}}});
}

TEST_F(NOCJsonSolutionReaderTest, ComponentsPlaceInstancesAndTakeDestinationIds)
{
  read(R"({"Components": [
    {"Name": "NMU", "TrafficLInst": "m", "DestId": 7},
    {"Name": "GHOST", "TrafficLInst": "m", "DestId": 1},
    {"Name": "NSU", "TrafficLInst": "m", "DestId": 4101},
    {"Name": "MC", "TrafficLInst": "mc", "DestId": 9},
    {"Name": "MC", "DestId": 10, "PortIndex": 1},
    {"Name": "SW", "TrafficLInst": "s", "DestId": 3},
    {"Name": "NMU", "DestId": 8}]})");
  const TrafficLInst* m = spec.getLogicalMaster("m");
  const TrafficLInst* memory = spec.getLogicalSlave("mc");
  EXPECT_EQ(result.placements, (std::map<const TrafficLInst*, CompRes::Placement>{
                                   {m, {nmu, false}}, {memory, {mc, false}}}))
      << "a slave side looks among the slaves; a switch places nothing";
  const std::map<const Component*, unsigned> destIds{
      {nmu, 8}, {nsu, 5}, {mcPort0, 9}, {mcPort1, 10}, {sw, 3}};
  std::map<const Component*, unsigned> got;
  for (const auto& [component, destId] : result.destIds)
    got[component] = destId.getValue();
  EXPECT_EQ(got, destIds) << "12 bits kept; a controller's ports take them; the last one stays";
  expectSent({{"@75-184@%s", ComMsgMgr::CriticalWarning, {"GHOST"}}});

  EXPECT_THROW(read(R"({"Components": [{"Name": "MC", "DestId": 1, "PortIndex": 2}]})"),
               std::out_of_range);
}

TEST_F(NOCJsonSolutionReaderTest, TheFileFrameRefusesABadDocumentBeforeAnythingIsRead)
{
  expectThrows([&] { read(R"({"SolutionType": "OPTIMAL", "Paths": [{"From": 3}]})"); },
               "@90-2@%s%s", {fileName, "/Paths/0/From"});
  EXPECT_EQ(result.solutionType, 0);
}

TEST(NOCJsonSolutionReaderHelpers, GetDDRInfo)
{
  const std::vector<std::tuple<std::string, int, std::string>> cases{
      {"top/ddr", -1, ""},
      {"top/MC3_ddrc", 3, ""},
      {"top/noc/MC1_ddrc/inst/noc_ddr5_phy/inst/DDRMC5_DIMM_B", 1, "B"},
      {"top/noc/MC7_ddrc/inst/noc_ddr5_phy/inst/DDRMC5_DIMM_A", 7, ""},
      {"MC99999999999_ddrc", -1, ""}};
  for (const auto& [name, index, dimm] : cases) {
    SCOPED_TRACE(name);
    int readIndex = 5;
    std::string readDimm = "x";
    NOC::NOCJsonSolutionReader::getDDRInfo(name, readIndex, readDimm);
    EXPECT_EQ(readIndex, index);
    EXPECT_EQ(readDimm, dimm);
  }
}

// Names of the design are "top/" and the name in the file; a block's names
// are scoped under "blk", and "p:" marks a property value.
class ScopedResolver : public HIPLogicalObjectNameResolverInterfaceIdentity {
public:
  std::string resolveLogicalInstanceName(const std::string& name) const override
  {
    return name.rfind("known", 0) == 0 ? "top/" + name : "";
  }
  std::string resolveLogicalInstanceScopedName(const std::string& name) const override
  {
    return name == "blk" ? "top/blk" : "";
  }
  std::string resolveLogicalInstancePropertyValue(const std::string& value) const override
  {
    return value.rfind("none", 0) == 0 ? "" : "p:" + value;
  }
};

TEST(NOCJsonSolutionReaderHelpers, ResolveNameUsingResolverInterface)
{
  TrafficSpec spec;
  const ScopedResolver resolver;
  const std::string errorSlave = "x/" + TrafficSpec::getErrorSlaveName();
  const std::vector<std::tuple<std::string, bool, std::string>> cases{
      {"known_a", true, "top/known_a"},
      {"blk/inner", true, "top/blk/inner"},
      {"other/inner", true, "p:other/inner"},
      {"none", false, ""},
      {errorSlave, true, errorSlave}};
  for (const auto& [name, resolved, out] : cases) {
    SCOPED_TRACE(name);
    std::string readOut;
    EXPECT_EQ(NOC::NOCJsonSolutionReader::resolveNameUsingResolverInterface(resolver, spec, name,
                                                                            readOut),
              resolved);
    EXPECT_EQ(readOut, out);
  }
  // With DFX paths the error slave takes its property value when that lies in one.
  spec.addDfxPath("p:x/");
  std::string out;
  EXPECT_TRUE(NOC::NOCJsonSolutionReader::resolveNameUsingResolverInterface(resolver, spec,
                                                                            errorSlave, out));
  EXPECT_EQ(out, "p:" + errorSlave);
  spec.addDfxPath("unused/");
  const std::string elsewhere = "y/" + TrafficSpec::getErrorSlaveName();
  EXPECT_TRUE(NOC::NOCJsonSolutionReader::resolveNameUsingResolverInterface(resolver, spec,
                                                                            elsewhere, out));
  EXPECT_EQ(out, elsewhere);
}

}  // namespace
