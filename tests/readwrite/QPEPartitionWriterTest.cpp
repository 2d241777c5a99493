#include "TestSupport.h"

#include "QPEPartitionWriter.h"
#include "ZXLogicalArchModel.h"

#include <climits>

namespace {

namespace fw = IPConfig::Frameworks;
using namespace testing_support;

struct Columns {
  int partitionStart;
  int partitionSize;
  int arrayStart;
  int arraySize;
};

std::string written(const fw::ZXLogicalArchModel& model, std::vector<unsigned int> uuidWords,
                    unsigned int intfId, Columns columns, const std::string& namespaceName)
{
  std::ostringstream out;
  EXPECT_TRUE(fw::QPEPartitionWriter().writeToJsonFile(
      out, model, std::move(uuidWords), intfId, columns.partitionStart, columns.partitionSize,
      columns.arrayStart, columns.arraySize, namespaceName));
  return out.str();
}

TEST(QPEPartitionWriterTest, HexTextsArePaddedLowerCaseAndJoinedWithoutSeparator)
{
  const std::vector<std::pair<unsigned int, const char*>> words{
      {0u, "00000000"}, {255u, "000000ff"}, {0xDEADBEEFu, "deadbeef"}, {UINT_MAX, "ffffffff"}};
  for (const auto& [value, text] : words)
    EXPECT_EQ(fw::toHexString(value), text);

  EXPECT_EQ(fw::to_string(std::vector<unsigned int>{}), "");
  EXPECT_EQ(fw::to_string({1u, 2u}), "0000000100000002");
  EXPECT_EQ(fw::to_string({0x12345678u, 0x9abcdef0u, 0u, 0xau}),
            "123456789abcdef0000000000000000a");
}

TEST(QPEPartitionWriterTest, ModelWithoutComputeArrayGivesAnEmptyRoot)
{
  fw::ZXLogicalArchModel model;
  model.addPLIPInstance("kernel");
  model.addNOCIPInstance("noc");
  EXPECT_EQ(written(model, {1u}, 1u, {-1, -1, 0, 50}, "ns"), "{\n  \"QPE\": {}\n}");
  EXPECT_EQ(written(fw::ZXLogicalArchModel(), {}, 0u, {-1, -1, 0, 50}, ""),
            "{\n  \"QPE\": {}\n}");
}

TEST(QPEPartitionWriterTest, EveryArrayGetsTheSameColumnsAndIdentifiersUnderItsWholeName)
{
  fw::ZXLogicalArchModel model;
  model.addZXIPInstance("top/array");
  model.addPLIPInstance("top/kernel");
  model.addZXIPInstance("say \"hi\"");
  const char* partition = R"(
          "startColumn": 10,
          "numColumns": 4,
          "uuid": "0x0000000100000002",
          "qpe_pl_intf_id": "0x00000000",
          "namespace": "ns")";
  const std::string expected = std::string(R"({
  "QPE": {
    "top/array": {
      "startColumn": 0,
      "numColumns": 50,
      "partitions": [
        {)") + partition + R"(
        }
      ]
    },
    "say \"hi\"": {
      "startColumn": 0,
      "numColumns": 50,
      "partitions": [
        {)" + partition + R"(
        }
      ]
    }
  }
})";
  EXPECT_EQ(written(model, {1u, 2u}, 0u, {10, 4, 0, 50}, "ns"), expected);
}

TEST(QPEPartitionWriterTest, PartitionTakesTheArrayColumnsOnlyWhenBothAreMinusOne)
{
  struct Case {
    Columns columns;
    int start;
    int size;
  };
  const std::vector<Case> cases{
      {{-1, -1, 0, 50}, 0, 50},
      {{-1, -1, 6, 10}, 6, 10},
      {{10, 4, 0, 50}, 10, 4},
      {{2, -1, 0, 50}, 2, -1},
      {{-1, 3, 0, 50}, -1, 3},
  };
  fw::ZXLogicalArchModel model;
  model.addZXIPInstance("array");
  for (const Case& c : cases) {
    const std::string text = written(model, {}, 0xabcu, c.columns, "");
    SCOPED_TRACE(text);
    const JDocument document = parseJson(text.c_str());
    const JValue& instance = document["QPE"]["array"];
    EXPECT_EQ(instance["startColumn"].GetInt(), c.columns.arrayStart);
    EXPECT_EQ(instance["numColumns"].GetInt(), c.columns.arraySize);
    const JValue& partition = instance["partitions"][0];
    EXPECT_EQ(partition["startColumn"].GetInt(), c.start);
    EXPECT_EQ(partition["numColumns"].GetInt(), c.size);
    EXPECT_STREQ(partition["uuid"].GetString(), "0x");
    EXPECT_STREQ(partition["qpe_pl_intf_id"].GetString(), "0x00000abc");
    EXPECT_STREQ(partition["namespace"].GetString(), "");
  }
}

class QPEPartitionWriterFileTest : public MessageLogTest {};

TEST_F(QPEPartitionWriterFileTest, WritesTheFileAndRefusesAnUnopenablePathSilently)
{
  TempDir dir;
  fw::ZXLogicalArchModel model;
  model.addZXIPInstance("array");
  const std::string path = dir.file("partition.json");
  EXPECT_TRUE(fw::QPEPartitionWriter().writeToJsonFile(path, model, {7u}, 1u, -1, -1, 0, 2, "n"));
  EXPECT_EQ(readFile(path), written(model, {7u}, 1u, {-1, -1, 0, 2}, "n"));

  EXPECT_FALSE(fw::QPEPartitionWriter().writeToJsonFile(dir.file("no/such/dir/p.json"), model,
                                                        {7u}, 1u, -1, -1, 0, 2, "n"));
  EXPECT_TRUE(records().empty());
}

}  // namespace
