#include "TestSupport.h"

#include "LineFinder.h"

#include <cstdint>
#include <random>
#include <tuple>

namespace {

using qpe::constraints::LineFinder;
using testing_support::TempDir;
using testing_support::writeFile;

// Found or not, line, column.
using Location = std::tuple<bool, std::uint32_t, std::uint32_t>;

// The reference: the file scanned from its top for each lookup, line by line,
// each text searched for from the line after the one where the text before
// it was found.
Location scan(const std::string& path, const std::string& objName, const std::string& key)
{
  std::ifstream in(path);
  std::uint32_t counter = 0;
  std::uint32_t column = 0;
  for (const std::string& text : {objName, key}) {
    const std::string search = LineFinder::makeJSONSearchStr(text);
    if (search.empty())
      continue;
    std::string line;
    std::uint32_t count = 0;
    bool found = false;
    while (!found && std::getline(in, line)) {
      ++count;
      const std::size_t at = line.find(search);
      if (at != std::string::npos) {
        column = static_cast<std::uint32_t>(at + 1);
        found = true;
      }
    }
    if (!found)
      return {false, 7, 7};
    counter += count;
  }
  return {true, counter, column};
}

Location indexed(LineFinder& finder, const std::string& objName, const std::string& key)
{
  Location location{false, 7, 7};
  auto& [found, line, column] = location;
  found = finder.find({objName, key}, line, column);
  return location;
}

// Every pair of `texts` gives the same place both ways.
void expectSameAsScan(const std::string& path, const std::vector<std::string>& texts)
{
  LineFinder finder(path);
  for (const std::string& objName : texts)
    for (const std::string& key : texts)
      ASSERT_EQ(indexed(finder, objName, key), scan(path, objName, key))
          << "object '" << objName << "', key '" << key << "' in\n"
          << testing_support::readFile(path);
}

TEST(LineFinderTest, HandWrittenCasesAgreeWithTheScan)
{
  const TempDir dir;
  const std::string path = dir.file("c.json");
  writeFile(path,
            "{\n"
            "  \"NetConstraints\": {\"n\": {\"k\": 1}},\n"
            "  \"NodeConstraints\": {\n"
            "    \"other\": {\"label\": \"a\"},\n"
            "    \"a\": {\n"
            "      \"k\": 2, \"k\": 3, \"label\": \"k\"\n"
            "    },\n"
            "    \"q\\\"x\": {\"say \\\"hi\\\"\": \"q\\\"x\"},\n"
            "    \"sp ace\": {\"\": \"\", \"x\": \"\\\"\\\"\"}\r\n"
            "  }\n"
            "}");
  LineFinder finder(path);
  // The key on the object's own line is not found there; the name that
  // stands earlier as a value wins.
  EXPECT_EQ(indexed(finder, "n", "k"), (Location{true, 6, 7}));
  EXPECT_EQ(indexed(finder, "a", "label"), (Location{true, 6, 23}));
  EXPECT_EQ(indexed(finder, "", ""), (Location{true, 0, 0}));
  EXPECT_EQ(indexed(finder, "a", "NetConstraints"), (Location{false, 7, 7}));
  expectSameAsScan(path, {"", "n", "k", "a", "label", "other", "x", "q\\", "q\\\"x", "\\\"",
                          "say \\\"hi\\\"", "sp ace", ": ", "NodeConstraints", "}", "\r"});
}

// Lines of quoted texts drawn from a small vocabulary, so that texts repeat
// on a line and across lines, with stray quotes, empty lines, carriage
// returns and no final line end.
std::string randomText(std::mt19937& random, const std::vector<std::string>& pieces, int lines)
{
  std::uniform_int_distribution<std::size_t> piece(0, pieces.size() - 1);
  std::uniform_int_distribution<int> perLine(0, 5);
  std::string text;
  for (int line = 0; line < lines; ++line) {
    for (int n = perLine(random); n > 0; --n)
      text += pieces[piece(random)];
    if (line + 1 < lines)
      text += '\n';
  }
  return text;
}

TEST(LineFinderTest, GeneratedFilesAgreeWithTheScan)
{
  const std::vector<std::string> pieces{"\"a\"", "\"b\"", "\"a\"b\"", "\"\"", "\"", ": ",
                                        " ", "a", "\"a b\"", "{", "\r", "\"b\":"};
  const std::vector<std::string> texts{"", "a", "b", "a\"b", "a b", " ", ": ", "b\":",
                                       "\"", "a\"", "b\": \"a", "\r", "\"a"};
  const TempDir dir;
  std::mt19937 random(2024);
  // Up to 24 lines: a text is found both on the few lines that are looked at
  // in place and beyond them, through the index.
  for (int file = 0; file < 60; ++file) {
    const std::string path = dir.file("random" + std::to_string(file) + ".json");
    writeFile(path, randomText(random, pieces, 1 + file % 24));
    expectSameAsScan(path, texts);
  }
}

class LineFinderReportTest : public testing_support::MessageLogTest {};

TEST_F(LineFinderReportTest, AFileThatCannotBeReadFindsNothingQuietly)
{
  const TempDir dir;
  std::uint32_t line = 3;
  std::uint32_t column = 4;
  EXPECT_FALSE(LineFinder(dir.file("missing.json")).find({"a"}, line, column));
  EXPECT_FALSE(LineFinder(dir.path().string()).find({"a"}, line, column));
  expectSent({});
  EXPECT_EQ(std::to_string(line) + ":" + std::to_string(column), "3:4");
}

}  // namespace
