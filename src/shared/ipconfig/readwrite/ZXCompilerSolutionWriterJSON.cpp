#include "ZXCompilerSolutionWriterJSON.h"

#include "JsonFileFrame.h"
#include "NOCFindLogicalInstance.h"
#include "NOCJsonReadWriteUtils.h"
#include "QPEShimBelWriter.h"
#include "QPEShimPortBels.h"
#include "ZXLogicalArchModel.h"

#include <ostream>
#include <vector>

namespace IPConfig::Frameworks {

namespace {

using Json = HCRapidJsonReadWriteUtils;

// The instance's name as the file holds it: without `prefix`, then without
// a leading "/".
std::string relativeName(const std::string& name, const std::string& prefix)
{
  std::string relative = !prefix.empty() && name.rfind(prefix, 0) == 0
                             ? name.substr(prefix.size())
                             : name;
  if (!relative.empty() && relative.front() == '/')
    relative.erase(0, 1);
  return relative;
}

}  // namespace

bool ZXCompilerSolutionWriterJSON::writeToJsonFile(std::ostream& out,
                                                   const ZXLogicalArchModel& model,
                                                   const HrdIPToolCntr::TrafficSpec& spec,
                                                   const QPEShimInterfaceSolution& solution,
                                                   const HDARPart& part, HDGUIStatus& status)
{
  return writeToJsonFile(std::string(), out, model, spec, solution, part, status);
}

bool ZXCompilerSolutionWriterJSON::writeToJsonFile(const std::string& prefix, std::ostream& out,
                                                   const ZXLogicalArchModel& model,
                                                   const HrdIPToolCntr::TrafficSpec& spec,
                                                   const QPEShimInterfaceSolution& solution,
                                                   const HDARPart& part, HDGUIStatus&)
{
  JDocument document(rapidjson::kObjectType);
  JValue placements(rapidjson::kArrayType);
  writePlacements_(prefix, model, spec, solution, part, placements, document.GetAllocator());
  if (placements.Empty())
    return true;
  Json::AddGenericValueProperty(document, "Placement", placements, document.GetAllocator());
  return JsonFileFrame::writeValidatedWithPointers(
      document, out, NOC::NOCJsonReadWriteUtils::getZXSolutionJsonSchemaFile());
}

bool ZXCompilerSolutionWriterJSON::writeToJsonFile(const std::string& fileName,
                                                   const ZXLogicalArchModel& model,
                                                   const HrdIPToolCntr::TrafficSpec& spec,
                                                   const QPEShimInterfaceSolution& solution,
                                                   const HDARPart& part, HDGUIStatus& status)
{
  return writeToJsonFile(std::string(), fileName, model, spec, solution, part, status);
}

bool ZXCompilerSolutionWriterJSON::writeToJsonFile(const std::string& prefix,
                                                   const std::string& fileName,
                                                   const ZXLogicalArchModel& model,
                                                   const HrdIPToolCntr::TrafficSpec& spec,
                                                   const QPEShimInterfaceSolution& solution,
                                                   const HDARPart& part, HDGUIStatus& status)
{
  return JsonFileFrame::writeFile(
      fileName, JsonFileFrame::OpenCheck::refuseUnopened, [&](std::ostream& out) {
        return writeToJsonFile(prefix, out, model, spec, solution, part, status);
      });
}

const HrdIPToolCntr::TrafficLInst* ZXCompilerSolutionWriterJSON::findLogicalInstance(
    const HrdIPToolCntr::TrafficSpec& spec, const std::string& name)
{
  return NOC::findLogicalInstance(spec, name);
}

void ZXCompilerSolutionWriterJSON::writePlacements_(const std::string& prefix,
                                                    const ZXLogicalArchModel& model,
                                                    const HrdIPToolCntr::TrafficSpec& spec,
                                                    const QPEShimInterfaceSolution& solution,
                                                    const HDARPart& part, JValue& placements,
                                                    JAllocator& alloc)
{
  std::vector<ZXLogicalZXIPInstance*> instances;
  model.getZXIPInstances(instances);
  for (const ZXLogicalZXIPInstance* instance : instances) {
    if (!prefix.empty() && instance->name.rfind(prefix, 0) != 0)
      continue;
    const std::string instanceName = relativeName(instance->name, prefix);
    for (const std::unique_ptr<ZXLogicalPort>& port : instance->getPorts()) {
      if (!port)
        continue;
      const std::vector<HDDMBel> bels =
          getConstraintsForLogicalInstance(port.get(), spec, solution);
      if (bels.empty())
        continue;
      JValue channels(rapidjson::kArrayType);
      for (const HDDMBel& bel : bels)
        channels.PushBack(QPEShimBelWriter::writeBel(part, bel, alloc), alloc);
      JValue placement(rapidjson::kObjectType);
      JValue logical = writeLogicalInstance_(instanceName, *port, alloc);
      Json::AddGenericValueProperty(placement, "LogicalInstance", logical, alloc);
      Json::AddGenericValueProperty(placement, "PhysicalInstance", channels, alloc);
      Json::AddBooleanProperty(placement, "IsSoft", false, alloc);
      placements.PushBack(placement, alloc);
    }
  }
}

JValue ZXCompilerSolutionWriterJSON::writeLogicalInstance_(const std::string& instanceName,
                                                           const ZXLogicalPort& port,
                                                           JAllocator& alloc)
{
  JValue logical(rapidjson::kObjectType);
  Json::AddStringProperty(logical, "InstanceName", instanceName, alloc);
  Json::AddStringProperty(logical, "PortName", port.name, alloc);
  return logical;
}

}  // namespace IPConfig::Frameworks
