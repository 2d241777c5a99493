#include "Format.h"

#include "HandOffDesign.h"
#include "ZXCompilerSolutionWriterJSON.h"

#include <ostream>

namespace ipconfig_rw {

namespace {

void printSummary(const HandOffDesign& design, std::ostream& out)
{
  out << design.solution->placed.size() << " logical instances on "
      << design.solution->reversePlaced.size() << " channels, " << design.countPlacedPorts()
      << " of " << design.countPorts() << " shim ports placed\n";
}

int check(const std::vector<std::string>& args, std::ostream& out)
{
  HandOffDesign design(args[0], args[1], args[2]);
  design.readSolution(args[3]);
  out << "compilersolution " << args[3] << ": ";
  printSummary(design, out);
  return exitOk;
}

int roundtrip(const std::vector<std::string>& args, std::ostream& out)
{
  HandOffDesign design(args[0], args[1], args[2]);
  design.readSolution(args[3]);
  if (design.countPlacedPorts() == 0) {
    out << "compilersolution: no port of " << args[3] << " is placed; nothing written\n";
    return exitBadInput;
  }
  if (!IPConfig::Frameworks::ZXCompilerSolutionWriterJSON().writeToJsonFile(
          args[4], design.model, design.spec, *design.solution, *design.part, design.status)) {
    out << "compilersolution: cannot write " << args[4] << '\n';
    return exitBadInput;
  }
  out << "compilersolution " << args[3] << " -> " << args[4] << ": ";
  printSummary(design, out);
  return exitOk;
}

}  // namespace

Format compilerSolutionFormat()
{
  return {"compilersolution",
          "compiler solution file (read, write; schema ZXSolutionSchema.json): the shim "
          "channels the array's ports took. DEVICE is a device file or the name of a shipped "
          "device (qpe_demo); port P of array instance I is served by the traffic instances "
          "I/P, I/P<0>_INST and I/P<1>_INST",
          {
              {"check", {"DEVICE", "LOGICAL_ARCH", "TRAFFIC", "FILE"},
               "read FILE against the three and count what it places", check},
              {"roundtrip", {"DEVICE", "LOGICAL_ARCH", "TRAFFIC", "IN", "OUT"},
               "read IN and write it back to OUT", roundtrip},
          }};
}

}  // namespace ipconfig_rw
