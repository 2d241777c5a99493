#pragma once

#include "ipconfig_hrdip_export.h"

#include <iosfwd>
#include <string>

namespace DevHrdIP {

class NOCModel;

// Builds a NoC device model from a device description file:
//
//   {"Name": "dev",
//    "Components": [{"Name": "NMU_0", "Type": "PS_CCI_NMU", "Role": "master"},
//                   {"Name": "MC_0", "Type": "DDRC", "Role": "slave",
//                    "Ports": [{"Name": "MC_0_P0", "Type": "DDRC_NSU", "Role": "slave"}]}],
//    "Links": [{"From": "NMU_0", "FromPort": "OUT", "To": "MC_0_P0", "ToPort": "IN"}]}
//
// A type is a COMP_TYPE text; a role is "master", "slave" or "none" (the
// default). "Ports" are a memory controller's sub-components, by port index.
// A link may end at any component, port or not, and is found only in the
// direction given. Everything but "Role" and "Ports" is required.
//
// Failures throw HEXAll, mask Error: "@90-1@%s" the file cannot be read,
// "@90-2@%s%s" it is no JSON (file, parse error), "@90-6@%s%s%s" it does
// not describe a device (file, JSON pointer of the offending value, reason).
// The components and links read before a failure stay in the model.
class IPCONFIG_HRDIP_EXPORT NOCModelReader {
public:
  static void read(const std::string& path, NOCModel& model);
  static void read(std::istream& in, const std::string& fileName, NOCModel& model);

  // Where the data directory keeps the description of the device of that
  // name: parts/tarnel/common/noc/devices/<name>.json. The file is not looked at.
  static std::string getDeviceFile(const std::string& deviceName);
};

}  // namespace DevHrdIP
