#include "NOCJsonTrafficSpecWriter.h"

#include "AllTrafficSpecFilterObj.h"
#include "HIPLogicalObjectNameResolverInterfaceIdentity.h"
#include "HPAParamMgr.h"
#include "JsonFileFrame.h"
#include "NOCJsonHexAddresses.h"
#include "NOCJsonLogicalInstancesWriter.h"
#include "NOCJsonReadWriteUtils.h"
#include "NOCJsonScopedNames.h"
#include "TrafficSpec.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

namespace NOC {

namespace {

using Json = HCRapidJsonReadWriteUtils;
using Utils = NOCJsonReadWriteUtils;
using HrdIPToolCntr::TrafficLInst;
using HrdIPToolCntr::TrafficPath;
using HrdIPToolCntr::TrafficSpec;
using IPConfig::JsonFileFrame;
namespace Defs = DevHrdIP::Definitions;

// The number of a port text "PORT<digits>", else 0: "PORT2" is 2 and
// "PORTERR" is 0. Digits that an int cannot hold throw std::out_of_range.
int portNumber(const std::string& text)
{
  static const std::string prefix = "PORT";
  const bool numbered =
      text.size() > prefix.size() && text.compare(0, prefix.size(), prefix) == 0 &&
      std::all_of(text.begin() + prefix.size(), text.end(),
                  [](unsigned char c) { return std::isdigit(c) != 0; });
  return numbered ? std::stoi(text.substr(prefix.size())) : 0;
}

// Protocol 1 names the directions that carry traffic; the write-only test
// comes first, so a path with no figures at all is read-only.
const char* commType(const TrafficPath& path)
{
  if (path.master->protocol != Defs::AXI_MM)
    return "STRM";
  const TrafficPath::PerfSpec& read = path.getReadPerfSpec();
  const TrafficPath::PerfSpec& write = path.getWritePerfSpec();
  if (write.bandwidth == 0 && write.latency == 0)
    return "MM_ReadOnly";
  if (read.bandwidth == 0 && read.latency == 0)
    return "MM_WriteOnly";
  return "MM_ReadWrite";
}

}  // namespace

bool NOCJsonTrafficSpecWriter::writeToJsonFile(std::ostream& out, const TrafficSpec& spec,
                                               const Filter& filter,
                                               HIPLogicalObjectNameResolverInterface& resolver,
                                               HDGUIStatus&)
{
  std::vector<const TrafficLInst*> instances;
  spec.getAllLogicalInstance(instances);
  if (instances.empty() && spec.getUserSetFrequency() == 0 && !spec.hasDfxPaths())
    return false;
  JDocument document(rapidjson::kObjectType);
  JAllocator& alloc = document.GetAllocator();
  writeSystemProperties_(spec, resolver, document, alloc);
  NOCJsonLogicalInstancesWriter::addLogicalInstances(instances, filter, resolver, document, alloc);
  writePaths_(spec, filter, resolver, document, alloc);
  return JsonFileFrame::writeValidated(document, out,
                                       Utils::getTrafficJsonSchemaFile(),
                                       "NoC Traffic Spec");
}

bool NOCJsonTrafficSpecWriter::writeToJsonFile(std::ostream& out, const TrafficSpec& spec,
                                               HDGUIStatus& status)
{
  HIPLogicalObjectNameResolverInterfaceIdentity identity;
  return writeToJsonFile(out, spec, AllTrafficSpecFilterObj(), identity, status);
}

bool NOCJsonTrafficSpecWriter::writeToJsonFile(const std::string& path, const TrafficSpec& spec,
                                               HDGUIStatus& status)
{
  return JsonFileFrame::writeFile(
      path, JsonFileFrame::OpenCheck::refuseUnopened,
      [&](std::ostream& out) { return writeToJsonFile(out, spec, status); });
}

std::string NOCJsonTrafficSpecWriter::getScopedName(HIPLogicalObjectNameResolverInterface& resolver,
                                                    const TrafficLInst* instance, int port)
{
  // A resolver may note the name as it scopes it, so the call stays though
  // its result is not needed here.
  resolver.resolveLogicalInstanceScopedName(instance->name);
  if (resolver.isPropertyValueWithinScope(instance->name))
    return resolver.resolveLogicalInstancePropertyValuedScoped(instance->name);
  const std::vector<std::vector<std::string>>& lists = instance->externalConns;
  const auto firstInScope = [&](const std::vector<std::string>& list, std::string& found) {
    for (const std::string& name : list)
      if (resolver.isPropertyValueWithinScope(name)) {
        found = resolver.resolveLogicalInstancePropertyValuedScoped(name);
        return true;
      }
    return false;
  };
  std::string found;
  // In a block model the position of a memory controller's list is its port.
  if (HPAParamMgr::getParamMgr().getValueAsBool("project.enableBlockModel") && port >= 0 &&
      static_cast<std::size_t>(port) < lists.size() && instance->compType == Defs::DDRC) {
    firstInScope(lists[port], found);
    return found;
  }
  for (const std::vector<std::string>& list : lists)
    if (firstInScope(list, found))
      return found;
  return resolver.resolveLogicalInstancePropertyValuedScoped(instance->name);
}

void NOCJsonTrafficSpecWriter::writeSystemProperties_(
    const TrafficSpec& spec, const HIPLogicalObjectNameResolverInterface& resolver, JValue& root,
    JAllocator& alloc)
{
  JValue properties(rapidjson::kObjectType);
  if (spec.frequencyUserSet)
    Json::AddIntegrProperty(properties, "Frequency", spec.frequency, alloc);
  // A block written on its own leaves the partitions to the whole design.
  std::string scopeName;
  if (!spec.getDfxPaths().empty() && !resolver.getScopeName(scopeName))
    Json::AddStringArrayProperty(properties, "DfxPaths", spec.getDfxPaths(), alloc);
  Utils::addIfSet(properties, "SECURE_SLR_PMC_TRAFFIC", spec.secureMode, alloc);
  Utils::addIfNotEmpty(properties, "DeviceName", spec.deviceName, alloc);
  if (properties.MemberCount() != 0)
    Json::AddGenericValueProperty(root, "SystemProperties", properties, alloc);
}

void NOCJsonTrafficSpecWriter::writePaths_(const TrafficSpec& spec, const Filter& filter,
                                           HIPLogicalObjectNameResolverInterface& resolver,
                                           JValue& root, JAllocator& alloc)
{
  JValue paths(rapidjson::kArrayType);
  paths.Reserve(static_cast<rapidjson::SizeType>(spec.getNumPaths()), alloc);
  for (int index = 0; index < spec.getNumPaths(); ++index) {
    const TrafficPath& path = *spec.getPath(index);
    if (!filter(path.master) || !filter(path.slave))
      continue;
    JValue object(rapidjson::kObjectType);
    if (writePath_(path, resolver, object, alloc))
      paths.PushBack(object, alloc);
  }
  Json::AddGenericValueProperty(root, "Paths", paths, alloc);
}

bool NOCJsonTrafficSpecWriter::writePath_(const TrafficPath& path,
                                          HIPLogicalObjectNameResolverInterface& resolver,
                                          JValue& object, JAllocator& alloc)
{
  const std::string& portText = Defs::toStr(path.slavePort);
  const int port = portNumber(portText);
  const std::string from = getScopedName(resolver, path.master, port);
  const std::string to =
      path.slave->isErrorSlave()
          ? resolver.resolveLogicalInstancePropertyValuedScoped(path.slave->name)
          : getScopedName(resolver, path.slave, port);
  if (from.empty() || to.empty())
    return false;
  Json::AddIntegrProperty(object, "Phase", path.phase, alloc);
  Json::AddStringProperty(object, "From", from, alloc);
  Json::AddStringProperty(object, "To", to, alloc);
  Json::AddStringProperty(object, "Port", portText, alloc);
  Json::AddStringProperty(object, "CommType", commType(path), alloc);
  writePerformance_(path, object, alloc);
  writeRouting_(path, object, alloc);
  writePhaseGroups_(path, object, alloc);
  if (path.hasValidSysAddress(0))
    NOCJsonHexAddresses::addSysAddresses(path, object, alloc);
  NOCJsonHexAddresses::addRemap(path, object, alloc);
  return true;
}

void NOCJsonTrafficSpecWriter::writePerformance_(const TrafficPath& path, JValue& object,
                                                 JAllocator& alloc)
{
  // The traffic class of a figure is not written: it belongs to the master.
  const TrafficPath::PerfSpec& read = path.getReadPerfSpec();
  const TrafficPath::PerfSpec& write = path.getWritePerfSpec();
  Json::AddULongProperty(object, "ReadBW", read.bandwidth, alloc);
  Json::AddULongProperty(object, "ReadLatency", read.latency, alloc);
  Json::AddULongProperty(object, "ReadAvgBurst", path.getReadAvgBurst(), alloc);
  Json::AddULongProperty(object, "WriteBW", write.bandwidth, alloc);
  Json::AddULongProperty(object, "WriteLatency", write.latency, alloc);
  Json::AddULongProperty(object, "WriteAvgBurst", path.getWriteAvgBurst(), alloc);
}

void NOCJsonTrafficSpecWriter::writeRouting_(const TrafficPath& path, JValue& object,
                                             JAllocator& alloc)
{
  if (path.writeOrder != Defs::WO_INVALID)
    Json::AddStringProperty(object, "WriteOrder", Defs::toStr(path.writeOrder), alloc);
  Utils::addIfNotEmpty(object, "ExclusiveGroup", path.exclusiveGroup, alloc);
  Utils::addIfNotEmpty(object, "SeparateRoutingGroup", path.separateRoutingGroup, alloc);
  if (path.hasDestIdIndex)
    Json::AddIntegrProperty(object, "DestIdIndex", path.destIdIndex, alloc);
  Utils::addIfSet(object, "InitialBoot", path.initialBoot, alloc);
  if (path.hasValidDestIdIdx(0)) {
    JValue ranges(rapidjson::kArrayType);
    for (int i = 0; path.hasValidDestIdIdx(i); ++i) {
      JValue range(rapidjson::kObjectType);
      Json::AddIntegrProperty(range, "start_idx", path.getDestIdIdxStart(i), alloc);
      Json::AddIntegrProperty(range, "end_idx", path.getDestIdIdxEnd(i), alloc);
      ranges.PushBack(range, alloc);
    }
    Json::AddGenericValueProperty(object, "DestIdIdx", ranges, alloc);
  }
  Utils::addIfSet(object, "HighPriorityRouting", path.highPriorityRouting, alloc);
}

void NOCJsonTrafficSpecWriter::writePhaseGroups_(const TrafficPath& path, JValue& object,
                                                 JAllocator& alloc)
{
  // The path's own figures stand for the default phase.
  if (!path.hasMultipleReadPhases() && !path.hasMultipleWritePhases())
    return;
  const TrafficSpec& spec = path.getSpec();
  JValue groups(rapidjson::kArrayType);
  for (const std::string& groupName : spec.phaseGroupNames) {
    JValue phases(rapidjson::kArrayType);
    for (const std::string& phaseName : *spec.getAllPhasesForPhaseGroup(groupName)) {
      if (phaseName == HrdIPToolCntr::DEFAULT_PHASE)
        continue;
      JValue phase(rapidjson::kObjectType);
      Json::AddStringProperty(phase, "Name", phaseName, alloc);
      Json::AddULongProperty(phase, "ReadBW", path.getReadPerfSpec(phaseName).bandwidth, alloc);
      Json::AddULongProperty(phase, "WriteBW", path.getWritePerfSpec(phaseName).bandwidth, alloc);
      Json::AddULongProperty(phase, "ReadAvgBurst", path.getReadAvgBurst(phaseName), alloc);
      Json::AddULongProperty(phase, "WriteAvgBurst", path.getWriteAvgBurst(phaseName), alloc);
      phases.PushBack(phase, alloc);
    }
    JValue group(rapidjson::kObjectType);
    Json::AddStringProperty(group, "Name", groupName, alloc);
    Json::AddGenericValueProperty(group, "Phases", phases, alloc);
    groups.PushBack(group, alloc);
  }
  Json::AddGenericValueProperty(object, "PhaseGroups", groups, alloc);
}

}  // namespace NOC
