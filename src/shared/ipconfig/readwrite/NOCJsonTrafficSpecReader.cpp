#include "NOCJsonTrafficSpecReader.h"

#include "HDGUIStatus.h"
#include "HIPLogicalObjectNameResolverInterfaceIdentity.h"
#include "HUTFile.h"
#include "JsonFileFrame.h"
#include "NOCJsonReadWriteUtils.h"
#include "TrafficSpec.h"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/predicate.hpp>
#include <boost/algorithm/string/split.hpp>

#include <cstdint>
#include <cstdlib>
#include <vector>

namespace NOC {

namespace {

using Json = HCRapidJsonReadWriteUtils;
using IPConfig::JsonFileFrame;
using HrdIPToolCntr::TrafficLInst;
using HrdIPToolCntr::TrafficPath;
using HrdIPToolCntr::TrafficSpec;
namespace Defs = DevHrdIP::Definitions;

// Calls `read` on each object of the array under `key`, if there is one.
template <typename Read>
void forEachObject(const JValue& object, const char* key, const Read& read)
{
  if (!object.IsObject())
    return;
  const auto found = object.FindMember(key);
  if (found == object.MemberEnd() || !found->value.IsArray())
    return;
  for (const JValue& element : found->value.GetArray())
    if (element.IsObject())
      read(element);
}

// The member's value when it is an object, else null.
const JValue* objectMember(const JValue& object, const char* key)
{
  if (!object.IsObject())
    return nullptr;
  const auto found = object.FindMember(key);
  return found != object.MemberEnd() && found->value.IsObject() ? &found->value : nullptr;
}

bool hasMember(const JValue& object, const char* key)
{
  return object.FindMember(key) != object.MemberEnd();
}

std::uint16_t low16(int value)
{
  return static_cast<std::uint16_t>(value);
}

// Addresses are numbers, or text in any base that strtoull takes.
unsigned long address(const JValue& object, const char* key)
{
  if (Json::IsStringProperty(object, key))
    return std::strtoull(Json::GetStringProperty(object, key).c_str(), nullptr, 0);
  return Json::GetULongProperty(object, key);
}

void readSysAddresses(const JValue& element, HrdIPToolCntr::TrafficAddressSpace& target)
{
  if (hasMember(element, "SysAddresses")) {
    forEachObject(element, "SysAddresses", [&](const JValue& entry) {
      target.addSysAddress({address(entry, "Base"), address(entry, "Size")});
    });
  } else if (hasMember(element, "SysAddress")) {
    target.addSysAddress(
        {Json::GetULongProperty(element, "SysAddress"),
         Json::GetULongProperty(element, "SysAddressSize")});
  }
}

void readRemap(const JValue& element, HrdIPToolCntr::TrafficAddressSpace& target)
{
  forEachObject(element, "Remap", [&](const JValue& entry) {
    target.addRemapAddrSpec(address(entry, "Logical"), address(entry, "Physical"),
                            address(entry, "Range"));
  });
}

template <typename Store>
void forEachStringMember(const JValue& object, const Store& store)
{
  for (const auto& member : object.GetObject())
    if (member.value.IsString())
      store(std::string(member.name.GetString(), member.name.GetStringLength()),
            std::string(member.value.GetString(), member.value.GetStringLength()));
}

// The name of the error slave is passed on as a property value; any other
// name must resolve to an instance of the design.
bool resolveNameUsingResolverInterface(const HIPLogicalObjectNameResolverInterface& resolver,
                                       const std::string& name, std::string& out)
{
  if (boost::algorithm::ends_with(name, TrafficSpec::getErrorSlaveName()) ||
      boost::algorithm::ends_with(name, TrafficSpec::getErrorSlaveName_hp())) {
    out = resolver.resolveLogicalInstancePropertyValue(name);
    return true;
  }
  out = resolver.resolveLogicalInstanceName(name);
  return !out.empty();
}

// "a b,c" gives {{a, b}, {c}}; a group keeps its place even when no name of
// it resolves. An empty text gives no group.
TrafficSpec::ExternalConns externalConns(const std::string& text,
                                         const HIPLogicalObjectNameResolverInterface& resolver)
{
  TrafficSpec::ExternalConns lists;
  if (text.empty())
    return lists;
  std::vector<std::string> groups;
  std::vector<std::string> names;
  boost::algorithm::split(groups, text, boost::algorithm::is_any_of(","));
  for (const std::string& group : groups) {
    std::vector<std::string>& list = lists.emplace_back();
    boost::algorithm::split(names, group, boost::algorithm::is_any_of(" "));
    for (const std::string& name : names) {
      if (name.empty())
        continue;
      std::string resolved = resolver.resolveLogicalInstancePropertyValue(name);
      if (!resolved.empty())
        list.push_back(std::move(resolved));
    }
  }
  return lists;
}

bool takesAxiDataWidth(Defs::COMP_TYPE type)
{
  return (type >= Defs::PL_NMU && type <= Defs::PL_NSU_2) || type == Defs::HBM_NMU;
}

bool isMemoryController(Defs::SLV_COMP_TYPE type)
{
  return (type >= Defs::SLV_DDRC && type <= Defs::SLV_DDR5X) || type == Defs::SLV_HBMMC;
}

}  // namespace

bool NOCJsonTrafficSpecReader::readFromJsonFile(const std::string& path,
                                                HIPLogicalObjectNameResolverInterface& resolver,
                                                HrdIPToolCntr::TrafficSpec& spec,
                                                HDGUIStatus& status)
{
  JsonFileFrame::readFile(path, isl::iostreams::xp_autodetect(),
                          [&](std::istream& in, const std::string&) {
                            readFromJsonFile(in, path, resolver, spec, status);
                          });
  return true;
}

bool NOCJsonTrafficSpecReader::readFromJsonFile(std::istream& in, const std::string& fileName,
                                                HIPLogicalObjectNameResolverInterface& resolver,
                                                HrdIPToolCntr::TrafficSpec& spec,
                                                HDGUIStatus& status)
{
  status.setStatusText("Reading Traffic File " + fileName);
  status.setBusy(true);
  status.setProgress(0.0);
  JDocument document;
  JsonFileFrame::parse(in, fileName, document);
  JsonFileFrame::validate(document, fileName, NOCJsonReadWriteUtils::getTrafficJsonSchemaFile(),
                          isl::iostreams::xp_autodetect());
  status.setProgress(20.0);
  Context context{fileName, resolver, spec, {}};
  forEachObject(document, "LogicalInstances",
                [&](const JValue& element) { readLogicalInstance_(element, context); });
  status.setProgress(40.0);
  forEachObject(document, "Paths", [&](const JValue& element) { readPath_(element, context); });
  readSystemProperties_(document, context);
  status.setProgress(100.0);
  return true;
}

bool NOCJsonTrafficSpecReader::readFromJsonFile(const std::string& path,
                                                HrdIPToolCntr::TrafficSpec& spec,
                                                HDGUIStatus& status)
{
  HIPLogicalObjectNameResolverInterfaceIdentity identity;
  return readFromJsonFile(path, identity, spec, status);
}

bool NOCJsonTrafficSpecReader::readFromJsonFile(std::istream& in, const std::string& fileName,
                                                HrdIPToolCntr::TrafficSpec& spec,
                                                HDGUIStatus& status)
{
  HIPLogicalObjectNameResolverInterfaceIdentity identity;
  return readFromJsonFile(in, fileName, identity, spec, status);
}

bool NOCJsonTrafficSpecReader::enableDefaultSlv(HrdIPToolCntr::TrafficSpec& spec)
{
  return spec.hasErrorSlave() || spec.addErrorSlaveAndRoutes();
}

void NOCJsonTrafficSpecReader::readLogicalInstance_(const JValue& element, Context& context)
{
  const std::string name = Json::GetStringProperty(element, "Name");
  const bool isMaster = Json::GetBooleanProperty(element, "IsMaster");
  const std::string compTypeText = Json::GetStringProperty(element, "CompType");
  const bool firewall = Json::GetBooleanProperty(element, "Firewall");
  const Defs::AxiProt protocol = Defs::toAxiProtEnum(Json::GetStringProperty(element, "Protocol"));
  const Defs::COMP_TYPE compType = Defs::toCompTypeEnum(compTypeText);
  if (compType == Defs::COMP_TYPE_UNKNOWN)
    Json::errorParsingJsonFile(context.fileName, "Unknown component type : " + compTypeText);
  const bool isVirtual = Json::GetBooleanProperty(element, "IsVirtual");
  const bool hasDestId = Json::IsIntegrProperty(element, "DestId");
  if (name.empty())
    Json::errorParsingJsonFile(context.fileName, "Empty logical instance name");
  const Defs::SLV_COMP_TYPE slaveType = Defs::toSlvCompTypeEnum(compTypeText);

  std::string resolvedName;
  if (isVirtual)
    resolvedName = context.resolver.resolveLogicalInstancePropertyValue(name);
  else
    resolveNameUsingResolverInterface(context.resolver, name, resolvedName);
  if (resolvedName.empty())
    Json::errorParsingJsonFile(
        context.fileName, "Could not find netlist instance for traffic spec instance: " + name);
  context.resolvedNames[name] = resolvedName;

  TrafficLInst& instance = *context.spec.addLogicalInstance(
      resolvedName, protocol, compType,
      externalConns(Json::GetStringProperty(element, "ExternalConn"), context.resolver));
  instance.firewall = firewall;
  instance.designName = Json::GetStringProperty(element, "DesignName");
  if (isMaster)
    readMasterProperties_(element, instance);
  else
    readSlaveProperties_(element, instance);

  if (const JValue* params = objectMember(element, "ConfigParams"))
    forEachStringMember(*params, [&](std::string key, std::string value) {
      instance.configParams[std::move(key)] = std::move(value);
    });
  if (const JValue* simMetaData = objectMember(element, "SimMetaData"))
    instance.ipName = Json::GetStringProperty(*simMetaData, "IPName");
  instance.useDestIdIdx = Json::GetBooleanProperty(element, "UseDestIdIdx");
  instance.setHasParityAddr(Json::GetBooleanProperty(element, "HasParityAddr"));
  instance.setHasParityData(Json::GetBooleanProperty(element, "HasParityData"));
  if (takesAxiDataWidth(compType))
    instance.setAxiWidth(Json::GetIntegrProperty(element, "AxiDataWidth"));
  if (isMemoryController(slaveType))
    readMemoryControllerProperties_(element, slaveType, context, instance);
  instance.isVirtual = isVirtual;
  instance.hasDestId = hasDestId;
  if (hasDestId)
    readDestId_(element, context, instance);
}

void NOCJsonTrafficSpecReader::readMasterProperties_(const JValue& element,
                                                     HrdIPToolCntr::TrafficLInst& instance)
{
  readRemap(element, instance);
  if (Json::IsStringProperty(element, "ReadTC"))
    instance.setReadTC(Defs::toTCEnum(Json::GetStringProperty(element, "ReadTC")));
  if (Json::IsStringProperty(element, "WriteTC"))
    instance.setWriteTC(Defs::toTCEnum(Json::GetStringProperty(element, "WriteTC")));
  instance.setNumReadOutstanding(low16(Json::GetIntegrProperty(element, "NumReadOutstanding")));
  instance.setNumWriteOutstanding(low16(Json::GetIntegrProperty(element, "NumWriteOutstanding")));
  // Written as doubles, read as integers: both sides stay as they are.
  instance.setReadRateLimiter(
      static_cast<float>(Json::GetIntegrProperty(element, "ReadRateLimiter")));
  instance.setWriteRateLimiter(
      static_cast<float>(Json::GetIntegrProperty(element, "WriteRateLimiter")));
}

void NOCJsonTrafficSpecReader::readSlaveProperties_(const JValue& element,
                                                    HrdIPToolCntr::TrafficLInst& instance)
{
  readSysAddresses(element, instance);
  const auto params = element.FindMember("MemoryParams");
  if (params == element.MemberEnd())
    return;
  const auto add = [&](const std::string& name, const std::string& value) {
    instance.addMemoryParam(name, value);
  };
  if (params->value.IsObject())
    forEachStringMember(params->value, add);
  else if (params->value.IsArray())
    for (const JValue& param : params->value.GetArray())
      add(Json::GetStringProperty(param, "Name"), Json::GetStringProperty(param, "Value"));
}

void NOCJsonTrafficSpecReader::readMemoryControllerProperties_(
    const JValue& element, DevHrdIP::Definitions::SLV_COMP_TYPE slaveType, Context& context,
    HrdIPToolCntr::TrafficLInst& instance)
{
  for (const std::string& text : Json::GetStringArrayProperty(element, "Ports")) {
    const Defs::PORT_TYPE port = Defs::toPtEnum(text);
    if (port == Defs::PORT_NONE)
      NOCJsonReadWriteUtils::issueInvalidPortForLogicalSlave(text, instance.name);
    else
      context.spec.addPortTypeForMC(&instance, port);
  }
  if (slaveType == Defs::SLV_HBMMC)
    return;
  instance.setDdrInterleaveSize(low16(Json::GetIntegrProperty(element, "InterleaveSize")));
  instance.setDdrInterleaveSel(low16(Json::GetIntegrProperty(element, "InterleaveSel")));
}

void NOCJsonTrafficSpecReader::readDestId_(const JValue& element, const Context& context,
                                           HrdIPToolCntr::TrafficLInst& instance)
{
  const std::uint16_t destId = low16(Json::GetIntegrProperty(element, "DestId"));
  if (destId >> 12 != 0)
    Json::errorParsingJsonFile(context.fileName, "DestId entry is expected to be a 12 bit maximum");
  instance.destId = destId;
}

void NOCJsonTrafficSpecReader::readPath_(const JValue& element, Context& context)
{
  const int phase = Json::GetIntegrProperty(element, "Phase");
  const std::string from = Json::GetStringProperty(element, "From");
  const auto resolvedFrom = context.resolvedNames.find(from);
  if (resolvedFrom == context.resolvedNames.end())
    Json::errorParsingJsonFile(context.fileName, "Path 'from' name is unknown: " + from);
  const std::string to = Json::GetStringProperty(element, "To");
  const auto resolvedTo = context.resolvedNames.find(to);
  if (resolvedTo == context.resolvedNames.end())
    Json::errorParsingJsonFile(context.fileName, "Path 'to' name is unknown: " + to);

  TrafficLInst* master = context.spec.getLogicalMaster(resolvedFrom->second);
  TrafficLInst* slave = context.spec.getLogicalSlave(resolvedTo->second);
  if (!master || !slave)
    return;
  TrafficPath& path = *context.spec.addPath(master, slave);
  path.phase = phase;
  if (Json::IsStringProperty(element, "ReadTC"))
    master->setReadTC(Defs::toTCEnum(Json::GetStringProperty(element, "ReadTC")));
  if (Json::IsStringProperty(element, "WriteTC"))
    master->setWriteTC(Defs::toTCEnum(Json::GetStringProperty(element, "WriteTC")));
  if (Json::IsStringProperty(element, "WriteOrder"))
    path.setWoc(Defs::toWriteOrderEnum(Json::GetStringProperty(element, "WriteOrder")));
  const std::string portText = Json::GetStringProperty(element, "Port");
  const Defs::PORT_TYPE port = Defs::toPtEnum(portText);
  if (port == Defs::PORT_NONE)
    NOCJsonReadWriteUtils::issueInvalidPortType(portText);
  else
    path.setSlavePort(port);
  readPerformance_(element, path);
  path.exclusiveGroup = Json::GetStringProperty(element, "ExclusiveGroup");
  path.separateRoutingGroup = Json::GetStringProperty(element, "SeparateRoutingGroup");
  readDestIdIndex_(element, path);
  path.initialBoot = Json::GetBooleanProperty(element, "InitialBoot");
  forEachObject(element, "DestIdIdx", [&](const JValue& range) {
    path.addDestIdIdx({static_cast<unsigned char>(Json::GetIntegrProperty(range, "start_idx")),
                       static_cast<unsigned char>(Json::GetIntegrProperty(range, "end_idx"))});
  });
  path.highPriorityRouting = Json::GetBooleanProperty(element, "HighPriorityRouting");
  readPhaseGroups_(element, path);
  readSysAddresses(element, path);
  readRemap(element, path);
}

void NOCJsonTrafficSpecReader::readPerformance_(const JValue& element,
                                                HrdIPToolCntr::TrafficPath& path)
{
  const auto figure = [&](const char* key) {
    return static_cast<std::uint32_t>(Json::GetULongProperty(element, key));
  };
  const auto burst = [&](const char* key) {
    return static_cast<unsigned short>(Json::GetULongProperty(element, key));
  };
  path.setWritePerfSpec({Defs::BE, figure("WriteBW"), figure("WriteLatency")});
  // A stream has no read traffic.
  const bool stream = Json::GetStringProperty(element, "CommType") == "STRM";
  if (!stream)
    path.setReadPerfSpec({Defs::BE, figure("ReadBW"), figure("ReadLatency")});
  if (!stream && hasMember(element, "ReadAvgBurst"))
    path.setReadAvgBurst(burst("ReadAvgBurst"));
  if (hasMember(element, "WriteAvgBurst"))
    path.setWriteAvgBurst(burst("WriteAvgBurst"));
}

void NOCJsonTrafficSpecReader::readDestIdIndex_(const JValue& element,
                                                HrdIPToolCntr::TrafficPath& path)
{
  path.hasDestIdIndex = Json::IsIntegrProperty(element, "DestIdIndex");
  if (!path.hasDestIdIndex)
    return;
  const std::uint16_t index = low16(Json::GetIntegrProperty(element, "DestIdIndex"));
  if (index > 7) {
    std::string schemaName;
    HUTFile(NOCJsonReadWriteUtils::getTrafficJsonSchemaFile()).getCanonicalName(schemaName);
    Json::errorParsingSchemaFile(schemaName, "DestIdIndex field is out of expected range: [0,7]");
  }
  path.destIdIndex = index;
}

void NOCJsonTrafficSpecReader::readPhaseGroups_(const JValue& element,
                                                HrdIPToolCntr::TrafficPath& path)
{
  // A phase has no latency of its own: it takes the path's from the file,
  // which holds for a stream too although its read side is not set.
  const auto latency = [&](const char* key) {
    return static_cast<std::uint32_t>(Json::GetULongProperty(element, key));
  };
  const std::uint32_t readLatency = latency("ReadLatency");
  const std::uint32_t writeLatency = latency("WriteLatency");
  forEachObject(element, "PhaseGroups", [&](const JValue& group) {
    const std::string groupName = Json::GetStringProperty(group, "Name");
    forEachObject(group, "Phases", [&](const JValue& phase) {
      const std::string phaseName = Json::GetStringProperty(phase, "Name");
      const auto figure = [&](const char* key) {
        return static_cast<std::uint32_t>(Json::GetULongProperty(phase, key));
      };
      path.setReadPerfSpec(groupName, phaseName, {Defs::BE, figure("ReadBW"), readLatency});
      path.setWritePerfSpec(groupName, phaseName, {Defs::BE, figure("WriteBW"), writeLatency});
      path.setReadAvgBurst(static_cast<unsigned short>(figure("ReadAvgBurst")), phaseName);
      path.setWriteAvgBurst(static_cast<unsigned short>(figure("WriteAvgBurst")), phaseName);
    });
  });
}

void NOCJsonTrafficSpecReader::readSystemProperties_(const JValue& root, Context& context)
{
  const JValue* properties = objectMember(root, "SystemProperties");
  if (!properties)
    return;
  if (Json::IsIntegrProperty(*properties, "Frequency"))
    context.spec.setFrequency(Json::GetIntegrProperty(*properties, "Frequency"), true);
  readDfxPaths_(*properties, context);
  if (Json::IsBooleanProperty(*properties, "SECURE_SLR_PMC_TRAFFIC"))
    context.spec.setSecureMode(Json::GetBooleanProperty(*properties, "SECURE_SLR_PMC_TRAFFIC"));
  context.spec.deviceName = Json::GetStringProperty(*properties, "DeviceName");
}

void NOCJsonTrafficSpecReader::readDfxPaths_(const JValue& properties, Context& context)
{
  for (std::string text : Json::GetStringArrayProperty(properties, "DfxPaths")) {
    text.erase(text.find_last_not_of('/') + 1);
    std::string resolved;
    if (resolveNameUsingResolverInterface(context.resolver, text, resolved)) {
      // The resolved name up to the end of the first occurrence of the text.
      const std::size_t at = resolved.find(text);
      if (at != std::string::npos)
        resolved.erase(at + text.size());
      context.spec.addDfxPath(resolved + "/");
    } else {
      context.spec.addDfxPath(text + "/");
    }
  }
}

}  // namespace NOC
