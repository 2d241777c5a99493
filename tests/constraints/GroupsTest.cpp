#include "ConstrSupport.h"

#include "ConstrCast.h"
#include "ConstrReader.h"
#include "DefaultXYValues.h"
#include "DependentRoutingGroupConstr.h"
#include "InstGroupConstr.h"
#include "IsomorphicGraphGroupConstr.h"
#include "RelativeNodesConstr.h"

#include <sstream>

namespace {

using namespace constr_support;

constexpr int free_ = DefaultXYValues::XCoordinateNotSetValue;

class RelativeNodesReadTest : public MessageLogTest {
protected:
  void read(const std::string& elements, const BaseNameResolver& resolver = BaseNameResolver())
  {
    std::istringstream in(R"({"NodeConstraints": {"n": {"relative_nodes": [)" + elements +
                          "]}}}");
    handler.read(in, "", resolver);
  }

  HDPoint<int> offset(const std::string& name) const
  {
    return handler.getRelativeNodesConstr("n")->getNodeOffset(name);
  }

  ConstrHandler handler;
};

TEST_F(RelativeNodesReadTest, OffsetsByAxisAndTheirTextsBack)
{
  read(R"j("a:(X=1,Y=2)", "b:(Y=-1)", "c:(X=1)", "d:X=3,Y=4", "e:(Y=2,X=1)", "f:(X=a)",
          "abc", ":(X=1)", "g:", 5, "c:(X=7)")j");
  expectSent({{"@75-880@%s", Mask::Error, {"abc"}},
              {"@75-880@%s", Mask::Error, {":(X=1)"}},
              {"@75-880@%s", Mask::Error, {"g:"}},
              {"@75-857@", Mask::Warning, {}}});
  const std::pair<const char*, HDPoint<int>> expected[] = {
      {"a", {1, 2}},         {"b", {free_, -1}},    {"c", {7, free_}}, {"d", {3, 4}},
      {"e", {free_, free_}}, {"f", {-1, free_}},    {"z", {free_, free_}},
  };
  for (const auto& [name, point] : expected)
    EXPECT_EQ(offset(name), point) << name;
  const RelativeNodesConstr* relative = handler.getRelativeNodesConstr("n");
  EXPECT_TRUE(relative->hasRelativeNodes());
  EXPECT_EQ(written(*relative), R"j({"relative_nodes":["a:(X=1,Y=2)","b:(Y=-1)","c:(X=7)",)j"
                                R"j("d:(X=3,Y=4)","f:(X=-1)"]})j")
      << "a name with two free axes is left out";
  EXPECT_EQ(relative->str(), " rel(n,relative_nodes)=(a:(X=1,Y=2),b:(X=-9999,Y=-1),"
                             "c:(X=7,Y=-9999),d:(X=3,Y=4),e:(X=-9999,Y=-9999),f:(X=-1,Y=-9999))");
}

TEST_F(RelativeNodesReadTest, NamesResolveAndASecondKeyMerges)
{
  Resolver resolver("top/", {"gone"});
  resolver.silence();
  read(R"j("a*:(X=1)", "gone:(Y=1)", "b:(X=2)")j", resolver);
  std::istringstream more(
      R"j({"NodeConstraints": {"n": {"relative_nodes": ["top/b:(Y=5)"]}}})j");
  handler.read(more, "", BaseNameResolver());
  EXPECT_EQ(handler.size(), 2u) << "one under top/n, one under n";
  Names names;
  handler.getRelativeNodesConstr("top/n")->getNodeNames(names);
  EXPECT_EQ(names, (Names{"a0", "a1", "top/b"}));
  EXPECT_EQ(handler.getRelativeNodesConstr("n")->getNodeOffset("top/b"), (HDPoint<int>{free_, 5}));
}

TEST(RelativeNodesConstrTest, AlwaysOnANodeAndClonedWithResolvedNames)
{
  ConstrHandler handler;
  EXPECT_EQ(handler.createConstr(Base::RelativeNodes, Base::PORT, "p")->getObjType(), Base::NODE);
  handler.addRelativeNodesConstr(Base::NODE, "n", {{"a", {1, 2}}, {"b", {3, free_}}});
  handler.addRelativeNodesConstr(Base::NODE, "n", {{"a", {5, 6}}});
  RelativeNodesConstr* relative = handler.getRelativeNodesConstr("n");
  EXPECT_EQ(relative->getNodeOffset("a"), (HDPoint<int>{5, 6}));
  relative->getSrcInfo().set(SrcInfo::SourceFile, "f.cc", 2, 3);
  relative->offsetColumn(4);
  EXPECT_EQ(relative->getNodeOffset("b"), (HDPoint<int>{3, free_}));

  ConstrHandler copy;
  Resolver resolver("top/", {"b"});
  resolver.silence();
  copy.copy(handler, resolver);
  const RelativeNodesConstr* copied = copy.getRelativeNodesConstr("top/n");
  ASSERT_NE(copied, nullptr);
  EXPECT_EQ(copied->getNodesWithOffset(), (RelativeNodesConstr::Offsets{{"top/a", {5, 6}}}));
  EXPECT_EQ(where(copied->getSrcInfo()), "1 f.cc 2:3");
  EXPECT_EQ(written(*copied), R"j({"relative_nodes":["top/a:(X=5,Y=6)"],)j"
                              R"("relative_nodes_src_info":{"file":"f.cc","line":2,"column":3}})");
  relative->unloadObject("a");
  relative->unloadObject("b");
  EXPECT_FALSE(relative->isSet());
  EXPECT_EQ(written(*relative), "{}");
}

TEST(OtherGroupsTest, AddKeepsTheFirstFlagAndMergesTheNodes)
{
  ConstrHandler handler;
  handler.addInstGroupConstr("i", {"a", "b"}, true);
  handler.addInstGroupConstr("i", {"b", "c"}, false);
  handler.addInstGroupConstr("", {"x"}, true);
  const InstGroupConstr* inst = handler.getInstGroupConstr("i");
  ASSERT_NE(inst, nullptr);
  EXPECT_TRUE(inst->isIsomorphic());
  EXPECT_EQ(inst->getNodeGroup(), (Names{"a", "b", "c"}));
  EXPECT_EQ(inst->str(), " instGroup(i)=(a,b,c,) isIsomorphic=(true)");
  handler.setInstGroupConstr("i", {"d"}, false);
  EXPECT_EQ(written(*inst), R"({"instGroup":{"name":"i","nodeGroup":["d"]}})");

  handler.addDependentRoutingGroupConstr("d", {"a"});
  handler.addDependentRoutingGroupConstr("d", {"b", "a"});
  EXPECT_EQ(handler.getDependentRoutingGroupConstr("d")->str(),
            " dependentRoutingGroup(d)=(a,b,)");

  handler.addIsomorphicGraphGroupConstr("g", "r1", {"s1"});
  handler.addIsomorphicGraphGroupConstr("g", "r2", {"s2", "s1"});
  const IsomorphicGraphGroupConstr* graphs = handler.getIsomorphicGraphGroupConstr("g");
  EXPECT_EQ(graphs->str(), " isomorphicGraphGroup(g)=(r2 - s1,s2,)");
  handler.setIsomorphicGraphGroupConstr("g", "", {});
  EXPECT_EQ(graphs->str(), " isomorphicGraphGroup(g)=( - )");
  EXPECT_EQ(written(*graphs), R"({"isomorphicGraphGroup":{"name":"g"}})");
  EXPECT_EQ(handler.size(), 3u);
  for (const Base* group : handler.getConstrs()) {
    EXPECT_EQ(group->getObjType(), Base::GLOBAL);
    EXPECT_EQ(handler.getConstr(group->getObjName(), group->getConstrType()), group);
  }
}

TEST(OtherGroupsTest, CloneResolvesNodesButNotGroupOrGraphNames)
{
  ConstrHandler from;
  from.addInstGroupConstr("i", {"a", "gone"}, true);
  from.addDependentRoutingGroupConstr("d", {"b*"});
  from.addIsomorphicGraphGroupConstr("g", "r", {"s"});
  from.getIsomorphicGraphGroupConstr("g")->getSrcInfo().set(SrcInfo::SourceFile, "f", 1, 2);
  ConstrHandler into;
  Resolver resolver("top/", {"gone"});
  resolver.silence();
  into.copy(from, resolver);
  EXPECT_EQ(into.getInstGroupConstr("i")->getNodeGroup(), (Names{"top/a"}));
  EXPECT_TRUE(into.getInstGroupConstr("i")->isIsomorphic());
  EXPECT_EQ(into.getDependentRoutingGroupConstr("d")->getNodeGroup(), (Names{"b0", "b1"}));
  const IsomorphicGraphGroupConstr* graphs = into.getIsomorphicGraphGroupConstr("g");
  EXPECT_EQ(graphs->getReferenceGraph(), "r");
  EXPECT_EQ(written(*graphs, &resolver),
            R"({"isomorphicGraphGroup":{"name":"g","referenceGraph":"r","stampedGraphs":["s"],)"
            R"("srcInfo":{"file":"f","line":1,"column":2}}})");
  EXPECT_EQ(written(*into.getInstGroupConstr("i"), &resolver),
            R"({"instGroup":{"name":"i","isisomorphic":true,"nodeGroup":["top/top/a"]}})")
      << "the scoped names are written";
}

class OtherGroupsReadTest : public MessageLogTest {
protected:
  const TempDir dir;
  const std::string file = dir.file("groups.json");
  ConstrHandler handler;
};

TEST_F(OtherGroupsReadTest, GroupsMergeByNameAndKeepTheirLocations)
{
  writeFile(file, R"({
  "GlobalConstraints": {
    "instGroup": {"name": "i", "isisomorphic": "true", "nodeGroup": ["a", 3]},
    "instGroup": {"name": "i", "isisomorphic": true, "nodeGroup": ["b"],
                  "srcInfo": {"file": "g.cc", "line": 4, "column": 5}},
    "dependentRoutingGroup": {"name": "", "nodeGroup": ["x"]},
    "dependentRoutingGroup": {"name": "d", "nodeGroup": ["x"]},
    "isomorphicGraphGroup": {"name": "g", "referenceGraph": "r", "stampedGraphs": ["s", ""]}
  }
})");
  ConstrReader reader(handler);
  reader.read(file, true);
  expectSent({});
  ASSERT_EQ(handler.size(), 3u);
  const InstGroupConstr* inst = handler.getInstGroupConstr("i");
  EXPECT_FALSE(inst->isIsomorphic()) << "the first entry's flag, and only true is true";
  EXPECT_EQ(inst->getNodeGroup(), (Names{"a", "b"}));
  EXPECT_EQ(where(inst->getSrcInfo()), "1 g.cc 4:5");
  EXPECT_EQ(where(handler.getDependentRoutingGroupConstr("d")->getSrcInfo()),
            "0 " + reader.getJsonPath() + " 7:39");
  EXPECT_EQ(handler.getIsomorphicGraphGroupConstr("g")->getStampedGraphGroup(), (Names{"s"}));
}

