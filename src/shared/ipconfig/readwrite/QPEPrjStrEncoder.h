#pragma once

#include "ipconfig_readwrite_export.h"

#include <map>
#include <string>
#include <vector>

namespace IPConfig::Frameworks {

// Forms the canonical text of the array-to-PL interface and its checksum.
// Both are independent of the order in which the parts were visited.
class IPCONFIG_READWRITE_EXPORT QPEPrjStrEncoder {
public:
  // The sum of the bytes, each taken as signed, in wrapping 32-bit arithmetic.
  static unsigned int encodeAsInt(const std::string& text);
  // The entries sorted by bytes and joined with no separator.
  static std::string encodeAsString(const std::vector<std::string>& entries);
  // Each key in byte order followed by its entries, sorted; no separators.
  static std::string encodeAsString(const std::map<std::string, std::vector<std::string>>& entries);
};

}  // namespace IPConfig::Frameworks
