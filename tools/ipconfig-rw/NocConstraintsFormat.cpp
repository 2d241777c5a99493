#include "Format.h"

#include "Constraints.h"
#include "HDGUIStatus.h"
#include "HUTFile.h"
#include "NOCJsonConstraintsReader.h"
#include "NOCJsonConstraintsWriter.h"
#include "NocConstraintsDesign.h"

#include <ostream>

namespace ipconfig_rw {

namespace {

void read(const std::string& path, const NocConstraintsDesign& design,
          HrdIPToolCntr::Constraints& constraints)
{
  HDGUIStatus status;
  NOC::NOCJsonConstraintsReader().readFromJsonFile(path, design.device, design.spec, constraints,
                                                   status);
}

void printSummary(const HrdIPToolCntr::Constraints& constraints, std::ostream& out)
{
  std::vector<const HrdIPToolCntr::TrafficLInst*> instances;
  constraints.getAllConstrainedInstances(instances);
  std::size_t soft = 0;
  std::size_t components = 0;
  for (const HrdIPToolCntr::TrafficLInst* instance : instances) {
    std::vector<const DevHrdIP::Component*> placed;
    bool isSoft = false;
    constraints.getPlacementConst(instance, placed, isSoft);
    soft += isSoft;
    components += placed.size();
  }
  out << instances.size() << " placements (" << soft << " soft), " << components
      << " components";
}

// Arguments: FILE, then the value of --traffic.
int check(const std::vector<std::string>& args, std::ostream& out)
{
  const NocConstraintsDesign::FileNames names(args[0]);
  const NocConstraintsDesign design(names, args[1]);
  HrdIPToolCntr::Constraints constraints;
  read(args[0], design, constraints);
  out << "nocconstraints " << args[0] << ": ";
  printSummary(constraints, out);
  out << design.missing(names) << '\n';
  return exitOk;
}

// Arguments: IN OUT, then the value of --traffic.
int roundtrip(const std::vector<std::string>& args, std::ostream& out)
{
  const NocConstraintsDesign::FileNames names(args[0]);
  const NocConstraintsDesign design(names, args[2]);
  HrdIPToolCntr::Constraints constraints;
  read(args[0], design, constraints);
  HDGUIStatus status;
  // The writer goes on when the file does not open; whether it exists tells.
  if (!NOC::NOCJsonConstraintsWriter().writeToJsonFile(args[1], constraints, status) ||
      !HUTFile(args[1]).isFile()) {
    out << "nocconstraints: cannot write " << args[1] << '\n';
    return exitBadInput;
  }
  out << "nocconstraints " << args[0] << " -> " << args[1] << ": ";
  printSummary(constraints, out);
  out << design.missing(names) << '\n';
  return exitOk;
}

Option trafficOption()
{
  return {"traffic", "FILE",
          "traffic file whose instances, on the shipped device it names, make the design", ""};
}

}  // namespace

Format nocConstraintsFormat()
{
  return {"nocconstraints",
          "NoC constraints file (read, write; schema constraints.json), read against a "
          "traffic file and its shipped device, or taking every name it holds as present",
          {
              {"check", {"FILE"},
               "read FILE and count its placements, soft ones, components, and the names "
               "the design lacks",
               check, {trafficOption()}},
              {"roundtrip", {"IN", "OUT"}, "read IN and write it back to OUT", roundtrip,
               {trafficOption()}},
          }};
}

}  // namespace ipconfig_rw
