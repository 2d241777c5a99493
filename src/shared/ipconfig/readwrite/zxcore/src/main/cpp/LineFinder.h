#pragma once

#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
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
  // The index holds views into the text it owns: a copy or a move would
  // leave them pointing into another object.
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

  struct Place {
    std::uint32_t line;
    std::uint32_t column;
  };
  using Places = std::vector<Place>;
  using PlaceRange = std::pair<Places::const_iterator, Places::const_iterator>;

  void index_();
  bool findFromTop_(std::string_view text, Place& place);
  bool findAfter_(std::string_view text, std::uint32_t& line, std::uint32_t& column) const;
  bool findQuoted_(std::string_view text, std::uint32_t& line, std::uint32_t& column) const;
  // The places of `text`, in file order; empty for a text not indexed.
  PlaceRange placesOf_(std::string_view text) const;
  static Places::const_iterator firstAfter_(const PlaceRange& at, std::uint32_t line);
  std::string_view line_(std::uint32_t line) const;
  void report_() const;

  std::string path;
  Failure failure = Failure::none;
  std::string contents;
  // Offset of the start of each line; line n starts at lineStarts[n - 1].
  std::vector<std::size_t> lineStarts;
  // Each text between two neighbouring quotes of a line has a number; the
  // places of text n, the first on each line where it stands, in file order,
  // are places[placeStarts[n]] up to places[placeStarts[n + 1]].
  std::unordered_map<std::string_view, std::uint32_t> textNumbers;
  std::vector<std::uint32_t> placeStarts;
  Places places;
  // The last text looked for from the top, and where it was found: the keys
  // of one object are looked for one after another.
  std::string topText;
  bool topFound = false;
  Place topPlace{0, 0};
};

}  // namespace qpe::constraints
