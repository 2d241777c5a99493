#include "LogicalArchWriterModelRenamer.h"
#include "ZXLogicalArchModel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace IPConfig::Frameworks;
using Connection = ZXLogicalConnection;

ZXLogicalArchLInst* addInstance(ZXLogicalArchModel& model, ZXLogicalInstanceType kind,
                                const std::string& name)
{
  if (kind == ZX_INSTANCE)
    return model.addZXIPInstance(name);
  if (kind == NOC_INSTANCE)
    return model.addNOCIPInstance(name);
  return model.addPLIPInstance(name);
}

// A port of `instance` used as the source of a new connection.
ZXLogicalPort* addConnectedPort(ZXLogicalArchModel& model, ZXLogicalArchLInst& instance,
                                const std::string& name, ZXLogicalPort::PortType type,
                                Connection::Direction direction)
{
  ZXLogicalPort* port = instance.addPort(name);
  port->portType = type;
  Connection* connection = model.addLogicalConnection(instance.name + "/" + name);
  connection->connectionDirection = direction;
  connection->srcPort = port;
  port->connection = connection;
  return port;
}

const auto S = ZXLogicalPort::STREAM;
const auto M = ZXLogicalPort::MEM;
const auto E = ZXLogicalPort::EVENT;
const auto U = ZXLogicalPort::UNSET_PORT_TYPE;

TEST(LogicalArchWriterModelRenamerTest, NamesTwoPortsOfOneFamily)
{
  const struct {
    ZXLogicalInstanceType kind;
    bool useAxiPortNames;
    Connection::Direction direction;
    ZXLogicalPort::PortType type;
    std::string first;  // the names of two such ports of one instance; "a" and "b" are kept
    std::string second;
  } cases[] = {
      {PL_INSTANCE, false, Connection::UNSET_DIRECTION, U, "port0", "port1"},
      {PL_INSTANCE, true, Connection::PL_TO_ZX, S, "port0", "port1"},
      {NOC_INSTANCE, false, Connection::ZX_TO_NOC, S, "S00_AXIS", "S01_AXIS"},
      {NOC_INSTANCE, false, Connection::ZX_TO_NOC, M, "S00_AXI", "S01_AXI"},
      {NOC_INSTANCE, true, Connection::PL_TO_NOC, S, "S00_AXIS", "S01_AXIS"},
      {NOC_INSTANCE, false, Connection::PL_TO_NOC, M, "S00_AXI", "S01_AXI"},
      {NOC_INSTANCE, false, Connection::NOC_TO_ZX, S, "M00_AXIS", "M01_AXIS"},
      {NOC_INSTANCE, false, Connection::NOC_TO_ZX, M, "M00_AXI", "M01_AXI"},
      {NOC_INSTANCE, false, Connection::NOC_TO_PL, S, "M00_AXIS", "M01_AXIS"},
      {NOC_INSTANCE, true, Connection::NOC_TO_PL, M, "M00_AXI", "M01_AXI"},
      {NOC_INSTANCE, false, Connection::NOC_TO_NOC, S, "a", "b"},
      {NOC_INSTANCE, false, Connection::ZX_TO_PL, M, "a", "b"},
      {NOC_INSTANCE, false, Connection::ZX_TO_NOC, E, "a", "b"},
      {ZX_INSTANCE, false, Connection::ZX_TO_PL, S, "ZX_PL_AXIS_0", "ZX_PL_AXIS_1"},
      {ZX_INSTANCE, false, Connection::ZX_TO_PL, M, "ZX_PL_AXI_0", "ZX_PL_AXI_1"},
      {ZX_INSTANCE, false, Connection::PL_TO_ZX, S, "PL_ZX_AXIS_0", "PL_ZX_AXIS_1"},
      {ZX_INSTANCE, false, Connection::PL_TO_ZX, M, "PL_ZX_AXI_0", "PL_ZX_AXI_1"},
      {ZX_INSTANCE, false, Connection::ZX_TO_NOC, S, "ZX_NOC_AXIS_0", "ZX_NOC_AXIS_1"},
      {ZX_INSTANCE, false, Connection::ZX_TO_NOC, M, "ZX_NOC_AXI_0", "ZX_NOC_AXI_1"},
      {ZX_INSTANCE, false, Connection::NOC_TO_ZX, S, "NOC_ZX_AXIS_0", "NOC_ZX_AXIS_1"},
      {ZX_INSTANCE, false, Connection::NOC_TO_ZX, M, "NOC_ZX_AXI_0", "NOC_ZX_AXI_1"},
      {ZX_INSTANCE, true, Connection::ZX_TO_PL, S, "M00_AXIS", "M01_AXIS"},
      {ZX_INSTANCE, true, Connection::ZX_TO_PL, M, "M00_AXI", "M01_AXI"},
      {ZX_INSTANCE, true, Connection::PL_TO_ZX, S, "S00_AXIS", "S01_AXIS"},
      {ZX_INSTANCE, true, Connection::PL_TO_ZX, M, "S00_AXI", "S01_AXI"},
      {ZX_INSTANCE, true, Connection::ZX_TO_NOC, S, "M00_AXIS", "M01_AXIS"},
      {ZX_INSTANCE, true, Connection::ZX_TO_NOC, M, "M00_AXI", "M01_AXI"},
      {ZX_INSTANCE, true, Connection::NOC_TO_ZX, S, "S00_AXIS", "S01_AXIS"},
      {ZX_INSTANCE, true, Connection::NOC_TO_ZX, M, "S00_AXI", "S01_AXI"},
      {ZX_INSTANCE, true, Connection::PL_TO_PL, S, "a", "b"},
      {ZX_INSTANCE, false, Connection::NOC_TO_PL, M, "a", "b"},
      {ZX_INSTANCE, false, Connection::ZX_TO_PL, E, "a", "b"},
      {ZX_INSTANCE, true, Connection::ZX_TO_NOC, U, "a", "b"}};
  for (const auto& c : cases) {
    SCOPED_TRACE("kind " + std::to_string(c.kind) + (c.useAxiPortNames ? " axi" : "") +
                 " direction " + std::to_string(c.direction) + " type " +
                 std::to_string(c.type) + " -> " + c.first);
    ZXLogicalArchModel model;
    ZXLogicalArchLInst* instance = addInstance(model, c.kind, "i");
    ZXLogicalPort* a = addConnectedPort(model, *instance, "a", c.type, c.direction);
    ZXLogicalPort* b = addConnectedPort(model, *instance, "b", c.type, c.direction);
    model.renameLogicalArchPortNames(c.useAxiPortNames);
    EXPECT_EQ(a->name, c.first);
    EXPECT_EQ(b->name, c.second);
    EXPECT_EQ(instance->getLogicalPort(c.second), b);
  }
}

