// Reads the input as a traffic file, plain or compressed; a file that reads
// is written and read again.

#include "FuzzInput.h"

#include "HDGUIStatus.h"
#include "HEXAll.h"
#include "NOCJsonTrafficSpecReader.h"
#include "NOCJsonTrafficSpecWriter.h"
#include "TrafficSpec.h"

#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  const ipconfig_rw_fuzz::FuzzInput input(data, size, "traffic");
  HrdIPToolCntr::TrafficSpec spec;
  HDGUIStatus status;
  try {
    NOC::NOCJsonTrafficSpecReader().readFromJsonFile(input.path(), spec, status);
  } catch (const HEXAll&) {
    return 0;
  }
  // A model with nothing to write gives false and no text.
  std::ostringstream written;
  if (!NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(written, spec, status))
    return 0;
  std::istringstream text(written.str());
  HrdIPToolCntr::TrafficSpec reread;
  try {
    NOC::NOCJsonTrafficSpecReader().readFromJsonFile(text, input.path(), reread, status);
  } catch (const HEXAll& failure) {
    ipconfig_rw_fuzz::writtenFileRefused("traffic", written.str() + '\n' + failure.what());
  }
  return 0;
}
