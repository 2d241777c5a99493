#pragma once

#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints::json {

// One location in the compact syntax: "(3,4)", "3", "(3)" or a name.
struct IPCONFIG_READWRITE_EXPORT ComplexPair {
  ComplexPair() = default;
  explicit ComplexPair(const std::string& text);

  // Two numbers split at ","; one number alone is x; any other text is a name.
  void splitIntoXY(std::string text);

  std::string text;
  std::string name;
  int x = -1;
  int y = -1;
};

}  // namespace qpe::constraints::json
