// Reads the input as a project metadata file; a file that reads is written
// and read again.

#include "FuzzInput.h"

#include "HEXAll.h"
#include "QPEPrjMetaDataModel.h"

#include <sstream>

using IPConfig::Frameworks::QPEPrjMetaDataModel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  const ipconfig_rw_fuzz::FuzzInput input(data, size, "metadata");
  QPEPrjMetaDataModel model;
  try {
    model.readFromJSONFile(input.path());
  } catch (const HEXAll&) {
    return 0;
  }
  std::ostringstream written;
  model.writeToJSONStream(written);
  if (!written)
    return 0;
  std::istringstream text(written.str());
  QPEPrjMetaDataModel reread;
  try {
    reread.readFromJSONStream(input.path(), text);
  } catch (const HEXAll& failure) {
    ipconfig_rw_fuzz::writtenFileRefused("metadata", written.str() + '\n' + failure.what());
  }
  return 0;
}
