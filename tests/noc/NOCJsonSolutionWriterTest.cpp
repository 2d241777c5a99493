#include "TestSupport.h"

#include "AllTrafficSpecFilterObj.h"
#include "CompRes.h"
#include "HDGUIStatus.h"
#include "HIPDevice.h"
#include "HIPLogicalObjectNameResolverInterfaceIdentity.h"
#include "NOCJsonSolutionReader.h"
#include "NOCJsonSolutionWriter.h"
#include "NOCModel.h"
#include "TrafficSpec.h"

namespace {

using namespace HrdIPToolCntr;
using DevHrdIP::Component;
namespace Defs = DevHrdIP::Definitions;
using namespace testing_support;

// m -> s is routed on its read and read request nets; its write net has a
// route of one link, which has no start and end to write. m -> t has no
// route at all. m is placed on NMU and locked there, s on NSU unlocked.
class NOCJsonSolutionWriterTest : public MessageLogTest {
protected:
  NOCJsonSolutionWriterTest()
  {
    m = spec.addLogicalInstance("m", Defs::AXI_MM, Defs::PS_CCI_NMU, {});
    s = spec.addLogicalInstance("s", Defs::AXI_MM, Defs::PL_NSU, {});
    t = spec.addLogicalInstance("t", Defs::AXI_MM, Defs::PL_NSU, {});
    path = spec.addPath(m, s);
    path->slavePort = Defs::PORT0;
    path->phase = 3;
    path->initialBoot = true;
    path->setReadPerfSpec({Defs::LL, 100, 9});
    path->setWritePerfSpec({Defs::BE, 200, 7});
    spec.addPath(m, t)->slavePort = Defs::PORT0;

    nmu = model.addComponent("NMU", Defs::PS_CCI_NMU, Component::MASTER_SIDE);
    Component* sw = model.addComponent("SW", Defs::NPS, Component::NO_SIDE);
    nsu = model.addComponent("NSU", Defs::PL_NSU, Component::SLAVE_SIDE);
    Component* mc = model.addComponent("MC", Defs::DDRC, Component::SLAVE_SIDE);
    model.addSubComponent(*mc, "MC_P0", Defs::DDRC_NSU, Component::SLAVE_SIDE);
    mcPort1 = model.addSubComponent(*mc, "MC_P1", Defs::DDRC_NSU, Component::SLAVE_SIDE);
    const DevHrdIP::Link* toSwitch = model.addLink(*nmu, "OUT", *sw, "IN");
    const DevHrdIP::Link* toSlave = model.addLink(*sw, "OUT", *nsu, "IN");

    result.solutionType = CompRes::SUBOPTIMAL;
    result.setHasLockedDestIdsForAllComps(true);
    result.addRoute(path->getNet(0), {toSwitch, toSlave}, 2, 90, false);
    result.addRoute(path->getNet(1), {toSwitch}, 0, 50, false);
    result.addRoute(path->getNet(2), {toSwitch, toSlave}, 1, 80, false);
    result.readLatencyBw[path] = {2, 90};
    result.addPlacement(m, nmu);
    result.lockLogicalInst(m);
    result.addPlacement(s, nsu);
    result.setDestIdForComponent(nmu, CompRes::DestId(5));
    result.setDestIdForComponent(mcPort1, CompRes::DestId(7));
  }

  std::string write(bool full)
  {
    std::ostringstream out;
    EXPECT_TRUE(NOC::NOCJsonSolutionWriter().writeToJsonFile(out, spec, result, status, full));
    return out.str();
  }

  TrafficSpec spec;
  HDGUIStatus status;
  DevHrdIP::NOCModel model;
  DevHrdIP::HIPDevice device{&model};
  CompRes result{&device};
  TrafficLInst* m;
  TrafficLInst* s;
  TrafficLInst* t;
  TrafficPath* path;
  Component* nmu;
  Component* nsu;
  Component* mcPort1;
};

const char* const netRead = R"(        {
          "PhyInstanceStart": "NMU",
          "PhyInstanceEnd": "NSU",
          "VC": 2,
          "CommType": "READ",
          "Connections": [
            "NMU",
            "OUT",
            "SW",
            "IN",
            "SW",
            "OUT",
            "NSU",
            "IN"
          ],
          "RequiredBW": 100,
          "AchievedBW": 90,
          "RequiredLatency": 9,
          "AchievedLatency": 2
        },
        {
          "PhyInstanceStart": "NMU",
          "PhyInstanceEnd": "NSU",
          "VC": 1,
          "CommType": "READ_REQ",
          "Connections": [
            "NMU",
            "OUT",
            "SW",
            "IN",
            "SW",
            "OUT",
            "NSU",
            "IN"
          ],
          "RequiredBW": 100,
          "AchievedBW": 80,
          "RequiredLatency": 9,
          "AchievedLatency": 2
        }
)";

