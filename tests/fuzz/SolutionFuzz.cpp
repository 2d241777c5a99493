// Reads the input as a NoC solution file against the traffic example and
// the shipped device it names, both read once; a file that reads is written
// with its logical instances and read again.

#include "FuzzInput.h"

#include "CompRes.h"
#include "HDGUIStatus.h"
#include "HEXAll.h"
#include "HIPDevice.h"
#include "NOCJsonSolutionReader.h"
#include "NOCJsonSolutionWriter.h"
#include "NOCJsonTrafficSpecReader.h"
#include "NOCModel.h"
#include "NOCModelReader.h"
#include "TrafficSpec.h"

#include <sstream>
#include <stdexcept>

namespace {

struct Design {
  HrdIPToolCntr::TrafficSpec traffic;
  DevHrdIP::NOCModel nocModel;
  DevHrdIP::HIPDevice device{&nocModel};

  Design()
  {
    HDGUIStatus status;
    NOC::NOCJsonTrafficSpecReader().readFromJsonFile(IPCONFIG_RW_EXAMPLES_DIR "/traffic.json",
                                                     traffic, status);
    DevHrdIP::NOCModelReader::read(DevHrdIP::NOCModelReader::getDeviceFile(traffic.deviceName),
                                   nocModel);
  }
};

// A link the device lacks and a port past a memory controller's ports are
// the reader's own refusals, besides those of the file frame.
template <typename Read>
bool refused(const Read& read, std::string& why)
{
  try {
    read();
  } catch (const HEXAll& failure) {
    why = failure.what();
  } catch (const std::runtime_error& failure) {
    why = failure.what();
  } catch (const std::out_of_range& failure) {
    why = failure.what();
  }
  return !why.empty();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  static const Design design;
  const ipconfig_rw_fuzz::FuzzInput input(data, size, "solution");
  HrdIPToolCntr::CompRes result{&design.device};
  HDGUIStatus status;
  std::string why;
  if (refused(
          [&] {
            NOC::NOCJsonSolutionReader().readFromJsonFile(input.path(), design.traffic, result,
                                                          status, {}, {}, nullptr, nullptr);
          },
          why))
    return 0;
  result.phaseMode = !design.traffic.phaseGroupNames.empty();
  std::ostringstream written;
  if (!NOC::NOCJsonSolutionWriter().writeToJsonFile(written, design.traffic, result, status, true))
    return 0;
  HrdIPToolCntr::CompRes reread{&design.device};
  if (refused(
          [&] {
            std::istringstream text(written.str());
            NOC::NOCJsonSolutionReader().readFromJsonFile(text, input.path(), design.traffic,
                                                          reread, status);
          },
          why))
    ipconfig_rw_fuzz::writtenFileRefused("solution", written.str() + '\n' + why);
  return 0;
}
