#include "ConstrSupport.h"

#include "ColocatedDmaConstr.h"
#include "ColocatedMemoriesConstr.h"
#include "ColocatedNodesConstr.h"
#include "ColocatedPortsConstr.h"
#include "ConstrCast.h"

#include <sstream>

namespace {

using namespace constr_support;

using Query = void (ConstrHandler::*)(const std::string&, Names&) const;

// Relations stated on one side answer from both, each name once.
TEST(RelationQueryTest, AnswersFromBothSidesEachNameOnce)
{
  ConstrHandler handler;
  handler.addColocatedNodesConstr(Base::NODE, "a", {"b", "c"}, false);
  handler.addColocatedNodesConstr(Base::NODE, "a", {"d"}, true);
  handler.addColocatedNodesConstr(Base::NODE, "e", {"a", "b"}, false);
  handler.addColocatedNodesConstr(Base::NODE, "f", {"d"}, true);
  // A port that lists nodes: a relation of ports, not of nodes.
  handler.addColocatedNodesConstr(Base::PORT, "p", {"a"}, false);
  handler.addColocatedNodesConstr(Base::PORT, "p", {"x"}, true);
  handler.addColocatedPortsConstr(Base::PORT, "q", {"r"}, false);
  handler.addColocatedPortsConstr(Base::PORT, "r", {"q", "s"}, false);
  handler.addColocatedPortsConstr(Base::PORT, "r", {"t"}, true);
  handler.addExclusiveColocatedPortsConstr(Base::PORT, "q", {"u"});
  handler.addExclusiveColocatedPortsConstr(Base::PORT, "v", {"q"});
  handler.addColocatedDmaConstr(Base::PORT, "q", {"w"});
  handler.addColocatedDmaConstr(Base::PORT, "w2", {"w"});
  handler.addColocatedMemoriesConstr(Base::NODE, "a", {"m"}, false);
  handler.addColocatedMemoriesConstr(Base::NODE, "g", {"m"}, false);
  handler.addColocatedMemoriesConstr(Base::NODE, "g", {"n"}, true);
  handler.addColocatedMemoriesConstr(Base::PORT, "s", {"a"}, false);

  const struct {
    const char* label;
    Query query;
    std::string name;
    Names expected;
  } cases[] = {
      {"colocatedNodes", &ConstrHandler::getColocatedNodes, "a", {"b", "c", "e"}},
      {"colocatedNodes", &ConstrHandler::getColocatedNodes, "b", {"a", "e"}},
      {"colocatedNodes", &ConstrHandler::getColocatedNodes, "z", {}},
      {"notColocatedNodes", &ConstrHandler::getNotColocatedNodes, "d", {"a", "f"}},
      {"notColocatedNodes", &ConstrHandler::getNotColocatedNodes, "x", {}},
      {"colocatedPorts", &ConstrHandler::getColocatedPorts, "q", {"r"}},
      {"colocatedPorts", &ConstrHandler::getColocatedPorts, "s", {"r"}},
      {"colocatedPorts", &ConstrHandler::getColocatedPorts, "a", {"p", "s"}},
      {"notColocatedPorts", &ConstrHandler::getNotColocatedPorts, "t", {"r"}},
      {"notColocatedPorts", &ConstrHandler::getNotColocatedPorts, "x", {"p"}},
      {"exclusivePorts", &ConstrHandler::getExclusiveColocatedPorts, "q", {"u", "v"}},
      {"colocatedDma", &ConstrHandler::getColocatedDma, "w", {"q", "w2"}},
      {"colocatedDma", &ConstrHandler::getColocatedDma, "q", {"w"}},
      {"colocatedMemories", &ConstrHandler::getColocatedMemories, "m", {"a", "g"}},
      {"colocatedMemories", &ConstrHandler::getColocatedMemories, "a", {"m"}},
      {"notColocatedMemories", &ConstrHandler::getNotColocatedMemories, "n", {"g"}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.label) + "(" + c.name + ")");
    Names out;
    (handler.*c.query)(c.name, out);
    EXPECT_EQ(out, c.expected);
  }
}

