// Hostile and broken files through every reader of the tool: each ends in a
// numbered message and exit 1, or exit 0 where the format tolerates it;
// never a crash, never a hang: a run that takes longer than the limit fails.

#include "TestSupport.h"

#include <boost/algorithm/string/replace.hpp>
#include <boost/iostreams/device/back_inserter.hpp>
#include <boost/iostreams/filter/bzip2.hpp>
#include <boost/iostreams/filter/gzip.hpp>
#include <boost/iostreams/filter/lzma.hpp>
#include <boost/iostreams/filtering_stream.hpp>

namespace {

using namespace testing_support;

// Far beyond what any of these inputs needs, even under the sanitizers.
const int timeLimitSeconds = 60;

const char* const allFormats[] = {"constraints", "logicalarch", "metadata", "nocconstraints",
                                  "traffic"};

// The tool on $D/in.json holding `input`, or on the directory $D/dir.
struct BadInputCase {
  std::string name;
  std::string format;
  std::string input;
  int exitCode;
  std::string output;  // $D stands for the test's directory
  bool directory = false;
};

void PrintTo(const BadInputCase& c, std::ostream* out)
{
  *out << c.name;
}

std::string nested(std::size_t depth)
{
  return std::string(depth, '[') + std::string(depth, ']');
}

template <typename Compressor>
std::string compress(const std::string& text, const Compressor& compressor)
{
  std::string packed;
  {
    boost::iostreams::filtering_ostream out;
    out.push(compressor);
    out.push(boost::iostreams::back_inserter(packed));
    out << text;
  }
  return packed;
}

std::string flipped(std::string bytes, std::size_t at)
{
  bytes[at] = static_cast<char>(bytes[at] ^ 0x55);
  return bytes;
}

std::string parseError(const std::string& detail)
{
  return "ERROR: [ipconfig @90-2@] $D/in.json " + detail + "\n";
}

const std::string tooDeep = "Nesting deeper than 1000 levels.";

// What every reader says alike.
std::vector<BadInputCase> sharedCases()
{
  std::vector<BadInputCase> cases;
  for (const std::string format : allFormats) {
    const auto add = [&](const std::string& name, const std::string& input,
                         const std::string& output) {
      cases.push_back({format + "_" + name, format, input, 1, output});
    };
    // The 1001st bracket is the one too deep.
    add("deepBrackets", std::string(175000, '['), parseError(tooDeep + " (offset 1000)"));
    // 15 bytes of prefix and the root object's level: the 1000th bracket.
    add("deepUnderUnknownKey", "{\"unknownKey\": " + nested(100000) + "}",
        parseError(tooDeep + " (offset 1014)"));
    add("empty", "", parseError("The document is empty. (offset 0)"));
    add("truncated", "{\"a\": ", parseError("Invalid value. (offset 6)"));
    add("hugeNumber", "{\"a\": 1e400}",
        parseError("Number too big to be stored in double. (offset 6)"));
    add("nulByte", std::string("{}\0{}", 5),
        parseError("The document root must not be followed by other values. (offset 2)"));
    add("nulInKey", std::string("{\"a\0\": 1}", 9),
        parseError("Missing a closing quotation mark in string. (offset 3)"));
    cases.push_back({format + "_directory", format, "", 1, "ERROR: [ipconfig @90-1@] $D/dir\n",
                     true});
  }
  return cases;
}

// What depends on the format: its schema, its tolerance and its opener.
std::vector<BadInputCase> formatCases()
{
  const std::string traffic = readFile(std::string(IPCONFIG_RW_EXAMPLES_DIR) + "/traffic.json");
  const std::string gzip = compress(traffic, boost::iostreams::gzip_compressor());
  const std::string gzipCorrupt = "The gzip compressed data is corrupt.";
  return {
      // 20 + 6 + 9 bytes of prefix and three object levels: the 998th bracket.
      {"constraints_deepAttributeValue", "constraints",
       "{\"NodeConstraints\": {\"n\": {\"attr\": " + nested(100000) + "}}}", 1,
       parseError(tooDeep + " (offset 1032)")},
      {"constraints_wrongTopLevel", "constraints", "[]", 1,
       "ERROR: [ipconfig @75-571@] $D/in.json  type \n"},
      {"logicalarch_wrongTopLevel", "logicalarch", "[]", 1, parseError("")},
      {"nocconstraints_wrongTopLevel", "nocconstraints", "[]", 1, parseError("")},
      {"traffic_wrongTopLevel", "traffic", "[]", 1, parseError("")},
      // The file has no schema and its one key is looked up on an object.
      {"metadata_wrongTopLevel", "metadata", "[]", 0, "metadata $D/in.json: 0 properties\n"},
      // A repeated attribute key replaces the first.
      {"constraints_duplicateKeys", "constraints", R"({"NetConstraints": {"e": {"w": 1, "w": 2}}})",
       0,
       "constraints $D/in.json: 1 constraints (0 node, 0 port, 1 net, 0 global), "
       "0 FIFO records (0 DMA, 0 stream)\n"},
      // The first of two "MetaData" keys is the one found.
      {"metadata_duplicateKeys", "metadata",
       R"({"MetaData": [{"name": "a", "value": 1}], "MetaData": [{"name": "b", "value": 2}]})",
       0, "metadata $D/in.json: 1 properties: a (int)\n"},
      // The gzip trailer's checksum is its last eight bytes but four.
      {"traffic_gzipChecksum", "traffic", flipped(gzip, gzip.size() - 8), 1,
       parseError(gzipCorrupt)},
      {"traffic_gzipData", "traffic", flipped(gzip, gzip.size() / 2), 1, parseError(gzipCorrupt)},
      {"traffic_gzipTruncated", "traffic", gzip.substr(0, gzip.size() / 2), 1,
       parseError(gzipCorrupt)},
      {"traffic_bzip2Data", "traffic",
       flipped(compress(traffic, boost::iostreams::bzip2_compressor()), 100), 1,
       parseError("The bzip2 compressed data is corrupt.")},
      {"traffic_xzData", "traffic",
       flipped(compress(traffic, boost::iostreams::lzma_compressor()), 100), 1,
       parseError("The xz compressed data is corrupt.")},
  };
}

class BadInputTest : public ::testing::TestWithParam<BadInputCase> {};

TEST_P(BadInputTest, NumberedMessageOrTolerated)
{
  const BadInputCase& c = GetParam();
  const TempDir dir;
  std::string path = dir.file("in.json");
  if (c.directory) {
    path = dir.file("dir");
    fs::create_directories(path);
  } else {
    writeFile(path, c.input);
  }
  const RunResult result = runTool(c.format + " check " + path, timeLimitSeconds);
  EXPECT_EQ(result.exitCode, c.exitCode) << result.output.substr(0, 2000);
  EXPECT_EQ(result.output, boost::replace_all_copy(c.output, "$D", dir.path().string()));
}

INSTANTIATE_TEST_SUITE_P(Shared, BadInputTest, ::testing::ValuesIn(sharedCases()),
                         [](const auto& info) { return info.param.name; });
INSTANTIATE_TEST_SUITE_P(ByFormat, BadInputTest, ::testing::ValuesIn(formatCases()),
                         [](const auto& info) { return info.param.name; });

// What a check of a format reads before the file itself: the design that
// its fuzz target reads the file against.
std::string checkArgumentsBefore(const std::string& format)
{
  const std::string examples = IPCONFIG_RW_EXAMPLES_DIR;
  if (format == "solution")
    return examples + "/traffic.json ";
  if (format == "compilersolution")
    return "qpe_demo " + examples + "/logical_arch.json " + examples + "/traffic.json ";
  return "";
}

// Every input that once failed a fuzz target, read again by its format.
TEST(FuzzRegressionTest, EveryFileReadsOrIsRefusedWithANumberedMessage)
{
  const fs::path root = fs::path(IPCONFIG_RW_TESTS_DATA_DIR) / "fuzz";
  std::size_t files = 0;
  for (const fs::directory_entry& format : fs::directory_iterator(root)) {
    const std::string name = format.path().filename().string();
    for (const fs::directory_entry& file : fs::directory_iterator(format.path())) {
      SCOPED_TRACE(file.path().string());
      const RunResult result = runTool(
          name + " check " + checkArgumentsBefore(name) + file.path().string(), timeLimitSeconds);
      ++files;
      ASSERT_TRUE(result.exitCode == 0 || result.exitCode == 1) << result.output;
      if (result.exitCode == 1) {
        EXPECT_NE(result.output.find("[ipconfig @"), std::string::npos) << result.output;
      }
    }
  }
  EXPECT_GT(files, 0u);
}

}  // namespace
