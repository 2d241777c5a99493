#include "JsonFileFrame.h"

#include "HCBufferedOStream.h"
#include "HCRapidJsonParser.h"
#include "HUTFile.h"
#include "HUTFileWriteStream.h"
#include "ForwardingHandler.h"
#include "IPConfigMessages.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <istream>

namespace IPConfig {

namespace {

using PrettyWriter = rapidjson::PrettyWriter<HCBufferedOStream>;

void setIndent(PrettyWriter& writer)
{
  writer.SetIndent(' ', 2);
}

using PrintingValidator =
    rapidjson::GenericSchemaValidator<JSchemaDocument, ForwardingHandler<PrettyWriter>>;

// One walk: `document` is validated against the schema at `schemaPath` and
// printed as it goes; a failed walk shows `reportFailure` the validator.
template <typename ReportFailure>
bool validateAndPrint(const JDocument& document, std::ostream& out, const std::string& schemaPath,
                      const ReportFailure& reportFailure)
{
  const std::unique_ptr<JSchemaDocument> schema =
      JsonFileFrame::loadSchema(schemaPath, isl::iostreams::basic_file());
  HCBufferedOStream buffered(out);
  PrettyWriter writer(buffered);
  setIndent(writer);
  ForwardingHandler<PrettyWriter> toWriter(writer);
  PrintingValidator validator(*schema, toWriter);
  const bool valid = document.Accept(validator);
  if (!valid)
    reportFailure(validator);
  return valid;
}

std::string stringify(const PrintingValidator::PointerType& pointer)
{
  rapidjson::StringBuffer text;
  pointer.Stringify(text);
  return text.GetString();
}

// Opens the canonical name of `path`; `readable` tells whether it is an
// existing regular file on a good stream.
struct OpenedInput {
  std::string canonicalName;
  std::unique_ptr<InputFileStream> stream;
  bool readable;
};

OpenedInput openInput(const std::string& path, const InputFileStream::Opener& opener)
{
  OpenedInput input;
  HUTFile(path).getCanonicalName(input.canonicalName);
  input.stream = std::make_unique<InputFileStream>(input.canonicalName, std::ios_base::binary,
                                                   opener);
  const HUTFile file(input.canonicalName);
  input.readable = file.exists() && file.isFile() && input.stream->good();
  return input;
}

}  // namespace

void JsonFileFrame::readFile(const std::string& path, const InputFileStream::Opener& opener,
                             const StreamReader& readStream)
{
  const OpenedInput input = openInput(path, opener);
  if (!input.readable)
    HCRapidJsonReadWriteUtils::errorReadingJsonFile(input.canonicalName);
  readStream(*input.stream, input.canonicalName);
}

void JsonFileFrame::parse(std::istream& in, const std::string& fileName, JDocument& document)
{
  HCRapidJsonParser::parseJsonFile(in, fileName, document);
}

std::unique_ptr<JSchemaDocument> JsonFileFrame::loadSchema(const std::string& schemaPath,
                                                           const InputFileStream::Opener& opener)
{
  const OpenedInput input = openInput(schemaPath, opener);
  if (!input.readable)
    HCRapidJsonReadWriteUtils::errorReadingSchemaFile(input.canonicalName);
  JDocument schemaDocument;
  HCRapidJsonParser::parseSchemaFile(*input.stream, input.canonicalName, schemaDocument);
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

bool JsonFileFrame::writeFile(const std::string& path, OpenCheck check,
                              const StreamWriter& writeStream)
{
  std::string canonicalName;
  HUTFile(path).getCanonicalName(canonicalName);
  HUTFileWriteStream out(canonicalName, std::ios_base::out);
  if (check == OpenCheck::refuseUnopened && out.fail())
    return false;
  const bool written = writeStream(out);
  if (!out.rdbuf()->close())
    out.setstate(std::ios_base::failbit);
  return written;
}

bool JsonFileFrame::writeValidated(const JDocument& document, std::ostream& out,
                                   const std::string& schemaPath, const char* fileKind)
{
  const bool valid = writeThroughSchema(document, out, schemaPath);
  if (!valid)
    IPCONFIG_SEND_MSG(ComMsgMgr::Error, "@75-585@%s", fileKind);
  return valid;
}

bool JsonFileFrame::writeValidatedWithPointers(const JDocument& document, std::ostream& out,
                                               const std::string& schemaPath)
{
  return validateAndPrint(document, out, schemaPath, [](const PrintingValidator& validator) {
    const char* keyword = validator.GetInvalidSchemaKeyword();
    IPCONFIG_SEND_MSG(ComMsgMgr::Error, "@75-645@%s%s%s",
                      stringify(validator.GetInvalidSchemaPointer()), keyword ? keyword : "",
                      stringify(validator.GetInvalidDocumentPointer()));
  });
}

bool JsonFileFrame::writeThroughSchema(const JDocument& document, std::ostream& out,
                                       const std::string& schemaPath)
{
  return validateAndPrint(document, out, schemaPath, [](const PrintingValidator&) {});
}

bool JsonFileFrame::writePretty(const JDocument& document, std::ostream& out)
{
  HCBufferedOStream buffered(out);
  PrettyWriter writer(buffered);
  setIndent(writer);
  return document.Accept(writer);
}

}  // namespace IPConfig