TEST(RelationQueryTest, WithoutAListOfItsOwnTheObjectKeepsWhatOutHeld)
{
  ConstrHandler handler;
  handler.addColocatedNodesConstr(Base::NODE, "b", {"a"}, false);
  Names out{"held"};
  handler.getColocatedNodes("a", out);
  EXPECT_EQ(out, (Names{"held", "b"}));
  handler.addColocatedNodesConstr(Base::NODE, "a", {"c"}, false);
  handler.getColocatedNodes("a", out);
  EXPECT_EQ(out, (Names{"c", "b"}));
}

TEST(ColocationStoreTest, ThePortKindsRefuseOtherObjectsBeforeLookingAtTheName)
{
  ConstrHandler handler;
  const std::pair<std::function<void()>, const char*> refusals[] = {
      {[&] { handler.setColocatedPortsConstr(Base::NODE, "", {"a"}, false); },
       "setColocatedPortsConstr"},
      {[&] { handler.setExclusiveColocatedPortsConstr(Base::NET, "p", {"a"}); },
       "setExclusiveColocatedPortsConstr"},
      {[&] { handler.addColocatedPortsConstr(Base::NODE, "", {"a"}, true); },
       "addColocatedPortsConstr"},
      {[&] { handler.addExclusiveColocatedPortsConstr(Base::GLOBAL, "", {"a"}); },
       "addExclusiveColocatedPortsConstr"},
      {[&] { handler.setColocatedDmaConstr(Base::NODE, "", {"a"}); }, "setColocatedDmaConstr"},
      {[&] { handler.addColocatedDmaConstr(Base::NODE, "p", {"a"}); }, "addColocatedDmaConstr"},
      {[&] { handler.setFifoLocationsConstr(Base::NODE, "", {"r"}); }, "setFifoLocationsConstr"},
      {[&] { handler.addFifoLocationsConstr(Base::NET, "p", {"r"}); }, "addFifoLocationsConstr"},
  };
  for (const auto& [action, operation] : refusals)
    expectRefused(action, std::string("ConstrHandler::") + operation +
                              "() - objType must be PORT");
  EXPECT_TRUE(handler.empty());
  handler.addColocatedPortsConstr(Base::PORT, "", {"a"}, false);
  handler.setColocatedNodesConstr(Base::NODE, "", {"a"}, false);
  EXPECT_TRUE(handler.empty()) << "an empty name makes nothing";
}

TEST(ColocationStoreTest, AddMergesWithoutDuplicatesAndSetReplaces)
{
  ConstrHandler handler;
  handler.addColocatedNodesConstr(Base::PORT, "p", {"a", "b", "a"}, false);
  handler.addColocatedNodesConstr(Base::NODE, "p", {"b", "c"}, false);
  handler.addColocatedNodesConstr(Base::NODE, "p", {"d"}, true);
  ColocatedNodesConstr* nodes = handler.getColocatedNodesConstr("p");
  ASSERT_NE(nodes, nullptr);
  EXPECT_EQ(handler.size(), 1u);
  EXPECT_EQ(nodes->getObjType(), Base::PORT) << "the type of the first call stays";
  EXPECT_EQ(nodes->getNodeNames(), (Names{"a", "b", "c"}));
  EXPECT_EQ(nodes->getNotColocatedNodeNames(), (Names{"d"}));
  handler.setColocatedNodesConstr(Base::NODE, "p", {"e"}, false);
  EXPECT_EQ(nodes->getNodeNames(), (Names{"e"}));
  EXPECT_TRUE(nodes->containsColocatedNode("e") && !nodes->containsColocatedNode("a"));
  nodes->setNodeNames({});
  EXPECT_FALSE(nodes->hasColocatedNodes());
  EXPECT_EQ(written(*nodes), R"({"not_colocated_nodes":["d"]})");

  handler.addExclusiveColocatedPortsConstr(Base::PORT, "q", {"x"});
  handler.addExclusiveColocatedPortsConstr(Base::PORT, "q", {"y", "x"});
  EXPECT_EQ(handler.getColocatedPortsConstr("q")->getExclusiveColocatedPortNames(),
            (Names{"x", "y"}));
  handler.addColocatedDmaConstr(Base::PORT, "q", {"d1"});
  handler.addColocatedDmaConstr(Base::PORT, "q", {"d2", "d1"});
  EXPECT_EQ(handler.getColocatedDmaConstr("q")->getPortNames(), (Names{"d1", "d2"}));

  std::vector<ColocatedNodesConstr*> nodeKinds;
  std::vector<ColocatedPortsConstr*> portKinds{nullptr};
  std::vector<ColocatedMemoriesConstr*> memoryKinds{nullptr};
  handler.getConstrs(nodeKinds);
  handler.getConstrs(portKinds);
  handler.getConstrs(memoryKinds);
  EXPECT_EQ(nodeKinds, (std::vector<ColocatedNodesConstr*>{nodes}));
  EXPECT_EQ(portKinds.size(), 1u);
  EXPECT_TRUE(memoryKinds.empty());
}

