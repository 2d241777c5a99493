#include "TestSupport.h"

#include "HCRapidJsonReadWriteUtils.h"

#include <functional>

namespace {

using Json = HCRapidJsonReadWriteUtils;
using testing_support::MessageLogTest;
using testing_support::TempDir;
using testing_support::toText;

JDocument parse(const char* text)
{
  JDocument document;
  document.Parse(text);
  return document;
}

const char* const typedValues = R"({
  "bool": true, "int": -7, "bigUnsigned": 3000000000, "double": 1.5,
  "integralDouble": 2.0, "string": "s", "array": ["a", 1, "b"], "null": null
})";

// What each tester says of each key of typedValues: strict JSON types.
struct TesterCase {
  const char* key;
  bool isBool, isInt, isULong, isDouble, isString, isArray;
};

void PrintTo(const TesterCase& c, std::ostream* out)
{
  *out << c.key;
}

class PropertyTesterTest : public ::testing::TestWithParam<TesterCase> {};

TEST_P(PropertyTesterTest, TestsTheExactJsonType)
{
  const JDocument document = parse(typedValues);
  const TesterCase& c = GetParam();
  EXPECT_EQ(Json::IsBooleanProperty(document, c.key), c.isBool);
  EXPECT_EQ(Json::IsIntegrProperty(document, c.key), c.isInt);
  EXPECT_EQ(Json::IsULongProperty(document, c.key), c.isULong);
  EXPECT_EQ(Json::IsDoubleProperty(document, c.key), c.isDouble);
  EXPECT_EQ(Json::IsStringProperty(document, c.key), c.isString);
  EXPECT_EQ(Json::IsArrayProperty(document, c.key), c.isArray);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, PropertyTesterTest,
    ::testing::Values(TesterCase{"bool", true, false, false, false, false, false},
                      TesterCase{"int", false, true, false, false, false, false},
                      TesterCase{"bigUnsigned", false, false, true, false, false, false},
                      TesterCase{"double", false, false, false, true, false, false},
                      TesterCase{"integralDouble", false, false, false, true, false, false},
                      TesterCase{"string", false, false, false, false, true, false},
                      TesterCase{"array", false, false, false, false, false, true},
                      TesterCase{"null", false, false, false, false, false, false},
                      TesterCase{"missing", false, false, false, false, false, false}));

TEST(PropertyGetterTest, GiveTheValueOrTheDefaultOfTheirType)
{
  const JDocument document = parse(typedValues);
  EXPECT_TRUE(Json::GetBooleanProperty(document, "bool"));
  EXPECT_FALSE(Json::GetBooleanProperty(document, "int"));
  EXPECT_EQ(Json::GetIntegrProperty(document, "int"), -7);
  EXPECT_EQ(Json::GetIntegrProperty(document, "bigUnsigned"), 0) << "beyond int";
  EXPECT_EQ(Json::GetIntegrProperty(document, "double"), 0) << "no truncation";
  EXPECT_EQ(Json::GetULongProperty(document, "bigUnsigned"), 3000000000ul);
  EXPECT_EQ(Json::GetULongProperty(document, "int"), 0ul) << "negative";
  EXPECT_EQ(Json::GetDoubleProperty(document, "double"), 1.5);
  EXPECT_EQ(Json::GetDoubleProperty(document, "int"), -7.0) << "an integer is a number";
  EXPECT_EQ(Json::GetDoubleProperty(document, "string"), 0.0);
  EXPECT_EQ(Json::GetStringProperty(document, "string"), "s");
  EXPECT_EQ(Json::GetStringProperty(document, "int"), "");
  EXPECT_EQ(Json::GetStringArrayProperty(document, "array"),
            (std::vector<std::string>{"a", "b"}));
  EXPECT_TRUE(Json::GetStringArrayProperty(document, "string").empty());
}

TEST(PropertyGetterTest, NonObjectGivesDefaultsInsteadOfFailing)
{
  const JDocument array = parse("[1, 2]");
  EXPECT_FALSE(Json::IsIntegrProperty(array, "0"));
  EXPECT_EQ(Json::GetIntegrProperty(array, "0"), 0);
  EXPECT_EQ(Json::GetStringProperty(array, "0"), "");
}

