#include "NOCJsonLogicalInstanceReader.h"

#include "HIPLogicalObjectNameResolverInterface.h"
#include "NOCJsonObjectWalk.h"
#include "NOCJsonReadWriteUtils.h"
#include "TrafficLInst.h"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/split.hpp>

#include <cstdint>
#include <utility>

namespace NOC {

namespace {

using Json = HCRapidJsonReadWriteUtils;
using Walk = NOCJsonObjectWalk;
using HrdIPToolCntr::TrafficLInst;
namespace Defs = DevHrdIP::Definitions;

bool takesAxiDataWidth(Defs::COMP_TYPE type)
{
  return (type >= Defs::PL_NMU && type <= Defs::PL_NSU_2) || type == Defs::HBM_NMU;
}

bool isMemoryController(Defs::SLV_COMP_TYPE type)
{
  return (type >= Defs::SLV_DDRC && type <= Defs::SLV_DDR5X) || type == Defs::SLV_HBMMC;
}

}  // namespace

NOCJsonLogicalInstanceReader::NOCJsonLogicalInstanceReader(
    const std::string& fileName, const HIPLogicalObjectNameResolverInterface& resolver,
    ResolveName resolveName, CreateInstance createInstance, AddPort addPort)
  : fileName(fileName),
    resolver(resolver),
    resolveName(std::move(resolveName)),
    createInstance(std::move(createInstance)),
    addPort(std::move(addPort))
{
}

std::string NOCJsonLogicalInstanceReader::read(const JValue& element) const
{
  const std::string name = Json::GetStringProperty(element, "Name");
  const bool isMaster = Json::GetBooleanProperty(element, "IsMaster");
  const std::string compTypeText = Json::GetStringProperty(element, "CompType");
  const bool firewall = Json::GetBooleanProperty(element, "Firewall");
  const Defs::AxiProt protocol = Defs::toAxiProtEnum(Json::GetStringProperty(element, "Protocol"));
  const Defs::COMP_TYPE compType = Defs::toCompTypeEnum(compTypeText);
  if (compType == Defs::COMP_TYPE_UNKNOWN)
    Json::errorParsingJsonFile(fileName, "Unknown component type : " + compTypeText);
  const bool isVirtual = Json::GetBooleanProperty(element, "IsVirtual");
  const bool hasDestId = Json::IsIntegrProperty(element, "DestId");
  if (name.empty())
    Json::errorParsingJsonFile(fileName, "Empty logical instance name");
  const Defs::SLV_COMP_TYPE slaveType = Defs::toSlvCompTypeEnum(compTypeText);

  std::string resolvedName;
  if (isVirtual)
    resolvedName = resolver.resolveLogicalInstancePropertyValue(name);
  else
    resolveName(name, resolvedName);
  if (resolvedName.empty())
    Json::errorParsingJsonFile(
        fileName, "Could not find netlist instance for traffic spec instance: " + name);

  TrafficLInst& instance = createInstance(
      resolvedName, protocol, compType,
      externalConns_(Json::GetStringProperty(element, "ExternalConn")));
  instance.firewall = firewall;
  instance.designName = Json::GetStringProperty(element, "DesignName");
  if (isMaster)
    readMasterProperties_(element, instance);
  else
    readSlaveProperties_(element, instance);

  if (const JValue* params = Walk::objectMember(element, "ConfigParams"))
    Walk::forEachStringMember(*params, [&](std::string key, std::string value) {
      instance.configParams[std::move(key)] = std::move(value);
    });
  if (const JValue* simMetaData = Walk::objectMember(element, "SimMetaData"))
    instance.ipName = Json::GetStringProperty(*simMetaData, "IPName");
  instance.useDestIdIdx = Json::GetBooleanProperty(element, "UseDestIdIdx");
  instance.setHasParityAddr(Json::GetBooleanProperty(element, "HasParityAddr"));
  instance.setHasParityData(Json::GetBooleanProperty(element, "HasParityData"));
  if (takesAxiDataWidth(compType))
    instance.setAxiWidth(Json::GetIntegrProperty(element, "AxiDataWidth"));
  if (isMemoryController(slaveType))
    readMemoryControllerProperties_(element, slaveType, instance);
  instance.isVirtual = isVirtual;
  instance.hasDestId = hasDestId;
  if (hasDestId)
    readDestId_(element, instance);
  return resolvedName;
}

void NOCJsonLogicalInstanceReader::readMasterProperties_(const JValue& element,
                                                         TrafficLInst& instance) const
{
  Walk::readRemap(element, instance);
  if (Json::IsStringProperty(element, "ReadTC"))
    instance.setReadTC(Defs::toTCEnum(Json::GetStringProperty(element, "ReadTC")));
  if (Json::IsStringProperty(element, "WriteTC"))
    instance.setWriteTC(Defs::toTCEnum(Json::GetStringProperty(element, "WriteTC")));
  instance.setNumReadOutstanding(
      Walk::low16(Json::GetIntegrProperty(element, "NumReadOutstanding")));
  instance.setNumWriteOutstanding(
      Walk::low16(Json::GetIntegrProperty(element, "NumWriteOutstanding")));
  // Written as doubles, read as integers: both sides stay as they are.
  instance.setReadRateLimiter(
      static_cast<float>(Json::GetIntegrProperty(element, "ReadRateLimiter")));
  instance.setWriteRateLimiter(
      static_cast<float>(Json::GetIntegrProperty(element, "WriteRateLimiter")));
}

void NOCJsonLogicalInstanceReader::readSlaveProperties_(const JValue& element,
                                                        TrafficLInst& instance) const
{
  Walk::readSysAddresses(element, instance);
  const auto params = element.FindMember("MemoryParams");
  if (params == element.MemberEnd())
    return;
  const auto add = [&](const std::string& name, const std::string& value) {
    instance.addMemoryParam(name, value);
  };
  if (params->value.IsObject())
    Walk::forEachStringMember(params->value, add);
  else if (params->value.IsArray())
    for (const JValue& param : params->value.GetArray())
      add(Json::GetStringProperty(param, "Name"), Json::GetStringProperty(param, "Value"));
}

void NOCJsonLogicalInstanceReader::readMemoryControllerProperties_(
    const JValue& element, Defs::SLV_COMP_TYPE slaveType, TrafficLInst& instance) const
{
  for (const std::string& text : Json::GetStringArrayProperty(element, "Ports")) {
    const Defs::PORT_TYPE port = Defs::toPtEnum(text);
    if (port == Defs::PORT_NONE)
      NOCJsonReadWriteUtils::issueInvalidPortForLogicalSlave(text, instance.name);
    else
      addPort(instance, port);
  }
  if (slaveType == Defs::SLV_HBMMC)
    return;
  instance.setDdrInterleaveSize(Walk::low16(Json::GetIntegrProperty(element, "InterleaveSize")));
  instance.setDdrInterleaveSel(Walk::low16(Json::GetIntegrProperty(element, "InterleaveSel")));
}

void NOCJsonLogicalInstanceReader::readDestId_(const JValue& element,
                                               TrafficLInst& instance) const
{
  const std::uint16_t destId = Walk::low16(Json::GetIntegrProperty(element, "DestId"));
  if (destId >> 12 != 0)
    Json::errorParsingJsonFile(fileName, "DestId entry is expected to be a 12 bit maximum");
  instance.destId = destId;
}

// "a b,c" gives {{a, b}, {c}}; a group keeps its place even when no name of
// it resolves. An empty text gives no group.
NOCJsonLogicalInstanceReader::ExternalConns
NOCJsonLogicalInstanceReader::externalConns_(const std::string& text) const
{
  ExternalConns lists;
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

}  // namespace NOC
