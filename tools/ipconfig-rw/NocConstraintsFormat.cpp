#include "Format.h"

#include "Constraints.h"
#include "HCRapidJsonParser.h"
#include "HCRapidJsonReadWriteUtils.h"
#include "HDGUIStatus.h"
#include "HIPDevice.h"
#include "HUTFile.h"
#include "NOCFindLogicalInstance.h"
#include "NOCJsonConstraintsReader.h"
#include "NOCJsonConstraintsWriter.h"
#include "NOCJsonTrafficSpecReader.h"
#include "NOCModel.h"
#include "NOCModelReader.h"
#include "TrafficSpec.h"

#include <fstream>
#include <ostream>
#include <utility>

namespace ipconfig_rw {

namespace {

using Json = HCRapidJsonReadWriteUtils;
namespace Defs = DevHrdIP::Definitions;

// The names a NoC constraints file holds, in file order. A file that is no
// JSON holds none, and the reader reports it.
struct FileNames {
  std::vector<std::string> instances;
  std::vector<std::string> components;

  explicit FileNames(const std::string& path)
  {
    std::ifstream in(path, std::ios_base::binary);
    JDocument document;
    std::string problem;
    if (HCRapidJsonParser::parse(in, document, problem) != HCRapidJsonParser::Result::parsed ||
        !Json::IsArrayProperty(document, "Placement"))
      return;
    for (const JValue& element : document["Placement"].GetArray()) {
      instances.push_back(Json::GetStringProperty(element, "LogicalInstance"));
      for (std::string& name : Json::GetStringArrayProperty(element, "PhysicalInstance"))
        components.push_back(std::move(name));
    }
  }
};

// The design a file is read against. With a traffic file: its logical
// instances on the shipped NoC device it names, so that the names the reader
// drops without a word can be counted. Without one, every name the file holds
// is taken as present, so that a check reads the whole file and a round trip
// keeps it.
class Design {
public:
  Design(const FileNames& names, const std::string& trafficPath)
  {
    if (trafficPath.empty()) {
      for (const std::string& name : names.instances)
        spec.addLogicalInstance(name, Defs::AXI_MM, Defs::COMP_TYPE_UNKNOWN, {});
      for (const std::string& name : names.components)
        model.addComponent(name, Defs::COMP_TYPE_UNKNOWN, DevHrdIP::Component::NO_SIDE);
      return;
    }
    HDGUIStatus status;
    NOC::NOCJsonTrafficSpecReader().readFromJsonFile(trafficPath, spec, status);
    DevHrdIP::NOCModelReader::read(DevHrdIP::NOCModelReader::getDeviceFile(spec.deviceName),
                                   model);
  }

  // ", not in the design: N instances, M components" when names were dropped.
  std::string missing(const FileNames& names) const
  {
    std::size_t instances = 0;
    for (const std::string& name : names.instances)
      instances += NOC::findLogicalInstance(spec, name) ? 0 : 1;
    std::size_t components = 0;
    for (const std::string& name : names.components)
      components += model.getComponent(name) ? 0 : 1;
    if (instances == 0 && components == 0)
      return {};
    return "; not in the design: " + std::to_string(instances) + " instances, " +
           std::to_string(components) + " components";
  }

  HrdIPToolCntr::TrafficSpec spec;
  DevHrdIP::NOCModel model;
  DevHrdIP::HIPDevice device{&model};
};

void read(const std::string& path, const Design& design, HrdIPToolCntr::Constraints& constraints)
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
  const FileNames names(args[0]);
  const Design design(names, args[1]);
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
  const FileNames names(args[0]);
  const Design design(names, args[2]);
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
