// Reads the input as a traffic file, plain or compressed. The format has no
// writer yet, so there is nothing to read back.

#include "FuzzInput.h"

#include "HDGUIStatus.h"
#include "HEXAll.h"
#include "NOCJsonTrafficSpecReader.h"
#include "TrafficSpec.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  const ipconfig_rw_fuzz::FuzzInput input(data, size, "traffic");
  HrdIPToolCntr::TrafficSpec spec;
  HDGUIStatus status;
  try {
    NOC::NOCJsonTrafficSpecReader().readFromJsonFile(input.path(), spec, status);
  } catch (const HEXAll&) {
  }
  return 0;
}
