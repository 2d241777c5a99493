#pragma once

#include "HDDMBel.h"
#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <string>

class HDARPart;

namespace IPConfig::Frameworks {

// Conversions between the bels of an array device, the flat names the files
// hold ("QPE_SHIM_X0Y0_S_AXIS0") and shim coordinates.
class IPCONFIG_READWRITE_EXPORT QPEHDDMDeviceUtils {
public:
  // The bel of a flat name: the underscore that ends the site (the third,
  // the fourth after the prefix "QPE_ML") becomes "/". A name with fewer
  // underscores is asked for as it stands; an empty one gives the invalid
  // handle at once.
  static HDDMBel getHDDMBel(const HDARPart& part, const std::string& name);
  // The flat name: the hierarchical one with every "/" changed to "_";
  // empty for an invalid bel.
  static std::string getHierName(const HDARPart& part, const HDDMBel& bel);
  // All ones for an invalid bel.
  static std::uint32_t getShimColumn(const HDARPart& part, const HDDMBel& bel);
  static std::uint32_t getIndexOfChanInShim(const HDARPart& part, const HDDMBel& bel);
};

}  // namespace IPConfig::Frameworks