const char* const components = R"(  "Components": [
    {
      "Name": "NMU",
      "TrafficLInst": "m",
      "DestId": 5
    },
    {
      "Name": "MC",
      "DestId": 7,
      "PortIndex": 1
    }
  ]
})";

// The file up to the value of the first path's "ToLocked".
const std::string pathHead = R"({
  "SolutionType": "SUBOPTIMAL",
  "LockAllDestIds": true,
  "Paths": [
    {
      "Phase": 3,
      "From": "m",
      "FromLocked": true,
      "To": "s",
      "ToLocked")";

TEST_F(NOCJsonSolutionWriterTest, WritesRoutedPathsTheirNetsAndTheDestinationIds)
{
  const std::string expected = pathHead + R"(: false,
      "Port": "PORT0",
      "ReadTC": "LL",
      "WriteTC": "BE",
      "ReadBW": 100,
      "WriteBW": 200,
      "ReadAchievedBW": 90,
      "WriteAchievedBW": -1,
      "ReadLatency": 9,
      "WriteLatency": 7,
      "ReadBestPossibleLatency": 9,
      "WriteBestPossibleLatency": 7,
      "PathLocked": false,
      "Nets": [
)" + netRead + R"(      ]
    }
  ],
)" + components;
  EXPECT_EQ(write(false), expected);
  EXPECT_TRUE(records().empty());
}

