#include "TestSupport.h"

#include "JsonFileFrame.h"
#include "NOCJsonReadWriteUtils.h"

namespace {

using IPConfig::JsonFileFrame;
using namespace testing_support;

const char* const schemaText = R"({
  "type": "object",
  "properties": {
    "name": {"type": "string"},
    "items": {"type": "array", "items": {"type": "integer"}}
  }
})";

// A data tree of its own, with a schema in the traffic schema's place.
class JsonFileFrameTest : public MessageLogTest {
protected:
  JsonFileFrameTest() : kvrRoot_("KVR_ROOT", root_.path().string())
  {
    // Written by its full path: asking for the schema first would find the
    // one the source tree ships.
    writeFile(schemaPath(), schemaText);
  }

  std::string schemaPath() const
  {
    return root_.file("data/parts/tarnel/common/noc/schemas/traffic.json");
  }

  TempDir root_;
  ScopedEnv kvrRoot_;
};

TEST_F(JsonFileFrameTest, ParseRefusesAFailedStreamAndReportsMalformedInput)
{
  std::istringstream failed("{}");
  failed.setstate(std::ios_base::failbit);
  JDocument parsed;
  expectThrows([&] { JsonFileFrame::parse(failed, "given.json", parsed); }, "@90-1@%s",
               {"given.json"});
  EXPECT_TRUE(parsed.IsNull()) << "refused before parsing";
  std::istringstream malformed(R"({"name": "a",)");
  expectThrows([&] { JsonFileFrame::parse(malformed, "given.json", parsed); }, "@90-2@%s%s",
               {"given.json", "Missing a name for object member. (offset 13)"});
}

TEST_F(JsonFileFrameTest, ReadFileHandsOnTheOpenStreamByCanonicalNameOrRefusesIt)
{
  writeFile(root_.file("in.json"), R"({"name": "a"})");
  std::string seenName;
  JDocument parsed;
  JsonFileFrame::readFile(root_.file("./in.json"), isl::iostreams::xp_autodetect(),
                          [&](std::istream& in, const std::string& canonicalName) {
                            seenName = canonicalName;
                            JsonFileFrame::parse(in, canonicalName, parsed);
                          });
  EXPECT_EQ(seenName, (fs::canonical(root_.path()) / "in.json").string());
  EXPECT_EQ(HCRapidJsonReadWriteUtils::GetStringProperty(parsed, "name"), "a");

  const auto neverCalled = [](std::istream&, const std::string&) { ADD_FAILURE(); };
  const std::string missing = root_.file("sub/../missing.json");
  expectThrows([&] { JsonFileFrame::readFile(missing, isl::iostreams::basic_file(), neverCalled); },
               "@90-1@%s", {(fs::canonical(root_.path()) / "missing.json").string()});
  expectThrows(
      [&] { JsonFileFrame::readFile(root_.file("."), isl::iostreams::basic_file(), neverCalled); },
      "@90-1@%s", {fs::canonical(root_.path()).string()});
}

TEST_F(JsonFileFrameTest, ValidateReportsTheJsonPointerAndASchemaByItsCanonicalName)
{
  const auto validate = [](const char* text, const std::string& schema) {
    JsonFileFrame::validate(parseJson(text), "in.json", schema, isl::iostreams::xp_autodetect());
  };
  EXPECT_NO_THROW(validate(R"({"items": [1]})", schemaPath()));
  expectThrows([&] { validate(R"({"name": "a", "items": [1, 2, "x"]})", schemaPath()); },
               "@90-2@%s%s", {"in.json", "/items/2"});
  expectThrows([&] { validate("{}", root_.file("data/sub/../nothing.json")); }, "@90-3@%s",
               {(fs::canonical(root_.path()) / "data" / "nothing.json").string()});
  writeFile(schemaPath(), "{\"type\": ");
  expectThrows([&] { validate("{}", schemaPath()); }, "@90-4@%s%s",
               {fs::canonical(schemaPath()).string(), "Invalid value. (offset 9)"});
}

