#include "ZXLogicalArchWriter.h"

#include "JsonFileFrame.h"
#include "NOCJsonReadWriteUtils.h"
#include "ZXLogicalArchModel.h"
#include "ZXLogicalArchVocabulary.h"

#include <boost/algorithm/string/predicate.hpp>
#include <boost/algorithm/string/replace.hpp>

#include <ostream>

namespace IPConfig::Frameworks {

namespace {

using Json = HCRapidJsonReadWriteUtils;
using Utils = NOC::NOCJsonReadWriteUtils;
using Vocabulary = ZXLogicalArchVocabulary;

bool isWritten(const std::string& name, const std::string& prefix)
{
  return prefix.empty() || boost::algorithm::starts_with(name, prefix);
}

// The name with the first occurrence of `prefix`, then its first "/", taken out.
std::string keyOf(std::string name, const std::string& prefix)
{
  if (prefix.empty())
    return name;
  boost::algorithm::replace_first(name, prefix, "");
  boost::algorithm::replace_first(name, "/", "");
  return name;
}

// The text of a value that is not `unset`.
template <typename Value>
void addText(JValue& object, const char* key, Value value, Value unset,
             const char* (*text)(Value), JAllocator& alloc)
{
  if (value != unset)
    Json::AddStringProperty(object, key, text(value), alloc);
}

void saveLogicalPortProperties(const ZXLogicalPort& port, JValue& object, JAllocator& alloc)
{
  addText(object, "type", port.portType, ZXLogicalPort::UNSET_PORT_TYPE,
          Vocabulary::portTypeText, alloc);
  addText(object, "direction", port.direction, ZXLogicalPort::UNSET_DIRECTION,
          Vocabulary::portDirectionText, alloc);
  if (port.dataWidth != 0)
    Json::AddULongProperty(object, "dataWidth", port.dataWidth, alloc);
  if (port.busWidth != 0)
    Json::AddULongProperty(object, "busWidth", port.busWidth, alloc);
  Json::AddULongProperty(object, "parameterIndex", port.parameterIndex, alloc);
  if (port.clkFreq > 0.0)
    Json::AddDoubleProperty(object, "clkFreq", port.clkFreq, alloc);
  Utils::addIfSet(object, "registeredInterface", port.registeredInterface, alloc);
  Utils::addIfSet(object, "tracedInterface", port.tracedInterface, alloc);
  Utils::addIfNotEmpty(object, "traceFile", port.traceFile, alloc);
  Utils::addIfNotEmpty(object, "annotation", port.annotation, alloc);
  Utils::addIfNotEmpty(object, "hw_annotation", port.hw_annotation, alloc);
  Utils::addIfNotEmpty(object, "sdfioName", port.sdfioName, alloc);
  Utils::addIfNotEmpty(object, "vlnvName", port.vlnvName, alloc);
  Utils::addIfNotEmpty(object, "qpechannel", port.qpechannel, alloc);
}

// Endpoints keep their instance outside the prefix, with the same two removals.
JValue endpoint(const ZXLogicalPort& port, const std::string& prefix, JAllocator& alloc)
{
  JValue object(rapidjson::kObjectType);
  Json::AddStringProperty(object, "instName",
                          port.owner ? keyOf(port.owner->name, prefix) : std::string(), alloc);
  Json::AddStringProperty(object, "portName", port.name, alloc);
  return object;
}

void saveLogicalConnectionProperties(const ZXLogicalConnection& connection,
                                     const std::string& prefix, JValue& object, JAllocator& alloc)
{
  addText(object, "type", connection.connectionType, ZXLogicalPort::UNSET_PORT_TYPE,
          Vocabulary::portTypeText, alloc);
  if (connection.srcPort) {
    JValue source = endpoint(*connection.srcPort, prefix, alloc);
    Json::AddGenericValueProperty(object, "srcPort", source, alloc);
  }
  if (!connection.dstPorts.empty()) {
    JValue destinations(rapidjson::kArrayType);
    for (const ZXLogicalPort* port : connection.dstPorts)
      if (port)
        destinations.PushBack(endpoint(*port, prefix, alloc), alloc);
    Json::AddGenericValueProperty(object, "dstPorts", destinations, alloc);
  }
  addText(object, "direction", connection.connectionDirection,
          ZXLogicalConnection::UNSET_DIRECTION, Vocabulary::connectionDirectionText, alloc);
  addText(object, "memMode", connection.memMode, ZXLogicalConnection::UNSET_MEM_MODE,
          Vocabulary::memModeText, alloc);
  addText(object, "addrType", connection.addrType, ZXLogicalConnection::UNSET_ADDR_TYPE,
          Vocabulary::addrTypeText, alloc);
}

// The keys that an array and a NoC instance begin with.
template <typename Instance>
void saveLeadingFields(const Instance& instance, JValue& object, JAllocator& alloc)
{
  Utils::addIfNotEmpty(object, "vlnvName", instance.vlnvName, alloc);
  Utils::addIfNotEmpty(object, "annotation", instance.annotation, alloc);
  Utils::addIfNotEmpty(object, "hw_annotation", instance.hw_annotation, alloc);
}

// A section with one member per instance that `getInstances` gives and the
// prefix keeps: the instance's own keys from `saveFields`, then its ports.
// A kind with instances has its section even when the prefix keeps none.
template <typename Instance, typename SaveFields>
void writeSection(const ZXLogicalArchModel& model,
                  std::size_t (ZXLogicalArchModel::*getInstances)(std::vector<Instance*>&) const,
                  const char* section, const char* portsKey, const std::string& prefix,
                  JValue& root, JAllocator& alloc, const SaveFields& saveFields)
{
  std::vector<Instance*> instances;
  if ((model.*getInstances)(instances) == 0)
    return;
  JValue members(rapidjson::kObjectType);
  for (const Instance* instance : instances) {
    if (!isWritten(instance->name, prefix))
      continue;
    JValue object(rapidjson::kObjectType);
    saveFields(*instance, object);
    JValue ports(rapidjson::kObjectType);
    for (const std::unique_ptr<ZXLogicalPort>& port : instance->getPorts()) {
      JValue portObject(rapidjson::kObjectType);
      saveLogicalPortProperties(*port, portObject, alloc);
      Json::AddGenericValueProperty(ports, port->name, portObject, alloc);
    }
    Json::AddGenericValueProperty(object, portsKey, ports, alloc);
    Json::AddGenericValueProperty(members, keyOf(instance->name, prefix), object, alloc);
  }
  Json::AddGenericValueProperty(root, section, members, alloc);
}

}  // namespace

bool ZXLogicalArchWriter::writeToJsonFile(std::ostream& out, const ZXLogicalArchModel& model)
{
  return writeToJsonFile_("", out, model);
}

bool ZXLogicalArchWriter::writeToJsonFile(std::ostream& out, const ZXLogicalArchModel& model,
                                          HDGUIStatus&)
{
  return writeToJsonFile_("", out, model);
}

bool ZXLogicalArchWriter::writeToJsonFile(const std::string& prefix, std::ostream& out,
                                          const ZXLogicalArchModel& model, HDGUIStatus&)
{
  return writeToJsonFile_(prefix, out, model);
}

bool ZXLogicalArchWriter::writeToJsonFile(const std::string& fileName,
                                          const ZXLogicalArchModel& model)
{
  return JsonFileFrame::writeFile(
      fileName, JsonFileFrame::OpenCheck::refuseUnopened,
      [&](std::ostream& out) { return writeToJsonFile_("", out, model); });
}

bool ZXLogicalArchWriter::writeToJsonFile(const std::string& fileName,
                                          const ZXLogicalArchModel& model, HDGUIStatus&)
{
  return writeToJsonFile(fileName, model);
}

bool ZXLogicalArchWriter::writeToJsonFile_(const std::string& prefix, std::ostream& out,
                                           const ZXLogicalArchModel& model)
{
  if (model.isEmpty())
    return false;
  JDocument document(rapidjson::kObjectType);
  JAllocator& alloc = document.GetAllocator();
  writeProperties_(model, document, alloc);
  writeZXInstances_(prefix, model, document, alloc);
  writeNOCInstances_(prefix, model, document, alloc);
  writePLInstances_(prefix, model, document, alloc);
  writeConnections_(prefix, model, document, alloc);
  JsonFileFrame::writeThroughSchema(document, out,
                                    Utils::getLogicalArchJsonSchemaFile());
  return true;
}

void ZXLogicalArchWriter::writeProperties_(const ZXLogicalArchModel& model, JValue& root,
                                           JAllocator& alloc)
{
  Utils::addIfNotEmpty(root, "appId", model.getAppId(), alloc);
  Utils::addIfNotEmpty(root, "schema", model.getSchema(), alloc);
  Utils::addIfNotEmpty(root, "device", model.getDevice(), alloc);
  Utils::addIfNotEmpty(root, "platform", model.getPlatform(), alloc);
}

void ZXLogicalArchWriter::writeZXInstances_(const std::string& prefix,
                                            const ZXLogicalArchModel& model, JValue& root,
                                            JAllocator& alloc)
{
  writeSection(
      model, &ZXLogicalArchModel::getZXIPInstances, "QPE", "qpeshimPorts", prefix, root, alloc,
      [&](const ZXLogicalZXIPInstance& instance, JValue& object) {
        saveLeadingFields(instance, object, alloc);
        Utils::addIfNotEmpty(object, "logical_device", instance.logical_device, alloc);
      });
}

void ZXLogicalArchWriter::writeNOCInstances_(const std::string& prefix,
                                             const ZXLogicalArchModel& model, JValue& root,
                                             JAllocator& alloc)
{
  writeSection(
      model, &ZXLogicalArchModel::getNOCIPInstances, "NoC", "nocPorts", prefix, root, alloc,
      [&](const ZXLogicalNOCIPInstance& instance, JValue& object) {
        saveLeadingFields(instance, object, alloc);
        addText(object, "type", instance.type, ZXLogicalNOCIPInstance::UNSET_TYPE,
                Vocabulary::nocTypeText, alloc);
      });
}

void ZXLogicalArchWriter::writePLInstances_(const std::string& prefix,
                                            const ZXLogicalArchModel& model, JValue& root,
                                            JAllocator& alloc)
{
  writeSection(
      model, &ZXLogicalArchModel::getPLIPInstances, "PL", "plPorts", prefix, root, alloc,
      [&](const ZXLogicalPLIPInstance& instance, JValue& object) {
        Utils::addIfNotEmpty(object, "vlnvName", instance.vlnvName, alloc);
        Utils::addIfNotEmpty(object, "ckernelName", instance.ckernelName, alloc);
        Utils::addIfNotEmpty(object, "sdfinstName", instance.sdfinstName, alloc);
        Utils::addIfNotEmpty(object, "annotation", instance.annotation, alloc);
        Utils::addIfNotEmpty(object, "hw_annotation", instance.hw_annotation, alloc);
      });
}

void ZXLogicalArchWriter::writeConnections_(const std::string& prefix,
                                            const ZXLogicalArchModel& model, JValue& root,
                                            JAllocator& alloc)
{
  std::vector<ZXLogicalConnection*> connections;
  if (model.getLogicalConnections(connections) == 0)
    return;
  JValue members(rapidjson::kObjectType);
  for (const ZXLogicalConnection* connection : connections) {
    if (!isWritten(connection->name, prefix))
      continue;
    JValue object(rapidjson::kObjectType);
    saveLogicalConnectionProperties(*connection, prefix, object, alloc);
    Json::AddGenericValueProperty(members, keyOf(connection->name, prefix), object, alloc);
  }
  Json::AddGenericValueProperty(root, "connections", members, alloc);
}

}  // namespace IPConfig::Frameworks
