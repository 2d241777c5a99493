#pragma once

#include "ComplexPair.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints::json {

// A location or a range in the compact syntax: "(1,2):(3,4)", "1:5",
// "tile_a:tile_b", or one location.
struct IPCONFIG_READWRITE_EXPORT ComplexRange {
  ComplexRange() = default;
  explicit ComplexRange(const std::string& text);

  // Splits at the first ":". A range without its first end is reported with
  // "@75-647@%s" and keeps only its second end.
  void splitRange(const std::string& text);

  std::string text;
  ComplexPair first;
  ComplexPair second;
};

}  // namespace qpe::constraints::json
