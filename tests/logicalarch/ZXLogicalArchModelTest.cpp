#include "ZXLogicalArchModel.h"
#include "ZXLogicalArchModelRenameInterface.h"
#include "ZXLogicalArchModelVisitorInterface.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using namespace IPConfig::Frameworks;

// Appends a suffix to every port and connection name.
class SuffixRenamer : public ZXLogicalArchModelRenameInterface {
public:
  std::string rename(ZXLogicalPort* port) override { return port->name += "_r"; }
  std::string rename(ZXLogicalConnection* connection) override { return connection->name; }
  std::string rename(ZXLogicalArchLInst* instance) override { return instance->name; }
  std::string rename(ZXLogicalArchModel*) override { return {}; }
};

// Records the names of what it visits, in order.
class RecordingVisitor : public ZXLogicalArchModelVisitorInterface {
public:
  void visit(ZXLogicalPort* port) const override { seen.push_back("port " + port->name); }
  void visit(ZXLogicalConnection* c) const override { seen.push_back("connection " + c->name); }
  void visit(ZXLogicalArchLInst* instance) const override { seen.push_back(instance->name); }
  void visit(ZXLogicalArchModel*) const override { seen.push_back("model"); }

  mutable std::vector<std::string> seen;
};

ZXLogicalConnection* connect(ZXLogicalArchModel& model, const std::string& name,
                             ZXLogicalPort* source, std::vector<ZXLogicalPort*> destinations)
{
  ZXLogicalConnection* connection = model.addLogicalConnection(name);
  connection->srcPort = source;
  source->connection = connection;
  connection->dstPorts = destinations;
  for (ZXLogicalPort* port : destinations)
    port->connection = connection;
  return connection;
}

TEST(ZXLogicalArchLInstTest, PortLookupsKeepTheirFirstAndLastMatches)
{
  ZXLogicalArchModel model;
  ZXLogicalZXIPInstance* array = model.addZXIPInstance("array");
  ZXLogicalPort* first = array->addPort("p");
  ZXLogicalPort* second = array->addPort("p");
  ZXLogicalPort* other = array->addPort("q");
  EXPECT_EQ(array->getPorts().size(), 3u);
  EXPECT_EQ(array->getLogicalPort("p"), second);
  EXPECT_EQ(array->getLogicalPortByName("p"), first);
  EXPECT_EQ(model.addShimPort("p", array), nullptr);

  // A rename moves the names; the lookups follow the current names.
  SuffixRenamer renamer;
  other->rename(renamer);
  EXPECT_EQ(array->getLogicalPortByName("q_r"), other);
  EXPECT_EQ(array->getLogicalPortByName("q"), nullptr);
  model.rename(renamer);
  EXPECT_EQ(array->getLogicalPortByName("p_r"), first);
  EXPECT_EQ(array->getLogicalPort("p_r"), second);
  EXPECT_EQ(array->getLogicalPort("q_r_r"), other);
  EXPECT_EQ(first->owner, array);
}

TEST(ZXLogicalArchLInstTest, AnnotationSearchesTrySoftwareFirstAndTheSmallestAnnotation)
{
  ZXLogicalArchModel model;
  ZXLogicalPLIPInstance* kernel = model.addPLIPInstance("k");
  ZXLogicalPort* hw = model.addPLPort("hw", kernel);
  ZXLogicalPort* sw = model.addPLPort("sw", kernel);
  hw->hw_annotation = "x";
  sw->annotation = {"x"};
  EXPECT_EQ(kernel->getLogicalPortBySWOrHWAnnotation("x"), sw);
  EXPECT_EQ(kernel->getLogicalPortByHWAnnotation("x"), hw);

  ZXLogicalPort probe("probe");
  probe.annotation = {"x", "b"};
  probe.hw_annotation = "a";
  hw->annotation = {"b"};
  EXPECT_EQ(kernel->getEquivalentPortBySWOrHWAnnotation(&probe), hw);  // "a" finds none, then "b"
  hw->hw_annotation = "a";
  sw->annotation = {"a"};
  EXPECT_EQ(kernel->getEquivalentPortBySWOrHWAnnotation(&probe), sw);
}

