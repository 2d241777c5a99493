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
                      std::uint32_t& column) const
{
  if (failure != Failure::none) {
    report_();
    return false;
  }
  std::uint32_t foundLine = 0;
  std::uint32_t foundColumn = 0;
  for (const std::string_view text : texts)
    if (!text.empty() && !findAfter_(text, foundLine, foundColumn))
      return false;
  line = foundLine;
  column = foundColumn;
  return true;
}

std::string LineFinder::makeJSONSearchStr(const std::string& key)
{
  return key.empty() ? std::string() : '"' + key + '"';
}

void LineFinder::index_()
{
  const char* const begin = contents.data();
  const char* const end = begin + contents.size();
  std::uint32_t line = 0;
  for (const char* start = begin; start < end; ++line) {
    lineStarts.push_back(static_cast<std::size_t>(start - begin));
    const char* newline = findChar(start, end, '\n');
    const char* const stop = newline ? newline : end;
    for (const char* open = findChar(start, stop, '"'); open;) {
      const char* const close = findChar(open + 1, stop, '"');
      if (!close)
        break;
      Places& at = places[std::string_view(open + 1, static_cast<std::size_t>(close - open - 1))];
      if (at.empty() || at.back().line != line + 1)
        at.push_back({line + 1, static_cast<std::uint32_t>(open - start + 1)});
      open = close;
    }
    start = stop + 1;
  }
}

// A text without quotes stands quoted exactly where it is the whole text
// between two neighbouring quotes, which is what the index holds.
bool LineFinder::findAfter_(std::string_view text, std::uint32_t& line,
                            std::uint32_t& column) const
{
  if (text.find('"') != std::string_view::npos)
    return findQuoted_(text, line, column);
  const auto found = places.find(text);
  if (found == places.end())
    return false;
  const auto next = firstAfter_(found->second, line);
  if (next == found->second.end())
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
  const auto found = places.find(text.substr(0, text.find('"')));
  if (found == places.end())
    return false;
  const std::string search = makeJSONSearchStr(std::string(text));
  for (auto place = firstAfter_(found->second, line); place != found->second.end(); ++place) {
    const std::size_t at = line_(place->line).find(search);
    if (at != std::string_view::npos) {
      line = place->line;
      column = static_cast<std::uint32_t>(at + 1);
      return true;
    }
  }
  return false;
}

LineFinder::Places::const_iterator LineFinder::firstAfter_(const Places& at,
                                                           std::uint32_t line)
{
  return std::upper_bound(at.begin(), at.end(), line,
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
