#include "NocConstraintsDesign.h"

#include "HCRapidJsonParser.h"
#include "HCRapidJsonReadWriteUtils.h"
#include "HDGUIStatus.h"
#include "NOCFindLogicalInstance.h"
#include "NOCJsonTrafficSpecReader.h"
#include "NOCModelReader.h"

#include <fstream>
#include <utility>

namespace ipconfig_rw {

namespace {

using Json = HCRapidJsonReadWriteUtils;
namespace Defs = DevHrdIP::Definitions;

}  // namespace

NocConstraintsDesign::FileNames::FileNames(const std::string& path)
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

NocConstraintsDesign::NocConstraintsDesign(const FileNames& names, const std::string& trafficPath)
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
  DevHrdIP::NOCModelReader::read(DevHrdIP::NOCModelReader::getDeviceFile(spec.deviceName), model);
}

std::string NocConstraintsDesign::missing(const FileNames& names) const
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

}  // namespace ipconfig_rw
