#include "TestSupport.h"

#include "QPEPrjMetaDataModel.h"

#include <cmath>

namespace {

using IPConfig::Frameworks::QPEPrjMetaDataModel;
using namespace testing_support;

std::string written(const QPEPrjMetaDataModel& model)
{
  std::ostringstream out;
  model.writeToJSONStream(out);
  return out.str();
}

QPEPrjMetaDataModel readText(const std::string& text, QPEPrjMetaDataModel model = {})
{
  std::istringstream in(text);
  model.readFromJSONStream("meta.json", in);
  return model;
}

TEST(QPEPrjMetaDataModelTest, WritesEveryTypeInKeyOrderWithExactBytesAndReadsThemBack)
{
  QPEPrjMetaDataModel model;
  model.addStringArrayProperty("f", {"x", "y"});
  model.addDoubleProperty("e", 1.0);
  model.addStringProperty("d", "text");
  model.addULongProperty("c", 4000000000ul);
  model.addIntegrProperty("b", -2);
  model.addBooleanProperty("a", true);
  const std::string text = written(model);
  EXPECT_EQ(written(readText(text)), text);
  EXPECT_EQ(text, readFile(IPCONFIG_RW_TESTS_DATA_DIR "/metadata_all_types.json"));
  EXPECT_EQ(written(QPEPrjMetaDataModel()), "{\n  \"MetaData\": []\n}");
}

TEST(QPEPrjMetaDataModelTest, GettersSeeOnlyTheHeldType)
{
  QPEPrjMetaDataModel model;
  model.addBooleanProperty("bool", true);
  model.addIntegrProperty("int", 7);
  model.addStringProperty("replaced", "text");
  model.addIntegrProperty("replaced", 1);
  EXPECT_FALSE(model.getBooleanProperty("bool")) << "a held bool reads false";
  EXPECT_TRUE(model.getBooleanProperty("int")) << "a held int other than 0 reads true";
  EXPECT_FALSE(model.getBooleanProperty("missing"));
  EXPECT_EQ(model.getStringProperty("replaced"), "");
  EXPECT_EQ(model.getIntegrProperty("replaced"), 1);
  EXPECT_EQ(model.getULongProperty("int"), 0ul);
  EXPECT_EQ(model.getDoubleProperty("int"), 0.0);
  EXPECT_TRUE(model.getStringArrayProperty("int").empty());
}

TEST(QPEPrjMetaDataModelTest, FirstMatchingTestDecidesTheHeldType)
{
  const std::pair<const char*, const char*> rows[] = {  // value, held type (empty: none)
      {R"("7")", typeid(std::string).name()},
      {"1.5", typeid(double).name()},
      {"7", typeid(int).name()},
      {"-2147483648", typeid(int).name()},
      {"true", typeid(bool).name()},
      {"2147483648", typeid(unsigned long).name()},
      {R"(["a", "b"])", typeid(std::vector<std::string>).name()},
      {"-2147483649", ""},
      {"null", ""},
      {"{}", ""}};
  for (const auto& [value, heldType] : rows) {
    SCOPED_TRACE(value);
    const QPEPrjMetaDataModel model =
        readText(std::string(R"({"MetaData": [{"name": "k", "value": )") + value + "}]}");
    ASSERT_EQ(model.hasProperty("k"), *heldType != '\0');
    if (*heldType) {
      EXPECT_EQ(model.getProperties().at("k").type().name(), std::string(heldType));
    }
  }
}

TEST(QPEPrjMetaDataModelTest, ReadMergesIntoWhatIsThereAndAFileWithoutMetaDataAddsNothing)
{
  QPEPrjMetaDataModel model;
  model.addStringProperty("kept", "old");
  model.addStringProperty("replaced", "old");
  model = readText(R"({"MetaData": [{"name": "replaced", "value": 3}]})", model);
  EXPECT_EQ(model.getStringProperty("kept"), "old");
  EXPECT_EQ(model.getIntegrProperty("replaced"), 3);
  for (const char* text : {"{}", R"({"MetaData": []})", R"({"MetaData": 5})", "[1, 2]"})
    EXPECT_TRUE(readText(text).isEmpty()) << text;
}

TEST(QPEPrjMetaDataModelTest, NaNValueMarksTheStreamFailed)
{
  QPEPrjMetaDataModel model;
  model.addDoubleProperty("bad", std::nan(""));
  std::ostringstream out;
  model.writeToJSONStream(out);
  EXPECT_TRUE(out.fail());
}

class MetaDataFileTest : public MessageLogTest {
protected:
  TempDir dir_;
};

TEST_F(MetaDataFileTest, FileRoundTripIsByteStable)
{
  QPEPrjMetaDataModel model;
  model.setQPEPLIntfID(17);
  model.addStringArrayProperty("ports", {"a", "b"});
  model.writeToJSONFile(dir_.file("meta.json"));
  QPEPrjMetaDataModel back;
  back.readFromJSONFile(dir_.file("meta.json"));
  EXPECT_EQ(readFile(dir_.file("meta.json")), written(model));
  EXPECT_EQ(back.getQPEPLIntfID(), 17u);
  EXPECT_TRUE(records().empty());
}

TEST_F(MetaDataFileTest, WriteToAnUnopenablePathDoesNothingQuietly)
{
  QPEPrjMetaDataModel model;
  model.addIntegrProperty("a", 1);
  EXPECT_NO_THROW(model.writeToJSONFile(dir_.file("missing/dir/meta.json")));
  EXPECT_FALSE(fs::exists(dir_.file("missing/dir/meta.json")));
  EXPECT_TRUE(records().empty());
}

TEST_F(MetaDataFileTest, BadFileFailsWithANumberedMessageAndLeavesTheModel)
{
  const struct {
    const char* contents;  // null: no file at all
    const char* format;
    const char* detail;  // second argument, if the message has one
  } rows[] = {{nullptr, "@90-1@%s", nullptr},
              {"", "@90-2@%s%s", "The document is empty. (offset 0)"},
              {"{\"MetaData\": [}", "@90-2@%s%s", "Invalid value. (offset 14)"}};
  const std::string path = dir_.file("meta.json");
  for (const auto& row : rows) {
    if (row.contents)
      writeFile(path, row.contents);
    std::vector<std::string> args{
        row.contents ? path : (fs::canonical(dir_.path()) / "meta.json").string()};
    if (row.detail)
      args.push_back(row.detail);
    QPEPrjMetaDataModel model;
    model.addIntegrProperty("kept", 1);
    expectThrows([&] { model.readFromJSONFile(path); }, row.format, args);
    EXPECT_EQ(model.getProperties().size(), 1u);
  }
}

}  // namespace
