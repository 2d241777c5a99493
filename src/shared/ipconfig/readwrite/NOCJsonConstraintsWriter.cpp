#include "NOCJsonConstraintsWriter.h"

#include "Component.h"
#include "Constraints.h"
#include "IPConfigMessages.h"
#include "JsonFileFrame.h"
#include "NOCJsonReadWriteUtils.h"
#include "TrafficLInst.h"

#include <vector>

namespace NOC {

bool NOCJsonConstraintsWriter::writeToJsonFile(const std::string& path,
                                               const HrdIPToolCntr::Constraints& constraints,
                                               HDGUIStatus& status)
{
  using Frame = IPConfig::JsonFileFrame;
  return Frame::writeFile(path, Frame::OpenCheck::writeRegardless, [&](std::ostream& out) {
    return writeToJsonFile(out, constraints, status);
  });
}

bool NOCJsonConstraintsWriter::writeToJsonFile(std::ostream& out,
                                               const HrdIPToolCntr::Constraints& constraints,
                                               HDGUIStatus&)
{
  if (constraints.hasInstsWithDestIdConstraint())
    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, "@75-704@");
  JDocument document(rapidjson::kObjectType);
  JValue placement(rapidjson::kArrayType);
  if (!writePlacement_(constraints, placement, document.GetAllocator()))
    return true;
  HCRapidJsonReadWriteUtils::AddGenericValueProperty(document, "Placement", placement,
                                                     document.GetAllocator());
  return IPConfig::JsonFileFrame::writeValidated(
      document, out, NOCJsonReadWriteUtils::getConstraintsJsonSchemaFile(), "NoC Constraints");
}

bool NOCJsonConstraintsWriter::writePlacement_(const HrdIPToolCntr::Constraints& constraints,
                                               JValue& placement, JAllocator& alloc)
{
  std::vector<const HrdIPToolCntr::TrafficLInst*> instances;
  constraints.getAllConstrainedInstances(instances);
  for (const HrdIPToolCntr::TrafficLInst* instance : instances) {
    std::vector<const DevHrdIP::Component*> components;
    bool isSoft = true;
    constraints.getPlacementConst(instance, components, isSoft);
    if (!instance || components.empty())
      continue;
    std::vector<std::string> names;
    names.reserve(components.size());
    for (const DevHrdIP::Component* component : components)
      if (component)
        names.push_back(component->getName());
    JValue element(rapidjson::kObjectType);
    using Json = HCRapidJsonReadWriteUtils;
    Json::AddStringProperty(element, "LogicalInstance", instance->name, alloc);
    Json::AddStringArrayProperty(element, "PhysicalInstance", names, alloc);
    Json::AddBooleanProperty(element, "IsSoft", isSoft, alloc);
    placement.PushBack(element, alloc);
  }
  return !placement.Empty();
}

}  // namespace NOC
