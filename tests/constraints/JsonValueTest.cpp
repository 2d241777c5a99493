#include "TestSupport.h"

#include "ComplexPair.h"
#include "ComplexPairWithXY.h"
#include "ComplexRange.h"
#include "DefaultXYValues.h"
#include "JArray.h"
#include "JIntPair.h"
#include "JMemValue.h"
#include "JShimValue.h"
#include "JSimpleValue.h"
#include "JString.h"
#include "JTileValue.h"
#include "JsonValueUtils.h"

#include <climits>
#include <memory>

namespace {

using namespace qpe::constraints;
using namespace qpe::constraints::json;
using testing_support::MessageLogTest;

constexpr auto critical = ComMsgMgr::CriticalWarning;
constexpr int notSet = DefaultXYValues::XCoordinateNotSetValue;

std::unique_ptr<JDocument> parsed(const char* text)
{
  auto doc = std::make_unique<JDocument>();
  doc->Parse(text);
  EXPECT_FALSE(doc->HasParseError()) << text;
  return doc;
}

// What a text parses to.
struct PairCase {
  std::string text;
  int x;
  int y;
  std::string name;
};

void PrintTo(const PairCase& c, std::ostream* out)
{
  *out << "'" << c.text << "'";
}

void expectPair(const ComplexPair& pair, const PairCase& expected)
{
  EXPECT_EQ(pair.x, expected.x);
  EXPECT_EQ(pair.y, expected.y);
  EXPECT_EQ(pair.name, expected.name);
}

class ToIntTest : public testing::TestWithParam<std::pair<const char*, int>> {};

TEST_P(ToIntTest, OnlyTheExactDecimalTextCounts)
{
  EXPECT_EQ(toInt(GetParam().first), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ToIntTest,
    testing::Values(std::pair{"  12\t", 12}, std::pair{"\v\f7\r\n", 7}, std::pair{"-3", -3},
                    std::pair{"0", 0}, std::pair{"2147483647", INT_MAX},
                    std::pair{"-2147483648", INT_MIN}, std::pair{"", -1}, std::pair{"   ", -1},
                    std::pair{"2147483648", -1}, std::pair{"+5", -1}, std::pair{"007", -1},
                    std::pair{"5x", -1}, std::pair{"1.0", -1}, std::pair{"-0", -1},
                    std::pair{"1 2", -1}, std::pair{"x", -1}));

class TextSyntaxTest : public MessageLogTest {};

TEST_F(TextSyntaxTest, StripParensReportsALoneParenthesisAndSplitCutsAtTheFirstSeparator)
{
  const std::pair<const char*, const char*> cases[] = {
      {"(", "("}, {")", ")"}, {"(3)", "3"}, {"()", ""}, {"ab", "ab"}, {"", ""},
      {"(3", "3"}, {"3)", "3"}};
  for (const auto& [text, stripped] : cases) {
    std::string value = text;
    stripParens(value);
    EXPECT_EQ(value, stripped) << text;
  }
  expectSent({{"@75-646@%s", critical, {"(3"}}, {"@75-646@%s", critical, {"3)"}}});

  std::string left = "L";
  std::string right = "R";
  split("ab", left, right, ',');
  EXPECT_EQ(left + right, "LR") << "without a separator both stay";
  split("a,b,c", left, right, ',');
  EXPECT_EQ(left + "|" + right, "a|b,c");
}

class ComplexPairTest : public testing::TestWithParam<PairCase> {};

TEST_P(ComplexPairTest, SplitsIntoNumbersOrAName)
{
  const ComplexPair pair(GetParam().text);
  EXPECT_EQ(pair.text, GetParam().text);
  expectPair(pair, GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ComplexPairTest,
    testing::Values(PairCase{"(3,4)", 3, 4, ""}, PairCase{"3", 3, -1, ""},
                    PairCase{"(3)", 3, -1, ""}, PairCase{"tile_a", -1, -1, "tile_a"},
                    PairCase{"(tile_a)", -1, -1, "tile_a"}, PairCase{"(3,z)", 3, -1, ""},
                    PairCase{",4", -1, -1, ",4"}, PairCase{"", -1, -1, ""},
                    PairCase{"-1", -1, -1, "-1"}, PairCase{"(-2, 5 )", -2, 5, ""}));

class ComplexPairWithXYTest : public testing::TestWithParam<PairCase> {};

TEST_P(ComplexPairWithXYTest, ReadsXBeforeYOnly)
{
  expectPair(ComplexPairWithXY(GetParam().text), GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ComplexPairWithXYTest,
    testing::Values(PairCase{"(X=1,Y=2)", 1, 2, ""}, PairCase{"(X=-1,Y=0)", -1, 0, ""},
                    PairCase{"(Y=1,X=2)", notSet, notSet, ""},
                    PairCase{"(1,2)", notSet, notSet, ""}, PairCase{"X=3", 3, notSet, ""},
                    PairCase{"Y=4", notSet, 4, ""}, PairCase{"X3", -1, notSet, ""},
                    PairCase{"(X=,Y=4)", notSet, 4, ""}, PairCase{"", notSet, notSet, ""}));

struct RangeCase {
  std::string text;
  PairCase first;
  PairCase second;
  bool reported;
};

void PrintTo(const RangeCase& c, std::ostream* out)
{
  *out << "'" << c.text << "'";
}

class ComplexRangeTest : public MessageLogTest, public testing::WithParamInterface<RangeCase> {};

TEST_P(ComplexRangeTest, SplitsAtTheFirstColon)
{
  const RangeCase& c = GetParam();
  const ComplexRange range(c.text);
  EXPECT_EQ(range.text, c.text);
  expectPair(range.first, c.first);
  expectPair(range.second, c.second);
  if (c.reported)
    expectSent({{"@75-647@%s", critical, {c.text}}});
  else
    expectSent({});
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ComplexRangeTest,
    testing::Values(RangeCase{":5", {"", -1, -1, ""}, {"", 5, -1, ""}, true},
                    RangeCase{"5:", {"", 5, -1, ""}, {"", -1, -1, ""}, false},
                    RangeCase{":", {"", -1, -1, ":"}, {"", -1, -1, ""}, false},
                    RangeCase{"(1,2):(3,4)", {"", 1, 2, ""}, {"", 3, 4, ""}, false},
                    RangeCase{"tile_a:tile_b", {"", -1, -1, "tile_a"}, {"", -1, -1, "tile_b"},
                              false},
                    RangeCase{"1:5", {"", 1, -1, ""}, {"", 5, -1, ""}, false},
                    RangeCase{"a:b:c", {"", -1, -1, "a"}, {"", -1, -1, "b:c"}, false},
                    RangeCase{"(2,3)", {"", 2, 3, ""}, {"", -1, -1, ""}, false},
                    RangeCase{"", {"", -1, -1, ""}, {"", -1, -1, ""}, false}));

// One JSON value in each of the three groups: the text of both ends through
// PhysicalSpec::str(), or "-" where the value is not valid.
struct LocationCase {
  const char* json;
  std::string tile;
  std::string mem;
  std::string shim;
};

void PrintTo(const LocationCase& c, std::ostream* out)
{
  *out << c.json;
}

template <typename View>
std::string parsedLocation(const JValue& value)
{
  View view(value);
  view.parse();
  if (!view.isValid())
    return "-";
  return view.getFirst().str() + " " + view.getSecond().str();
}

class LocationValueTest : public MessageLogTest,
                          public testing::WithParamInterface<LocationCase> {};

TEST_P(LocationValueTest, ParsesTheNewAndTheOldSyntax)
{
  const LocationCase& c = GetParam();
  const auto doc = parsed(c.json);
  EXPECT_EQ(parsedLocation<JTileValue>(*doc), c.tile);
  EXPECT_EQ(parsedLocation<JMemValue>(*doc), c.mem);
  EXPECT_EQ(parsedLocation<JShimValue>(*doc), c.shim);
}

INSTANTIATE_TEST_SUITE_P(
    Values, LocationValueTest,
    testing::Values(
        LocationCase{"[3, 4]", "tile=(3,4) tile=(-1,-1)", "mem=(3,4) mem=(-1,-1)",
                     "shim=(3,4) shim=(-1,-1)"},
        LocationCase{"[3, 4, 5]", "-", "-", "-"},
        LocationCase{R"(["a", 4])", "tile=(a) tile=(-1,-1)", "mem=(a) mem=(4,-1)",
                     "shim=(a) shim=(4,-1)"},
        LocationCase{"[[1, 2], [3, 4]]", "tile=(1,2) tile=(3,4)", "mem=(1,2) mem=(3,4)",
                     "shim=(1,2) shim=(3,4)"},
        LocationCase{"[true, [3, 4]]", "-", "-", "-"},
        LocationCase{"3", "tile=(3,-1) tile=(-1,-1)", "mem=(3,-1) mem=(-1,-1)",
                     "shim=(3,-1) shim=(-1,-1)"},
        LocationCase{R"j("(1,2):(3,4)")j", "tile=(1,2) tile=(3,4)", "mem=(1,2) mem=(3,4)",
                     "shim=(1,2) shim=(3,4)"},
        LocationCase{R"("tile_a:tile_b")", "tile=(tile_a) tile=(tile_b)",
                     "mem=(tile_a) mem=(tile_b)", "shim=(tile_a) shim=(tile_b)"},
        LocationCase{R"("1:5")", "tile=(1,-1) tile=(5,-1)", "mem=(1,-1) mem=(5,-1)",
                     "shim=(1,-1) shim=(5,-1)"},
        LocationCase{R"("")", "-", "-", "-"}, LocationCase{R"(":5")", "-", "-", "-"},
        LocationCase{"1.5", "-", "-", "-"},
        LocationCase{"{}", "-", "-", "-"}, LocationCase{"null", "-", "-", "-"}));

TEST(JsonViewTest, MissingOrMistypedValuesReadAsTheSharedNull)
{
  const auto doc = parsed(R"({"a": [1, 2], "b": "s", "n": [1, "x"]})");
  const JBaseValue root(*doc);
  EXPECT_EQ(&root.getMember(""), &JBaseValue::nullValue());
  EXPECT_EQ(&root.getMember("missing"), &JBaseValue::nullValue());
  EXPECT_EQ(&JBaseValue(root.getMember("b")).getMember("x"), &JBaseValue::nullValue());
  EXPECT_TRUE(JBaseValue(root.getMember("n")).isPair());
  EXPECT_FALSE(JBaseValue(root.getMember("n")).isIntPair());
  EXPECT_FALSE(JIntPair(root.getMember("n")).isValid());
  EXPECT_EQ(JIntPair(root.getMember("n")).getFirst(), -1);
  EXPECT_EQ(JIntPair(root.getMember("a")).getSecond(), 2);

  const auto simple = parsed(R"([true, 3, 1.5, "s", null, [], {}, 3000000000])");
  const bool expected[] = {true, true, true, true, false, false, false, false};
  int i = 0;
  for (JArray values(*simple); !values.isEnd(); values.advance(), ++i) {
    EXPECT_EQ(JSimpleValue(values._front()).isValid(), expected[i]) << i;
    EXPECT_EQ(JString(values._front()).isValid(), i == 3) << i;
  }
  EXPECT_EQ(i, 8);
  const JArray notArray(*doc, "b");
  EXPECT_FALSE(notArray.isValid());
  EXPECT_TRUE(notArray.isEnd());
}

TEST(JsonViewTest, ListsAndSourceLocations)
{
  const auto doc = parsed(R"({
    "list": ["a", 3, {"b": {"issoft": true}}, {"c": true}, {"d": {"issoft": 1}},
             {"e": {}, "f": 2}, {"x": {"issoft": true}, "y": false}, {"": true}, ""],
    "names": ["a", "", 3, "b"],
    "src": {"file": "f.cc", "line": 7, "column": -1},
    "lineOnly": {"line": 7}})");
  using Entry = std::pair<std::string, ConstrProperties>;
  EXPECT_EQ(readObjectArrayWithProperties((*doc)["list"]),
            (std::vector<Entry>{{"a", {false}}, {"b", {true}}, {"c", {true}}, {"d", {false}},
                                {"e", {false}}, {"y", {false}}}));
  EXPECT_TRUE(readObjectArrayWithProperties(*doc).empty());
  EXPECT_EQ(readStringArrayValue(*doc, "names"), (std::vector<std::string>{"a", "b"}));
  EXPECT_TRUE(readStringArrayValue(*doc, "src").empty());

  std::string file = "old";
  std::uint32_t line = 1;
  std::uint32_t column = 2;
  EXPECT_FALSE(readSrcInfo((*doc)["lineOnly"], file, line, column));
  EXPECT_EQ(file + std::to_string(line) + std::to_string(column), "old12");
  EXPECT_TRUE(readSrcInfo((*doc)["src"], file, line, column));
  EXPECT_EQ(file + std::to_string(line) + std::to_string(column), "f.cc70");
}

}  // namespace