TEST(ColocationStoreTest, SoftFlagsOfEachList)
{
  ColocatedPortsConstr ports(Base::PORT, "p");
  ports.setPortNames({"a", "b"});
  ports.setNotColocatedPortNames({"c"});
  ports.setExclusiveColocatedPortNames({"d", "e"});
  ports.setColocatedSoftPort("b", true);
  ports.setColocatedSoftPort("z", true);
  ports.setNotColocatedSoftPort("c", true);
  ports.setExclusiveColocatedSoftPort("e", true);
  ports.setExclusiveColocatedSoftPort("d", false);
  EXPECT_EQ(ports.getColocatedSoftPorts(), (Names{"b"})) << "a soft name not listed is not shown";
  EXPECT_TRUE(ports.isColocatedSoftPort("z"));
  EXPECT_TRUE(ports.isNotColocatedSoftPort("c") && !ports.isColocatedSoftPort("c"));
  EXPECT_EQ(ports.getExclusiveColocatedSoftPorts(), (Names{"e"}));
  EXPECT_EQ(ports.getNotColocatedSoftPorts(), (Names{"c"}));
  EXPECT_EQ(written(ports), R"({"colocated_ports":["a",{"b":{"issoft":true}}],)"
                            R"("not_colocated_ports":[{"c":{"issoft":true}}],)"
                            R"("exclusive_colocated_ports":["d",{"e":{"issoft":true}}]})");

  ColocatedMemoriesConstr memories(Base::NODE, "n");
  memories.setNodeNames({"m"});
  memories.setNotColocatedConstrObjectProperties("m2", ConstrProperties{false});
  memories.setNotColocatedNodeNames({"m2"});
  memories.setColocatedSoftNode("m", true);
  EXPECT_EQ(memories.getColocatedSoftNodes(), (Names{"m"}));
  EXPECT_FALSE(memories.isNotColocatedSoftNode("m2")) << "default properties are not kept";
  EXPECT_EQ(written(memories), R"({"colocated_reserved_memories":[{"m":{"issoft":true}}],)"
                               R"("not_colocated_reserved_memories":["m2"]})");
  EXPECT_EQ(memories.str(), " rel(n,colocated_memories)=(m,) rel(n,not_colocated_memories)=(m2,)");
}

TEST(ColocationStoreTest, WrittenNamesAreScopedAndTheNotListsKeepTheirOwnSourceLocation)
{
  ColocatedNodesConstr nodes(Base::NODE, "n");
  nodes.setNodeNames({"a", "gone"});
  nodes.setNotColocatedNodeNames({"b"});
  nodes.setColocatedSoftNode("a", true);
  nodes.getSrcInfo().set(SrcInfo::SourceFile, "f.cc", 1, 2);
  nodes.getNotColocatedSrcInfo().set(SrcInfo::SourceFile, "g.cc", 3, 4);
  Resolver resolver("top/", {"gone"});
  resolver.silence();
  EXPECT_EQ(written(nodes, &resolver),
            R"({"colocated_nodes":[{"top/a":{"issoft":true}}],)"
            R"("colocated_nodes_src_info":{"file":"f.cc","line":1,"column":2},)"
            R"("not_colocated_nodes":["top/b"],)"
            R"("not_colocated_nodes_src_info":{"file":"g.cc","line":3,"column":4}})");
  nodes.getNotColocatedSrcInfo().set(SrcInfo::UserJson, "g.cc", 3, 4);
  nodes.setNodeNames({"gone"});
  EXPECT_EQ(written(nodes, &resolver), R"({"not_colocated_nodes":["top/b"]})")
      << "no name left, no key and no location; a scanned location is not written";
}

