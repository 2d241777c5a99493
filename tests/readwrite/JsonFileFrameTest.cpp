#include "TestSupport.h"

#include "JsonFileFrame.h"
#include "NOCJsonReadWriteUtils.h"

#include <sstream>

namespace {

using IPConfig::JsonFileFrame;
using testing_support::MessageLogTest;
using testing_support::ScopedEnv;
using testing_support::TempDir;
using testing_support::writeFile;
namespace fs = boost::filesystem;

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

  static JDocument document(const char* text)
  {
    JDocument parsed;
    parsed.Parse(text);
    return parsed;
  }

  std::string schemaPath() const
  {
    return root_.file("data/parts/tarnel/common/noc/schemas/traffic.json");
  }

  TempDir root_;
  ScopedEnv kvrRoot_;
};

TEST_F(JsonFileFrameTest, StreamWithFailbitIsRefusedBeforeParsing)
{
  std::istringstream in("{}");
  in.setstate(std::ios_base::failbit);
  JDocument parsed;
  expectThrows([&] { JsonFileFrame::parse(in, "given.json", parsed); }, "@90-1@%s",
               {"given.json"});
  EXPECT_TRUE(parsed.IsNull());
}

TEST_F(JsonFileFrameTest, MalformedInputIsReportedWithTheParseError)
{
  std::istringstream in(R"({"name": "a",)");
  JDocument parsed;
  expectThrows([&] { JsonFileFrame::parse(in, "given.json", parsed); }, "@90-2@%s%s",
               {"given.json", "Missing a name for object member. (offset 13)"});
}

TEST_F(JsonFileFrameTest, ReadFileRefusesMissingFilesAndDirectoriesByCanonicalName)
{
  const auto neverCalled = [](std::istream&, const std::string&) { ADD_FAILURE(); };
  const std::string missing = root_.file("sub/../missing.json");
  expectThrows([&] { JsonFileFrame::readFile(missing, isl::iostreams::basic_file(), neverCalled); },
               "@90-1@%s", {(fs::canonical(root_.path()) / "missing.json").string()});
  expectThrows(
      [&] { JsonFileFrame::readFile(root_.file("."), isl::iostreams::basic_file(), neverCalled); },
      "@90-1@%s", {fs::canonical(root_.path()).string()});
}

TEST_F(JsonFileFrameTest, ReadFileHandsOnTheOpenStreamAndCanonicalName)
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
}

TEST_F(JsonFileFrameTest, MissingSchemaIsReportedByTheSchemasCanonicalName)
{
  const JDocument valid = document(R"({"name": "a"})");
  const std::string schema = root_.file("data/sub/../nothing.json");
  expectThrows(
      [&] { JsonFileFrame::validate(valid, "in.json", schema, isl::iostreams::basic_file()); },
      "@90-3@%s", {(fs::canonical(root_.path()) / "data" / "nothing.json").string()});
}

TEST_F(JsonFileFrameTest, MalformedSchemaIsReportedWithItsParseError)
{
  writeFile(schemaPath(), "{\"type\": ");
  expectThrows(
      [&] {
        JsonFileFrame::validate(document("{}"), "in.json", schemaPath(),
                                isl::iostreams::xp_autodetect());
      },
      "@90-4@%s%s", {fs::canonical(schemaPath()).string(), "Invalid value. (offset 9)"});
}

TEST_F(JsonFileFrameTest, SchemaViolationIsReportedWithTheJsonPointerOnly)
{
  const JDocument invalid = document(R"({"name": "a", "items": [1, 2, "x"]})");
  expectThrows(
      [&] {
        JsonFileFrame::validate(invalid, "in.json", schemaPath(), isl::iostreams::basic_file());
      },
      "@90-2@%s%s", {"in.json", "/items/2"});
  EXPECT_NO_THROW(JsonFileFrame::validate(document(R"({"items": [1]})"), "in.json", schemaPath(),
                                          isl::iostreams::basic_file()));
}

TEST_F(JsonFileFrameTest, ValidWriteIsPrettyWithTwoBlankIndent)
{
  std::ostringstream out;
  EXPECT_TRUE(JsonFileFrame::writeValidated(document(R"({"name": "a", "items": [1, 2]})"), out,
                                            schemaPath(), "Test File"));
  EXPECT_EQ(out.str(), "{\n  \"name\": \"a\",\n  \"items\": [\n    1,\n    2\n  ]\n}");
  EXPECT_TRUE(records().empty());
}

TEST_F(JsonFileFrameTest, FailedValidatedWriteLeavesTextUpToTheFailingValue)
{
  std::ostringstream out;
  EXPECT_FALSE(JsonFileFrame::writeValidated(
      document(R"({"name": "a", "items": [1, "x", 3]})"), out, schemaPath(), "NoC Traffic Spec"));
  EXPECT_EQ(out.str(), "{\n  \"name\": \"a\",\n  \"items\": [\n    1");
  expectSent({{"@75-585@%s", ComMsgMgr::Error, {"NoC Traffic Spec"}}});
}

