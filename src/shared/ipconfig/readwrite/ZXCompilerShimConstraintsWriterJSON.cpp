#include "ZXCompilerShimConstraintsWriterJSON.h"

#include "JsonFileFrame.h"
#include "NOCFindLogicalInstance.h"
#include "NOCJsonReadWriteUtils.h"
#include "QPEHDDMDeviceUtils.h"
#include "QPEPrjStrEncoder.h"
#include "QPEShimInterfaceSolution.h"
#include "QPEShimPortBels.h"
#include "ZXLogicalArchModel.h"

#include <boost/format.hpp>

#include <algorithm>
#include <ostream>

namespace IPConfig::Frameworks {

namespace {

using Json = HCRapidJsonReadWriteUtils;

// Calls `visit` with each port of the compute-array instances named `instName`.
template <typename Visit>
void forEachPortOf(const std::vector<ZXLogicalZXIPInstance*>& instances,
                   const std::string& instName, const Visit& visit)
{
  for (const ZXLogicalZXIPInstance* instance : instances) {
    if (instance->name != instName)
      continue;
    for (const std::unique_ptr<ZXLogicalPort>& port : instance->getPorts())
      if (port)
        visit(*port);
  }
}

// Whether the bel's element id lies in the range; a negative start takes all.
bool inRange(const HDDMBel& bel, int rangeStart, int rangeSize)
{
  if (rangeStart < 0)
    return true;
  const int position = bel.getElementId() & 0xFFFF;
  return position >= rangeStart && position < rangeStart + rangeSize;
}

// The one logical instance name this file places a port by: the only one,
// or else the first of the even channel; empty if there is none.
std::string constrainedInstanceName(const std::vector<std::string>& names)
{
  if (names.size() == 1)
    return names.front();
  const auto even = std::find_if(names.begin(), names.end(), [](const std::string& name) {
    return name.find("<0>_INST") != std::string::npos;
  });
  return even == names.end() ? std::string() : *even;
}

// The names under which the compiler knows a port: its annotations, else its
// hardware annotation, else its own name.
std::vector<std::string> constrainedPortNames(const ZXLogicalPort& port)
{
  if (!port.annotation.empty())
    return port.annotation;
  return {port.hw_annotation.empty() ? port.name : port.hw_annotation};
}

}  // namespace

bool ZXCompilerShimConstraintsWriterJSON::writeToJsonFile(
    std::ostream& out, const ZXLogicalArchModel& model, const HrdIPToolCntr::TrafficSpec& spec,
    const QPEShimInterfaceSolution& solution, const HDARPart& part, const std::string& instName,
    HDGUIStatus&)
{
  JDocument document(rapidjson::kObjectType);
  JValue placements(rapidjson::kArrayType);
  writePlacements_(model, spec, solution, part, instName, placements, document.GetAllocator());
  if (placements.Empty())
    return true;
  Json::AddGenericValueProperty(document, "Placement", placements, document.GetAllocator());
  return JsonFileFrame::writeValidatedWithPointers(
      document, out, NOC::NOCJsonReadWriteUtils::getQPEShimConstraintsJsonSchemaFile());
}

bool ZXCompilerShimConstraintsWriterJSON::writeToJsonFile(
    const std::string& fileName, const ZXLogicalArchModel& model,
    const HrdIPToolCntr::TrafficSpec& spec, const QPEShimInterfaceSolution& solution,
    const HDARPart& part, const std::string& instName, HDGUIStatus& status)
{
  return JsonFileFrame::writeFile(
      fileName, JsonFileFrame::OpenCheck::refuseUnopened, [&](std::ostream& out) {
        return writeToJsonFile(out, model, spec, solution, part, instName, status);
      });
}

const HrdIPToolCntr::TrafficLInst* ZXCompilerShimConstraintsWriterJSON::findLogicalInstance(
    const HrdIPToolCntr::TrafficSpec& spec, const std::string& name)
{
  return NOC::findLogicalInstance(spec, name);
}

bool ZXCompilerShimConstraintsWriterJSON::getQPEPLIntefacePortData(
    const ZXLogicalArchModel& model, const HrdIPToolCntr::TrafficSpec& spec,
    const QPEShimInterfaceSolution& solution, const HDARPart& part, const std::string& instName,
    int rangeStart, int rangeSize, HDGUIStatus&, PortData& out)
{
  std::vector<ZXLogicalZXIPInstance*> instances;
  if (model.getZXIPInstances(instances) == 0)
    return false;
  out.clear();
  forEachPortOf(instances, instName, [&](const ZXLogicalPort& port) {
    std::vector<std::string> belNames;
    for (const HDDMBel& bel : getConstraintsForLogicalInstance(&port, spec, solution))
      if (inRange(bel, rangeStart, rangeSize))
        belNames.push_back(QPEHDDMDeviceUtils::getHierName(part, bel));
    if (!belNames.empty())
      out[port.getHWAnnotationORAnnotationFirst()] = getPortData_(port, belNames);
  });
  return true;
}

bool ZXCompilerShimConstraintsWriterJSON::computeQPEPLIntefaceID(
    const ZXLogicalArchModel& model, const HrdIPToolCntr::TrafficSpec& spec,
    const QPEShimInterfaceSolution& solution, const HDARPart& part, const std::string& instName,
    std::string& out, HDGUIStatus& status)
{
  PortData ports;
  getQPEPLIntefacePortData(model, spec, solution, part, instName, -1, -1, status, ports);
  out = QPEPrjStrEncoder::encodeAsString(ports);
  return true;
}

bool ZXCompilerShimConstraintsWriterJSON::computeQPEPLIntefaceIDs(
    const ZXLogicalArchModel& model, const HrdIPToolCntr::TrafficSpec& spec,
    const QPEShimInterfaceSolution& solution, const HDARPart& part, const std::string& instName,
    int rangeStart, int rangeSize, bool omitPortKey, HDGUIStatus& status,
    std::vector<std::string>& out)
{
  PortData ports;
  getQPEPLIntefacePortData(model, spec, solution, part, instName, rangeStart, rangeSize, status,
                           ports);
  // The map holds its keys in ascending order already.
  for (const auto& [key, data] : ports)
    out.push_back((omitPortKey ? std::string() : key) + QPEPrjStrEncoder::encodeAsString(data));
  return true;
}

void ZXCompilerShimConstraintsWriterJSON::writePlacements_(
    const ZXLogicalArchModel& model, const HrdIPToolCntr::TrafficSpec& spec,
    const QPEShimInterfaceSolution& solution, const HDARPart& part, const std::string& instName,
    JValue& placements, JAllocator& alloc)
{
  std::vector<ZXLogicalZXIPInstance*> instances;
  model.getZXIPInstances(instances);
  forEachPortOf(instances, instName, [&](const ZXLogicalPort& port) {
    if (port.logicalInstNames.empty())
      return;
    const HrdIPToolCntr::TrafficLInst* instance =
        findLogicalInstance(spec, constrainedInstanceName(port.logicalInstNames));
    const auto placement = instance ? solution.placed.find(instance) : solution.placed.end();
    if (placement == solution.placed.end() || !placement->second.first.isValid())
      return;
    const std::string belName = QPEHDDMDeviceUtils::getHierName(part, placement->second.first);
    for (const std::string& name : constrainedPortNames(port)) {
      JValue element(rapidjson::kObjectType);
      Json::AddStringProperty(element, "LogicalInstance", name, alloc);
      Json::AddStringArrayProperty(element, "PhysicalInstance", {belName}, alloc);
      Json::AddBooleanProperty(element, "IsSoft", false, alloc);
      placements.PushBack(element, alloc);
    }
  });
}

std::vector<std::string> ZXCompilerShimConstraintsWriterJSON::getPortData_(
    const ZXLogicalPort& port, const std::vector<std::string>& belNames)
{
  std::vector<std::string> data;
  if (port.portType != ZXLogicalPort::MEM) {
    data.push_back((boost::format("dw%02d") % port.busWidth).str());
    data.push_back((boost::format("cf%6.3f") % port.clkFreq).str());
  }
  data.push_back((boost::format("reg%0d") % (port.registeredInterface ? 1 : 0)).str());
  data.insert(data.end(), belNames.begin(), belNames.end());
  return data;
}

}  // namespace IPConfig::Frameworks
