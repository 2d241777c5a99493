#include "ConstrSupport.h"

#include "ConstrWriter.h"
#include "SchemaFile.h"

#include <sstream>

namespace {

using namespace constr_support;

class ConstrWriterTest : public MessageLogTest {
protected:
  std::string written(const ConstrHandler& source, bool validate = true)
  {
    std::ostringstream out;
    ConstrWriter(source).write(out, file, validate);
    return out.str();
  }

  const TempDir dir;
  const std::string file = dir.file("out.json");
  ConstrHandler handler;
};

TEST_F(ConstrWriterTest, RootKeysInTheirOrderObjectsAndKeysInCreationOrder)
{
  handler.setAttrConstr(Base::NET, "e", "w", 1);
  handler.setAreaGroupConstr("g", {"n"}, {}, false, false, false, false, false);
  handler.setAttrConstr(Base::PORT, "p", "flag", true);
  handler.setAttrConstr(Base::NODE, "n", "fifo_depth", 4);
  handler.getAttrConstr("n", "fifo_depth")->getSrcInfo().set(SrcInfo::SourceFile, "d.cpp", 3, 9);
  handler.setAttrConstr(Base::NODE, "n", "Label", "x");
  handler.getAttrConstr("n", "label")->getSrcInfo().set(SrcInfo::UserJson, "c.json", 5, 7);
  handler.setAttrConstr(Base::NODE, "m", "ratio", 0.25);
  handler.setAttrConstr(Base::NODE, "m", "margin", -1);
  handler.addStreamFifoRecord("s0", PhysicalSpec::Core, 4, 5, 6);
  EXPECT_EQ(written(handler), readFile(IPCONFIG_RW_TESTS_DATA_DIR "/constraints_written.json"));
  expectSent({{"@75-4195@%s", ComMsgMgr::Info, {file}},
              {"@75-4193@%s", ComMsgMgr::Info, {SchemaFile::getConstraintsSchema()}}});
}

TEST_F(ConstrWriterTest, AToolGeneratedChildSaysSoAndWhetherItIsSoft)
{
  for (const bool soft : {false, true}) {
    ChildHandler child(soft);
    child.setAttrConstr(Base::NET, "e", "w", 1);
    EXPECT_EQ(written(child), std::string("{\n  \"isToolGenerated\": true,\n") +
                                  (soft ? "  \"isSoft\": true,\n" : "") +
                                  "  \"NetConstraints\": {\n    \"e\": {\n      \"w\": 1\n"
                                  "    }\n  }\n}");
  }
}

TEST_F(ConstrWriterTest, ObjectsUnderTheirScopedNamesOrNotAtAll)
{
  const Resolver scoping("top/", {"hidden"});
  handler.setAttrConstr(Base::NODE, "hidden", "a", 1);
  handler.setAttrConstr(Base::NODE, "n", "margin", -5);
  std::ostringstream out;
  handler.write(out, file, scoping);
  EXPECT_EQ(out.str(), "{\n  \"NodeConstraints\": {\n    \"top/n\": {}\n  }\n}");
  ASSERT_EQ(records().size(), 2u) << "the two reports of a write, no more";
}

TEST_F(ConstrWriterTest, AnEmptyStoreRemovesTheFileAndWritesNothingToAStream)
{
  handler.addDmaFifoRecord("dma0", PhysicalSpec::Mem, 1, 2, 64, 128, 3);
  writeFile(file, "old");
  handler.write(file);
  EXPECT_FALSE(boost::filesystem::exists(file));
  ConstrWriter(handler).writeAreaGroupConstrs(file, true);
  EXPECT_FALSE(boost::filesystem::exists(file));
  EXPECT_EQ(written(handler), "");
  expectSent({});
}

TEST_F(ConstrWriterTest, TheDocumentLivesOnlyDuringAWrite)
{
  ConstrWriter writer(handler);
  EXPECT_EQ(writer.getDocument(), nullptr);
  expectRefused([&] { writer.getAllocator(); }, "ConstrWriter::getAllocator() - m_doc is null");
}

TEST_F(ConstrWriterTest, AStreamThatIsNotGoodIsRefused)
{
  handler.setAttrConstr(Base::NODE, "n", "a", 1);
  std::ostringstream out;
  out.setstate(std::ios_base::failbit);
  expectThrows([&] { handler.write(out, file, BaseNameResolver()); }, "@75-573@%s", {file});
  expectThrows([&] { handler.write(dir.file("no/such/dir/out.json")); }, "@75-573@%s",
               {dir.file("no/such/dir/out.json")});
}

TEST_F(ConstrWriterTest, AWriteNeedsItsSchemaEvenWithoutValidating)
{
  handler.setAttrConstr(Base::NODE, "n", "a", 1);
  const DataTree tree;
  tree.hideSchemas();
  for (const bool validate : {true, false}) {
    std::ostringstream out;
    expectThrows([&] { ConstrWriter(handler).write(out, file, validate); }, "@75-395@", {});
    EXPECT_EQ(out.str(), "");
  }
}

// A schema in the shipped one's place that refuses an integer "bad".
class ConstrWriterStrictSchemaTest : public ConstrWriterTest {
protected:
  ConstrWriterStrictSchemaTest()
  {
    tree.put(schemaName, R"({"properties": {"NodeConstraints": {"additionalProperties":
                              {"properties": {"bad": {"type": "string"}}}}}})");
    handler.setAttrConstr(Base::NODE, "n", "good", 1);
    handler.setAttrConstr(Base::NODE, "n", "bad", 2);
    handler.setAttrConstr(Base::NODE, "n", "after", 3);
  }

  const DataTree tree;
};