// Sub-schemas get validators of their own; they must not write.
TEST_F(JsonFileFrameTest, WriteThroughSubSchemasWritesEachValueOnce)
{
  writeFile(schemaPath(), R"({"type": "object",
    "patternProperties": {"^n": {"oneOf": [{"type": "string"}, {"type": "integer"}]}}})");
  std::ostringstream out;
  EXPECT_TRUE(JsonFileFrame::writeValidated(document(R"({"name": "a", "n2": 3})"), out,
                                            schemaPath(), "Test File"));
  EXPECT_EQ(out.str(), "{\n  \"name\": \"a\",\n  \"n2\": 3\n}");
}

TEST_F(JsonFileFrameTest, WriteFileRefusingAnUnopenedStreamNeverBuildsTheText)
{
  bool called = false;
  const auto writer = [&](std::ostream&) {
    called = true;
    return true;
  };
  const std::string unopenable = root_.file("no/such/dir/out.json");
  EXPECT_FALSE(
      JsonFileFrame::writeFile(unopenable, JsonFileFrame::OpenCheck::refuseUnopened, writer));
  EXPECT_FALSE(called);
  EXPECT_TRUE(
      JsonFileFrame::writeFile(unopenable, JsonFileFrame::OpenCheck::writeRegardless, writer));
  EXPECT_TRUE(called) << "the document is still built and validated";
  EXPECT_FALSE(fs::exists(unopenable));
}

TEST_F(JsonFileFrameTest, WriteFileWritesTheCanonicalPathAndKeepsTheWritersResult)
{
  const auto writer = [](std::ostream& out) {
    out << "text";
    return false;
  };
  EXPECT_FALSE(JsonFileFrame::writeFile(root_.file("sub/../out.json"),
                                        JsonFileFrame::OpenCheck::refuseUnopened, writer));
  EXPECT_EQ(testing_support::readFile(root_.file("out.json")), "text");
}

TEST_F(JsonFileFrameTest, WritePrettyRefusesANaN)
{
  JDocument nan(rapidjson::kObjectType);
  HCRapidJsonReadWriteUtils::AddDoubleProperty(nan, "x", std::nan(""), nan.GetAllocator());
  std::ostringstream out;
  EXPECT_FALSE(JsonFileFrame::writePretty(nan, out));
}

class NOCJsonReadWriteUtilsTest : public MessageLogTest {};

TEST_F(NOCJsonReadWriteUtilsTest, SchemaPathsLieUnderTheDataDirectory)
{
  const TempDir root;
  const ScopedEnv kvrRoot("KVR_ROOT", root.path().string());
  const std::string data = (root.path() / "data").string();
  // The tree holds every schema, so that none is looked for elsewhere.
  for (const char* schema :
       {"noc/schemas/traffic.json", "noc/schemas/solution.json", "noc/schemas/constraints.json",
        "merrow/LogicalArchSchema.json", "merrow/ZXSolutionSchema.json"})
    writeFile(data + "/parts/tarnel/common/" + schema, "{}");
  using Utils = NOC::NOCJsonReadWriteUtils;
  EXPECT_EQ(Utils::getTrafficJsonSchemaFile(), data + "/parts/tarnel/common/noc/schemas/traffic.json");
  EXPECT_EQ(Utils::getSolutionJsonSchemaFile(),
            data + "/parts/tarnel/common/noc/schemas/solution.json");
  EXPECT_EQ(Utils::getConstraintsJsonSchemaFile(),
            data + "/parts/tarnel/common/noc/schemas/constraints.json");
  EXPECT_EQ(Utils::getQPEShimConstraintsJsonSchemaFile(), Utils::getConstraintsJsonSchemaFile());
  EXPECT_EQ(Utils::getLogicalArchJsonSchemaFile(),
            data + "/parts/tarnel/common/merrow/LogicalArchSchema.json");
  EXPECT_EQ(Utils::getZXSolutionJsonSchemaFile(),
            data + "/parts/tarnel/common/merrow/ZXSolutionSchema.json");
}

TEST_F(NOCJsonReadWriteUtilsTest, PortMessagesAreCriticalWarningsInArgumentOrder)
{
  NOC::NOCJsonReadWriteUtils::issueInvalidPortForLogicalSlave("S_AXI", "noc_slave_0");
  NOC::NOCJsonReadWriteUtils::issueInvalidPortType("M_AXIS");
  expectSent({{"@73-30@%s%s", ComMsgMgr::CriticalWarning, {"S_AXI", "noc_slave_0"}},
              {"@73-448@%s", ComMsgMgr::CriticalWarning, {"M_AXIS"}}});
}

TEST_F(NOCJsonReadWriteUtilsTest, ValidateForwardsToTheHostCheck)
{
  expectThrows([] { NOC::NOCJsonReadWriteUtils::validateLogicalArchSchemaFile(""); },
               "@90-5@%s%s", {"", "no schema path given"});
}

}  // namespace