TEST(ColocationStoreTest, CopyResolvesNamesAndSoftFlagsAndKeepsEachListsLocation)
{
  ConstrHandler from;
  from.addColocatedPortsConstr(Base::PORT, "p", {"a", "b*"}, false);
  from.addColocatedPortsConstr(Base::PORT, "p", {"c"}, true);
  from.addExclusiveColocatedPortsConstr(Base::PORT, "p", {"d"});
  ColocatedPortsConstr* source = from.getColocatedPortsConstr("p");
  source->setColocatedSoftPort("b*", true);
  source->setExclusiveColocatedSoftPort("d", true);
  source->getExclusiveSrcInfo().set(SrcInfo::SourceFile, "x.cc", 5, 6);
  from.addColocatedMemoriesConstr(Base::NODE, "n", {"m"}, true);
  from.getColocatedMemoriesConstr("n")->setNotColocatedSoftNode("m", true);
  from.getColocatedMemoriesConstr("n")->getNotColocatedSrcInfo().set(SrcInfo::SourceFile, "y", 1,
                                                                     1);
  from.addColocatedDmaConstr(Base::PORT, "p", {"gone"});

  ConstrHandler into;
  Resolver resolver("top/", {"gone"});
  resolver.silence();
  into.copy(from, resolver);
  const ColocatedPortsConstr* ports = into.getColocatedPortsConstr("top/p");
  ASSERT_NE(ports, nullptr);
  EXPECT_EQ(ports->getPortNames(), (Names{"top/a", "b0", "b1"}));
  EXPECT_EQ(ports->getColocatedSoftPorts(), (Names{"b0", "b1"})) << "the pattern's flag";
  EXPECT_EQ(ports->getNotColocatedPortNames(), (Names{"top/c"}));
  EXPECT_EQ(ports->getExclusiveColocatedSoftPorts(), (Names{"top/d"}));
  EXPECT_EQ(where(ports->getExclusiveSrcInfo()), "1 x.cc 5:6");
  const ColocatedMemoriesConstr* memories = into.getColocatedMemoriesConstr("top/n");
  ASSERT_NE(memories, nullptr);
  EXPECT_TRUE(memories->isNotColocatedSoftNode("top/m"));
  EXPECT_EQ(where(memories->getNotColocatedSrcInfo()), "1 y 1:1");
  EXPECT_EQ(into.getColocatedDmaConstr("top/p"), nullptr) << "no port left";
  EXPECT_EQ(into.size(), 2u);
}

TEST(ColocationStoreTest, RenamingPortsRenamesThePortListsButNotNodes)
{
  ConstrHandler handler;
  handler.addColocatedPortsConstr(Base::PORT, "p", {"a", "b"}, false);
  handler.getColocatedPortsConstr("p")->setColocatedSoftPort("a", true);
  handler.addExclusiveColocatedPortsConstr(Base::PORT, "p", {"a"});
  handler.addColocatedDmaConstr(Base::PORT, "p", {"b", "a"});
  handler.addColocatedNodesConstr(Base::PORT, "p", {"a"}, false);
  handler.renamePorts({{"a", "a2"}, {"p", "p2"}});
  const ColocatedPortsConstr* ports = handler.getColocatedPortsConstr("p2");
  ASSERT_NE(ports, nullptr);
  EXPECT_EQ(ports->getObjName(), "p2");
  EXPECT_EQ(ports->getPortNames(), (Names{"a2", "b"}));
  EXPECT_EQ(ports->getColocatedSoftPorts(), (Names{"a2"}));
  EXPECT_EQ(ports->getExclusiveColocatedPortNames(), (Names{"a2"}));
  EXPECT_EQ(handler.getColocatedDmaConstr("p2")->getPortNames(), (Names{"b", "a2"}));
  EXPECT_EQ(handler.getColocatedNodesConstr("p2")->getNodeNames(), (Names{"a"}));
  handler.renamePorts({{"zz", "yy"}});
  EXPECT_EQ(ports->getPortNames(), (Names{"a2", "b"}));
}

