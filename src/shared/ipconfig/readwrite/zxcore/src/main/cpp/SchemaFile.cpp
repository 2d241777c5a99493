#include "SchemaFile.h"

#include "HUTEnv.h"
#include "HUTFile.h"
#include "IPConfigMessages.h"

#include <cstdlib>
#include <stdexcept>

namespace qpe::constraints {

std::string SchemaFile::findFileInDataDir(const std::string& name)
{
  std::string path = HUTEnv::getKVRDataDir(name) + HUTFile::getDirSeparator() + name;
  HUTFile(path).getCanonicalName(path);
  return HUTFile(path).isFile() ? path : std::string();
}

std::string SchemaFile::getConstraintsSchema()
{
  const std::string path = findFileInDataDir("qpetools_constr_schema.json");
  return path.empty() ? getConstraintsSchemaOld() : path;
}

std::string SchemaFile::getConstraintsSchemaOld()
{
  const std::string& separator = HUTFile::getDirSeparator();
  return findFileInDataDir("parts" + separator + "tarnel" + separator + "common" + separator +
                           "merrow" + separator + "QPEConstrSchema.json");
}

std::string SchemaFile::getLocalConstraintsSchema()
{
  const char* root = std::getenv("KVR_ROOT");
  if (!root)
    throw std::logic_error("SchemaFile::getLocalConstraintsSchema() - KVR_ROOT is not set");
  return std::string(root) + "/" + "src/shared/ipconfig/readwrite/zxcore" + "/" +
         "src/main/resources" + "/" + "data/qpetools_constr_schema.json";
}

std::unique_ptr<IPConfig::JSchemaDocument> SchemaFile::load(const std::string& path)
{
  HCRapidJsonReadWriteUtils::validateSchemaFile(path);
  return IPConfig::JsonFileFrame::loadSchema(path, isl::iostreams::basic_file());
}

HEXAll SchemaFile::violation_(const char* format, const std::string& file,
                              const char* schemaPointer, const char* keyword,
                              const char* documentPointer)
{
  ComMsgMgrInstance message = IPCONFIG_MAKE_MSG(ComMsgMgr::Error, format, file, schemaPointer,
                                                keyword, documentPointer);
  message.attachMetaType(0, ComMsgMgr::FILE, file, "");
  return HEXAll(message);
}

}  // namespace qpe::constraints
