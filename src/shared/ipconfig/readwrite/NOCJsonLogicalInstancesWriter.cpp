#include "NOCJsonLogicalInstancesWriter.h"

#include "HIPLogicalObjectNameResolverInterface.h"
#include "NOCJsonHexAddresses.h"
#include "NOCJsonReadWriteUtils.h"
#include "NOCJsonScopedNames.h"
#include "TrafficLInst.h"

#include <string>

namespace NOC {

namespace {

using Json = HCRapidJsonReadWriteUtils;
using Utils = NOCJsonReadWriteUtils;
using HrdIPToolCntr::TrafficLInst;
namespace Defs = DevHrdIP::Definitions;

void addIfNotZero(JValue& object, const char* key, unsigned long value, JAllocator& alloc)
{
  if (value != 0)
    Json::AddULongProperty(object, key, value, alloc);
}

}  // namespace

void NOCJsonLogicalInstancesWriter::addLogicalInstances(
    const std::vector<const TrafficLInst*>& instances, const TrafficSpecFilter& filter,
    const HIPLogicalObjectNameResolverInterface& resolver, JValue& root, JAllocator& alloc)
{
  JValue elements(rapidjson::kArrayType);
  elements.Reserve(static_cast<rapidjson::SizeType>(instances.size()), alloc);
  for (const TrafficLInst* instance : instances)
    if (filter(instance))
      elements.PushBack(writeLogicalInstance_(*instance, resolver, alloc), alloc);
  Json::AddGenericValueProperty(root, "LogicalInstances", elements, alloc);
}

JValue NOCJsonLogicalInstancesWriter::writeLogicalInstance_(
    const TrafficLInst& instance, const HIPLogicalObjectNameResolverInterface& resolver,
    JAllocator& alloc)
{
  const std::string writtenName = NOCJsonScopedNames::instanceName(resolver, instance);
  const bool outside = !resolver.isPropertyValueWithinScope(instance.name);
  const NOCJsonScopedNames::ExternalConn conn =
      NOCJsonScopedNames::externalConn(resolver, instance);

  JValue object(rapidjson::kObjectType);
  Json::AddStringProperty(object, "Name", outside ? conn.firstName : writtenName, alloc);
  Utils::addIfNotEmpty(object, "DesignName", instance.designName, alloc);
  Json::AddBooleanProperty(object, "IsMaster", instance.isMaster, alloc);
  Utils::addIfSet(object, "UseDestIdIdx", instance.useDestIdIdx, alloc);
  Utils::addIfSet(object, "HasParityAddr", instance.hasParityAddr(), alloc);
  Utils::addIfSet(object, "HasParityData", instance.hasParityData(), alloc);
  Json::AddStringProperty(object, "CompType", Defs::toStr(instance.compType), alloc);
  Utils::addIfSet(object, "Firewall", instance.firewall, alloc);
  Json::AddStringProperty(object, "Protocol",
                          instance.protocol == Defs::AXI_MM ? "AXI_MM" : "AXI_STRM", alloc);
  writeTrafficClasses_(instance, object, alloc);
  writePorts_(instance, object, alloc);
  addIfNotZero(object, "AxiDataWidth", instance.axiWidth, alloc);
  writeLimits_(instance, object, alloc);
  writeInterleave_(instance, object, alloc);
  writeAddresses_(instance, object, alloc);
  writeParams_(instance, object, alloc);
  Utils::addIfSet(object, "IsVirtual", instance.isVirtual || outside, alloc);
  writeSimMetaData_(instance, object, alloc);
  if (instance.hasDestId)
    Json::AddIntegrProperty(object, "DestId", instance.destId, alloc);
  Utils::addIfNotEmpty(object, "ExternalConn", conn.text, alloc);
  return object;
}

void NOCJsonLogicalInstancesWriter::writeTrafficClasses_(const TrafficLInst& instance,
                                                         JValue& object, JAllocator& alloc)
{
  if (!instance.isMaster)
    return;
  Json::AddStringProperty(object, "ReadTC", Defs::toStr(instance.readTC), alloc);
  Json::AddStringProperty(object, "WriteTC", Defs::toStr(instance.writeTC), alloc);
}

void NOCJsonLogicalInstancesWriter::writePorts_(const TrafficLInst& instance, JValue& object,
                                                JAllocator& alloc)
{
  if (instance.getPortTypes().empty())
    return;
  JValue ports(rapidjson::kArrayType);
  for (const Defs::PORT_TYPE port : instance.getPortTypes())
    ports.PushBack(JValue(Defs::toStr(port).c_str(), alloc), alloc);
  Json::AddGenericValueProperty(object, "Ports", ports, alloc);
}

void NOCJsonLogicalInstancesWriter::writeLimits_(const TrafficLInst& instance, JValue& object,
                                                 JAllocator& alloc)
{
  addIfNotZero(object, "NumReadOutstanding", instance.numReadOutstanding, alloc);
  addIfNotZero(object, "NumWriteOutstanding", instance.numWriteOutstanding, alloc);
  // Written as doubles; the reader takes them with its integer getter, which
  // gives 0 for any double, so a limiter does not come back from a file.
  if (instance.readRateLimiter != 0)
    Json::AddDoubleProperty(object, "ReadRateLimiter", instance.readRateLimiter, alloc);
  if (instance.writeRateLimiter != 0)
    Json::AddDoubleProperty(object, "WriteRateLimiter", instance.writeRateLimiter, alloc);
}

void NOCJsonLogicalInstancesWriter::writeInterleave_(const TrafficLInst& instance, JValue& object,
                                                     JAllocator& alloc)
{
  addIfNotZero(object, "InterleaveSize", instance.ddrInterleaveSize, alloc);
  addIfNotZero(object, "InterleaveSel", instance.getDdrInterleaveSel(), alloc);
}

void NOCJsonLogicalInstancesWriter::writeAddresses_(const TrafficLInst& instance, JValue& object,
                                                    JAllocator& alloc)
{
  NOCJsonHexAddresses::addSysAddresses(instance, object, alloc);
  if (instance.isMaster)
    NOCJsonHexAddresses::addRemap(instance, object, alloc);
}

void NOCJsonLogicalInstancesWriter::writeParams_(const TrafficLInst& instance, JValue& object,
                                                 JAllocator& alloc)
{
  Utils::addIfNotEmpty(object, "MemoryParams", instance.memoryParams, alloc);
  Utils::addIfNotEmpty(object, "ConfigParams", instance.configParams, alloc);
}

void NOCJsonLogicalInstancesWriter::writeSimMetaData_(const TrafficLInst& instance,
                                                      JValue& object, JAllocator& alloc)
{
  if (instance.ipName.empty())
    return;
  JValue simMetaData(rapidjson::kObjectType);
  Json::AddStringProperty(simMetaData, "IPName", instance.ipName, alloc);
  Json::AddGenericValueProperty(object, "SimMetaData", simMetaData, alloc);
}

}  // namespace NOC
