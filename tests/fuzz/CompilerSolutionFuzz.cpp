// Reads the input as a compiler solution file against the shipped array
// device and the logical architecture and traffic examples, read once as
// the tool reads them; a file that reads is written and read again.

#include "FuzzInput.h"

#include "HEXAll.h"
#include "HandOffDesign.h"
#include "QPEShimInterfaceSolution.h"
#include "ZXCompilerSolutionReaderJSON.h"
#include "ZXCompilerSolutionWriterJSON.h"

#include <sstream>

namespace fw = IPConfig::Frameworks;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  static ipconfig_rw::HandOffDesign design("qpe_demo",
                                           IPCONFIG_RW_EXAMPLES_DIR "/logical_arch.json",
                                           IPCONFIG_RW_EXAMPLES_DIR "/traffic.json");
  const ipconfig_rw_fuzz::FuzzInput input(data, size, "compilersolution");
  design.solution = std::make_unique<fw::QPEShimInterfaceSolution>(*design.part);
  try {
    design.readSolution(input.path());
  } catch (const HEXAll&) {
    return 0;
  }
  // A solution with no placed port gives no text at all.
  std::ostringstream written;
  if (!fw::ZXCompilerSolutionWriterJSON().writeToJsonFile(written, design.model, design.spec,
                                                          *design.solution, *design.part,
                                                          design.status) ||
      written.str().empty())
    return 0;
  std::istringstream text(written.str());
  fw::QPEShimInterfaceSolution reread(*design.part);
  try {
    fw::ZXCompilerSolutionReaderJSON().readFromJsonFile(text, input.path(), *design.part,
                                                        design.model, design.spec, reread,
                                                        design.status);
  } catch (const HEXAll& failure) {
    ipconfig_rw_fuzz::writtenFileRefused("compilersolution", written.str() + '\n' + failure.what());
  }
  return 0;
}
