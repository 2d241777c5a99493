#include "ConstrSupport.h"

#include "PortRenamer.h"

namespace {

using namespace constr_support;

// The smallest concrete constraint, with the helpers for the kinds made public.
class TestConstr : public BaseConstraint {
public:
  using BaseConstraint::BaseConstraint;
  using BaseConstraint::resolveNodeNames;
  using BaseConstraint::resolveScopedPortNames;
  using BaseConstraint::writeGroupSrcInfo;

  void clone(ConstrHandler&, const BaseNameResolver*) const override {}
  void write(JDocument& doc, JValue& object, const BaseNameResolver*) const override
  {
    writeSrcInfo(doc, object, "k");
  }
  void offsetColumn(int) override {}
};

TEST(BaseConstraintTest, TypeTables)
{
  const std::pair<const char*, const char*> kinds[] = {
      {"Buffer", "qpe.buffers"}, {"ReservedMemory", "qpe.reserved_memory"},
      {"Tile", "qpe.tile"}, {"Mem", "qpe.mem"}, {"Shim", "qpe.shim"},
      {"PortLoc", "qpe.port_loc"}, {"StreamChannel", "qpe.stream_channel"},
      {"Attr", "qpe.attr"}, {"ColocatedNodes", "qpe.colocated_nodes"},
      {"RelativeNodes", "qpe.relative_nodes"}, {"ColocatedPorts", "qpe.colocated_ports"},
      {"ColocatedDma", "qpe.colocated_dma"},
      {"ColocatedMemories", "qpe.colocated_reserved_memories"},
      {"FifoLocations", "qpe.fifo_locations"}, {"AreaGroup", "qpe.area_group"},
      {"InstGroup", "qpe.inst_group"},
      {"DependentRoutingGroup", "qpe.independent_packet_switched_routing_roup"},
      {"IsomorphicGraphGroup", "qpe.isomorphic_graph_group"}, {"", ""}};
  for (int type = -1; type <= 18; ++type) {
    const auto& [text, name] = kinds[type < 0 ? 18 : type];
    EXPECT_EQ(Base::getConstrTypeAsStr(static_cast<Base::ConstrType>(type)), text) << type;
    EXPECT_EQ(Base::getConstrNameFromType(static_cast<Base::ConstrType>(type)), name) << type;
  }
  const char* const objTypes[] = {"NODE", "PORT", "NET", "GLOBAL", ""};
  for (int type = -1; type <= 4; ++type)
    EXPECT_EQ(Base::getObjTypeAsStr(static_cast<Base::ObjectType>(type)),
              objTypes[type < 0 ? 4 : type]);
}

TEST(BaseConstraintTest, ConstructorsNameTheConstraintAndRefuseUnnamedAttributes)
{
  EXPECT_EQ(TestConstr(Base::Attr, "qpe.margin", Base::NET, "n1").str(),
            " constraint(n1)=(qpe.margin)");
  EXPECT_EQ(TestConstr(Base::Tile, Base::NODE, "n2").str(), " constraint(n2)=(qpe.tile)");
  const TestConstr group(Base::AreaGroup);
  EXPECT_EQ(group.getObjType(), Base::GLOBAL);
  EXPECT_EQ(group.getConstrName(), "qpe.area_group");

  const std::string refused = "BaseConstraint::BaseConstraint() - Invalid constructor call: "
                              "BaseConstraints of type 'Attr' must be uniquely named";
  expectRefused([] { TestConstr(Base::Attr, Base::NODE, "n"); }, refused);
  expectRefused([] { TestConstr{Base::Attr}; }, refused);
}

// Tells which of its operations resolved a name.
class KindResolver : public BaseNameResolver {
public:
  std::string resolveNodeName(const std::string& n) const override { return "n:" + n; }
  std::string resolvePortName(const std::string& n) const override { return "p:" + n; }
  std::string resolveNetName(const std::string& n) const override { return "e:" + n; }
  std::string resolveScopedPortName(const std::string& n) const override { return "top/" + n; }
};

class BaseConstraintMsgTest : public MessageLogTest {};

TEST_F(BaseConstraintMsgTest, RekeyingMovesPropertiesToEveryResolvedName)
{
  const Resolver resolver("n:", {"gone"});
  ConstrPropertiesMap nodes{{"x*", {true}}, {"gone", {true}}, {"x0", {false}}, {"z", {true}}};
  TestConstr::resolveNodeNames(nodes, &resolver);
  // "x0" first takes the properties of "x*", then is itself re-keyed away.
  EXPECT_EQ(nodes, (ConstrPropertiesMap{
                       {"gone", {true}}, {"x1", {true}}, {"n:x0", {false}}, {"n:z", {true}}}));
  expectSent({{"@75-412@%s", ComMsgMgr::CriticalWarning, {"gone"}}});

  const KindResolver kinds;
  ConstrPropertiesMap ports{{"a", {true}}};
  TestConstr::resolveScopedPortNames(ports, &kinds);
  TestConstr::resolveScopedPortNames(ports, nullptr);
  EXPECT_EQ(ports, (ConstrPropertiesMap{{"top/a", {true}}}));

  Names names{"x*", "q"};
  TestConstr::resolveNodeNames(names, &resolver);
  TestConstr::resolveNodeNames(names, nullptr);
  EXPECT_EQ(names, (Names{"x0", "x1", "n:q"}));
}

TEST(BaseConstraintTest, OnlyALocationInAnotherSourceFileIsWritten)
{
  const char* const written = R"({"file":"a.cpp","line":12,"column":3})";
  const struct {
    Base::ObjectType objType;
    SrcInfo::SrcKind kind;
    const char* file;
    bool ownKey, groupKey;
  } cases[] = {
      {Base::NODE, SrcInfo::SourceFile, "a.cpp", true, true},
      {Base::PORT, SrcInfo::UserJson, "a.cpp", false, false},
      {Base::NET, SrcInfo::SourceFile, "", false, false},
      {Base::NODE, SrcInfo::Unset, "a.cpp", false, false},
      {Base::GLOBAL, SrcInfo::SourceFile, "a.cpp", false, true},
  };
  for (const auto& c : cases) {
    TestConstr constr(Base::Tile, c.objType, "n");
    constr.getSrcInfo().set(c.kind, c.file, 12, 3);
    JDocument doc(rapidjson::kObjectType);
    constr.write(doc, doc, nullptr);
    EXPECT_EQ(toText(doc), c.ownKey ? R"({"k_src_info":)" + std::string(written) + "}" : "{}");
    JValue group(rapidjson::kObjectType);
    TestConstr::writeGroupSrcInfo(doc, group, constr.getSrcInfo());
    EXPECT_EQ(toText(group), c.groupKey ? R"({"srcInfo":)" + std::string(written) + "}" : "{}");
  }
}

class BaseNameResolverTest : public MessageLogTest {};

TEST_F(BaseNameResolverTest, ListsDropAndReportWhatDoesNotResolve)
{
  const struct {
    void (BaseNameResolver::*resolve)(Names&) const;
    const char* oneUnresolved;
    const char* severalUnresolved;
  } cases[] = {
      {&BaseNameResolver::resolveNodeNames, "@75-412@%s", "@75-413@%s"},
      {&BaseNameResolver::resolvePortNames, "@75-414@%s", "@75-415@%s"},
      {&BaseNameResolver::resolveNetNames, "@75-410@%s", "@75-411@%s"},
      {&BaseNameResolver::resolveScopedNodeNames, "@75-418@%s", "@75-419@%s"},
      {&BaseNameResolver::resolveScopedPortNames, "@75-420@%s", "@75-421@%s"},
      {&BaseNameResolver::resolveScopedNetNames, "@75-416@%s", "@75-417@%s"},
  };
  const Resolver resolver("", {"?x", "?y", "?z"});
  Resolver silent("", {"?x", "?y", "?z"});
  silent.silence();
  for (const auto& c : cases) {
    SCOPED_TRACE(c.oneUnresolved);
    ComMsgLog::clear();
    Names one{"a", "?x", "b"}, several{"?x", "c", "?y", "?z"}, all{"d", "e"};
    for (Names* names : {&one, &several, &all})
      (resolver.*c.resolve)(*names);
    EXPECT_EQ(one, (Names{"a", "b"}));
    EXPECT_EQ(several, (Names{"c"}));
    EXPECT_EQ(all, (Names{"d", "e"}));
    (silent.*c.resolve)(one = {"?x", "?y"});
    EXPECT_TRUE(one.empty());
    expectSent({{c.oneUnresolved, ComMsgMgr::CriticalWarning, {"?x"}},
                {c.severalUnresolved, ComMsgMgr::CriticalWarning, {"?x ?y ?z"}}});
  }
}

TEST_F(BaseNameResolverTest, IdentityKeepsNamesButNotEmptyOnes)
{
  const BaseNameResolver identity;
  Names names{"a", "b", "a"};
  identity.resolveNodeNames(names);
  EXPECT_EQ(names, (Names{"a", "b", "a"}));
  expectSent({});

  names = {"", "a"};
  identity.resolveNodeNames(names);
  names = {"", ""};
  identity.resolveNodeNames(names);
  Names pattern;
  identity.resolveNetPattern("", pattern);
  EXPECT_TRUE(pattern.empty());
  expectSent({{"@75-412@%s", ComMsgMgr::CriticalWarning, {""}},
              {"@75-413@%s", ComMsgMgr::CriticalWarning, {" "}}});
}

TEST(PortRenamerTest, RenamesNamesListsAndProperties)
{
  const PortRenamer renamer({{"a", "b"}, {"b", "c"}, {"x", "y"}});
  EXPECT_EQ(renamer.getNewPortName("a"), "b");
  EXPECT_EQ(renamer.getNewPortName("q"), "q");

  Names renamed{"untouched"};
  renamer.getNewPortNames({"q", "r", "q"}, renamed);
  EXPECT_EQ(renamed, (Names{"untouched"})) << "nothing changed, nothing given";
  renamer.getNewPortNames({"q", "a", "b"}, renamed);
  EXPECT_EQ(renamed, (Names{"q", "b", "c"}));

  // In the order of the old names: "a" moves onto "b", then "b" onto "c".
  ConstrPropertiesMap props{{"a", {true}}, {"b", {false}}, {"c", {false}}, {"q", {true}}};
  renamer.renameConstrObjectProperties(props);
  EXPECT_EQ(props, (ConstrPropertiesMap{{"c", {true}}, {"q", {true}}}));

  // A move onto a name that the walk has passed is not moved again; a swap
  // ends where the walk leaves it.
  struct Walk { PortRenamer::RenameMap renames; ConstrPropertiesMap before, after; };
  const Walk walks[] = {
      {{{"a", "z"}, {"b", "a"}}, {{"b", {true}}}, {{"a", {true}}}},
      {{{"a", "b"}, {"b", "a"}}, {{"a", {true}}, {"b", {false}}}, {{"a", {true}}}},
  };
  for (Walk walk : walks) {
    PortRenamer::renameConstrObjectProperties(walk.renames, walk.before);
    EXPECT_EQ(walk.before, walk.after);
  }
}

}  // namespace