// Every kind reaches its own operation, in creation order; the isomorphic
// graph group reaches none.
TEST(EveryKindTest, VisitorsCastsAndCanonicalNames)
{
  ConstrHandler handler;
  handler.read(IPCONFIG_RW_EXAMPLES_DIR "/every_kind.json");
  handler.setPortLocConstr("p", "s", 1);
  handler.addColocatedMemoriesConstr(Base::PORT, "p", {"m"}, false);
  KindRecorder<BaseVisitor, Mutable> visitor;
  handler.accept(visitor);
  EXPECT_EQ(visitor.kinds,
            (Names{"TileConstr", "MemConstr", "ReservedMemoryConstr", "ColocatedNodesConstr",
                   "RelativeNodesConstr", "ColocatedMemoriesConstr", "AttrConstr", "ShimConstr",
                   "BufferConstr", "PortLocConstr", "StreamChannelConstr",
                   "ColocatedPortsConstr", "ColocatedDmaConstr", "FifoLocationsConstr",
                   "AttrConstr", "AttrConstr", "AreaGroupConstr", "InstGroupConstr",
                   "InstGroupConstr", "DependentRoutingGroupConstr", "PortLocConstr",
                   "ColocatedMemoriesConstr"}));
  for (const Base* constr : handler.getConstrs()) {
    const Base::ConstrType type = constr->getConstrType();
    if (type != Base::Attr) {
      EXPECT_EQ(constr->getConstrName(), Base::getConstrNameFromType(type));
    }
  }
  const Base* graphs = handler.getIsomorphicGraphGroupConstr("stamps");
  EXPECT_EQ(ConstrCast::toIsomorphicGraphGroup(graphs), graphs);
  EXPECT_EQ(ConstrCast::toInstGroup(graphs), nullptr);
  EXPECT_EQ(ConstrCast::toRelativeNodes(handler.getConstr("top/fir_0", "relative_nodes")),
            handler.getRelativeNodesConstr("top/fir_0"));
}

}  // namespace
