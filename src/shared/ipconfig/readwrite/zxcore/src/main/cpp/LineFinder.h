#pragma once

#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace qpe::constraints {

// Where quoted texts stand in a file, by line and column: the locations of
// the keys of a constraints file. The search is textual: the first line that
// holds "text", quotes included, wins, wherever it stands in the JSON.
//
// The file is read once, into an index of the texts that stand between two
// neighbouring quotes of a line, so that a lookup is a binary search rather
// than a scan of the file from its top. The index keeps no texts: only a
// short hash and the offset of each, which a lookup checks against the text.
class IPCONFIG_READWRITE_EXPORT LineFinder {
public:
  // Reads the file. An empty path, a path that is no regular file, and a file
  // that will not open give a finder that finds nothing; the first and the
  // last are reported at each lookup, with "@75-857@" and "@75-856@%s"
  // (warnings).
  explicit LineFinder(const std::string& path);
  // The same, with `text` the contents of the file at `path` as read already:
  // the file is not read again.
  LineFinder(const std::string& path, std::string text);
  // It holds the whole text of the file: it is neither copied nor moved, so
  // that the text is never held twice.
  LineFinder(const LineFinder&) = delete;
  LineFinder& operator=(const LineFinder&) = delete;

  // Looks for each non-empty text in turn, quoted, each on a line after the
  // line of the one before it (the first from the top of the file). When all
  // are found, `line` and `column` become the 1-based line and the column of
  // the opening quote of the last one found (0 and 0 when all are empty);
  // otherwise they stay as they were.
  bool find(std::initializer_list<std::string_view> texts, std::uint32_t& line,
            std::uint32_t& column);

  // `key` between double quotes; empty for an empty key.
  static std::string makeJSONSearchStr(const std::string& key);

private:
  enum class Failure { none, emptyPath, noFile, unopenable };

  // A short hash of a text in the high bits, the offset of its opening quote
  // in the low ones.
  using Entry = std::uint64_t;
  static constexpr unsigned offsetBits = 40;
  static constexpr Entry offsetMask = (Entry{1} << offsetBits) - 1;
  static constexpr std::uint32_t nearLines = 8;

  struct Place {
    std::uint32_t line;
    std::uint32_t column;
  };

  bool isIndexable_();
  void index_();
  bool findFromTop_(std::string_view text, Place& place);
  bool findAfter_(std::string_view text, std::uint32_t& line, std::uint32_t& column) const;
  bool findQuoted_(std::string_view text, std::uint32_t& line, std::uint32_t& column) const;
  // The first place on a line after `line` where `text`, which holds no
  // quote, stands between two neighbouring quotes.
  bool firstAfter_(std::string_view text, std::uint32_t line, Place& place) const;
  // The same as firstAfter_, on the `nearLines` lines after `line` only.
  bool scanNear_(std::string_view text, std::uint32_t line, Place& place) const;
  // Whether `text` stands between the quote at `offset` and the next quote.
  bool standsAt_(std::string_view text, std::size_t offset) const;
  Place placeOf_(std::size_t offset) const;
  std::string_view line_(std::uint32_t line) const;
  void report_() const;
  static Entry hashOf_(std::string_view text);

  std::string path;
  Failure failure = Failure::none;
  std::string contents;
  // Offset of the start of each line; line n starts at lineStarts[n - 1].
  std::vector<std::size_t> lineStarts;
  // One entry for each text between two neighbouring quotes of a line,
  // sorted: the places of one text are together, in file order.
  std::vector<Entry> entries;
  // The last text looked for from the top, and where it was found: the keys
  // of one object are looked for one after another.
  std::string topText;
  bool topFound = false;
  Place topPlace{0, 0};
};

}  // namespace qpe::constraints
