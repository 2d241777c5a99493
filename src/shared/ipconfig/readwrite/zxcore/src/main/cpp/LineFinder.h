#pragma once

#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qpe::constraints {

// Where quoted texts stand in a file, by line and column: the locations of
// the keys of a constraints file. The search is textual: the first line that
// holds "text", quotes included, wins, wherever it stands in the JSON.
//
// The file is read once, into an index of the texts that stand between two
// neighbouring quotes of a line, so that a lookup is a binary search rather
// than a scan of the file from its top.
class IPCONFIG_READWRITE_EXPORT LineFinder {
public:
  // Reads the file. An empty path, a path that is no regular file, and a file
  // that will not open give a finder that finds nothing; the first and the
  // last are reported at each lookup, with "@75-857@" and "@75-856@%s"
  // (warnings).
  explicit LineFinder(const std::string& path);

  // Looks for each non-empty text in turn, quoted, each on a line after the
  // line of the one before it (the first from the top of the file). When all
  // are found, `line` and `column` become the 1-based line and the column of
  // the opening quote of the last one found (0 and 0 when all are empty);
  // otherwise they stay as they were.
  bool find(std::initializer_list<std::string_view> texts, std::uint32_t& line,
            std::uint32_t& column) const;

  // `key` between double quotes; empty for an empty key.
  static std::string makeJSONSearchStr(const std::string& key);

private:
  enum class Failure { none, emptyPath, noFile, unopenable };

  struct Place {
    std::uint32_t line;
    std::uint32_t column;
  };
  using Places = std::vector<Place>;

  void index_();
  bool findAfter_(std::string_view text, std::uint32_t& line, std::uint32_t& column) const;
  bool findQuoted_(std::string_view text, std::uint32_t& line, std::uint32_t& column) const;
  static Places::const_iterator firstAfter_(const Places& at, std::uint32_t line);
  std::string_view line_(std::uint32_t line) const;
  void report_() const;

  std::string path;
  Failure failure = Failure::none;
  std::string contents;
  // Offset of the start of each line; line n starts at lineStarts[n - 1].
  std::vector<std::size_t> lineStarts;
  // Each text between two neighbouring quotes of a line: the first place of
  // its opening quote on each line where it stands, in file order.
  std::unordered_map<std::string_view, Places> places;
};

}  // namespace qpe::constraints
