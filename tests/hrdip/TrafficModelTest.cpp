#include "CompRes.h"
#include "Constraints.h"
#include "HDGUIStatus.h"
#include "NOCModel.h"
#include "TrafficSpec.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace HrdIPToolCntr;
namespace Defs = DevHrdIP::Definitions;
using DevHrdIP::Component;

TEST(TrafficModelTest, InstancesFallIntoTablesByTheirType)
{
  struct Row {
    Defs::COMP_TYPE type;
    TrafficLInst::Kind kind;
  };
  const auto master = TrafficLInst::Kind::master;
  const auto slave = TrafficLInst::Kind::slave;
  const auto other = TrafficLInst::Kind::other;
  const Row rows[] = {
      {Defs::PL_NMU, master}, {Defs::SVIP_NMU256_2, master}, {Defs::PS_RPU, master},
      {Defs::QPE_TO_NOC_AXIMM, master}, {Defs::PL_NSU, slave}, {Defs::DDRC, slave},
      {Defs::HBMMC_3, slave}, {Defs::DDR_0, slave}, {Defs::NOC_TO_QPE_AXIMM, slave},
      {Defs::NPS, other}, {Defs::QPE_PL_SHIM, other}, {Defs::ZX_CORE, other},
  };
  TrafficSpec spec;
  for (const Row& row : rows) {
    const std::string name = Defs::toStr(row.type);
    TrafficLInst* added = spec.addLogicalInstance(name, Defs::AXI_MM, row.type, {});
    EXPECT_EQ(TrafficLInst::kindOf(row.type), row.kind) << name;
    EXPECT_EQ(added->isMaster, row.kind == master) << name;
    EXPECT_EQ(spec.getLogicalMaster(name) == added, row.kind == master);
    EXPECT_EQ(spec.getLogicalSlave(name) == added, row.kind == slave);
    EXPECT_EQ(spec.getOthers().count(name), row.kind == other ? 1u : 0u);
    // Adding a name again gives the instance already there.
    EXPECT_EQ(spec.addLogicalInstance(name, Defs::AXI_STRM, row.type, {}), added);
  }
  std::vector<const TrafficLInst*> all;
  spec.getAllLogicalInstance(all);
  ASSERT_EQ(all.size(), std::size(rows));
  EXPECT_EQ(all.front()->name, "PL_NMU");  // in the order added
  spec.createNonTrafficSpecLogicalInstance("x", Defs::AXI_MM, Defs::PL_NSU, {});
  EXPECT_EQ(spec.getLogicalSlave("x"), nullptr);
}

TEST(TrafficModelTest, PathsMakeTheNetsTheirTrafficNeeds)
{
  TrafficSpec spec;
  TrafficLInst* mm = spec.addLogicalInstance("mm", Defs::AXI_MM, Defs::PL_NMU, {{"ext"}});
  TrafficLInst* strm = spec.addLogicalInstance("st", Defs::AXI_STRM, Defs::QPE_NMU, {});
  TrafficLInst* slave = spec.addLogicalInstance("s", Defs::AXI_MM, Defs::PL_NSU, {});
  TrafficPath* first = spec.addPath(mm, slave);
  spec.addPath(strm, slave);
  spec.addPath(mm, slave);
  ASSERT_EQ(first->getNumNets(), 4);
  const TrafficNet* read = first->getNet(0);
  EXPECT_EQ(read->type, TrafficNet::READ);
  EXPECT_EQ(read->instance, slave);
  EXPECT_EQ(first->getNet(2)->type, TrafficNet::READ_REQ);
  EXPECT_EQ(first->getNet(2)->instance, mm);
  EXPECT_EQ(first->getNet(4), nullptr);
  EXPECT_EQ(spec.getPath(1)->getNet(0)->type, TrafficNet::WRITE);
  EXPECT_EQ(spec.getPath(1)->getNumNets(), 1);
  const std::vector<TrafficNet*> nets = spec.getNets(mm, slave);
  ASSERT_EQ(nets.size(), 8u);
  EXPECT_EQ(nets[4]->path, spec.getPath(2));
  EXPECT_TRUE(spec.getNets(slave, mm).empty());
  EXPECT_EQ(spec.getLogicalMasterUsingExternalConns("ext"), mm);
  EXPECT_EQ(spec.getLogicalSlaveUsingExternalConns("ext"), nullptr);
}