TEST(LogicalArchWriterModelRenamerTest, SequencesAreSharedOrSeparateByFlagAndHeldPerInstance)
{
  for (const bool axi : {true, false}) {
    ZXLogicalArchModel model;
    ZXLogicalZXIPInstance* first = model.addZXIPInstance("first");
    ZXLogicalZXIPInstance* second = model.addZXIPInstance("second");
    ZXLogicalPort* toPl = addConnectedPort(model, *first, "a", S, Connection::ZX_TO_PL);
    ZXLogicalPort* toNoc = addConnectedPort(model, *first, "b", S, Connection::ZX_TO_NOC);
    ZXLogicalPort* unused = first->addPort("c");
    unused->portType = S;
    ZXLogicalPort* other = addConnectedPort(model, *second, "d", S, Connection::ZX_TO_PL);
    model.renameLogicalArchPortNames(axi);
    EXPECT_EQ(toPl->name, axi ? "M00_AXIS" : "ZX_PL_AXIS_0");
    EXPECT_EQ(toNoc->name, axi ? "M01_AXIS" : "ZX_NOC_AXIS_0");
    EXPECT_EQ(unused->name, "c");
    EXPECT_EQ(other->name, axi ? "M00_AXIS" : "ZX_PL_AXIS_0");
    model.renameLogicalArchPortNames(axi);  // fresh counters: the same names again
    EXPECT_EQ(toNoc->name, axi ? "M01_AXIS" : "ZX_NOC_AXIS_0");
  }
}

TEST(LogicalArchWriterModelRenamerTest, TwoDigitPaddingDoesNotCut)
{
  ZXLogicalArchModel model;
  ZXLogicalNOCIPInstance* noc = model.addNOCIPInstance("noc");
  std::vector<ZXLogicalPort*> ports;
  for (int i = 0; i < 101; ++i)
    ports.push_back(
        addConnectedPort(model, *noc, std::to_string(i), M, Connection::PL_TO_NOC));
  model.renameLogicalArchPortNames(false);
  EXPECT_EQ(ports[9]->name, "S09_AXI");
  EXPECT_EQ(ports[99]->name, "S99_AXI");
  EXPECT_EQ(ports[100]->name, "S100_AXI");
}

TEST(LogicalArchWriterModelRenamerTest, KeepsTheNameOfAPortWithoutOwner)
{
  ZXLogicalPort loose("loose");
  EXPECT_EQ(LogicalArchWriterModelRenamer(true).rename(&loose), "loose");
}

}  // namespace
