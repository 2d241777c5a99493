#include "ZXLogicalArchReader.h"

#include "HDGUIStatus.h"
#include "JsonFileFrame.h"
#include "NOCJsonReadWriteUtils.h"
#include "ZXLogicalArchModel.h"
#include "ZXLogicalArchVocabulary.h"

#include <istream>

namespace IPConfig::Frameworks {

namespace {

using Json = HCRapidJsonReadWriteUtils;
using Vocabulary = ZXLogicalArchVocabulary;

void setProgress(HDGUIStatus* status, double progress)
{
  if (status)
    status->setProgress(progress);
}

// The value under `key`, or null; `object` may be any value.
const JValue* member(const JValue& object, const char* key)
{
  if (!object.IsObject())
    return nullptr;
  const auto found = object.FindMember(key);
  return found == object.MemberEnd() ? nullptr : &found->value;
}

// Calls `read` with the name and value of each member of the object under `key`.
template <typename Read>
void forEachMember(const JValue& object, const char* key, const Read& read)
{
  const JValue* members = member(object, key);
  if (!members || !members->IsObject())
    return;
  for (const auto& entry : members->GetObject())
    read(std::string(entry.name.GetString(), entry.name.GetStringLength()), entry.value);
}

void assignIfNotEmpty(std::string& field, const JValue& object, const char* key)
{
  std::string text = Json::GetStringProperty(object, key);
  if (!text.empty())
    field = std::move(text);
}

// `convert` of the text under `key`, when there is a text.
template <typename Field, typename Convert>
void assignText(Field& field, const JValue& object, const char* key, const Convert& convert)
{
  const std::string text = Json::GetStringProperty(object, key);
  if (!text.empty())
    field = convert(text);
}

void assignIfNotZero(std::uint32_t& field, const JValue& object, const char* key)
{
  if (const unsigned long value = Json::GetULongProperty(object, key))
    field = static_cast<std::uint32_t>(value);
}

void setIfTrue(bool& field, const JValue& object, const char* key)
{
  if (Json::GetBooleanProperty(object, key))
    field = true;
}

// The non-empty strings of an array, or a plain string as older files hold it.
void appendStrings(std::vector<std::string>& list, const JValue& object, const char* key)
{
  if (Json::IsArrayProperty(object, key)) {
    for (std::string& text : Json::GetStringArrayProperty(object, key))
      if (!text.empty())
        list.push_back(std::move(text));
  } else if (Json::IsStringProperty(object, key)) {
    std::string text = Json::GetStringProperty(object, key);
    if (!text.empty())
      list.push_back(std::move(text));
  }
}

void extractLogicalPortProperties(const JValue& object, ZXLogicalPort& port)
{
  assignText(port.portType, object, "type", Vocabulary::toPortType);
  assignText(port.direction, object, "direction", Vocabulary::toPortDirection);
  assignIfNotZero(port.dataWidth, object, "dataWidth");
  assignIfNotZero(port.busWidth, object, "busWidth");
  assignIfNotZero(port.parameterIndex, object, "parameterIndex");
  const double clkFreq = Json::GetDoubleProperty(object, "clkFreq");
  if (clkFreq >= 0.0)
    port.clkFreq = clkFreq;
  setIfTrue(port.registeredInterface, object, "registeredInterface");
  setIfTrue(port.tracedInterface, object, "tracedInterface");
  assignIfNotEmpty(port.traceFile, object, "traceFile");
  appendStrings(port.annotation, object, "annotation");
  assignIfNotEmpty(port.hw_annotation, object, "hw_annotation");
  appendStrings(port.sdfioName, object, "sdfioName");
  assignIfNotEmpty(port.vlnvName, object, "vlnvName");
  assignIfNotEmpty(port.qpechannel, object, "qpechannel");
}

// Adds each instance of a section that the model does not know, reads the
// keys every kind has and, with `readFields`, those of its kind, and adds
// its ports.
template <typename Instance, typename ReadFields>
void readSection(const JValue& root, const char* section, const char* portsKey,
                 ZXLogicalArchModel& model,
                 Instance* (ZXLogicalArchModel::*addInstance)(const std::string&),
                 ZXLogicalPort* (ZXLogicalArchModel::*addPort)(const std::string&, Instance*),
                 const ReadFields& readFields)
{
  forEachMember(root, section, [&](const std::string& name, const JValue& object) {
    Instance* instance = (model.*addInstance)(name);
    if (!instance)
      return;
    assignIfNotEmpty(instance->vlnvName, object, "vlnvName");
    assignIfNotEmpty(instance->annotation, object, "annotation");
    assignIfNotEmpty(instance->hw_annotation, object, "hw_annotation");
    readFields(object, *instance);
    forEachMember(object, portsKey, [&](const std::string& portName, const JValue& port) {
      if (ZXLogicalPort* added = (model.*addPort)(portName, instance))
        extractLogicalPortProperties(port, *added);
    });
  });
}

// The port an endpoint names, or null.
ZXLogicalPort* endpointPort(const JValue& endpoint, const ZXLogicalArchModel& model)
{
  const ZXLogicalArchLInst* instance =
      model.getLogicalInstance(Json::GetStringProperty(endpoint, "instName"));
  return instance ? instance->getLogicalPort(Json::GetStringProperty(endpoint, "portName"))
                  : nullptr;
}

}  // namespace

bool ZXLogicalArchReader::readFromJsonFile(const std::string& fileName, ZXLogicalArchModel& model)
{
  return readFromJsonFile_(fileName, model, nullptr);
}

bool ZXLogicalArchReader::readFromJsonFile(const std::string& fileName, ZXLogicalArchModel& model,
                                           HDGUIStatus& status)
{
  return readFromJsonFile_(fileName, model, &status);
}

bool ZXLogicalArchReader::readFromJsonFile(std::istream& in, const std::string& fileName,
                                           ZXLogicalArchModel& model)
{
  return readFromJsonFile_(in, fileName, model, nullptr);
}

bool ZXLogicalArchReader::readFromJsonFile(std::istream& in, const std::string& fileName,
                                           ZXLogicalArchModel& model, HDGUIStatus& status)
{
  return readFromJsonFile_(in, fileName, model, &status);
}

bool ZXLogicalArchReader::readFromJsonFile_(const std::string& fileName, ZXLogicalArchModel& model,
                                            HDGUIStatus* status)
{
  JsonFileFrame::readFile(fileName, isl::iostreams::basic_file(),
                          [&](std::istream& in, const std::string& canonicalName) {
                            readFromJsonFile_(in, canonicalName, model, status);
                          });
  return true;
}

bool ZXLogicalArchReader::readFromJsonFile_(std::istream& in, const std::string& fileName,
                                            ZXLogicalArchModel& model, HDGUIStatus* status)
{
  JDocument document;
  JsonFileFrame::parse(in, fileName, document);
  JsonFileFrame::validate(document, fileName,
                          NOC::NOCJsonReadWriteUtils::getLogicalArchJsonSchemaFile(),
                          isl::iostreams::basic_file());
  setProgress(status, 20.0);
  readProperties_(document, model);
  readPLInstances_(document, model);
  setProgress(status, 40.0);
  readZXInstances_(document, model);
  setProgress(status, 60.0);
  readNOCInstances_(document, model);
  setProgress(status, 80.0);
  readConnections_(document, model);
  setProgress(status, 100.0);
  return true;
}

void ZXLogicalArchReader::readProperties_(const JValue& root, ZXLogicalArchModel& model)
{
  const auto read = [&](const char* key, void (ZXLogicalArchModel::*set)(const std::string&)) {
    const std::string text = Json::GetStringProperty(root, key);
    if (!text.empty())
      (model.*set)(text);
  };
  read("appId", &ZXLogicalArchModel::setAppId);
  read("schema", &ZXLogicalArchModel::setSchema);
  read("platform", &ZXLogicalArchModel::setPlatform);
  read("device", &ZXLogicalArchModel::setDevice);
}

void ZXLogicalArchReader::readPLInstances_(const JValue& root, ZXLogicalArchModel& model)
{
  readSection(root, "PL", "plPorts", model, &ZXLogicalArchModel::addPLIPInstance,
              &ZXLogicalArchModel::addPLPort,
              [](const JValue& object, ZXLogicalPLIPInstance& instance) {
                assignIfNotEmpty(instance.ckernelName, object, "ckernelName");
                assignIfNotEmpty(instance.sdfinstName, object, "sdfinstName");
              });
}

void ZXLogicalArchReader::readZXInstances_(const JValue& root, ZXLogicalArchModel& model)
{
  readSection(root, "QPE", "qpeshimPorts", model, &ZXLogicalArchModel::addZXIPInstance,
              &ZXLogicalArchModel::addShimPort,
              [](const JValue& object, ZXLogicalZXIPInstance& instance) {
                assignIfNotEmpty(instance.logical_device, object, "logical_device");
              });
}

void ZXLogicalArchReader::readNOCInstances_(const JValue& root, ZXLogicalArchModel& model)
{
  readSection(root, "NoC", "nocPorts", model, &ZXLogicalArchModel::addNOCIPInstance,
              &ZXLogicalArchModel::addNOCPort,
              [](const JValue& object, ZXLogicalNOCIPInstance& instance) {
                assignText(instance.type, object, "type", Vocabulary::toNOCType);
              });
}

void ZXLogicalArchReader::readConnections_(const JValue& root, ZXLogicalArchModel& model)
{
  forEachMember(root, "connections", [&](const std::string& name, const JValue& object) {
    ZXLogicalConnection* connection = model.addLogicalConnection(name);
    if (!connection)
      return;
    assignText(connection->connectionType, object, "type", Vocabulary::toPortType);
    assignText(connection->connectionDirection, object, "direction",
               Vocabulary::toConnectionDirection);
    assignText(connection->memMode, object, "memMode", Vocabulary::toMemMode);
    assignText(connection->addrType, object, "addrType", Vocabulary::toAddrType);
    if (const JValue* source = member(object, "srcPort"))
      if (ZXLogicalPort* port = endpointPort(*source, model)) {
        connection->srcPort = port;
        port->connection = connection;
      }
    const JValue* destinations = member(object, "dstPorts");
    if (!destinations || !destinations->IsArray())
      return;
    for (const JValue& destination : destinations->GetArray())
      if (ZXLogicalPort* port = endpointPort(destination, model)) {
        connection->dstPorts.push_back(port);
        port->connection = connection;
      }
  });
}

}  // namespace IPConfig::Frameworks