TEST(ZXLogicalArchModelTest, AddsRefuseKnownNamesButConnectionsWaitForARename)
{
  ZXLogicalArchModel model;
  model.setAppId("app");
  ASSERT_NE(model.addPLIPInstance("a"), nullptr);
  EXPECT_EQ(model.addNOCIPInstance("a"), nullptr);
  EXPECT_EQ(model.getLogicalInstance("a")->getKind(), PL_INSTANCE);

  ZXLogicalConnection* one = model.addLogicalConnection("c");
  ZXLogicalConnection* two = model.addLogicalConnection("c");
  ASSERT_NE(two, nullptr);
  EXPECT_NE(one, two);
  EXPECT_FALSE(model.hasLogicalConnection("c"));
  SuffixRenamer renamer;
  model.rename(renamer);
  EXPECT_EQ(model.getLogicalConnection("c"), two);
  EXPECT_EQ(model.addLogicalConnection("c"), nullptr);

  model.clear();
  EXPECT_TRUE(model.isEmpty());
  EXPECT_EQ(model.getAppId(), "app");
  EXPECT_FALSE(model.hasLogicalInstance("a"));
}

TEST(ZXLogicalArchModelTest, AcceptReachesPortsOnlyThroughConnections)
{
  ZXLogicalArchModel model;
  ZXLogicalPLIPInstance* kernel = model.addPLIPInstance("k");
  ZXLogicalPort* out = model.addPLPort("out", kernel);
  ZXLogicalPort* in = model.addPLPort("in", kernel);
  model.addPLPort("idle", kernel);
  connect(model, "c1", out, {in});
  ZXLogicalConnection* last = connect(model, "c2", in, {});
  RecordingVisitor visitor;
  model.accept(visitor);
  EXPECT_EQ(visitor.seen,
            (std::vector<std::string>{"k", "port out", "port in", "connection c1", "port in",
                                      "connection c2", "model"}));
  EXPECT_EQ(in->connection, last);
}

TEST(ZXLogicalArchModelTest, CopyClonesEverythingAndRelinksThePorts)
{
  ZXLogicalArchModel source;
  source.setDevice("dev");
  ZXLogicalNOCIPInstance* noc = source.addNOCIPInstance("noc");
  noc->type = ZXLogicalNOCIPInstance::STREAM;
  noc->hw_annotation = "hw";
  ZXLogicalPort* from = source.addNOCPort("from", noc);
  ZXLogicalPort* to = source.addNOCPort("to", noc);
  from->busWidth = 64;
  from->annotation = {"a"};
  ZXLogicalConnection* connection = connect(source, "c", from, {to});
  connection->memMode = ZXLogicalConnection::READ_WRITE;
  source.addPLIPInstance("k")->ckernelName = "ck";

  ZXLogicalArchModel target;
  target.setAppId("replaced");
  ASSERT_TRUE(target.canCopy(source));  // the source's connection is not in its map
  ASSERT_TRUE(target.copy(source));
  EXPECT_EQ(target.getAppId(), "");
  EXPECT_EQ(target.getDevice(), "dev");
  const auto* kernel = dynamic_cast<ZXLogicalPLIPInstance*>(target.getLogicalInstance("k"));
  ASSERT_NE(kernel, nullptr);
  EXPECT_EQ(kernel->ckernelName, "ck");
  const auto* copied = dynamic_cast<ZXLogicalNOCIPInstance*>(target.getLogicalInstance("noc"));
  ASSERT_NE(copied, nullptr);
  EXPECT_NE(copied, noc);
  EXPECT_EQ(copied->type, ZXLogicalNOCIPInstance::STREAM);
  EXPECT_EQ(copied->hw_annotation, "hw");
  ZXLogicalConnection* copiedConnection = target.getLogicalConnection("c");
  ASSERT_NE(copiedConnection, nullptr);
  EXPECT_EQ(copiedConnection->memMode, ZXLogicalConnection::READ_WRITE);
  const ZXLogicalPort* copiedFrom = copied->getLogicalPort("from");
  EXPECT_EQ(copiedConnection->srcPort, copiedFrom);
  EXPECT_EQ(copiedFrom->owner, copied);
  EXPECT_EQ(copiedFrom->busWidth, 64u);
  EXPECT_EQ(copiedFrom->annotation, from->annotation);
  EXPECT_EQ(copiedFrom->connection, copiedConnection);
  EXPECT_EQ(copiedConnection->dstPorts, std::vector<ZXLogicalPort*>{copied->getLogicalPort("to")});
  EXPECT_EQ(from->connection, connection);
  const std::unique_ptr<ZXLogicalArchLInst> clone(noc->clone());
  EXPECT_EQ(clone->getLogicalPort("from")->connection, nullptr) << "a clone's ports are unlinked";

  EXPECT_FALSE(target.canCopy(source));
  ZXLogicalArchModel clash;
  clash.addPLIPInstance("other");
  clash.addPLIPInstance("noc");
  EXPECT_FALSE(target.copy(clash));
  EXPECT_FALSE(target.hasLogicalInstance("other"));
}

}  // namespace
