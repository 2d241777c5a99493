// Reads the input as a logical architecture file; a file that reads is
// written and read again.

#include "FuzzInput.h"

#include "HEXAll.h"
#include "ZXLogicalArchModel.h"
#include "ZXLogicalArchReader.h"
#include "ZXLogicalArchWriter.h"

#include <sstream>

namespace fw = IPConfig::Frameworks;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  const ipconfig_rw_fuzz::FuzzInput input(data, size, "logicalarch");
  fw::ZXLogicalArchModel model;
  try {
    fw::ZXLogicalArchReader().readFromJsonFile(input.path(), model);
  } catch (const HEXAll&) {
    return 0;
  }
  std::ostringstream written;
  if (!fw::ZXLogicalArchWriter().writeToJsonFile(written, model))
    return 0;
  std::istringstream text(written.str());
  fw::ZXLogicalArchModel reread;
  try {
    fw::ZXLogicalArchReader().readFromJsonFile(text, input.path(), reread);
  } catch (const HEXAll& failure) {
    ipconfig_rw_fuzz::writtenFileRefused("logicalarch", written.str() + '\n' + failure.what());
  }
  return 0;
}
