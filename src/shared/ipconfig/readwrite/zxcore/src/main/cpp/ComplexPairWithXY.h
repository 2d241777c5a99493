#pragma once

#include "ComplexPair.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints::json {

// A relative offset, "(X=1,Y=2)": x and y stay at the not-set values of
// DefaultXYValues unless given, since -1 is an offset like any other.
struct IPCONFIG_READWRITE_EXPORT ComplexPairWithXY : public ComplexPair {
  ComplexPairWithXY();
  explicit ComplexPairWithXY(const std::string& text);

  // "X=" before the "," and "Y=" behind it; the other order gives neither.
  void splitIntoXY(std::string text);
};

}  // namespace qpe::constraints::json
