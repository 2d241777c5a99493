#include "NOCJsonConstraintsReader.h"

#include "Constraints.h"
#include "HDGUIStatus.h"
#include "HIPDevice.h"
#include "HIPLogicalObjectNameResolverInterfaceIdentity.h"
#include "JsonFileFrame.h"
#include "NOCFindLogicalInstance.h"
#include "NOCJsonReadWriteUtils.h"
#include "NOCModel.h"

#include <vector>

namespace NOC {

namespace {

using Json = HCRapidJsonReadWriteUtils;
using IPConfig::JsonFileFrame;

}  // namespace

bool NOCJsonConstraintsReader::readFromJsonFile(const std::string& path,
                                                const DevHrdIP::HIPDevice& device,
                                                const HrdIPToolCntr::TrafficSpec& spec,
                                                HrdIPToolCntr::Constraints& constraints,
                                                HIPLogicalObjectNameResolverInterface& resolver,
                                                HDGUIStatus& status)
{
  JsonFileFrame::readFile(path, isl::iostreams::basic_file(),
                          [&](std::istream& in, const std::string&) {
                            readFromJsonFile(in, path, device, spec, constraints, resolver,
                                             status);
                          });
  return true;
}

bool NOCJsonConstraintsReader::readFromJsonFile(std::istream& in, const std::string& fileName,
                                                const DevHrdIP::HIPDevice& device,
                                                const HrdIPToolCntr::TrafficSpec& spec,
                                                HrdIPToolCntr::Constraints& constraints,
                                                HIPLogicalObjectNameResolverInterface&,
                                                HDGUIStatus& status)
{
  JDocument document;
  JsonFileFrame::parse(in, fileName, document);
  JsonFileFrame::validate(document, fileName, NOCJsonReadWriteUtils::getConstraintsJsonSchemaFile(),
                          isl::iostreams::basic_file());
  status.setProgress(20.0);
  if (Json::IsArrayProperty(document, "Placement"))
    for (const JValue& element : document["Placement"].GetArray())
      readPlacement_(element, device, spec, constraints);
  status.setProgress(100.0);
  return true;
}

bool NOCJsonConstraintsReader::readFromJsonFile(const std::string& path,
                                                const DevHrdIP::HIPDevice& device,
                                                const HrdIPToolCntr::TrafficSpec& spec,
                                                HrdIPToolCntr::Constraints& constraints,
                                                HDGUIStatus& status)
{
  HIPLogicalObjectNameResolverInterfaceIdentity resolver;
  return readFromJsonFile(path, device, spec, constraints, resolver, status);
}

bool NOCJsonConstraintsReader::readFromJsonFile(std::istream& in, const std::string& fileName,
                                                const DevHrdIP::HIPDevice& device,
                                                const HrdIPToolCntr::TrafficSpec& spec,
                                                HrdIPToolCntr::Constraints& constraints,
                                                HDGUIStatus& status)
{
  HIPLogicalObjectNameResolverInterfaceIdentity resolver;
  return readFromJsonFile(in, fileName, device, spec, constraints, resolver, status);
}

void NOCJsonConstraintsReader::readPlacement_(const JValue& element,
                                              const DevHrdIP::HIPDevice& device,
                                              const HrdIPToolCntr::TrafficSpec& spec,
                                              HrdIPToolCntr::Constraints& constraints)
{
  const HrdIPToolCntr::TrafficLInst* instance =
      findLogicalInstance(spec, Json::GetStringProperty(element, "LogicalInstance"));
  if (!instance)
    return;
  const std::vector<std::string> names = Json::GetStringArrayProperty(element, "PhysicalInstance");
  const bool isSoft = Json::GetBooleanProperty(element, "IsSoft");
  const DevHrdIP::NOCModel* model = device.getNOCModel();
  if (!model)
    return;
  std::vector<const DevHrdIP::Component*> components;
  for (const std::string& name : names)
    if (const DevHrdIP::Component* component = model->getComponent(name))
      components.push_back(component);
  if (!components.empty())
    constraints.addPlacementConst(instance, components, isSoft);
}

}  // namespace NOC