TEST_F(NOCJsonSolutionWriterTest, TheFullFileAddsTheInstancesAndInitialBoot)
{
  const std::string text = write(true);
  EXPECT_NE(text.find(R"(  "LockAllDestIds": true,
  "LogicalInstances": [
    {
      "Name": "m",)"),
            std::string::npos);
  EXPECT_NE(text.find(R"(      "PathLocked": false,
      "InitialBoot": true,
      "Nets": [)"),
            std::string::npos);
}

TEST_F(NOCJsonSolutionWriterTest, UnknownFiguresAreTheRequiredReadBandwidthAndMinusOne)
{
  result.readLatencyBw.clear();
  result.writeLatencyBw[path] = {4, 150};
  const std::string text = write(false);
  EXPECT_NE(text.find(R"("ReadAchievedBW": 100,
      "WriteAchievedBW": 150,)"),
            std::string::npos);
}

TEST_F(NOCJsonSolutionWriterTest, NoRoutesLeaveThePathsEmptyAndKeepTheComponents)
{
  result.routes.clear();
  result.solutionType = 9;
  EXPECT_EQ(write(false), std::string(R"({
  "SolutionType": "NO_SOLUTION",
  "LockAllDestIds": true,
  "Paths": [],
)") + components);
}

TEST_F(NOCJsonSolutionWriterTest, WithoutANocModelTheComponentsStayEmpty)
{
  const DevHrdIP::HIPDevice bare;
  CompRes unrouted(&bare);
  std::ostringstream out;
  EXPECT_TRUE(NOC::NOCJsonSolutionWriter().writeToJsonFile(out, spec, unrouted, status, false));
  EXPECT_EQ(out.str(), R"({
  "SolutionType": "NO_SOLUTION",
  "LockAllDestIds": false,
  "Paths": [],
  "Components": []
})");
}

TEST_F(NOCJsonSolutionWriterTest, AFilteredEndDropsThePath)
{
  std::ostringstream out;
  HIPLogicalObjectNameResolverInterfaceIdentity identity;
  const auto notS = [this](const TrafficLInst* instance) { return instance != s; };
  EXPECT_TRUE(NOC::NOCJsonSolutionWriter().writeToJsonFile(out, spec, result, notS, identity,
                                                           status, false));
  EXPECT_NE(out.str().find(R"("Paths": [],)"), std::string::npos);
}

TEST_F(NOCJsonSolutionWriterTest, PhaseModeWritesTheGroupOfThePathAndOfEachNet)
{
  path->setReadPerfSpec("G", "A", {Defs::LL, 10, 9});
  path->setWritePerfSpec("G", "A", {Defs::BE, 20, 7});
  path->phaseGroupName = "G";
  result.phaseMode = true;
  result.readPhaseBw[path]["A"] = 8;
  CompRes::PhaseBw achieved{{"A", 6}};
  result.addRouteWithPhases(path->getNet(0), result.routes.at(path->getNet(0)).links, achieved, 2,
                            6, "A", false);
  const std::string text = write(false);
  // The limiting phase's figures stand for the read direction.
  EXPECT_NE(text.find(R"("ReadBW": 10,
      "WriteBW": 200,)"),
            std::string::npos);
  EXPECT_NE(text.find(R"(      "PhaseGroups": [
        {
          "Name": "G",
          "Phases": [
            {
              "Name": "A",
              "ReadBW": 10,
              "WriteBW": 20,
              "ReadAchievedBW": 8,
              "WriteAchievedBW": -1
            })"),
            std::string::npos);
  EXPECT_NE(text.find(R"("RequiredBW": 10,
          "AchievedBW": 6,
          "RequiredLatency": 9,
          "AchievedLatency": 2,
          "PhaseGroups": [
            {
              "Name": "G",
              "Phases": [
                {
                  "Name": "A",
                  "RequiredBW": 10,
                  "AchievedBW": 6
                })"),
            std::string::npos);
}

TEST_F(NOCJsonSolutionWriterTest, AWrittenSolutionReadsBackAndWritesTheSameBytes)
{
  const std::string first = write(true);
  CompRes reread(&device);
  std::istringstream in(first);
  EXPECT_TRUE(NOC::NOCJsonSolutionReader().readFromJsonFile(in, "solution.json", spec, reread,
                                                            status));
  std::ostringstream second;
  EXPECT_TRUE(
      NOC::NOCJsonSolutionWriter().writeToJsonFile(second, spec, reread, status, true));
  // The one-link write route is not in the file, so the write side is lost.
  EXPECT_EQ(reread.routes.size(), 2u);
  std::istringstream again(second.str());
  CompRes third(&device);
  NOC::NOCJsonSolutionReader().readFromJsonFile(again, "solution.json", spec, third, status);
  std::ostringstream last;
  NOC::NOCJsonSolutionWriter().writeToJsonFile(last, spec, third, status, true);
  EXPECT_EQ(last.str(), second.str());
}

TEST_F(NOCJsonSolutionWriterTest, ADocumentFailingTheSchemaLeavesTheFileUpToTheFailingValue)
{
  const ScopedSchema schema("parts/tarnel/common/noc/schemas/solution.json",
                            R"({"properties": {"Paths": {"items": {"properties": {
                  "ToLocked": {"enum": [true]}}}}}})");
  const TempDir dir;
  EXPECT_FALSE(NOC::NOCJsonSolutionWriter().writeToJsonFile(dir.file("out.json"), spec, result,
                                                            status, false));
  EXPECT_EQ(readFile(dir.file("out.json")), pathHead);
  expectSent({{"@75-585@%s", ComMsgMgr::Error, {"NoC Solution"}}});
}

TEST(NOCJsonSolutionWriterNames, VirtualNameIsTheFirstConnectionInScope)
{
  TrafficSpec spec;
  const TrafficLInst* instance =
      spec.addLogicalInstance("x", Defs::AXI_MM, Defs::PL_NMU, {{}, {"a", "b"}, {"c"}});
  HIPLogicalObjectNameResolverInterfaceIdentity identity;
  EXPECT_EQ(NOC::NOCJsonSolutionWriter::getVirtualININame(instance, identity), "a");
  const TrafficLInst* alone = spec.addLogicalInstance("y", Defs::AXI_MM, Defs::PL_NMU, {});
  EXPECT_EQ(NOC::NOCJsonSolutionWriter::getVirtualININame(alone, identity), "");
}

}  // namespace
