#include "QPEPLIntfWriter.h"

#include "JsonFileFrame.h"
#include "QPEHDDMDeviceUtils.h"
#include "QPEShimBelWriter.h"
#include "ZXLogicalArchModel.h"
#include "ZXLogicalArchVocabulary.h"

#include <ostream>

namespace IPConfig::Frameworks {

namespace {

using Json = HCRapidJsonReadWriteUtils;
using Vocabulary = ZXLogicalArchVocabulary;

}  // namespace

bool QPEPLIntfWriter::writeToJsonFile(const std::string& fileName,
                                      const HrdIPToolCntr::TrafficSpec& spec,
                                      const QPEShimInterfaceSolution& solution,
                                      const ZXLogicalArchModel& model, const HDARPart& part,
                                      int partitionStart, int partitionSize, int arrayStart,
                                      int arraySize)
{
  return JsonFileFrame::writeFile(
      fileName, JsonFileFrame::OpenCheck::refuseUnopened, [&](std::ostream& out) {
        return writeToJsonFile_(out, model, spec, solution, part, partitionStart, partitionSize,
                                arrayStart, arraySize);
      });
}

bool QPEPLIntfWriter::writeToJsonFile_(std::ostream& out, const ZXLogicalArchModel& model,
                                       const HrdIPToolCntr::TrafficSpec& spec,
                                       const QPEShimInterfaceSolution& solution,
                                       const HDARPart& part, int partitionStart,
                                       int partitionSize, int arrayStart, int arraySize)
{
  JDocument document(rapidjson::kObjectType);
  JAllocator& alloc = document.GetAllocator();
  JValue partition(rapidjson::kObjectType);
  writeColumns_(partition, partitionStart, partitionSize, arrayStart, arraySize, alloc);
  writeShimPorts_(partition, model, spec, solution, part, alloc);
  Json::AddGenericValueProperty(document, "partition", partition, alloc);
  JsonFileFrame::writePretty(document, out);
  return true;
}

void QPEPLIntfWriter::writeColumns_(JValue& partition, int partitionStart, int partitionSize,
                                    int arrayStart, int arraySize, JAllocator& alloc)
{
  const bool wholeArray = partitionStart == -1 && partitionSize == -1;
  Json::AddIntegrProperty(partition, "startColumn", wholeArray ? arrayStart : partitionStart,
                          alloc);
  Json::AddIntegrProperty(partition, "numColumns", wholeArray ? arraySize : partitionSize, alloc);
}

void QPEPLIntfWriter::writeShimPorts_(JValue& partition, const ZXLogicalArchModel& model,
                                      const HrdIPToolCntr::TrafficSpec& spec,
                                      const QPEShimInterfaceSolution& solution,
                                      const HDARPart& part, JAllocator& alloc)
{
  std::vector<ZXLogicalZXIPInstance*> instances;
  if (model.getZXIPInstances(instances) == 0)
    return;
  JValue ports(rapidjson::kObjectType);
  for (const ZXLogicalZXIPInstance* instance : instances)
    for (const std::unique_ptr<ZXLogicalPort>& port : instance->getPorts()) {
      const std::vector<HDDMBel> bels =
          getConstraintsForLogicalInstance(port.get(), spec, solution);
      const std::string key =
          bels.empty() ? std::string() : QPEHDDMDeviceUtils::getHierName(part, bels.back());
      JValue object = writePort_(*port, bels, part, alloc);
      Json::AddGenericValueProperty(ports, key, object, alloc);
    }
  Json::AddGenericValueProperty(partition, "qpeshimPorts", ports, alloc);
}

JValue QPEPLIntfWriter::writePort_(const ZXLogicalPort& port, const std::vector<HDDMBel>& bels,
                                   const HDARPart& part, JAllocator& alloc)
{
  JValue object(rapidjson::kObjectType);
  if (!bels.empty()) {
    JValue channels(rapidjson::kArrayType);
    for (const HDDMBel& bel : bels)
      channels.PushBack(QPEShimBelWriter::writeBel(part, bel, alloc), alloc);
    Json::AddGenericValueProperty(object, "PhysicalInstance", channels, alloc);
  }
  if (port.portType != ZXLogicalPort::UNSET_PORT_TYPE)
    Json::AddStringProperty(object, "type", Vocabulary::portTypeText(port.portType), alloc);
  if (port.direction != ZXLogicalPort::UNSET_DIRECTION)
    Json::AddStringProperty(object, "direction", Vocabulary::portDirectionText(port.direction),
                            alloc);
  if (port.dataWidth != 0)
    Json::AddULongProperty(object, "dataWidth", port.dataWidth, alloc);
  Json::AddULongProperty(object, "parameterIndex", port.parameterIndex, alloc);
  if (port.registeredInterface)
    Json::AddBooleanProperty(object, "registeredInterface", true, alloc);
  if (port.tracedInterface)
    Json::AddBooleanProperty(object, "tracedInterface", true, alloc);
  if (!port.traceFile.empty())
    Json::AddStringProperty(object, "traceFile", port.traceFile, alloc);
  if (!port.annotation.empty())
    Json::AddStringArrayProperty(object, "annotation", port.annotation, alloc);
  return object;
}

}  // namespace IPConfig::Frameworks
