#pragma once

#include "ipconfig_readwrite_export.h"

#include <string>

namespace IPConfig {

// Texts of SVG pictures.
class IPCONFIG_READWRITE_EXPORT SvgText {
public:
  // `text` fit for an element's content or a quoted attribute: &, <, >, "
  // and ' as entities; control characters, which XML does not allow, dropped.
  static std::string escaped(const std::string& text);
};

}  // namespace IPConfig
