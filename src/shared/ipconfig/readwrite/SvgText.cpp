#include "SvgText.h"

namespace IPConfig {

std::string SvgText::escaped(const std::string& text)
{
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    switch (c) {
    case '&':
      out += "&amp;";
      break;
    case '<':
      out += "&lt;";
      break;
    case '>':
      out += "&gt;";
      break;
    case '"':
      out += "&quot;";
      break;
    case '\'':
      out += "&apos;";
      break;
    default:
      if (static_cast<unsigned char>(c) >= 0x20 && c != 0x7f)
        out += c;
    }
  }
  return out;
}

}  // namespace IPConfig