class ColocationReaderTest : public MessageLogTest {
protected:
  const ConstrHandler& read(const std::string& text)
  {
    writeFile(file, text);
    handler.read(file);
    return handler;
  }

  const TempDir dir;
  const std::string file = dir.file("constraints.json");
  ConstrHandler handler;
};

TEST_F(ColocationReaderTest, ListsTakeSoftNamesInEitherFormAndMergeAcrossKeys)
{
  read(R"({
    "NodeConstraints": {"n": {"colocated_nodes": ["a", {"b": {"issoft": true}}, {"c": true},
                                                  {"d": {"issoft": false}}, 7, ""],
                              "colocated_ports": "p"}},
    "PortConstraints": {"p": {"colocated_dma": ["q", "", "r"], "colocated_nodes": ["a"],
                              "colocated_ports": ["q"], "colocated_ports_src_info": {},
                              "colocated_ports": ["s", {"q": {"issoft": true}}],
                              "not_colocated_reserved_memories": [],
                              "fifo_locations": []}}
  })");
  expectSent({});
  const ColocatedNodesConstr* nodes = handler.getColocatedNodesConstr("n");
  ASSERT_NE(nodes, nullptr);
  EXPECT_EQ(nodes->getNodeNames(), (Names{"a", "b", "c", "d"}));
  EXPECT_EQ(nodes->getColocatedSoftNodes(), (Names{"b", "c"}));
  EXPECT_NE(handler.getAttrConstr("n", "colocated_ports"), nullptr) << "no list key of a node, so a string is an attribute";
  EXPECT_EQ(handler.getColocatedPortsConstr("p")->getPortNames(), (Names{"q", "s"}));
  EXPECT_TRUE(handler.getColocatedPortsConstr("p")->isColocatedSoftPort("q"));
  EXPECT_EQ(handler.getColocatedDmaConstr("p")->getPortNames(), (Names{"q", "r"}));
  EXPECT_EQ(handler.getColocatedNodesConstr("p")->getObjType(), Base::PORT);
  EXPECT_EQ(handler.getColocatedMemoriesConstr("p"), nullptr) << "an empty list makes nothing";
  EXPECT_EQ(handler.getFifoLocationsConstr("p"), nullptr);
  EXPECT_EQ(handler.size(), 5u);
}

TEST_F(ColocationReaderTest, ListNamesPassTheResolverAndPatternsShareTheSoftFlag)
{
  Resolver resolver("top/", {"gone"});
  std::istringstream in(R"({"PortConstraints": {"p": {
      "colocated_reserved_memories": [{"m*": {"issoft": true}}, "gone"],
      "exclusive_colocated_ports": ["x*"], "colocated_dma": ["gone", "d"]}}})");
  handler.read(in, file, resolver);
  const ColocatedMemoriesConstr* memories = handler.getColocatedMemoriesConstr("top/p");
  ASSERT_NE(memories, nullptr);
  EXPECT_EQ(memories->getColocatedSoftNodes(), (Names{"m0", "m1"}));
  EXPECT_EQ(handler.getColocatedPortsConstr("top/p")->getExclusiveColocatedPortNames(),
            (Names{"x0", "x1"}));
  EXPECT_EQ(handler.getColocatedDmaConstr("top/p")->getPortNames(), (Names{"top/d"}));
  expectSent({{"@75-412@%s", Mask::CriticalWarning, {"gone"}},
              {"@75-414@%s", Mask::CriticalWarning, {"gone"}}});
}

}  // namespace
