#include "SpecBuilders.h"
#include "TestSupport.h"

#include "PhysicalRange.h"
#include "PhysicalRangeArray.h"

namespace {

using namespace qpe::constraints;
using namespace spec_builders;
using testing_support::toText;
using Spec = PhysicalSpec;
using Range = PhysicalRange;

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

TEST(PhysicalRangeTest, RectanglesAndBoundingBoxes)
{
  Range range(at(1, 2), at(3, 4));
  EXPECT_EQ(range.getRect(), HDRectangle<int>(3, 4, 1, 2));
  EXPECT_TRUE(range.isWithinBoundingBox({3, 4, 1, 2}));
  EXPECT_FALSE(range.isWithinBoundingBox({3, 3, 1, 2})) << "second row outside";
  EXPECT_FALSE(range.isWithinBoundingBox({3, 4, 2, 2})) << "first column outside";
  range.setRect({9, 8, 7, 6});
  EXPECT_EQ(range.str(), "low=tile=(7,6) high=tile=(9,8)");

  Range names(named("a"), named("b"));
  EXPECT_TRUE(names.isWithinBoundingBox({0, 0, 0, 0}));
  names.setRect(names.getRect());
  EXPECT_FALSE(names.getFirst().isValid() || names.getSecond().isValid());
}

TEST(PhysicalRangeTest, ArrayAppendsInOrder)
{
  JDocument doc;
  PhysicalRangeArray array(doc.GetAllocator());
  array.pushBack(Range(column(7)));
  array.pushTileRangeBack(Range(at(2, 0), at(5, 3)));
  array.pushShimRangeBack(Range(named("s", json::ShimSpec())));
  EXPECT_EQ(toText(array.get()), R"j([7,"(2,0):(5,3)","s"])j");
}

}  // namespace
