// Reads the input as a NoC constraints file against a design that holds
// every name the file gives, as the tool does; a file that reads is written
// and read again.

#include "FuzzInput.h"

#include "Constraints.h"
#include "HDGUIStatus.h"
#include "HEXAll.h"
#include "NOCJsonConstraintsReader.h"
#include "NOCJsonConstraintsWriter.h"
#include "NocConstraintsDesign.h"

#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  const ipconfig_rw_fuzz::FuzzInput input(data, size, "nocconstraints");
  const ipconfig_rw::NocConstraintsDesign::FileNames names(input.path());
  const ipconfig_rw::NocConstraintsDesign design(names, "");
  HrdIPToolCntr::Constraints constraints;
  HDGUIStatus status;
  try {
    NOC::NOCJsonConstraintsReader().readFromJsonFile(input.path(), design.device, design.spec,
                                                     constraints, status);
  } catch (const HEXAll&) {
    return 0;
  }
  // Constraints with no placement give no text at all.
  std::ostringstream written;
  if (!NOC::NOCJsonConstraintsWriter().writeToJsonFile(written, constraints, status) ||
      written.str().empty())
    return 0;
  std::istringstream text(written.str());
  HrdIPToolCntr::Constraints reread;
  try {
    NOC::NOCJsonConstraintsReader().readFromJsonFile(text, input.path(), design.device,
                                                     design.spec, reread, status);
  } catch (const HEXAll& failure) {
    ipconfig_rw_fuzz::writtenFileRefused("nocconstraints", written.str() + '\n' + failure.what());
  }
  return 0;
}
