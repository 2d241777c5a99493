#include "CompRes.h"
#include "Constraints.h"
#include "HDGUIStatus.h"
#include "HIPLogicalObjectNameResolverInterfaceIdentity.h"
#include "NOCModel.h"
#include "TrafficSpec.h"

#include <gtest/gtest.h>

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

TEST(TrafficModelTest, AddressRangesMergeAndCompare)
{
  TrafficLInst a("a", Defs::AXI_MM, Defs::PL_NSU, {});
  TrafficLInst b("b", Defs::AXI_MM, Defs::PL_NSU, {});
  a.addSysAddress({0x1000, 0x1000});
  a.addSysAddress({0x2000, 0x1000});
  a.addSysAddress({0x9000, 0});
  b.addSysAddress({0x1000, 0x2000});
  EXPECT_EQ(a.getSysAddrSize(2), 0u);
  EXPECT_FALSE(a.hasValidSysAddress(-1));
  EXPECT_EQ(a.getSysAddressRanges(), b.getSysAddressRanges());
  std::map<TrafficAddressSpace::AddressRanges, int> byRanges{{a.getSysAddressRanges(), 1}};
  EXPECT_EQ(byRanges.count(b.getSysAddressRanges()), 1u);
}

TEST(TrafficModelTest, DeviceFindsComponentsAndLinksByName)
{
  DevHrdIP::NOCModel noc;
  Component* nmu = noc.addComponent("NMU_0", Defs::PL_NMU, Component::MASTER_SIDE);
  Component* mc = noc.addComponent("MC_0", Defs::DDRC, Component::SLAVE_SIDE);
  Component* port = noc.addSubComponent(*mc, "MC_0_PORT1", Defs::DDRC_NSU, Component::SLAVE_SIDE);
  EXPECT_EQ(noc.addComponent("NMU_0", Defs::NPS, Component::NO_SIDE), nullptr);
  const DevHrdIP::Link* link = noc.addLink(*nmu, "OUT", *port, "IN");
  EXPECT_EQ(noc.addLink(*nmu, "OUT", *port, "IN"), link);
  EXPECT_EQ(noc.getComponent("MC_0_PORT1"), port);
  EXPECT_EQ(noc.getComponent("nope"), nullptr);
  EXPECT_EQ(noc.getAllTopLevelComponents(), (std::vector<Component*>{nmu, mc}));
  EXPECT_EQ(mc->getSubComponents(), std::vector<const Component*>{port});
  EXPECT_EQ(noc.getLinkBetween("NMU_0", "OUT", "MC_0_PORT1", "IN"), link);
  EXPECT_EQ(noc.getLinkBetween("MC_0_PORT1", "IN", "NMU_0", "OUT"), nullptr);
  EXPECT_EQ(noc.getLinkBetween("NMU_0", "OUTM", "C_0_PORT1", "IN"), nullptr);
}

TEST(TrafficModelTest, SolutionKeepsRoutesPlacementsAndDestIds)
{
  TrafficSpec spec;
  TrafficLInst* master = spec.addLogicalInstance("m", Defs::AXI_MM, Defs::PL_NMU, {});
  TrafficLInst* slave = spec.addLogicalInstance("s", Defs::AXI_MM, Defs::PL_NSU, {});
  const TrafficPath* path = spec.addPath(master, slave);
  DevHrdIP::NOCModel noc;
  const Component* a = noc.addComponent("A", Defs::PL_NMU, Component::MASTER_SIDE);
  const Component* b = noc.addComponent("B", Defs::PL_NMU, Component::MASTER_SIDE);
  const DevHrdIP::Link* link = noc.addLink(*a, "p", *b, "q");

  CompRes result;
  EXPECT_FALSE(result.isLocked(path));
  result.addRoute(path->getNet(0), {link, link}, 2, 300, false);
  result.addRouteWithPhases(path->getNet(1), {link}, {{"P", 10}}, 1, 20, "P", true);
  EXPECT_EQ(result.getRouteForNet(path->getNet(0))->getStructLatency(), 2u);
  EXPECT_EQ(result.getRouteForNet(path->getNet(1))->getAchievedPhaseBW("P"), 10u);
  EXPECT_EQ(result.getRouteForNet(path->getNet(1))->getAchievedPhaseBW("Q"), 20u);
  EXPECT_EQ(result.getRouteForNet(path->getNet(2)), nullptr);
  EXPECT_TRUE(result.isLocked(path));

  EXPECT_FALSE(result.lockLogicalInst(master));
  result.addPlacement(master, a);
  result.addPlacement(master, b);  // the first placement stays
  EXPECT_TRUE(result.lockLogicalInst(master));
  EXPECT_EQ(result.placements.at(master), CompRes::Placement(a, true));
  EXPECT_EQ(result.placedInstances.count(b), 0u);

  result.setDestIdForComponent(a, CompRes::DestId(0x1FFF));
  EXPECT_TRUE(result.hasDestIdForComponent(a));
  EXPECT_EQ(result.getDestIdForComponent(a).getValue(), 0xFFF);
  EXPECT_EQ(result.getDestIdForComponent(b).getValue(), 0);

  Constraints constraints;
  EXPECT_TRUE(constraints.addPlacementConst(slave, {b}, true));
  EXPECT_FALSE(constraints.addPlacementConst(slave, {a}, false));
  std::vector<const Component*> components;
  bool isSoft = false;
  constraints.getPlacementConst(slave, components, isSoft);
  EXPECT_EQ(components, std::vector<const Component*>{b});
  EXPECT_TRUE(isSoft);
}

TEST(TrafficModelTest, IdentityResolverKeepsNamesAndHasNoScope)
{
  const HIPLogicalObjectNameResolverInterfaceIdentity identity;
  std::vector<std::string> names{"x"};
  EXPECT_EQ(identity.resolveLogicalInstanceNames("a/b", names), 2u);
  EXPECT_EQ(identity.resolveLogicalInstanceScopedNames("c", names), 3u);
  EXPECT_EQ(names, (std::vector<std::string>{"x", "a/b", "c"}));
  EXPECT_EQ(identity.resolveLogicalInstancePropertyValuedScoped("p"), "p");
  EXPECT_TRUE(identity.isPropertyValueWithinScope("anything"));
  std::string scope = "kept";
  EXPECT_FALSE(identity.getScopeName(scope));
  EXPECT_EQ(scope, "kept");
}

}  // namespace
