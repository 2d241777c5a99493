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

}  // namespace NOC
