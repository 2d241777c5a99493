#include "NOCJsonReadWriteUtils.h"

#include "HCRapidJsonReadWriteUtils.h"
#include "HUTEnv.h"
#include "HUTFile.h"
#include "IPConfigMessages.h"

#include <initializer_list>

namespace NOC {

namespace {

std::string dataFile(std::initializer_list<const char*> pieces)
{
  const std::string& separator = HUTFile::getDirSeparator();
  std::string relativePath;
  for (const char* piece : pieces) {
    if (!relativePath.empty())
      relativePath += separator;
    relativePath += piece;
  }
  return HUTEnv::getKVRDataDir(relativePath) + separator + relativePath;
}

}  // namespace

std::string NOCJsonReadWriteUtils::getTrafficJsonSchemaFile()
{
  return dataFile({"parts", "tarnel", "common", "noc", "schemas", "traffic.json"});
}

std::string NOCJsonReadWriteUtils::getSolutionJsonSchemaFile()
{
  return dataFile({"parts", "tarnel", "common", "noc", "schemas", "solution.json"});
}

std::string NOCJsonReadWriteUtils::getConstraintsJsonSchemaFile()
{
  return dataFile({"parts", "tarnel", "common", "noc", "schemas", "constraints.json"});
}

std::string NOCJsonReadWriteUtils::getQPEShimConstraintsJsonSchemaFile()
{
  return getConstraintsJsonSchemaFile();
}

std::string NOCJsonReadWriteUtils::getLogicalArchJsonSchemaFile()
{
  return dataFile({"parts", "tarnel", "common", "merrow", "LogicalArchSchema.json"});
}

std::string NOCJsonReadWriteUtils::getZXSolutionJsonSchemaFile()
{
  return dataFile({"parts", "tarnel", "common", "merrow", "ZXSolutionSchema.json"});
}

bool NOCJsonReadWriteUtils::validateTrafficSchemaFile(const std::string& path)
{
  return HCRapidJsonReadWriteUtils::validateSchemaFile(path);
}

bool NOCJsonReadWriteUtils::validateSolutionSchemaFile(const std::string& path)
{
  return HCRapidJsonReadWriteUtils::validateSchemaFile(path);
}

bool NOCJsonReadWriteUtils::validateConstraintsSchemaFile(const std::string& path)
{
  return HCRapidJsonReadWriteUtils::validateSchemaFile(path);
}

bool NOCJsonReadWriteUtils::validateLogicalArchSchemaFile(const std::string& path)
{
  return HCRapidJsonReadWriteUtils::validateSchemaFile(path);
}

bool NOCJsonReadWriteUtils::validateZXSolutionSchemaFile(const std::string& path)
{
  return HCRapidJsonReadWriteUtils::validateSchemaFile(path);
}

void NOCJsonReadWriteUtils::issueInvalidPortForLogicalSlave(const std::string& port,
                                                            const std::string& instance)
{
  IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, "@73-30@%s%s", port, instance);
}

void NOCJsonReadWriteUtils::issueInvalidPortType(const std::string& port)
{
  IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, "@73-448@%s", port);
}

void NOCJsonReadWriteUtils::addIfSet(JValue& object, const char* key, bool value,
                                     JAllocator& alloc)
{
  if (value)
    HCRapidJsonReadWriteUtils::AddBooleanProperty(object, key, true, alloc);
}

void NOCJsonReadWriteUtils::addIfNotEmpty(JValue& object, const char* key,
                                          const std::string& value, JAllocator& alloc)
{
  if (!value.empty())
    HCRapidJsonReadWriteUtils::AddStringProperty(object, key, value, alloc);
}

void NOCJsonReadWriteUtils::addIfNotEmpty(JValue& object, const char* key,
                                          const std::vector<std::string>& values,
                                          JAllocator& alloc)
{
  if (!values.empty())
    HCRapidJsonReadWriteUtils::AddStringArrayProperty(object, key, values, alloc);
}

void NOCJsonReadWriteUtils::addIfNotEmpty(JValue& object, const char* key,
                                          const std::map<std::string, std::string>& map,
                                          JAllocator& alloc)
{
  if (map.empty())
    return;
  JValue members(rapidjson::kObjectType);
  for (const auto& [name, value] : map)
    HCRapidJsonReadWriteUtils::AddStringProperty(members, name, value, alloc);
  HCRapidJsonReadWriteUtils::AddGenericValueProperty(object, key, members, alloc);
}

}  // namespace NOC
