#include "NOCJsonTrafficSpecReader.h"

#include "HDGUIStatus.h"
#include "HIPLogicalObjectNameResolverInterfaceIdentity.h"
#include "HUTFile.h"
#include "JsonFileFrame.h"
#include "NOCJsonLogicalInstanceReader.h"
#include "NOCJsonObjectWalk.h"
#include "NOCJsonReadWriteUtils.h"
#include "TrafficSpec.h"

#include <boost/algorithm/string/predicate.hpp>

#include <cstdint>

namespace NOC {

namespace {

using Json = HCRapidJsonReadWriteUtils;
using Walk = NOCJsonObjectWalk;
using IPConfig::JsonFileFrame;
using HrdIPToolCntr::TrafficLInst;
using HrdIPToolCntr::TrafficPath;
using HrdIPToolCntr::TrafficSpec;
namespace Defs = DevHrdIP::Definitions;

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
  readLogicalInstances_(document, context);
  status.setProgress(40.0);
  Walk::forEachObject(document, "Paths", [&](const JValue& element) { readPath_(element, context); });
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

void NOCJsonTrafficSpecReader::readLogicalInstances_(const JValue& root, Context& context)
{
  const NOCJsonLogicalInstanceReader instanceReader(
      context.fileName, context.resolver,
      [&](const std::string& name, std::string& out) {
        return resolveNameUsingResolverInterface(context.resolver, name, out);
      },
      [&](const std::string& resolvedName, Defs::AxiProt protocol, Defs::COMP_TYPE type,
          const TrafficSpec::ExternalConns& externalConns) -> TrafficLInst& {
        return *context.spec.addLogicalInstance(resolvedName, protocol, type, externalConns);
      },
      [&](TrafficLInst& instance, Defs::PORT_TYPE port) {
        context.spec.addPortTypeForMC(&instance, port);
      });
  Walk::forEachObject(root, "LogicalInstances", [&](const JValue& element) {
    const std::string name = Json::GetStringProperty(element, "Name");
    context.resolvedNames[name] = instanceReader.read(element);
  });
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
  Walk::forEachObject(element, "DestIdIdx", [&](const JValue& range) {
    path.addDestIdIdx({static_cast<unsigned char>(Json::GetIntegrProperty(range, "start_idx")),
                       static_cast<unsigned char>(Json::GetIntegrProperty(range, "end_idx"))});
  });
  path.highPriorityRouting = Json::GetBooleanProperty(element, "HighPriorityRouting");
  readPhaseGroups_(element, path);
  Walk::readSysAddresses(element, path);
  Walk::readRemap(element, path);
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
  if (!stream && Walk::hasMember(element, "ReadAvgBurst"))
    path.setReadAvgBurst(burst("ReadAvgBurst"));
  if (Walk::hasMember(element, "WriteAvgBurst"))
    path.setWriteAvgBurst(burst("WriteAvgBurst"));
}

void NOCJsonTrafficSpecReader::readDestIdIndex_(const JValue& element,
                                                HrdIPToolCntr::TrafficPath& path)
{
  path.hasDestIdIndex = Json::IsIntegrProperty(element, "DestIdIndex");
  if (!path.hasDestIdIndex)
    return;
  const std::uint16_t index = Walk::low16(Json::GetIntegrProperty(element, "DestIdIndex"));
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
  Walk::forEachObject(element, "PhaseGroups", [&](const JValue& group) {
    const std::string groupName = Json::GetStringProperty(group, "Name");
    Walk::forEachObject(group, "Phases", [&](const JValue& phase) {
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
  const JValue* properties = Walk::objectMember(root, "SystemProperties");
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
