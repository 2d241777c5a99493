#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <string>

class HDGUIStatus;
class HIPLogicalObjectNameResolverInterface;

namespace DevHrdIP {
class HIPDevice;
}

namespace HrdIPToolCntr {
class Constraints;
class TrafficSpec;
}  // namespace HrdIPToolCntr

namespace NOC {

// Reads a NoC constraints file (schema "constraints.json") into a
// Constraints: each element of "Placement" pins a logical instance of the
// traffic model to the device components it may take. Names are already
// those of the model, so the resolver is accepted and not asked. An
// instance the model does not know, or a component the device does not know,
// is dropped without a word; an element left with no component adds
// nothing. Failures of the file throw the HEXAll of the
// HCRapidJsonReadWriteUtils error calls. Progress: 20 after validation, 100
// at the end.
class IPCONFIG_READWRITE_EXPORT NOCJsonConstraintsReader {
public:
  // Return true.
  bool readFromJsonFile(const std::string& path, const DevHrdIP::HIPDevice& device,
                        const HrdIPToolCntr::TrafficSpec& spec,
                        HrdIPToolCntr::Constraints& constraints,
                        HIPLogicalObjectNameResolverInterface& resolver, HDGUIStatus& status);
  bool readFromJsonFile(std::istream& in, const std::string& fileName,
                        const DevHrdIP::HIPDevice& device, const HrdIPToolCntr::TrafficSpec& spec,
                        HrdIPToolCntr::Constraints& constraints,
                        HIPLogicalObjectNameResolverInterface& resolver, HDGUIStatus& status);
  // With HIPLogicalObjectNameResolverInterfaceIdentity.
  bool readFromJsonFile(const std::string& path, const DevHrdIP::HIPDevice& device,
                        const HrdIPToolCntr::TrafficSpec& spec,
                        HrdIPToolCntr::Constraints& constraints, HDGUIStatus& status);
  bool readFromJsonFile(std::istream& in, const std::string& fileName,
                        const DevHrdIP::HIPDevice& device, const HrdIPToolCntr::TrafficSpec& spec,
                        HrdIPToolCntr::Constraints& constraints, HDGUIStatus& status);

private:
  static void readPlacement_(const JValue& element, const DevHrdIP::HIPDevice& device,
                             const HrdIPToolCntr::TrafficSpec& spec,
                             HrdIPToolCntr::Constraints& constraints);
};

}  // namespace NOC
