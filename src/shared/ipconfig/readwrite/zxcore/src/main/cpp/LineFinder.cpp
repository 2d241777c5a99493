#include "LineFinder.h"

#include "HUTFile.h"
#include "IPConfigMessages.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <functional>

namespace qpe::constraints {

namespace {

const char* findChar(const char* from, const char* to, char wanted)
{
  return static_cast<const char*>(std::memchr(from, wanted, static_cast<std::size_t>(to - from)));
}

}  // namespace

LineFinder::LineFinder(const std::string& path) : path(path)
{
  if (!isIndexable_())
    return;
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    failure = Failure::unopenable;
    return;
  }
  contents.resize(HUTFile(path).size());
  in.read(contents.data(), static_cast<std::streamsize>(contents.size()));
  contents.resize(static_cast<std::size_t>(in.gcount()));
  index_();
}

LineFinder::LineFinder(const std::string& path, std::string text) : path(path)
{
  if (!isIndexable_())
    return;
  contents = std::move(text);
  index_();
}

bool LineFinder::find(std::initializer_list<std::string_view> texts, std::uint32_t& line,
                      std::uint32_t& column)
{
  if (failure != Failure::none) {
    report_();
    return false;
  }
  Place found{0, 0};
  for (const std::string_view text : texts) {
    if (text.empty())
      continue;
    const bool isFound = found.line == 0 ? findFromTop_(text, found)
                                         : findAfter_(text, found.line, found.column);
    if (!isFound)
      return false;
  }
  line = found.line;
  column = found.column;
  return true;
}

std::string LineFinder::makeJSONSearchStr(const std::string& key)
{
  return key.empty() ? std::string() : '"' + key + '"';
}

bool LineFinder::isIndexable_()
{
  if (path.empty())
    failure = Failure::emptyPath;
  else if (!HUTFile(path).isFile())
    failure = Failure::noFile;
  return failure == Failure::none;
}

LineFinder::Entry LineFinder::hashOf_(std::string_view text)
{
  return static_cast<Entry>(std::hash<std::string_view>()(text)) & ~offsetMask;
}

void LineFinder::index_()
{
  const char* const begin = contents.data();
  const char* const end = begin + contents.size();
  // No line holds more texts between neighbouring quotes than quotes.
  entries.reserve(static_cast<std::size_t>(std::count(begin, end, '"')));
  for (const char* start = begin; start < end;) {
    lineStarts.push_back(static_cast<std::size_t>(start - begin));
    const char* const newline = findChar(start, end, '\n');
    const char* const stop = newline ? newline : end;
    for (const char* open = findChar(start, stop, '"'); open;) {
      const char* const close = findChar(open + 1, stop, '"');
      if (!close)
        break;
      const auto offset = static_cast<Entry>(open - begin);
      // Beyond the offsets that an entry holds, nothing is found.
      if (offset > offsetMask)
        break;
      entries.push_back(
          hashOf_(std::string_view(open + 1, static_cast<std::size_t>(close - open - 1))) |
          offset);
      open = close;
    }
    // The last line may have no line end: stop at the end, never past it.
    start = newline ? newline + 1 : end;
  }
  std::sort(entries.begin(), entries.end());
}

bool LineFinder::findFromTop_(std::string_view text, Place& place)
{
  if (text != topText) {
    topText = text;
    topPlace = {0, 0};
    topFound = findAfter_(text, topPlace.line, topPlace.column);
  }
  place = topPlace;
  return topFound;
}

// A text without quotes stands quoted exactly where it is the whole text
// between two neighbouring quotes, which is what the index holds.
bool LineFinder::findAfter_(std::string_view text, std::uint32_t& line,
                            std::uint32_t& column) const
{
  if (text.find('"') != std::string_view::npos)
    return findQuoted_(text, line, column);
  Place place{0, 0};
  if (!firstAfter_(text, line, place))
    return false;
  line = place.line;
  column = place.column;
  return true;
}

// A text with quotes of its own starts, quoted, where its part before its
// first quote stands between two neighbouring quotes: only those lines are
// searched.
bool LineFinder::findQuoted_(std::string_view text, std::uint32_t& line,
                             std::uint32_t& column) const
{
  const std::string_view head = text.substr(0, text.find('"'));
  const std::string search = makeJSONSearchStr(std::string(text));
  Place place{0, 0};
  for (std::uint32_t after = line; firstAfter_(head, after, place); after = place.line) {
    const std::size_t found = line_(place.line).find(search);
    if (found != std::string_view::npos) {
      line = place.line;
      column = static_cast<std::uint32_t>(found + 1);
      return true;
    }
  }
  return false;
}

bool LineFinder::firstAfter_(std::string_view text, std::uint32_t line, Place& place) const
{
  // A text between neighbouring quotes of a line holds no line end.
  if (line >= lineStarts.size() || lineStarts[line] > offsetMask ||
      text.find('\n') != std::string_view::npos)
    return false;
  if (scanNear_(text, line, place))
    return true;
  const Entry hash = hashOf_(text);
  auto entry = std::lower_bound(entries.begin(), entries.end(), hash | lineStarts[line]);
  for (; entry != entries.end() && (*entry & ~offsetMask) == hash; ++entry) {
    const std::size_t offset = static_cast<std::size_t>(*entry & offsetMask);
    if (standsAt_(text, offset)) {
      place = placeOf_(offset);
      return true;
    }
  }
  return false;
}

// The same search as the index's over the next few lines only, in the text
// itself: a key mostly stands a line or two below its object.
bool LineFinder::scanNear_(std::string_view text, std::uint32_t line, Place& place) const
{
  const auto last = static_cast<std::uint32_t>(
      std::min<std::size_t>(lineStarts.size(), std::size_t{line} + nearLines));
  for (std::uint32_t number = line + 1; number <= last; ++number) {
    const std::string_view content = line_(number);
    for (std::size_t open = content.find('"'); open != std::string_view::npos;) {
      const std::size_t close = content.find('"', open + 1);
      if (close == std::string_view::npos || lineStarts[number - 1] + open > offsetMask)
        break;
      if (close - open - 1 == text.size() && content.compare(open + 1, text.size(), text) == 0) {
        place = {number, static_cast<std::uint32_t>(open + 1)};
        return true;
      }
      open = close;
    }
  }
  return false;
}

bool LineFinder::standsAt_(std::string_view text, std::size_t offset) const
{
  const std::size_t close = offset + 1 + text.size();
  return close < contents.size() && contents[close] == '"' &&
         std::string_view(contents).substr(offset + 1, text.size()) == text;
}

LineFinder::Place LineFinder::placeOf_(std::size_t offset) const
{
  const auto next = std::upper_bound(lineStarts.begin(), lineStarts.end(), offset);
  const auto line = static_cast<std::uint32_t>(next - lineStarts.begin());
  return {line, static_cast<std::uint32_t>(offset - lineStarts[line - 1] + 1)};
}

std::string_view LineFinder::line_(std::uint32_t line) const
{
  const char* const end = contents.data() + contents.size();
  const char* const start = contents.data() + lineStarts[line - 1];
  const char* const newline = findChar(start, end, '\n');
  return std::string_view(start, static_cast<std::size_t>((newline ? newline : end) - start));
}

void LineFinder::report_() const
{
  if (failure == Failure::emptyPath)
    IPCONFIG_SEND_MSG(ComMsgMgr::Warning, "@75-857@");
  else if (failure == Failure::unopenable)
    IPCONFIG_SEND_MSG(ComMsgMgr::Warning, "@75-856@%s", path);
}

}  // namespace qpe::constraints
