#include "TestSupport.h"

#include "ComplexPair.h"
#include "ComplexRange.h"
#include "JMemValue.h"
#include "JShimValue.h"
#include "JTileValue.h"
#include "JsonValueUtils.h"

#include <boost/algorithm/string/replace.hpp>

#include <climits>

namespace {

using namespace qpe::constraints;
using namespace qpe::constraints::json;
using testing_support::MessageLogTest;
using testing_support::parseJson;

constexpr auto critical = ComMsgMgr::CriticalWarning;

// "x,y" and ",name" when there is a name.
std::string fields(const ComplexPair& pair)
{
  return std::to_string(pair.x) + "," + std::to_string(pair.y) +
         (pair.name.empty() ? "" : "," + pair.name);
}

class JsonTextTest : public MessageLogTest {};

TEST_F(JsonTextTest, ToIntTakesOnlyTheExactDecimalText)
{
  const std::pair<const char*, int> cases[] = {
      {"  12\t", 12}, {"\v\f7\r\n", 7}, {"-3", -3}, {"0", 0}, {"2147483647", INT_MAX},
      {"-2147483648", INT_MIN}, {"", -1}, {"   ", -1}, {"2147483648", -1}, {"+5", -1},
      {"007", -1}, {"5x", -1}, {"1.0", -1}, {"-0", -1}, {"1 2", -1}, {"x", -1}};
  for (const auto& [text, value] : cases)
    EXPECT_EQ(toInt(text), value) << "'" << text << "'";
}

TEST_F(JsonTextTest, StripParensReportsALoneParenthesisAndSplitCutsAtTheFirstSeparator)
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

// A text without a colon is a range of its first pair alone; only an empty
// first half is reported.
TEST_F(JsonTextTest, RangesSplitAtTheFirstColonAndPairsIntoNumbersOrAName)
{
  const std::pair<const char*, const char*> cases[] = {
      {"(3,4)", "3,4 | -1,-1"},         {"3", "3,-1 | -1,-1"},
      {"(3)", "3,-1 | -1,-1"},          {"tile_a", "-1,-1,tile_a | -1,-1"},
      {"(tile_a)", "-1,-1,tile_a | -1,-1"}, {"(3,z)", "3,-1 | -1,-1"},
      {",4", "-1,-1,,4 | -1,-1"},       {"-1", "-1,-1,-1 | -1,-1"},
      {"(-2, 5 )", "-2,5 | -1,-1"},     {"", "-1,-1 | -1,-1"},
      {":5", "-1,-1 | 5,-1"},           {"5:", "5,-1 | -1,-1"},
      {":", "-1,-1,: | -1,-1"},         {"(1,2):(3,4)", "1,2 | 3,4"},
      {"1:5", "1,-1 | 5,-1"},           {"tile_a:tile_b", "-1,-1,tile_a | -1,-1,tile_b"},
      {"a:b:c", "-1,-1,a | -1,-1,b:c"}};
  for (const auto& [text, pairs] : cases) {
    const ComplexRange range(text);
    EXPECT_EQ(range.text, text);
    EXPECT_EQ(fields(range.first) + " | " + fields(range.second), pairs) << "'" << text << "'";
  }
  expectSent({{"@75-647@%s", critical, {":5"}}});
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

// One JSON value in each of the three groups: the text of both ends through
// PhysicalSpec::str(), or "-" where the value is not valid. A mem and a shim
// value read as a tile value does unless the case says otherwise.
TEST_F(JsonTextTest, LocationValuesParseTheNewAndTheOldSyntax)
{
  const struct {
    const char* json;
    std::string tile;
    std::string memOrShim = tile;
  } cases[] = {
      {"[3, 4]", "tile=(3,4) tile=(-1,-1)"},
      {R"(["a", 4])", "tile=(a) tile=(-1,-1)", "tile=(a) tile=(4,-1)"},
      {"[[1, 2], [3, 4]]", "tile=(1,2) tile=(3,4)"},
      {"3", "tile=(3,-1) tile=(-1,-1)"},
      {R"j("(1,2):(3,4)")j", "tile=(1,2) tile=(3,4)"},
      {R"("tile_a:tile_b")", "tile=(tile_a) tile=(tile_b)"},
      {R"("1:5")", "tile=(1,-1) tile=(5,-1)"},
      {"[3, 4, 5]", "-"}, {"[true, [3, 4]]", "-"}, {R"("")", "-"}, {R"(":5")", "-"},
      {"1.5", "-"}, {"{}", "-"}, {"null", "-"}};
  for (const auto& c : cases) {
    const JDocument doc = parseJson(c.json);
    const auto as = [&](const char* kind) {
      return boost::replace_all_copy(c.memOrShim, "tile=", std::string(kind) + "=");
    };
    EXPECT_EQ(parsedLocation<JTileValue>(doc), c.tile) << c.json;
    EXPECT_EQ(parsedLocation<JMemValue>(doc), as("mem")) << c.json;
    EXPECT_EQ(parsedLocation<JShimValue>(doc), as("shim")) << c.json;
  }
}

TEST(JsonViewTest, ListsAndSourceLocations)
{
  const JDocument doc = parseJson(R"({
    "list": ["a", 3, {"b": {"issoft": true}}, {"c": true}, {"d": {"issoft": 1}},
             {"e": {}, "f": 2}, {"x": {"issoft": true}, "y": false}, {"": true}, ""],
    "names": ["a", "", 3, "b"],
    "src": {"file": "f.cc", "line": 7, "column": -1},
    "lineOnly": {"line": 7}})");
  using Entry = std::pair<std::string, ConstrProperties>;
  EXPECT_EQ(readObjectArrayWithProperties(doc["list"]),
            (std::vector<Entry>{{"a", {false}}, {"b", {true}}, {"c", {true}}, {"d", {false}},
                                {"e", {false}}, {"y", {false}}}));
  EXPECT_TRUE(readObjectArrayWithProperties(doc).empty());
  EXPECT_EQ(readStringArrayValue(doc, "names"), (std::vector<std::string>{"a", "b"}));
  EXPECT_TRUE(readStringArrayValue(doc, "src").empty());

  std::string file = "old";
  std::uint32_t line = 1;
  std::uint32_t column = 2;
  EXPECT_FALSE(readSrcInfo(doc["lineOnly"], file, line, column));
  EXPECT_EQ(file + std::to_string(line) + std::to_string(column), "old12");
  EXPECT_TRUE(readSrcInfo(doc["src"], file, line, column));
  EXPECT_EQ(file + std::to_string(line) + std::to_string(column), "f.cc70");
}

}  // namespace