TEST_F(ConstrWriterStrictSchemaTest, AFailedWriteThrowsAndLeavesTheTextBeforeTheFault)
{
  expectThrows([&] { handler.write(file); }, "@75-572@%s%s%s%s",
               {file, "/properties/NodeConstraints/additionalProperties/properties/bad", "type",
                "/NodeConstraints/n/bad"});
  EXPECT_EQ(readFile(file), "{\n  \"NodeConstraints\": {\n    \"n\": {\n      \"good\": 1,\n"
                            "      \"bad\"");
  EXPECT_EQ(written(handler, false), "{\n  \"NodeConstraints\": {\n    \"n\": {\n"
                                     "      \"good\": 1,\n      \"bad\": 2,\n"
                                     "      \"after\": 3\n    }\n  }\n}")
      << "without validation the whole store is written";
}

// A file that its first write merges or puts in order, and the golden text
// of that write; a second round trip gives the bytes of the first. Examples
// that come back as they stand are left to run-examples.
struct RoundTripCase {
  const char* name;
  std::string input;
  std::string golden;
};

void PrintTo(const RoundTripCase& c, std::ostream* out)
{
  *out << c.name;
}

class ConstrRoundTripTest : public MessageLogTest,
                            public ::testing::WithParamInterface<RoundTripCase> {
protected:
  std::string roundTrip(const std::string& in, const std::string& out)
  {
    ConstrHandler handler;
    handler.read(in);
    handler.write(dir.file(out));
    return readFile(dir.file(out));
  }

  const TempDir dir;
};

TEST_P(ConstrRoundTripTest, SettlesAfterOneWrite)
{
  const RoundTripCase& c = GetParam();
  const std::string once = roundTrip(c.input, "once.json");
  EXPECT_EQ(once, readFile(c.golden));
  EXPECT_EQ(roundTrip(dir.file("once.json"), "twice.json"), once);
}

const std::string examples = IPCONFIG_RW_EXAMPLES_DIR "/";
const std::string data = IPCONFIG_RW_TESTS_DATA_DIR "/";

INSTANTIATE_TEST_SUITE_P(
    Files, ConstrRoundTripTest,
    ::testing::Values(
        RoundTripCase{"areaGroups", examples + "area_groups.json",
                      data + "area_groups_written.json"},
        RoundTripCase{"placementInKeyOrder", data + "placement_unordered.json",
                      data + "placement_in_key_order.json"},
        RoundTripCase{"handWritten", data + "constraints_hand_written.json",
                      data + "constraints_hand_written_settled.json"}),
    [](const auto& info) { return info.param.name; });

}  // namespace
