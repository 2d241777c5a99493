#include "Format.h"

#include "Constraints.h"
#include "HCRapidJsonParser.h"
#include "HCRapidJsonReadWriteUtils.h"
#include "HDGUIStatus.h"
#include "HIPDevice.h"
#include "HUTFile.h"
#include "NOCJsonConstraintsReader.h"
#include "NOCJsonConstraintsWriter.h"
#include "NOCModel.h"
#include "TrafficSpec.h"


#include <fstream>
#include <ostream>

namespace ipconfig_rw {

namespace {

using Json = HCRapidJsonReadWriteUtils;
namespace Defs = DevHrdIP::Definitions;

// The tool has no design of its own: every logical instance and component
// that the file names is taken as present, so that a check reads the whole
// file and a round trip keeps it. A file that is no JSON gives an empty
// design, and the reader reports it.
class FileDesign {
public:
  explicit FileDesign(const std::string& path)
  {
    std::ifstream in(path, std::ios_base::binary);
    JDocument document;
    std::string problem;
    if (HCRapidJsonParser::parse(in, document, problem) != HCRapidJsonParser::Result::parsed ||
        !Json::IsArrayProperty(document, "Placement"))
      return;
    for (const JValue& element : document["Placement"].GetArray()) {
      spec.addLogicalInstance(Json::GetStringProperty(element, "LogicalInstance"), Defs::AXI_MM,
                              Defs::COMP_TYPE_UNKNOWN, {});
      for (const std::string& name : Json::GetStringArrayProperty(element, "PhysicalInstance"))
        model.addComponent(name, Defs::COMP_TYPE_UNKNOWN, DevHrdIP::Component::NO_SIDE);
    }
  }

  HrdIPToolCntr::TrafficSpec spec;
  DevHrdIP::NOCModel model;
  DevHrdIP::HIPDevice device{&model};
};

void read(const std::string& path, const FileDesign& design,
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
      << " components\n";
}

int check(const std::vector<std::string>& args, std::ostream& out)
{
  const FileDesign design(args[0]);
  HrdIPToolCntr::Constraints constraints;
  read(args[0], design, constraints);
  out << "nocconstraints " << args[0] << ": ";
  printSummary(constraints, out);
  return exitOk;
}

int roundtrip(const std::vector<std::string>& args, std::ostream& out)
{
  const FileDesign design(args[0]);
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
  return exitOk;
}

}  // namespace

Format nocConstraintsFormat()
{
  return {"nocconstraints",
          "NoC constraints file (read, write; schema constraints.json); every name it holds "
          "is taken as part of the design",
          {
              {"check", {"FILE"}, "read FILE and count its placements, soft ones, components",
               check},
              {"roundtrip", {"IN", "OUT"}, "read IN and write it back to OUT", roundtrip},
          }};
}

}  // namespace ipconfig_rw
