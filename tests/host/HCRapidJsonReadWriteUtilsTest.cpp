#include "TestSupport.h"

#include "HCRapidJsonReadWriteUtils.h"

#include <functional>

namespace {

using Json = HCRapidJsonReadWriteUtils;
using testing_support::MessageLogTest;
using testing_support::parseJson;
using testing_support::toText;

const char* const typedValues = R"({
  "bool": true, "int": -7, "bigUnsigned": 3000000000, "double": 1.5,
  "integralDouble": 2.0, "string": "s", "array": ["a", 1, "b"], "null": null
})";

TEST(PropertyTesterTest, TestsTheExactJsonType)
{
  // What each tester says of each key of typedValues.
  const struct {
    const char* key;
    bool isBool, isInt, isULong, isDouble, isString, isArray;
  } rows[] = {{"bool", true, false, false, false, false, false},
              {"int", false, true, false, false, false, false},
              {"bigUnsigned", false, false, true, false, false, false},
              {"double", false, false, false, true, false, false},
              {"integralDouble", false, false, false, true, false, false},
              {"string", false, false, false, false, true, false},
              {"array", false, false, false, false, false, true},
              {"null", false, false, false, false, false, false},
              {"missing", false, false, false, false, false, false}};
  const JDocument document = parseJson(typedValues);
  for (const auto& row : rows) {
    SCOPED_TRACE(row.key);
    EXPECT_EQ(Json::IsBooleanProperty(document, row.key), row.isBool);
    EXPECT_EQ(Json::IsIntegrProperty(document, row.key), row.isInt);
    EXPECT_EQ(Json::IsULongProperty(document, row.key), row.isULong);
    EXPECT_EQ(Json::IsDoubleProperty(document, row.key), row.isDouble);
    EXPECT_EQ(Json::IsStringProperty(document, row.key), row.isString);
    EXPECT_EQ(Json::IsArrayProperty(document, row.key), row.isArray);
  }
}

TEST(PropertyGetterTest, GiveTheValueOrTheDefaultOfTheirType)
{
  const JDocument document = parseJson(typedValues);
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

  const JDocument array = parseJson("[1, 2]");  // defaults instead of failing
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

class ErrorCallTest : public MessageLogTest {};

TEST_F(ErrorCallTest, EachThrowsItsNumberedMessageWithTheFileAttached)
{
  const struct {
    std::function<void()> call;
    const char* format;
    std::vector<std::string> args;
  } calls[] = {
      {[] { Json::errorReadingJsonFile("/d/a.json"); }, "@90-1@%s", {"/d/a.json"}},
      {[] { Json::errorParsingJsonFile("/d/a.json", "/x/0"); }, "@90-2@%s%s",
       {"/d/a.json", "/x/0"}},
      {[] { Json::errorReadingSchemaFile("/d/s.json"); }, "@90-3@%s", {"/d/s.json"}},
      {[] { Json::errorParsingSchemaFile("/d/s.json", "bad"); }, "@90-4@%s%s",
       {"/d/s.json", "bad"}},
      {[] { Json::validateSchemaFile("/no/such/schema.json"); }, "@90-5@%s%s",
       {"/no/such/schema.json", "file does not exist: /no/such/schema.json"}},
      {[] { Json::validateSchemaFile(""); }, "@90-5@%s%s", {"", "no schema path given"}},
      {[] { Json::validateSchemaFile("/"); }, "@90-5@%s%s", {"/", "not a regular file: /"}}};
  for (const auto& c : calls) {
    SCOPED_TRACE(c.args.back());
    ComMsgLog::clear();
    expectThrows(c.call, c.format, c.args);
    const auto logged = records();
    ASSERT_EQ(logged.size(), 1u);
    EXPECT_TRUE(logged[0].thrown);
    EXPECT_EQ(logged[0].message.getMask(), ComMsgMgr::Error);
    EXPECT_EQ(logged[0].message.getAttachedFile(), c.args[0]);
  }
  EXPECT_TRUE(Json::validateSchemaFile(IPCONFIG_RW_DATA_SOURCE_DIR "/README.md"));
}

}  // namespace