TEST(PropertyAdderTest, AppendsInCallOrderAndKeepsDuplicateKeys)
{
  JDocument document(rapidjson::kObjectType);
  JAllocator& alloc = document.GetAllocator();
  std::string key = "k";
  Json::AddStringProperty(document, key, "first", alloc);
  Json::AddBooleanProperty(document, "b", true, alloc);
  Json::AddIntegrProperty(document, "i", -3, alloc);
  Json::AddULongProperty(document, "u", 4000000000ul, alloc);
  Json::AddDoubleProperty(document, "d", 1.0, alloc);
  Json::AddStringArrayProperty(document, "a", {"x", "y"}, alloc);
  JValue nested(rapidjson::kObjectType);
  Json::AddIntegrProperty(nested, "n", 1, alloc);
  Json::AddGenericValueProperty(document, "o", nested, alloc);
  key = "changed after the call";
  Json::AddStringProperty(document, "k", "second", alloc);

  EXPECT_TRUE(nested.IsNull()) << "the value is moved into the document";
  EXPECT_EQ(toText(document),
            R"({"k":"first","b":true,"i":-3,"u":4000000000,"d":1.0,"a":["x","y"],)"
            R"("o":{"n":1},"k":"second"})");
}

struct ErrorCase {
  const char* name;
  std::function<void()> call;
  const char* format;
  std::vector<std::string> args;
};

void PrintTo(const ErrorCase& c, std::ostream* out)
{
  *out << c.name;
}

class ErrorCallTest : public MessageLogTest, public ::testing::WithParamInterface<ErrorCase> {};

TEST_P(ErrorCallTest, ThrowsItsNumberedMessageWithTheFileAttached)
{
  const ErrorCase& c = GetParam();
  expectThrows(c.call, c.format, c.args);
  const auto logged = records();
  ASSERT_EQ(logged.size(), 1u);
  EXPECT_TRUE(logged[0].thrown);
  EXPECT_EQ(logged[0].message.getMask(), ComMsgMgr::Error);
  EXPECT_EQ(logged[0].message.getAttachedFile(), c.args[0]);
}

INSTANTIATE_TEST_SUITE_P(
    Calls, ErrorCallTest,
    ::testing::Values(
        ErrorCase{"readingJson", [] { Json::errorReadingJsonFile("/d/a.json"); }, "@90-1@%s",
                  {"/d/a.json"}},
        ErrorCase{"parsingJson", [] { Json::errorParsingJsonFile("/d/a.json", "/x/0"); },
                  "@90-2@%s%s", {"/d/a.json", "/x/0"}},
        ErrorCase{"readingSchema", [] { Json::errorReadingSchemaFile("/d/s.json"); }, "@90-3@%s",
                  {"/d/s.json"}},
        ErrorCase{"parsingSchema", [] { Json::errorParsingSchemaFile("/d/s.json", "bad"); },
                  "@90-4@%s%s", {"/d/s.json", "bad"}},
        ErrorCase{"missingSchema", [] { Json::validateSchemaFile("/no/such/schema.json"); },
                  "@90-5@%s%s",
                  {"/no/such/schema.json", "file does not exist: /no/such/schema.json"}},
        ErrorCase{"emptySchemaPath", [] { Json::validateSchemaFile(""); }, "@90-5@%s%s",
                  {"", "no schema path given"}}),
    [](const auto& info) { return info.param.name; });

TEST_F(ErrorCallTest, ValidateSchemaFileRefusesADirectoryAndAcceptsAFile)
{
  const TempDir dir;
  expectThrows([&] { Json::validateSchemaFile(dir.path().string()); }, "@90-5@%s%s",
               {dir.path().string(), "not a regular file: " + dir.path().string()});
  testing_support::writeFile(dir.file("s.json"), "{}");
  EXPECT_TRUE(Json::validateSchemaFile(dir.file("s.json")));
}

TEST(ErrorTextTest, ParseErrorNamesTheProblemAndOffset)
{
  EXPECT_EQ(Json::GetErrorMsgFromDocument(parse("{\"a\": 1,")),
            "Missing a name for object member. (offset 8)");
  EXPECT_EQ(Json::GetErrorMsgFromDocument(parse("")), "The document is empty. (offset 0)");
  EXPECT_EQ(Json::GetErrorMsgFromDocument(parse("{}")), "");
}

}  // namespace
