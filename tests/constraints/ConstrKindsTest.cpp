#include "ConstrSupport.h"
#include "SpecBuilders.h"

#include <functional>
#include <sstream>

namespace {

using namespace constr_support;
using namespace spec_builders;

// A constraint of each kind: what it writes, what it writes after
// offsetColumn(3), the name under which its copy through a resolver that
// prefixes "top/" is found, and what the copy writes when that differs from
// the original.
struct KindCase {
  const char* name;
  std::function<void(ConstrHandler&)> make;
  std::string copyName;
  std::string keys;
  std::string shiftedKeys;
  std::string copyKeys = keys;
};

void PrintTo(const KindCase& c, std::ostream* out)
{
  *out << c.name;
}

class ConstrKindTest : public ::testing::TestWithParam<KindCase> {};

TEST_P(ConstrKindTest, ClonesThroughAResolverAndShiftsItsColumns)
{
  const KindCase& c = GetParam();
  ConstrHandler source;
  c.make(source);
  ASSERT_EQ(source.size(), 1u);
  BaseConstraint* constr = source.getConstrs().front();
  constr->getSrcInfo().set(SrcInfo::UserJson, "c.json", 3, 4);
  EXPECT_EQ(written(*constr), c.keys);

  ConstrHandler target;
  const Resolver renamer("top/");
  constr->clone(target, &renamer);
  ConstrHandler::Constrs copies;
  target.getConstrs(c.copyName, copies);
  ASSERT_EQ(copies.size(), 1u);
  const BaseConstraint* copy = copies.front();
  EXPECT_EQ(copy->getConstrType(), constr->getConstrType());
  EXPECT_EQ(copy->getObjType(), constr->getObjType());
  EXPECT_EQ(written(*copy), c.copyKeys);
  EXPECT_EQ(copy->getSrcInfo().getLine(), 3u);

  constr->offsetColumn(3);
  EXPECT_EQ(written(*constr), c.shiftedKeys);
  EXPECT_EQ(written(*copy), c.copyKeys) << "the copy is a copy";
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ConstrKindTest,
    ::testing::Values(
        KindCase{"TileByCoordinates",
                 [](ConstrHandler& h) { h.setTileConstr("n", 1, 2, PhysicalSpec::Mem); },
                 "top/n", R"({"tile":{"column":1,"row":2,"tile_type":"mem"}})",
                 R"({"tile":{"column":4,"row":2,"tile_type":"mem"}})"},
        KindCase{"TileByName", [](ConstrHandler& h) { h.setTileConstr("n", "t"); }, "top/n",
                 R"({"tile":{"name":"t"}})", R"({"tile":{"name":"t"}})"},
        KindCase{"Shim", [](ConstrHandler& h) { h.setShimConstr("n", 1, 2); }, "top/n",
                 R"({"shim":{"column":1,"channel":2}})", R"({"shim":{"column":4,"channel":2}})"},
        KindCase{"ShimByName", [](ConstrHandler& h) { h.setShimConstr("n", "s"); }, "top/n",
                 R"({"shim":{"name":"s"}})", R"({"shim":{"name":"s"}})"},
        KindCase{"Mem",
                 [](ConstrHandler& h) {
                   h.setMemConstr("n", address(1, 0, 2, 8), address(-1, -1, 1, 4));
                 },
                 "top/n", R"({"mem":[{"column":1,"row":0,"bankId":2,"offset":8},)"
                          R"({"bankId":1,"offset":4}]})",
                 R"({"mem":[{"column":4,"row":0,"bankId":2,"offset":8},)"
                 R"({"bankId":1,"offset":4}]})"},
        KindCase{"Buffers",
                 [](ConstrHandler& h) {
                   h.setBufferConstr("p", address(0, 1, -1, -1), Address(), address(-4, 1, -1, -1));
                 },
                 "top/p", R"({"buffers":[{"column":0,"row":1},{"column":-4,"row":1}]})",
                 R"({"buffers":[{"column":3,"row":1},{"row":1}]})"},
        KindCase{"ReservedMemory",
                 [](ConstrHandler& h) { h.setReservedMemoryConstr("n", address(5, 1, 0, 0)); },
                 "top/n", R"({"reserved_memory":{"column":5,"row":1,"bankId":0,"offset":0}})",
                 R"({"reserved_memory":{"column":8,"row":1,"bankId":0,"offset":0}})"},
        KindCase{"AreaGroup",
                 [](ConstrHandler& h) {
                   h.setAreaGroupConstr("g", {"a", "b"},
                                        {PhysicalRange(at(1, 0), at(2, 0)),
                                         PhysicalRange(named("m", json::MemSpec())),
                                         PhysicalRange(shim(3, 1))},
                                        true, false, false, false, true);
                 },
                 "g",
                 R"j({"areaGroup":{"name":"g","exclude":true,"exclusive_placement":true,)j"
                 R"j("nodeGroup":["a","b"],"tileGroup":["(1,0):(2,0)"],)j"
                 R"j("memGroup":["m"],"shimGroup":["(3,1)"]}})j",
                 R"j({"areaGroup":{"name":"g","exclude":true,"exclusive_placement":true,)j"
                 R"j("nodeGroup":["a","b"],"tileGroup":["(4,0):(5,0)"],)j"
                 R"j("memGroup":["m"],"shimGroup":["(6,1)"]}})j",
                 R"j({"areaGroup":{"name":"g","exclude":true,"exclusive_placement":true,)j"
                 R"j("nodeGroup":["top/a","top/b"],"tileGroup":["(1,0):(2,0)"],)j"
                 R"j("memGroup":["m"],"shimGroup":["(3,1)"]}})j"}));

class ConstrKindFileTest : public MessageLogTest {};

TEST_F(ConstrKindFileTest, TheGroupsAreWrittenAloneWithoutReports)
{
  const std::string examples = IPCONFIG_RW_EXAMPLES_DIR;
  ConstrHandler handler;
  handler.read(examples + "/placement.json");
  std::ostringstream out;
  handler.writeAreaGroupConstrs(out, "groups.json", BaseNameResolver());
  EXPECT_EQ(out.str(), "{}") << "no group";
  handler.read(examples + "/area_groups.json");
  ComMsgLog::clear();
  out.str("");
  handler.writeAreaGroupConstrs(out, "groups.json", BaseNameResolver());
  EXPECT_EQ(out.str(), readFile(IPCONFIG_RW_TESTS_DATA_DIR "/area_groups_written.json"));
  expectSent({});
}

}  // namespace