TEST(TrafficModelTest, PhasesAreNumberedPerGroupAndFallBackToThePlainFigures)
{
  TrafficSpec spec;
  TrafficLInst* master = spec.addLogicalInstance("m", Defs::AXI_MM, Defs::PL_NMU, {});
  TrafficLInst* slave = spec.addLogicalInstance("s", Defs::AXI_MM, Defs::PL_NSU, {});
  TrafficPath* path = spec.addPath(master, slave);
  path->setReadPerfSpec({Defs::BE, 100, 7});
  EXPECT_EQ(path->phaseGroupName, DEFAULT_GROUP);
  path->setReadPerfSpec(DEFAULT_GROUP, DEFAULT_PHASE, {Defs::BE, 100, 7});
  EXPECT_FALSE(path->hasMultipleReadPhases());  // the default phase is the plain figures
  path->setReadPerfSpec("A", "a2", {Defs::BE, 0, 7});
  path->setReadPerfSpec("A", "a1", {Defs::BE, 50, 7});
  path->setReadPerfSpec("B", "b1", {Defs::BE, 60, 7});
  path->setReadPerfSpec("B", "a2", {Defs::BE, 0, 7});
  EXPECT_EQ(spec.phaseGroupNames, (std::vector<std::string>{DEFAULT_GROUP, "A", "B"}));
  EXPECT_EQ(spec.getPhaseNumber("a2"), 0u);
  EXPECT_EQ(spec.getPhaseNumber("a1"), 1u);
  EXPECT_EQ(spec.getPhaseNumber("b1"), 0u);
  EXPECT_EQ(spec.getPhaseNumber("zz"), TrafficSpec::noPhase);
  EXPECT_TRUE(spec.getAllPhasesForPhaseGroup("none")->empty());
  EXPECT_TRUE(path->hasMultipleReadPhases());
  EXPECT_FALSE(path->hasMultipleWritePhases());
  EXPECT_EQ(path->phaseGroupName, "B");

  const TrafficNet& read = *path->getNet(0);
  EXPECT_EQ(read.getPerfSpec(spec.getPhaseNumber("b1")).bandwidth, 60u);
  EXPECT_EQ(read.getPerfSpec(5).bandwidth, 100u);
  EXPECT_EQ(read.getEffectiveBw(80, "a2"), 0u);
  EXPECT_EQ(read.getEffectiveBw(80, "a1"), 80u);
  EXPECT_EQ(read.getEffectiveBw(80, "zz"), 80u);
  EXPECT_EQ(path->getNet(1)->getEffectiveBw(80, "zz"), 0u);  // writes ask for nothing
}

TEST(TrafficModelTest, ErrorSlavesAreAddedForMemoryMappedMasters)
{
  TrafficSpec spec;
  EXPECT_FALSE(spec.addErrorSlaveAndRoutes());
  TrafficLInst* cpu = spec.addLogicalInstance("cpu", Defs::AXI_MM, Defs::PS_NMU_2, {});
  spec.addLogicalInstance("st", Defs::AXI_STRM, Defs::PL_NMU, {});
  TrafficLInst* slave = spec.addLogicalInstance("s", Defs::AXI_MM, Defs::PL_NSU, {});
  spec.addPath(cpu, slave)->highPriorityRouting = true;
  EXPECT_TRUE(spec.addErrorSlaveAndRoutes());
  EXPECT_TRUE(spec.addErrorSlaveAndRoutes());
  ASSERT_TRUE(spec.hasErrorSlave());
  const TrafficLInst* errorSlave = spec.getLogicalSlave(TrafficSpec::getErrorSlaveName());
  const TrafficLInst* hpSlave = spec.getLogicalSlave(TrafficSpec::getErrorSlaveName_hp());
  ASSERT_NE(hpSlave, nullptr);
  EXPECT_TRUE(errorSlave->isErrorSlave() && hpSlave->isErrorSlave());
  EXPECT_FALSE(slave->isErrorSlave());
  ASSERT_EQ(spec.getNumPaths(), 3);
  EXPECT_EQ(spec.getPath(1)->slave, errorSlave);
  EXPECT_EQ(spec.getPath(2)->slave, hpSlave);
  EXPECT_TRUE(spec.getPath(2)->highPriorityRouting);
}

// Paths live wherever the allocator puts them, which differs from run to
// run; the routes must not follow that.
TEST(TrafficModelTest, RoutesWalkInTheModelsOrderOfNets)
{
  TrafficSpec spec;
  TrafficLInst* mm = spec.addLogicalInstance("mm", Defs::AXI_MM, Defs::PL_NMU, {});
  TrafficLInst* strm = spec.addLogicalInstance("st", Defs::AXI_STRM, Defs::QPE_NMU, {});
  TrafficLInst* slave = spec.addLogicalInstance("s", Defs::AXI_MM, Defs::PL_NSU, {});
  std::vector<const TrafficNet*> modelOrder;
  for (int index = 0; index < 300; ++index) {
    const TrafficPath* path = spec.addPath(index % 3 == 0 ? strm : mm, slave);
    for (int net = 0; net < path->getNumNets(); ++net)
      modelOrder.push_back(path->getNet(net));
  }
  CompRes result;
  for (auto net = modelOrder.rbegin(); net != modelOrder.rend(); ++net)
    result.addRoute(*net, {}, 0, 0, false);

  std::vector<const TrafficNet*> walked;
  for (const auto& entry : result.routes)
    walked.push_back(entry.first);
  EXPECT_EQ(walked, modelOrder);

  // A net of another model at the same place is a route of its own.
  TrafficSpec other;
  const TrafficPath* twin = other.addPath(
      other.addLogicalInstance("mm", Defs::AXI_MM, Defs::PL_NMU, {}),
      other.addLogicalInstance("s", Defs::AXI_MM, Defs::PL_NSU, {}));
  result.addRoute(twin->getNet(0), {}, 3, 0, false);
  EXPECT_EQ(result.routes.size(), modelOrder.size() + 1);
  EXPECT_EQ(result.getRouteForNet(twin->getNet(0))->vc, 3);
  EXPECT_EQ(result.getRouteForNet(modelOrder[0])->vc, 0);
}

}  // namespace
