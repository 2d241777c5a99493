#include "ToolRunner.h"

namespace {

using testing_support::readFile;
using testing_support::TempDir;
using testing_support::writeFile;
using tool_runner::RunResult;
using tool_runner::runTool;

const std::string example = IPCONFIG_RW_EXAMPLES_DIR "/metadata.json";

TEST(IpconfigRwTest, CheckSummarisesTheExample)
{
  const RunResult result = runTool("metadata check " + example);
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_EQ(result.output,
            "metadata " + example +
                ": 5 properties: QPE_PL_INTF_ID (int), QPE_PL_INTF_ID_STR (string), "
                "compiler.options (string list), device.speedGrade (double), "
                "project.enableBlockModel (bool)\n");
}

TEST(IpconfigRwTest, RoundtripOfTheExampleIsByteIdentical)
{
  const TempDir dir;
  const RunResult result = runTool("metadata roundtrip " + example + " " + dir.file("out.json"));
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_EQ(readFile(dir.file("out.json")), readFile(example));
}

struct FailureCase {
  const char* name;
  const char* contents;  // null: no input file
  std::string expectedLine;
};

void PrintTo(const FailureCase& c, std::ostream* out)
{
  *out << c.name;
}

class IpconfigRwBadInputTest : public ::testing::TestWithParam<FailureCase> {};

TEST_P(IpconfigRwBadInputTest, ExitsOneWithTheMessageId)
{
  const TempDir dir;
  if (GetParam().contents)
    writeFile(dir.file("in.json"), GetParam().contents);
  const RunResult result = runTool("metadata check " + dir.file("in.json"));
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.output.find(GetParam().expectedLine), std::string::npos) << result.output;
}

INSTANTIATE_TEST_SUITE_P(
    Inputs, IpconfigRwBadInputTest,
    ::testing::Values(FailureCase{"missing", nullptr, "ERROR: [ipconfig @90-1@] "},
                      FailureCase{"malformed", "{", "ERROR: [ipconfig @90-2@] "},
                      FailureCase{"empty", "",
                                  "The document is empty. (offset 0)"}),
    [](const auto& info) { return info.param.name; });

TEST(IpconfigRwTest, TrafficCheckSummarisesPlainAndCompressedExamples)
{
  for (const std::string name : {"traffic.json", "traffic.json.gz"}) {
    const std::string path = IPCONFIG_RW_EXAMPLES_DIR "/" + name;
    const RunResult result = runTool("traffic check " + path);
    EXPECT_EQ(result.exitCode, 0) << result.output;
    EXPECT_EQ(result.output, "traffic " + path +
                                 ": 7 instances (3 master, 3 slave, 1 other), 4 paths, "
                                 "1 phase groups, 1 DFX paths\n");
  }
}

TEST(IpconfigRwTest, TrafficCheckEchoesWarningsAndFailsWithTheMessage)
{
  const TempDir dir;
  writeFile(dir.file("warn.json"), R"({"LogicalInstances": [
      {"Name": "mc", "CompType": "DDRC", "Ports": ["PORT9"]}]})");
  RunResult result = runTool("traffic check " + dir.file("warn.json"));
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_NE(result.output.find("CRITICAL WARNING: [ipconfig @73-30@] PORT9 mc"), std::string::npos)
      << result.output;

  writeFile(dir.file("bad.json"), R"({"LogicalInstances": [{"Name": "x", "CompType": "NPS_9"}]})");
  result = runTool("traffic check " + dir.file("bad.json"));
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.output.find("ERROR: [ipconfig @90-2@] " + dir.file("bad.json") +
                               " Unknown component type : NPS_9"),
            std::string::npos)
      << result.output;
}

TEST(IpconfigRwTest, LogicalArchCheckAndRoundtripOfTheExample)
{
  const std::string path = IPCONFIG_RW_EXAMPLES_DIR "/logical_arch.json";
  const std::string summary = ": 4 instances (1 QPE, 2 NoC, 1 PL), 9 ports, 5 connections\n";
  RunResult result = runTool("logicalarch check " + path);
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_EQ(result.output, "logicalarch " + path + summary);

  const TempDir dir;
  const std::string out = dir.file("out.json");
  result = runTool("logicalarch roundtrip " + path + " " + out);
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_EQ(result.output, "logicalarch " + path + " -> " + out + summary);
  EXPECT_EQ(readFile(out), readFile(path));
}

TEST(IpconfigRwTest, LogicalArchFailsOnBadOrEmptyInput)
{
  const TempDir dir;
  writeFile(dir.file("bad.json"), R"({"PL": {"k": {"plPorts": {"p": {"busWidth": -8}}}}})");
  RunResult result = runTool("logicalarch check " + dir.file("bad.json"));
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.output.find("ERROR: [ipconfig @90-2@] " + dir.file("bad.json") +
                               " /PL/k/plPorts/p/busWidth"),
            std::string::npos)
      << result.output;

  writeFile(dir.file("empty.json"), R"({"appId": "a"})");
  result = runTool("logicalarch roundtrip " + dir.file("empty.json") + " " + dir.file("out.json"));
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.output.find("has no instance and no connection; nothing written"),
            std::string::npos)
      << result.output;
}

TEST(IpconfigRwTest, RoundtripToAnUnwritablePathFails)
{
  const TempDir dir;
  const RunResult result =
      runTool("metadata roundtrip " + example + " " + dir.file("no/dir/out.json"));
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.output.find("cannot write"), std::string::npos) << result.output;
}

struct UsageCase {
  const char* args;
  int exitCode;
  const char* expected;
};

void PrintTo(const UsageCase& c, std::ostream* out)
{
  *out << "'" << c.args << "'";
}

class IpconfigRwUsageTest : public ::testing::TestWithParam<UsageCase> {};

TEST_P(IpconfigRwUsageTest, ReportsUsageProblems)
{
  const RunResult result = runTool(GetParam().args);
  EXPECT_EQ(result.exitCode, GetParam().exitCode) << result.output;
  EXPECT_NE(result.output.find(GetParam().expected), std::string::npos) << result.output;
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, IpconfigRwUsageTest,
    ::testing::Values(UsageCase{"--help", 0, "  metadata: project metadata"},
                      UsageCase{"", 2, "expected a format and a command"},
                      UsageCase{"nosuchformat check x", 2, "unknown format 'nosuchformat'"},
                      UsageCase{"metadata explode x", 2, "unknown command 'explode'"},
                      UsageCase{"metadata roundtrip a", 2, "takes 2 argument(s)"}));

}  // namespace
