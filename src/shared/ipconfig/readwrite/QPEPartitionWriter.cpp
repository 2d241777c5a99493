#include "QPEPartitionWriter.h"

#include "HCRapidJsonReadWriteUtils.h"
#include "JsonFileFrame.h"
#include "ZXLogicalArchModel.h"

#include <boost/format.hpp>

#include <ostream>

namespace IPConfig::Frameworks {

namespace {

using Json = HCRapidJsonReadWriteUtils;

constexpr int wholeArray = -1;

// The columns and identifiers that every compute-array instance gets.
struct Partition {
  int arrayStart;
  int arraySize;
  int start;
  int size;
  std::string uuid;
  std::string intfId;
  const std::string& namespaceName;
};

JValue partitionObject(const Partition& partition, JAllocator& alloc)
{
  JValue object(rapidjson::kObjectType);
  Json::AddIntegrProperty(object, "startColumn", partition.start, alloc);
  Json::AddIntegrProperty(object, "numColumns", partition.size, alloc);
  Json::AddStringProperty(object, "uuid", partition.uuid, alloc);
  Json::AddStringProperty(object, "qpe_pl_intf_id", partition.intfId, alloc);
  Json::AddStringProperty(object, "namespace", partition.namespaceName, alloc);
  return object;
}

JValue instanceObject(const Partition& partition, JAllocator& alloc)
{
  JValue object(rapidjson::kObjectType);
  Json::AddIntegrProperty(object, "startColumn", partition.arrayStart, alloc);
  Json::AddIntegrProperty(object, "numColumns", partition.arraySize, alloc);
  JValue partitions(rapidjson::kArrayType);
  partitions.PushBack(partitionObject(partition, alloc), alloc);
  Json::AddGenericValueProperty(object, "partitions", partitions, alloc);
  return object;
}

}  // namespace

std::string toHexString(unsigned int value)
{
  return (boost::format("%08x") % value).str();
}

std::string to_string(const std::vector<unsigned int>& words)
{
  std::string text;
  text.reserve(words.size() * 8);
  for (unsigned int word : words)
    text += toHexString(word);
  return text;
}

bool QPEPartitionWriter::writeToJsonFile(const std::string& fileName,
                                         const ZXLogicalArchModel& model,
                                         std::vector<unsigned int> uuidWords, unsigned int intfId,
                                         int partitionStart, int partitionSize, int arrayStart,
                                         int arraySize, std::string namespaceName)
{
  return JsonFileFrame::writeFile(
      fileName, JsonFileFrame::OpenCheck::refuseUnopened, [&](std::ostream& out) {
        return writeToJsonFile_(out, model, uuidWords, intfId, partitionStart, partitionSize,
                                arrayStart, arraySize, namespaceName);
      });
}

bool QPEPartitionWriter::writeToJsonFile(std::ostream& out, const ZXLogicalArchModel& model,
                                         std::vector<unsigned int> uuidWords, unsigned int intfId,
                                         int partitionStart, int partitionSize, int arrayStart,
                                         int arraySize, std::string namespaceName)
{
  return writeToJsonFile_(out, model, uuidWords, intfId, partitionStart, partitionSize,
                          arrayStart, arraySize, namespaceName);
}

bool QPEPartitionWriter::writeToJsonFile_(std::ostream& out, const ZXLogicalArchModel& model,
                                          const std::vector<unsigned int>& uuidWords,
                                          unsigned int intfId, int partitionStart,
                                          int partitionSize, int arrayStart, int arraySize,
                                          const std::string& namespaceName)
{
  // The test is on the pair: a single -1 is written as it stands.
  const bool wholeArrayAsked = partitionStart == wholeArray && partitionSize == wholeArray;
  const Partition partition{arrayStart,
                            arraySize,
                            wholeArrayAsked ? arrayStart : partitionStart,
                            wholeArrayAsked ? arraySize : partitionSize,
                            "0x" + to_string(uuidWords),
                            "0x" + toHexString(intfId),
                            namespaceName};

  JDocument document(rapidjson::kObjectType);
  JAllocator& alloc = document.GetAllocator();
  JValue arrays(rapidjson::kObjectType);
  std::vector<ZXLogicalZXIPInstance*> instances;
  model.getZXIPInstances(instances);
  for (const ZXLogicalZXIPInstance* instance : instances) {
    JValue object = instanceObject(partition, alloc);
    Json::AddGenericValueProperty(arrays, instance->name, object, alloc);
  }
  Json::AddGenericValueProperty(document, "QPE", arrays, alloc);
  JsonFileFrame::writePretty(document, out);
  return true;
}

}  // namespace IPConfig::Frameworks
