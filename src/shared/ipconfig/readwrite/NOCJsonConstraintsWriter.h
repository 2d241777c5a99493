#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <string>

class HDGUIStatus;

namespace HrdIPToolCntr {
class Constraints;
}

namespace NOC {

// Writes the placement constraints of a Constraints as a NoC constraints
// file (schema "constraints.json"): one element of "Placement" for each
// placed instance, in the order the Constraints gives them, with every key
// every time. DestId constraints have no key in this format: they are
// passed over with one critical warning "@75-704@" for the whole file.
class IPCONFIG_READWRITE_EXPORT NOCJsonConstraintsWriter {
public:
  // True when nothing was to be written (no schema is read and the stream
  // gets no text) or the document passed validation; false with
  // "@75-585@%s" ("NoC Constraints") when it failed. The path form writes
  // even when the file could not be opened, and the text is lost.
  bool writeToJsonFile(const std::string& path, const HrdIPToolCntr::Constraints& constraints,
                       HDGUIStatus& status);
  bool writeToJsonFile(std::ostream& out, const HrdIPToolCntr::Constraints& constraints,
                       HDGUIStatus& status);

private:
  // Fills the "Placement" array; false if no instance has a component.
  static bool writePlacement_(const HrdIPToolCntr::Constraints& constraints, JValue& placement,
                              JAllocator& alloc);
};

}  // namespace NOC
