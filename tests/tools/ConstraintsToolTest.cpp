#include "ToolRunner.h"

namespace {

using testing_support::readFile;
using testing_support::TempDir;
using testing_support::writeFile;
using tool_runner::RunResult;
using tool_runner::runTool;

const std::string example = IPCONFIG_RW_EXAMPLES_DIR "/constraints.json";
const std::string placement = IPCONFIG_RW_EXAMPLES_DIR "/placement.json";
const std::string areaGroups = IPCONFIG_RW_EXAMPLES_DIR "/area_groups.json";

TEST(ConstraintsToolTest, CheckCountsTheConstraintsAndRecordsOfTheExample)
{
  const RunResult result = runTool("constraints check " + example);
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_EQ(result.output, "constraints " + example +
                               ": 13 constraints (8 node, 3 port, 2 net, 0 global), "
                               "2 FIFO records (1 DMA, 1 stream)\n");
}

TEST(ConstraintsToolTest, RoundtripOfTheExampleIsByteIdentical)
{
  const TempDir dir;
  const RunResult result =
      runTool("constraints roundtrip " + example + " " + dir.file("out.json"));
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_NE(result.output.find("constraints " + example + " -> " + dir.file("out.json") +
                               ": 13 constraints\n"),
            std::string::npos)
      << result.output;
  EXPECT_EQ(readFile(dir.file("out.json")), readFile(example));
}

TEST(ConstraintsToolTest, DumpPrintsEachConstraintOnALine)
{
  const TempDir dir;
  writeFile(dir.file("c.json"), R"({"NodeConstraints": {"n": {"margin": 2, "label": "x"}},
                                    "NetConstraints": {"e": {"on": true}}})");
  const RunResult result = runTool("constraints dump " + dir.file("c.json"));
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_EQ(result.output, " attr(n)=(2)\n attr(n)=(x)\n attr(e)=(true)\n");
}

TEST(ConstraintsToolTest, AToolGeneratedFileGoesToItsChildAndComesBackWithItsKeys)
{
  const TempDir dir;
  writeFile(dir.file("c.json"), R"({"isToolGenerated": true, "isSoft": true,
                                    "NetConstraints": {"e": {"w": 1}}})");
  RunResult result = runTool("constraints check " + dir.file("c.json"));
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_NE(result.output.find("constraints " + dir.file("c.json") +
                               " (tool generated, soft): 1 constraints (0 node, 0 port, 1 net, "
                               "0 global), 0 FIFO records (0 DMA, 0 stream)\n"),
            std::string::npos)
      << result.output;
  result = runTool("constraints roundtrip " + dir.file("c.json") + " " + dir.file("out.json"));
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_EQ(readFile(dir.file("out.json")), "{\n  \"isToolGenerated\": true,\n"
                                            "  \"isSoft\": true,\n  \"NetConstraints\": {\n"
                                            "    \"e\": {\n      \"w\": 1\n    }\n  }\n}");
}

TEST(ConstraintsToolTest, CheckEchoesWarningsAndFailsWithTheMessageAndPointer)
{
  const TempDir dir;
  writeFile(dir.file("warn.json"), R"({"NodeConstraints": {"": {"a": 1}}})");
  RunResult result = runTool("constraints check " + dir.file("warn.json"));
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_NE(result.output.find("CRITICAL WARNING: [ipconfig @75-407@] \n"), std::string::npos)
      << result.output;

  writeFile(dir.file("bad.json"), R"({"NodeConstraints": {"n": {"mem": 3}}})");
  result = runTool("constraints check " + dir.file("bad.json"));
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.output, "ERROR: [ipconfig @75-571@] " + dir.file("bad.json") +
                               " /definitions/addresses type /NodeConstraints/n/mem\n");
}

TEST(ConstraintsToolTest, PlacementAndGroupsAreDumped)
{
  const TempDir dir;
  writeFile(dir.file("c.json"), R"({"NodeConstraints": {"n": {"tile": {"column": 1, "row": 2},
    "mem": [{"bankId": 0, "offset": 64}]}}, "PortConstraints": {"p": {"buffers": [{}]}},
    "GlobalConstraints": {"areaGroup": {"name": "g", "nodeGroup": ["n"], "shimGroup": [3]}}})");
  const RunResult result = runTool("constraints dump " + dir.file("c.json"));
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_EQ(result.output, " abs(n,tile)=(1,2)\n mem(n,shared_buffer)=ping=(-1,-1,0,64)\n"
                           " buf(p,data_buffer)=\n areaGroup(g)=(n,)(\n  low=shim=(3,-1))\n"
                           " exclude=(false) isSoft=(false) contain_routing=(false) "
                           "exclusive_routing=(false) exclusive_placement=(false)\n");
}

TEST(ConstraintsToolTest, AreaGroupsAreReadAndWrittenAlone)
{
  const TempDir dir;
  RunResult result = runTool("constraints areagroups " + areaGroups + " " + dir.file("g.json"));
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_EQ(result.output, "constraints " + areaGroups + " -> " + dir.file("g.json") +
                               ": 3 groups\n");
  EXPECT_EQ(readFile(dir.file("g.json")),
            readFile(IPCONFIG_RW_TESTS_DATA_DIR "/area_groups_written.json"));

  result = runTool("constraints areagroups " + placement + " " + dir.file("g.json"));
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_FALSE(boost::filesystem::exists(dir.file("g.json"))) << "no group, no file";
  EXPECT_EQ(runTool("constraints areagroups " + placement).exitCode, 2);
}

}  // namespace
