#include "ConstrSupport.h"

#include "PhysicalRange.h"
#include "PhysicalRangeArray.h"
#include "PhysicalSpecFormatter.h"

namespace {

using namespace constr_support;
using Spec = PhysicalSpec;
using Range = PhysicalRange;

TEST(PhysicalSpecTest, TypeTextsBothWays)
{
  const char* const tileTypes[] = {"core", "shim", "mem", "unknown-tile-type", "unknown-tile-type"};
  for (int type = 0; type <= 4; ++type)
    EXPECT_EQ(Spec::toString(static_cast<Spec::PhysicalType>(type)), tileTypes[type]);
  const char* const channelTypes[] = {"trace", "control", "unknown-channel-type",
                                      "unknown-channel-type"};
  for (int type = 0; type <= 3; ++type)
    EXPECT_EQ(Spec::toString(static_cast<Spec::ShimChannelType>(type)), channelTypes[type]);

  const std::pair<const char*, Spec::PhysicalType> words[] = {
      {"mem", Spec::Mem},     {"shim", Spec::Shim}, {"core", Spec::Core},
      {"memory", Spec::Core}, {"Mem", Spec::Core},  {"unknown-tile-type", Spec::Core}};
  for (const auto& [word, type] : words)
    EXPECT_EQ(Spec::toPhysicalSpecTileType(word), type) << word;
  const std::pair<const char*, Spec::ShimChannelType> channels[] = {
      {"control", Spec::Control}, {"trace", Spec::Trace}, {"Trace", Spec::Unset},
      {"", Spec::Unset}};
  for (const auto& [word, type] : channels)
    EXPECT_EQ(Spec::toPhysicalSpecShimChannelType(word), type) << word;
}

// What a location says of itself after a sequence of setters (innermost first).
TEST(PhysicalSpecTest, FieldsTextsAndValidityAfterEachSequence)
{
  const struct {
    const char* name;
    Spec spec;
    const char* str;
    const char* compact;
    std::string setFields;  // of n(ame) c(olumn) r(ow) i(ndex) b(ank) o(ffset)
    HDPoint<int> xy;
  } cases[] = {
      {"new", Spec(), "tile=(-1,-1)", "", "", {-1, -1}},
      {"core", at(3, 1), "tile=(3,1)", "(3,1)", "cr", {3, 1}},
      {"moveKeepsIndexOnly", at(1, 2, bank(2, 16, index(5, named("n")))), "tile=(1,2)", "(1,2)",
       "cri", {1, 2}},
      {"nameClearsCoords", named("t_a", bank(0, 0, at(3, 1))), "tile=(t_a)", "t_a", "n", {-1, -1}},
      {"bankKeepsName", bank(0, 4, named("t")), "tile=(t)", "t", "nbo", {-1, -1}},
      {"columnOnName", column(4, named("a")), "tile=(4,-1)", "4", "c", {4, -1}},
      {"rowOnUnset", row(2), "tile=(-1,2)", "", "r", {-1, 2}},
      {"emptyName", named("", at(3, 1)), "tile=(-1,-1)", "", "", {-1, -1}},
      {"minusOneColumn", at(-1, 5), "tile=(-1,5)", "", "r", {-1, 5}},
      {"negativeKept", at(-3, 0), "tile=(-3,0)", "(-3,0)", "cr", {-3, 0}},
      {"bankOnUnset", bank(0, -1), "tile=(-1,-1)", "", "b", {-1, -1}},
      {"coreChannelNotShown", column(3, index(2)), "tile=(3,-1)", "3", "ci", {3, -1}},
      {"shimChannel", shim(3, 1), "shim=(3,1)", "(3,1)", "ci", {3, -1}},
      {"shimRowNotShown", at(3, 4, json::ShimSpec()), "shim=(3,-1)", "3", "cr", {3, 4}},
      {"shimChannelType", channelType(Spec::Trace, index(2, at(7, 0, json::ShimSpec()))),
       "shim=(7,2)channel_type=(trace)", "(7,2)", "cri", {7, 0}},
      {"memWithBank", bank(1, 0, at(2, 0, json::MemSpec())), "mem=(2,0)", "(2,0)", "crbo", {2, 0}},
      {"memName", named("12abc", json::MemSpec()), "mem=(12abc)", "12abc", "n", {-1, -1}},
      {"unknownType", index(4, at(1, 2, Spec(Spec::Unknown))), "(1,4)", "1", "cri", {1, 2}},
      {"clearCoordsKeepsTypes", after(&Spec::clearCoords, channelType(Spec::Control, shim(1, 2))),
       "shim=(-1,-1)channel_type=(control)", "", "", {-1, -1}},
      {"clearKeepsOnlyTheTileType", after(&Spec::clear, channelType(Spec::Control, shim(1, 2))),
       "shim=(-1,-1)", "", "", {-1, -1}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const auto has = [&](char field) { return c.setFields.find(field) != std::string::npos; };
    EXPECT_EQ(c.spec.str(), c.str);
    EXPECT_EQ(PhysicalSpecFormatter(c.spec).toString(), c.compact);
    EXPECT_EQ(c.spec.isNameSet(), has('n'));
    EXPECT_EQ(c.spec.isColumnSet(), has('c'));
    EXPECT_EQ(c.spec.isRowSet(), has('r'));
    EXPECT_EQ(c.spec.isIndexSet(), has('i'));
    EXPECT_EQ(c.spec.isBankSet(), has('b'));
    EXPECT_EQ(c.spec.isOffsetSet(), has('o'));
    EXPECT_EQ(c.spec.isValid(), has('n') || has('c'));
    EXPECT_EQ(c.spec.isSet(), c.spec.isValid());
    EXPECT_EQ(c.spec.getXY(), c.xy);
    EXPECT_EQ(c.spec.getName().empty(), !has('n'));
  }
}

TEST(PhysicalSpecTest, BoundingBoxIsInclusiveAndIgnoresUnsetAxes)
{
  const HDRectangle<int> box(5, 4, 1, 0);  // high x, high y, low x, low y
  const std::pair<Spec, bool> cases[] = {
      {at(3, 2), true},  {at(1, 0), true},   {at(5, 4), true},  {at(0, 2), false},
      {at(6, 2), false}, {at(3, -2), false}, {at(3, 5), false}, {at(9, -1), false},
      {at(-1, 2), true}, {Spec(), true},     {named("far", at(9, 9)), true}};
  for (const auto& [spec, inside] : cases)
    EXPECT_EQ(spec.isWithinBoundingBox(box), inside) << spec.str();
}

// Everything a range tells of itself, and how the group arrays take it.
TEST(PhysicalRangeTest, ValidityTextAndArrayElement)
{
  const json::ShimSpec unsetShim;
  const json::MemSpec mem;
  const struct {
    const char* name;
    Range range;
    bool valid;
    const char* str;
    const char* element;  // JSON text of storeVal
    std::string pushedBy;  // t(ile), m(em), s(him): the push operations that append it
  } cases[] = {
      {"coreRect", Range(at(0, 1), at(3, 4)), true, "low=tile=(0,1) high=tile=(3,4)",
       "\"(0,1):(3,4)\"", "t"},
      {"coreTile", Range(at(7, 0)), true, "low=tile=(7,0)", "\"(7,0)\"", "t"},
      {"columnOnly", Range(column(7)), true, "low=tile=(7,-1)", "7", "t"},
      {"columnZero", Range(column(0)), true, "low=tile=(0,-1)", "0", "t"},
      {"columns", Range(column(2), column(5)), true, "low=tile=(2,-1) high=tile=(5,-1)",
       "\"2:5\"", "t"},
      {"twoShims", Range(shim(3, 1), shim(6, 0)), true, "low=shim=(3,1) high=shim=(6,0)",
       "\"(3,1):(6,0)\"", "s"},
      {"singleShim", Range(shim(3, 1)), true, "low=shim=(3,1)", "\"(3,1)\"", "s"},
      {"shimToTile", Range(shim(3, 1), at(4, 2)), false, "low=shim=(3,1) high=tile=(4,2)",
       "\"(3,1):(4,2)\"", "s"},
      {"tileToShim", Range(at(4, 2), shim(3, 1)), false, "low=tile=(4,2) high=shim=(3,1)",
       "\"(4,2):(3,1)\"", "ts"},
      {"tileToUnsetShim", Range(at(4, 2), unsetShim), true, "low=tile=(4,2)", "\"(4,2)\"", "t"},
      {"twoMems", Range(at(1, 0, mem), at(2, 0, mem)), false, "low=mem=(1,0) high=mem=(2,0)",
       "\"(1,0):(2,0)\"", "m"},
      {"singleMem", Range(at(1, 0, mem)), true, "low=mem=(1,0)", "\"(1,0)\"", "m"},
      {"namedTiles", Range(named("a"), named("b")), true, "low=tile=(a) high=tile=(b)", "\"a:b\"",
       "t"},
      {"namedShimToTile", Range(named("s", unsetShim), named("b")), false,
       "low=shim=(s) high=tile=(b)", "\"s:b\"", "s"},
      {"nameToCoords", Range(named("a"), at(3, 4)), true, "low=tile=(a) high=tile=(3,4)",
       "\"a:(3,4)\"", "t"},
      {"digitName", Range(named("12abc")), true, "low=tile=(12abc)", "12", "t"},
      {"negativeName", Range(named("-5")), true, "low=tile=(-5)", "-5", "t"},
      {"minusOneName", Range(named("-1")), true, "low=tile=(-1)", "\"-1\"", "t"},
      {"hugeName", Range(named("99999999999")), true, "low=tile=(99999999999)",
       "\"99999999999\"", "t"},
      {"digitNameRange", Range(named("12abc"), named("13")), true,
       "low=tile=(12abc) high=tile=(13)", "\"12abc:13\"", "t"},
      {"empty", Range(Spec()), false, "", "\"\"", "t"},
      {"secondOnly", Range(Spec(), at(3, 4)), false, "", "\"\"", "t"},
  };
  JDocument doc;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(c.range.isValid(), c.valid);
    EXPECT_EQ(c.range.str(), c.str);
    PhysicalRangeArray array(doc.GetAllocator());
    JValue element;
    EXPECT_TRUE(array.storeVal(element, c.range));
    EXPECT_EQ(toText(element), c.element);
    EXPECT_TRUE(array.empty()) << "storeVal does not append";

    const std::pair<char, void (PhysicalRangeArray::*)(const Range&)> pushes[] = {
        {'t', &PhysicalRangeArray::pushTileRangeBack},
        {'m', &PhysicalRangeArray::pushMemRangeBack},
        {'s', &PhysicalRangeArray::pushShimRangeBack}};
    for (const auto& [kind, push] : pushes) {
      PhysicalRangeArray pushed(doc.GetAllocator());
      (pushed.*push)(c.range);
      const bool expected = c.pushedBy.find(kind) != std::string::npos;
      EXPECT_EQ(toText(pushed.get()), expected ? "[" + toText(element) + "]" : "[]") << kind;
    }
  }
}

TEST(PhysicalRangeTest, ShiftsCoordinateEndsOnly)
{
  const struct {
    Range range;
    int delta;
    const char* str;
  } cases[] = {
      {Range(at(2, 0), at(5, 3)), 3, "low=tile=(5,0) high=tile=(8,3)"},
      {Range(at(2, 0), at(5, 3)), -2, "low=tile=(0,0) high=tile=(3,3)"},
      {Range(named("a"), at(5, 3)), 1, "low=tile=(a) high=tile=(6,3)"},
      {Range(shim(3, 1)), 10, "low=shim=(13,1)"},
      {Range(bank(1, 8, at(2, 0, json::MemSpec()))), 1, "low=mem=(3,0)"},
      // Column 0 shifted by -1 lands on the unset value: the low end is gone.
      {Range(at(0, 2), at(4, 2)), -1, ""},
      {Range(at(-1, 2)), 5, ""},
  };
  for (const auto& c : cases) {
    Range range = c.range;
    range.offsetColumn(c.delta);
    EXPECT_EQ(range.str(), c.str);
    EXPECT_FALSE(range.getFirst().isBankSet() || range.getFirst().isOffsetSet()) << c.str;
  }
}

}  // namespace
