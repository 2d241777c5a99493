#include "ConstrSupport.h"
#include "SpecBuilders.h"

#include "ConstrCast.h"
#include "ConstrUtils.h"

namespace {

using namespace constr_support;

// The smallest concrete constraint, with the helpers for the kinds made public.
class TestConstr : public BaseConstraint {
public:
  using BaseConstraint::BaseConstraint;
  using BaseConstraint::getResolvedName;
  using BaseConstraint::isSoftConstraintForObject;
  using BaseConstraint::resolveNodeNames;
  using BaseConstraint::resolveScopedPortNames;
  using BaseConstraint::setConstrObjectProperties;
  using BaseConstraint::setConstrObjectsProperties;
  using BaseConstraint::setSoftConstraintForObject;
  using BaseConstraint::writeAddress;
  using BaseConstraint::writeConstraintObjectsWithProperties;
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

TEST(BaseConstraintTest, OnlySoftPropertiesAreKept)
{
  TestConstr constr(Base::ColocatedNodes, Base::NODE, "n");
  constr.setConstrObjectProperties("a", ConstrProperties{});
  constr.setConstrObjectsProperties({{"b", {true}}, {"c", {false}}});
  EXPECT_EQ(constr.getConstrObjectsProperties(), (ConstrPropertiesMap{{"b", {true}}}));

  ConstrPropertiesMap map;
  TestConstr::setSoftConstraintForObject("a", false, map);
  EXPECT_TRUE(map.empty()) << "false creates no entry";
  TestConstr::setSoftConstraintForObject("a", true, map);
  EXPECT_TRUE(TestConstr::isSoftConstraintForObject("a", map));
  TestConstr::setSoftConstraintForObject("a", false, map);
  EXPECT_EQ(map, (ConstrPropertiesMap{{"a", {false}}})) << "an existing entry takes false";
  EXPECT_FALSE(TestConstr::isSoftConstraintForObject("a", map));
  EXPECT_FALSE(TestConstr::isSoftConstraintForObject("missing", map));
}

// Resolves "all" to two names, drops "gone" and prefixes the rest by kind.
class PrefixResolver : public BaseNameResolver {
public:
  std::string resolveNodeName(const std::string& n) const override { return pick(n, "n:"); }
  std::string resolvePortName(const std::string& n) const override { return pick(n, "p:"); }
  std::string resolveNetName(const std::string& n) const override { return pick(n, "e:"); }
  std::string resolveScopedPortName(const std::string& n) const override
  {
    return pick(n, "top/");
  }
  void resolveNodePattern(const std::string& pattern, std::vector<std::string>& out) const override
  {
    if (pattern != "all")
      return BaseNameResolver::resolveNodePattern(pattern, out);
    out.insert(out.end(), {"x", "y"});
  }

private:
  static std::string pick(const std::string& name, const char* prefix)
  {
    return name == "gone" ? "" : prefix + name;
  }
};

class BaseConstraintMsgTest : public MessageLogTest {};

TEST_F(BaseConstraintMsgTest, ResolvedNameFollowsTheObjectType)
{
  const PrefixResolver resolver;
  const std::pair<Base::ObjectType, const char*> cases[] = {
      {Base::NODE, "n:o"}, {Base::PORT, "p:o"}, {Base::NET, "e:o"}, {Base::GLOBAL, "o"}};
  for (const auto& [objType, expected] : cases) {
    const TestConstr constr(Base::Tile, objType, "o");
    EXPECT_EQ(TestConstr::getResolvedName(&constr, &resolver), expected);
    EXPECT_EQ(TestConstr::getResolvedName(&constr, nullptr), "o");
  }
  expectSent({});
}

TEST_F(BaseConstraintMsgTest, RekeyingMovesPropertiesToEveryResolvedName)
{
  const PrefixResolver resolver;
  ConstrPropertiesMap nodes{{"all", {true}}, {"gone", {true}}, {"x", {false}}, {"z", {true}}};
  TestConstr::resolveNodeNames(nodes, &resolver);
  // "x" first takes the properties of "all", then is itself re-keyed away.
  EXPECT_EQ(nodes, (ConstrPropertiesMap{
                       {"gone", {true}}, {"y", {true}}, {"n:x", {false}}, {"n:z", {true}}}));
  expectSent({{"@75-412@%s", ComMsgMgr::CriticalWarning, {"gone"}}});

  ConstrPropertiesMap ports{{"a", {true}}};
  TestConstr::resolveScopedPortNames(ports, &resolver);
  EXPECT_EQ(ports, (ConstrPropertiesMap{{"top/a", {true}}}));
  TestConstr::resolveScopedPortNames(ports, nullptr);
  EXPECT_EQ(ports, (ConstrPropertiesMap{{"top/a", {true}}}));

  Names names{"all", "q"};
  TestConstr::resolveNodeNames(names, &resolver);
  EXPECT_EQ(names, (Names{"x", "y", "n:q"}));
  TestConstr::resolveNodeNames(names, nullptr);
  EXPECT_EQ(names.size(), 3u);
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

TEST(BaseConstraintTest, WritesListsWithPropertiesAndAddresses)
{
  JDocument doc(rapidjson::kObjectType);
  const ConstrPropertiesMap props{{"b", {true}}, {"c", {false}}};
  TestConstr::writeConstraintObjectsWithProperties({}, props, doc, doc, "none");
  TestConstr::writeConstraintObjectsWithProperties({"a", "b", "c"}, props, doc, doc, "list");
  const Address address = spec_builders::address(1, 0, -1, 64);
  JValue addressObject(rapidjson::kObjectType);
  TestConstr::writeAddress(doc, addressObject, address);
  TestConstr::writeAddress(doc, addressObject, Address());
  EXPECT_EQ(toText(doc), R"({"list":["a",{"b":{"issoft":true}},"c"]})");
  EXPECT_EQ(toText(addressObject), R"({"column":1,"row":0,"offset":64})");
  EXPECT_EQ(address.str(), "(1,0,-1,64)");
}

TEST(BaseConstraintTest, RenamePortsAndCopySrcInfo)
{
  TestConstr port(Base::PortLoc, Base::PORT, "p1");
  TestConstr node(Base::Tile, Base::NODE, "p1");
  for (TestConstr* constr : {&port, &node})
    constr->renamePorts({{"p1", "p2"}, {"p2", "p3"}});
  EXPECT_EQ(port.getObjName(), "p2") << "one step, not a chain";
  EXPECT_EQ(node.getObjName(), "p1") << "only ports are renamed";

  port.getSrcInfo().set(SrcInfo::SourceFile, "f", 1, 2);
  node.copySrcInfoFrom(&port);
  node.copySrcInfoFrom(nullptr);
  EXPECT_EQ(where(node.getSrcInfo()), "1 f 1:2");
}

// The test class is of no kind, so every cast refuses it and no operation is
// reached: a kind is only ever handed over as itself.
TEST(BaseConstraintTest, CastsAndVisitorsHandOutNothingButTheKindItself)
{
  KindRecorder<BaseVisitor, Mutable> visitor;
  KindRecorder<ConstBaseVisitor, ReadOnly> constVisitor;
  visitor.visit(static_cast<Base*>(nullptr));
  constVisitor.visit(static_cast<const Base*>(nullptr));
  for (int type = 0; type < 18; ++type) {
    TestConstr constr(static_cast<Base::ConstrType>(type), "c", Base::NODE, "n");
    visitor.visit(&constr);
    constVisitor.visit(static_cast<const Base*>(&constr));
    EXPECT_EQ(ConstrCast::toTile(&constr), nullptr);
    EXPECT_EQ(ConstrCast::checkedCast<TestConstr>(&constr, Base::Mem) != nullptr,
              type == Base::Mem);
  }
  EXPECT_EQ(ConstrCast::checkedCast<TestConstr>(nullptr, Base::Mem), nullptr);
  EXPECT_TRUE(visitor.kinds.empty() && constVisitor.kinds.empty());
}

TEST(ConstrUtilsTest, FreeHelpers)
{
  Names names{"a"};
  for (const char* name : {"b", "", "a", "b", "c"})
    addIfUnique(name, names);
  EXPECT_EQ(names, (Names{"a", "b", "c"}));
  EXPECT_FALSE(contains(names, "C"));
  EXPECT_EQ(to_str(names), "a b c");
  EXPECT_EQ(to_str({"", ""}), " ");
  EXPECT_FALSE(isValSet(-1));
  EXPECT_TRUE(isValSet(0));
  EXPECT_FALSE(isValSet(-0.5));

  const TestConstr a(Base::Tile, Base::NODE, "a"), b(Base::Shim, Base::NODE, "b"),
      a2(Base::Mem, Base::NODE, "a"), group(Base::InstGroup);
  const std::vector<const Base*> constrs{&b, &a, &a2, &group, &b};
  Names unique{"stale", "entries", "here", "and", "more", "still"};
  getUniqueObjNames(constrs.begin(), constrs.end(), unique);
  EXPECT_EQ(unique, (Names{"b", "a", ""}));
}

}  // namespace
