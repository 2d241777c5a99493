#include "ZXCompilerSolutionReaderJSON.h"

#include "HDGUIStatus.h"
#include "HSTStrUtils.h"
#include "JsonFileFrame.h"
#include "NOCFindLogicalInstance.h"
#include "NOCJsonReadWriteUtils.h"
#include "QPEHDDMDeviceUtils.h"
#include "QPEShimInterfaceSolution.h"
#include "ZXLogicalArchModel.h"

#include <istream>
#include <unordered_map>

namespace IPConfig::Frameworks {

namespace {

using Json = HCRapidJsonReadWriteUtils;
using Reader = ZXCompilerSolutionReaderJSON;

// The value under `key` if `object` is an object that has it. The schema
// asks for objects, but it is a file of the installation and may be looser.
const JValue* member(const JValue& object, const char* key)
{
  if (!object.IsObject())
    return nullptr;
  const auto found = object.FindMember(key);
  return found == object.MemberEnd() ? nullptr : &found->value;
}

// findZXIPInstance for one read: a file names the same instance for each of
// its ports, and each name is searched for only once.
class ZXIPInstanceLookup {
public:
  ZXIPInstanceLookup(const ZXLogicalArchModel& model, const std::string& prefix)
    : model(model), prefix(prefix)
  {
  }

  ZXLogicalZXIPInstance* find(const std::string& name)
  {
    const auto [entry, isNew] = found.try_emplace(name, nullptr);
    if (isNew)
      entry->second = Reader::findZXIPInstance(model, prefix, name);
    return entry->second;
  }

private:
  const ZXLogicalArchModel& model;
  const std::string& prefix;
  std::unordered_map<std::string, ZXLogicalZXIPInstance*> found;
};

// Places the logical instance behind each channel of `channels` on the
// channel's bel, unless the instance has a bel already.
void placeChannels(const JValue& channels, const std::vector<std::string>& names,
                   const HDARPart& part, const HrdIPToolCntr::TrafficSpec& spec,
                   QPEShimInterfaceSolution& solution)
{
  for (const JValue& channel : channels.GetArray()) {
    const HDDMBel bel =
        QPEHDDMDeviceUtils::getHDDMBel(part, Json::GetStringProperty(channel, "name"));
    if (!bel.isValid())
      continue;
    const unsigned index = QPEHDDMDeviceUtils::getIndexOfChanInShim(part, bel);
    const HrdIPToolCntr::TrafficLInst* instance =
        Reader::findLogicalInstance(spec, Reader::findInstanceNameForChannel(names, index));
    if (!instance)
      continue;
    if (solution.placed.emplace(instance, std::make_pair(bel, false)).second)
      solution.reversePlaced.emplace(bel, instance);
  }
}

void readPlacement(const JValue& placement, ZXIPInstanceLookup& instances, const HDARPart& part,
                   const HrdIPToolCntr::TrafficSpec& spec, QPEShimInterfaceSolution& solution)
{
  const JValue* logical = member(placement, "LogicalInstance");
  if (!logical)
    return;
  const ZXLogicalZXIPInstance* instance =
      instances.find(Json::GetStringProperty(*logical, "InstanceName"));
  if (!instance)
    return;
  const ZXLogicalPort* port =
      instance->getLogicalPortByName(Json::GetStringProperty(*logical, "PortName"));
  if (!port || port->logicalInstNames.empty())
    return;
  const JValue* channels = member(placement, "PhysicalInstance");
  if (!channels || !channels->IsArray())
    return;
  placeChannels(*channels, port->logicalInstNames, part, spec, solution);
}

}  // namespace

bool ZXCompilerSolutionReaderJSON::readFromJsonFile(const std::string& fileName,
                                                    const HDARPart& part,
                                                    const ZXLogicalArchModel& model,
                                                    const HrdIPToolCntr::TrafficSpec& spec,
                                                    QPEShimInterfaceSolution& solution,
                                                    HDGUIStatus& status)
{
  return readFromJsonFile(fileName, part, model, spec, std::string(), solution, status);
}

bool ZXCompilerSolutionReaderJSON::readFromJsonFile(const std::string& fileName,
                                                    const HDARPart& part,
                                                    const ZXLogicalArchModel& model,
                                                    const HrdIPToolCntr::TrafficSpec& spec,
                                                    const std::string& prefix,
                                                    QPEShimInterfaceSolution& solution,
                                                    HDGUIStatus& status)
{
  JsonFileFrame::readFile(fileName, isl::iostreams::basic_file(),
                          [&](std::istream& in, const std::string&) {
                            readFromJsonFile(in, fileName, part, model, spec, prefix, solution,
                                             status);
                          });
  return true;
}

bool ZXCompilerSolutionReaderJSON::readFromJsonFile(std::istream& in, const std::string& fileName,
                                                    const HDARPart& part,
                                                    const ZXLogicalArchModel& model,
                                                    const HrdIPToolCntr::TrafficSpec& spec,
                                                    QPEShimInterfaceSolution& solution,
                                                    HDGUIStatus& status)
{
  return readFromJsonFile(in, fileName, part, model, spec, std::string(), solution, status);
}

bool ZXCompilerSolutionReaderJSON::readFromJsonFile(std::istream& in, const std::string& fileName,
                                                    const HDARPart& part,
                                                    const ZXLogicalArchModel& model,
                                                    const HrdIPToolCntr::TrafficSpec& spec,
                                                    const std::string& prefix,
                                                    QPEShimInterfaceSolution& solution,
                                                    HDGUIStatus& status)
{
  JDocument document;
  JsonFileFrame::parse(in, fileName, document);
  JsonFileFrame::validate(document, fileName,
                          NOC::NOCJsonReadWriteUtils::getZXSolutionJsonSchemaFile(),
                          isl::iostreams::basic_file());
  status.setProgress(20.0);
  if (Json::IsArrayProperty(document, "Placement")) {
    ZXIPInstanceLookup instances(model, prefix);
    for (const JValue& placement : document["Placement"].GetArray())
      readPlacement(placement, instances, part, spec, solution);
  }
  status.setProgress(100.0);
  return true;
}

ZXLogicalZXIPInstance* ZXCompilerSolutionReaderJSON::findZXIPInstance(
    const ZXLogicalArchModel& model, const std::string& prefix, const std::string& name)
{
  std::vector<ZXLogicalZXIPInstance*> instances;
  model.getZXIPInstances(instances);
  for (ZXLogicalZXIPInstance* instance : instances) {
    const std::string& instanceName = instance->name;
    if (!prefix.empty() && instanceName.rfind(prefix, 0) != 0)
      continue;
    if (HSTStrUtils::contains(instanceName.c_str(), name.c_str()))
      return instance;
  }
  return instances.size() == 1 ? instances.front() : nullptr;
}

std::string ZXCompilerSolutionReaderJSON::findInstanceNameForChannel(
    const std::vector<std::string>& names, unsigned channel)
{
  if (names.size() == 1)
    return names.front();
  const char* marker = channel % 2 == 0 ? "<0>_INST" : "<1>_INST";
  for (const std::string& name : names)
    if (name.find(marker) != std::string::npos)
      return name;
  return {};
}

const HrdIPToolCntr::TrafficLInst* ZXCompilerSolutionReaderJSON::findLogicalInstance(
    const HrdIPToolCntr::TrafficSpec& spec, const std::string& name)
{
  return NOC::findLogicalInstance(spec, name);
}

}  // namespace IPConfig::Frameworks
