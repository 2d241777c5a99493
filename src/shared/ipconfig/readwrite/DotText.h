#pragma once

#include "ipconfig_readwrite_export.h"

#include <initializer_list>
#include <string>

namespace IPConfig {

// Texts of the Graphviz DOT language.
class IPCONFIG_READWRITE_EXPORT DotText {
public:
  // `text` as a double-quoted DOT string that shows as it stands: quotes and
  // backslashes escaped, a line break as "\n", a carriage return dropped.
  static std::string quoted(const std::string& text);
  // Lines of a label, each quoted as above, joined by DOT's line break.
  static std::string quotedLines(std::initializer_list<std::string> lines);
};

}  // namespace IPConfig
