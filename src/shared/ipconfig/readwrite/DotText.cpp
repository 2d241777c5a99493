#include "DotText.h"

namespace IPConfig {

namespace {

void appendEscaped(std::string& out, const std::string& text)
{
  for (char c : text) {
    switch (c) {
    case '"':
    case '\\':
      out += '\\';
      out += c;
      break;
    case '\n':
      out += "\\n";
      break;
    case '\r':
      break;
    default:
      out += c;
    }
  }
}

}  // namespace

std::string DotText::quoted(const std::string& text)
{
  return quotedLines({text});
}

std::string DotText::quotedLines(std::initializer_list<std::string> lines)
{
  std::string out = "\"";
  const char* separator = "";
  for (const std::string& line : lines) {
    out += separator;
    appendEscaped(out, line);
    separator = "\\n";
  }
  return out + '"';
}

}  // namespace IPConfig
