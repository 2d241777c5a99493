#pragma once

#include "HDARPart.h"
#include "ipconfig_hdar_export.h"

#include <iosfwd>
#include <memory>
#include <string>

// Reads an array device from its description, a JSON file:
//
//   {"device": "NAME",
//    "shimColumns": [{"site": "QPE_SHIM_X0Y0", "region": "QPE", "column": 0,
//                     "channels": [{"bel": "S_AXIS0", "type": "PL_IN", "elementId": 0}, ...]},
//                    ...]}
//
// A channel's index in its shim is its place in "channels". Regions are
// "QPE" and "QPE_ML"; types "PL_IN", "PL_OUT", "NOC_IN", "NOC_OUT". Site
// names hold two underscores, three when they begin with "QPE_ML", so that
// the flat name "SITE_BEL" splits back into "SITE/BEL"; no name holds "/".
// Sites, columns, bels within a site and element ids are each unique.
//
// Failures throw HEXAll, mask Error, with the file attached:
//   "@90-1@%s"     the file cannot be read (path)
//   "@90-2@%s%s"   the file is not JSON (path, parse error)
//   "@90-30@%s%s%s" a value is missing or wrong (path, JSON pointer, what it must be)
//   "@90-31@%s%s%s" a site, column, bel or element id is given twice (path,
//                   JSON pointer of the second, the name or number)
class IPCONFIG_HDAR_EXPORT HDARPartReader {
public:
  // The description of `deviceName` in the data directory.
  static std::string getDeviceFile(const std::string& deviceName);

  static std::unique_ptr<HDARPart> readByName(const std::string& deviceName);
  static std::unique_ptr<HDARPart> read(const std::string& path);
  static std::unique_ptr<HDARPart> read(std::istream& in, const std::string& fileName);
};
