#include "JsonFileFrame.h"

#include "IPConfigMessages.h"

#include <rapidjson/istreamwrapper.h>
#include <rapidjson/ostreamwrapper.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <istream>

namespace IPConfig {

namespace {

using PrettyWriter = rapidjson::PrettyWriter<rapidjson::OStreamWrapper>;

void setIndent(PrettyWriter& writer)
{
  writer.SetIndent(' ', 2);
}

}  // namespace

void JsonFileFrame::parse(std::istream& in, const std::string& fileName, JDocument& document)
{
  if (!in.good())
    HCRapidJsonReadWriteUtils::errorReadingJsonFile(fileName);
  rapidjson::IStreamWrapper wrapper(in);
  document.ParseStream(wrapper);
  if (document.HasParseError())
    HCRapidJsonReadWriteUtils::errorParsingJsonFile(
        fileName, HCRapidJsonReadWriteUtils::GetErrorMsgFromDocument(document));
}

std::unique_ptr<JSchemaDocument> JsonFileFrame::loadSchema(const std::string& schemaPath,
                                                           const InputFileStream::Opener& opener)
{
  std::string schemaName;
  HUTFile(schemaPath).getCanonicalName(schemaName);
  InputFileStream in(schemaName, std::ios_base::binary, opener);
  const HUTFile file(schemaName);
  if (!file.exists() || !file.isFile() || !in.good())
    HCRapidJsonReadWriteUtils::errorReadingSchemaFile(schemaName);
  JDocument schemaDocument;
  rapidjson::IStreamWrapper wrapper(in);
  schemaDocument.ParseStream(wrapper);
  if (schemaDocument.HasParseError())
    HCRapidJsonReadWriteUtils::errorParsingSchemaFile(
        schemaName, HCRapidJsonReadWriteUtils::GetErrorMsgFromDocument(schemaDocument));
  return std::make_unique<JSchemaDocument>(schemaDocument);
}

void JsonFileFrame::validate(const JDocument& document, const std::string& fileName,
                             const std::string& schemaPath, const InputFileStream::Opener& opener)
{
  const std::unique_ptr<JSchemaDocument> schema = loadSchema(schemaPath, opener);
  rapidjson::GenericSchemaValidator<JSchemaDocument> validator(*schema);
  if (document.Accept(validator))
    return;
  rapidjson::StringBuffer pointer;
  validator.GetInvalidDocumentPointer().Stringify(pointer);
  HCRapidJsonReadWriteUtils::errorParsingJsonFile(fileName, pointer.GetString());
}

bool JsonFileFrame::writeValidated(const JDocument& document, std::ostream& out,
                                   const std::string& schemaPath, const char* fileKind)
{
  const std::unique_ptr<JSchemaDocument> schema =
      loadSchema(schemaPath, isl::iostreams::basic_file());
  rapidjson::OStreamWrapper wrapper(out);
  PrettyWriter writer(wrapper);
  setIndent(writer);
  rapidjson::GenericSchemaValidator<JSchemaDocument, PrettyWriter> validator(*schema, writer);
  const bool valid = document.Accept(validator);
  if (!valid)
    IPCONFIG_SEND_MSG(ComMsgMgr::Error, "@75-585@%s", fileKind);
  return valid;
}

bool JsonFileFrame::writePretty(const JDocument& document, std::ostream& out)
{
  rapidjson::OStreamWrapper wrapper(out);
  PrettyWriter writer(wrapper);
  setIndent(writer);
  return document.Accept(writer);
}

}  // namespace IPConfig