TEST_F(JsonFileFrameTest, ValidWriteIsPrettyWithTwoBlankIndent)
{
  std::ostringstream out;
  EXPECT_TRUE(JsonFileFrame::writeValidated(parseJson(R"({"name": "a", "items": [1, 2]})"), out,
                                            schemaPath(), "Test File"));
  EXPECT_EQ(out.str(), "{\n  \"name\": \"a\",\n  \"items\": [\n    1,\n    2\n  ]\n}");
  // Sub-schemas get validators of their own; they must not write.
  writeFile(schemaPath(), R"({"type": "object",
    "patternProperties": {"^n": {"oneOf": [{"type": "string"}, {"type": "integer"}]}}})");
  out.str("");
  EXPECT_TRUE(JsonFileFrame::writeValidated(parseJson(R"({"name": "a", "n2": 3})"), out,
                                            schemaPath(), "Test File"));
  EXPECT_EQ(out.str(), "{\n  \"name\": \"a\",\n  \"n2\": 3\n}");
  EXPECT_TRUE(records().empty());
}

TEST_F(JsonFileFrameTest, FailedValidatedWriteLeavesTextUpToTheFailingValue)
{
  std::ostringstream out;
  EXPECT_FALSE(JsonFileFrame::writeValidated(
      parseJson(R"({"name": "a", "items": [1, "x", 3]})"), out, schemaPath(), "NoC Traffic Spec"));
  EXPECT_EQ(out.str(), "{\n  \"name\": \"a\",\n  \"items\": [\n    1");
  expectSent({{"@75-585@%s", ComMsgMgr::Error, {"NoC Traffic Spec"}}});
}

TEST_F(JsonFileFrameTest, WriteFileKeepsTheWritersResultAndBuildsNoTextForARefusedStream)
{
  bool called = false;
  bool result = false;
  const auto writer = [&](std::ostream& out) {
    called = true;
    out << "text";
    return result;
  };
  EXPECT_FALSE(JsonFileFrame::writeFile(root_.file("sub/../out.json"),
                                        JsonFileFrame::OpenCheck::refuseUnopened, writer));
  EXPECT_EQ(readFile(root_.file("out.json")), "text") << "written by its canonical path";
  called = false;
  result = true;
  const std::string unopenable = root_.file("no/such/dir/out.json");
  EXPECT_FALSE(
      JsonFileFrame::writeFile(unopenable, JsonFileFrame::OpenCheck::refuseUnopened, writer));
  EXPECT_FALSE(called);
  EXPECT_TRUE(
      JsonFileFrame::writeFile(unopenable, JsonFileFrame::OpenCheck::writeRegardless, writer));
  EXPECT_TRUE(called) << "the document is still built and validated";
  EXPECT_FALSE(fs::exists(unopenable));
}

class NOCJsonReadWriteUtilsTest : public MessageLogTest {};

TEST_F(NOCJsonReadWriteUtilsTest, SchemaPathsLieUnderTheDataDirectoryAndValidateAsksTheHost)
{
  const TempDir root;
  const ScopedEnv kvrRoot("KVR_ROOT", root.path().string());
  const std::string common = (root.path() / "data/parts/tarnel/common/").string();
  using Utils = NOC::NOCJsonReadWriteUtils;
  const std::pair<std::string (*)(), const char*> paths[] = {
      {Utils::getTrafficJsonSchemaFile, "noc/schemas/traffic.json"},
      {Utils::getSolutionJsonSchemaFile, "noc/schemas/solution.json"},
      {Utils::getConstraintsJsonSchemaFile, "noc/schemas/constraints.json"},
      {Utils::getQPEShimConstraintsJsonSchemaFile, "noc/schemas/constraints.json"},
      {Utils::getLogicalArchJsonSchemaFile, "merrow/LogicalArchSchema.json"},
      {Utils::getZXSolutionJsonSchemaFile, "merrow/ZXSolutionSchema.json"}};
  for (const auto& [schemaFile, relative] : paths) {
    writeFile(common + relative, "{}");  // else the source tree's copy would be found
    EXPECT_EQ(schemaFile(), common + relative);
  }
  expectThrows([] { Utils::validateLogicalArchSchemaFile(""); }, "@90-5@%s%s",
               {"", "no schema path given"});
}

}  // namespace
