#include "LineFinder.h"

#include "HUTFile.h"
#include "IPConfigMessages.h"

#include <algorithm>
#include <cstring>
#include <fstream>

namespace qpe::constraints {

namespace {

const char* findChar(const char* from, const char* to, char wanted)
{
  return static_cast<const char*>(std::memchr(from, wanted, static_cast<std::size_t>(to - from)));
}

}  // namespace

LineFinder::LineFinder(const std::string& path) : path(path)
{
  if (path.empty()) {
    failure = Failure::emptyPath;
    return;
  }
  const HUTFile file(path);
  if (!file.isFile()) {
    failure = Failure::noFile;
    return;
  }
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    failure = Failure::unopenable;
    return;
  }
  contents.resize(file.size());
  in.read(contents.data(), static_cast<std::streamsize>(contents.size()));
  contents.resize(static_cast<std::size_t>(in.gcount()));
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

// Two passes: the texts are numbered and their places counted, then the
// places are laid out text by text.
void LineFinder::index_()
{
  struct Found {
    std::uint32_t text;
    Place place;
  };
  const auto quotes = static_cast<std::size_t>(std::count(contents.begin(), contents.end(), '"'));
  textNumbers.reserve(quotes / 2);
  std::vector<Found> found;
  found.reserve(quotes / 2);
  std::vector<std::uint32_t> lastLines;
  const char* const begin = contents.data();
  const char* const end = begin + contents.size();
  std::uint32_t line = 0;
  for (const char* start = begin; start < end;) {
    ++line;
    lineStarts.push_back(static_cast<std::size_t>(start - begin));
    const char* const newline = findChar(start, end, '\n');
    const char* const stop = newline ? newline : end;
    for (const char* open = findChar(start, stop, '"'); open;) {
      const char* const close = findChar(open + 1, stop, '"');
      if (!close)
        break;
      const std::string_view text(open + 1, static_cast<std::size_t>(close - open - 1));
      const auto [number, isNew] =
          textNumbers.try_emplace(text, static_cast<std::uint32_t>(lastLines.size()));
      if (isNew)
        lastLines.push_back(0);
      if (lastLines[number->second] != line) {
        lastLines[number->second] = line;
        found.push_back({number->second, {line, static_cast<std::uint32_t>(open - start + 1)}});
      }
      open = close;
    }
    // The last line may have no line end: stop at the end, never past it.
    start = newline ? newline + 1 : end;
  }
  placeStarts.assign(lastLines.size() + 1, 0);
  for (const Found& each : found)
    ++placeStarts[each.text + 1];
  for (std::size_t n = 1; n < placeStarts.size(); ++n)
    placeStarts[n] += placeStarts[n - 1];
  std::vector<std::uint32_t> next(placeStarts.begin(), placeStarts.end() - 1);
  places.resize(found.size());
  for (const Found& each : found)
    places[next[each.text]++] = each.place;
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
  const PlaceRange at = placesOf_(text);
  const auto next = firstAfter_(at, line);
  if (next == at.second)
    return false;
  line = next->line;
  column = next->column;
  return true;
}

// A text with quotes of its own starts, quoted, where its part before its
// first quote stands between two neighbouring quotes: only those lines are
// searched.
bool LineFinder::findQuoted_(std::string_view text, std::uint32_t& line,
                             std::uint32_t& column) const
{
  const PlaceRange at = placesOf_(text.substr(0, text.find('"')));
  const std::string search = makeJSONSearchStr(std::string(text));
  for (auto place = firstAfter_(at, line); place != at.second; ++place) {
    const std::size_t found = line_(place->line).find(search);
    if (found != std::string_view::npos) {
      line = place->line;
      column = static_cast<std::uint32_t>(found + 1);
      return true;
    }
  }
  return false;
}

LineFinder::PlaceRange LineFinder::placesOf_(std::string_view text) const
{
  const auto number = textNumbers.find(text);
  if (number == textNumbers.end())
    return {places.end(), places.end()};
  return {places.begin() + placeStarts[number->second],
          places.begin() + placeStarts[number->second + 1]};
}

LineFinder::Places::const_iterator LineFinder::firstAfter_(const PlaceRange& at,
                                                           std::uint32_t line)
{
  return std::upper_bound(at.first, at.second, line,
                          [](std::uint32_t after, const Place& place) { return after < place.line; });
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
