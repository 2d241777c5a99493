#include "Format.h"
#include "OptionValues.h"

#include "HandOffDesign.h"
#include "QPEPLIntfWriter.h"

#include <ostream>

namespace ipconfig_rw {

namespace {

// The option's number, or `fallback` when it was left empty.
int intOr(const std::string& option, const std::string& text, int fallback)
{
  return text.empty() ? fallback : parseInt(option, text);
}

// Arguments: DEVICE LOGICAL_ARCH TRAFFIC SOLUTION OUT, then the options in
// declared order.
int write(const std::vector<std::string>& args, std::ostream& out)
{
  const int partitionStart = parseInt("partition-start", args[5]);
  const int partitionSize = parseInt("partition-size", args[6]);
  HandOffDesign design(args[0], args[1], args[2]);
  const std::vector<int> columns = design.part->getQpeOracle().getZXShimColumns();
  const int arrayStart = intOr("array-start", args[7], columns.empty() ? 0 : columns.front());
  const int arraySize = intOr("array-size", args[8], static_cast<int>(columns.size()));
  design.readSolution(args[3]);
  if (!IPConfig::Frameworks::QPEPLIntfWriter().writeToJsonFile(
          args[4], design.spec, *design.solution, design.model, *design.part, partitionStart,
          partitionSize, arrayStart, arraySize)) {
    out << "plinterface: cannot write " << args[4] << '\n';
    return exitBadInput;
  }
  out << "plinterface " << args[3] << " -> " << args[4] << ": " << design.countPlacedPorts()
      << " of " << design.countPorts() << " shim ports placed\n";
  return exitOk;
}

}  // namespace

Format plInterfaceFormat()
{
  return {"plinterface",
          "PL interface file (write; no schema): the columns of a partition and the channels "
          "and settings of every array port; inputs as for compilersolution",
          {
              {"write",
               {"DEVICE", "LOGICAL_ARCH", "TRAFFIC", "SOLUTION", "OUT"},
               "write the interface of the solution's array ports to OUT",
               write,
               {
                   partitionStartOption(),
                   partitionSizeOption(),
                   {"array-start", "N", "first column of the array; the device's by default",
                    ""},
                   {"array-size", "N",
                    "number of columns of the array; the device's shim columns by default", ""},
               }},
          }};
}

}  // namespace ipconfig_rw
