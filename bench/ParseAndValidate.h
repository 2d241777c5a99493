#pragma once

#include "ForwardingHandler.h"
#include "HCRapidJsonReadWriteUtils.h"

#include <rapidjson/istreamwrapper.h>
#include <rapidjson/ostreamwrapper.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/schema.h>

#include <fstream>
#include <memory>
#include <sstream>
#include <string>

// The schema at `schemaPath`, read and compiled anew as every reader and
// writer does.
inline std::unique_ptr<rapidjson::SchemaDocument> loadSchema(const std::string& schemaPath)
{
  std::ifstream schemaFile(schemaPath, std::ios::binary);
  rapidjson::IStreamWrapper schemaWrapper(schemaFile);
  JDocument schemaDocument;
  schemaDocument.ParseStream(schemaWrapper);
  return std::make_unique<rapidjson::SchemaDocument>(schemaDocument);
}

// The floor of a reader's time: RapidJSON alone parses `text` from a stream
// and validates it with the schema at `schemaPath`.
inline bool parseAndValidate(const std::string& text, const std::string& schemaPath)
{
  std::istringstream in(text);
  rapidjson::IStreamWrapper wrapper(in);
  JDocument document;
  document.ParseStream(wrapper);
  const std::unique_ptr<rapidjson::SchemaDocument> schema = loadSchema(schemaPath);
  rapidjson::SchemaValidator validator(*schema);
  return document.Accept(validator);
}

// The floor of a writer's time: RapidJSON alone passes `document` through a
// validator of the schema at `schemaPath` into a pretty writer on `out`, with
// the indent of the library's files.
inline bool validateAndPrettyPrint(const JDocument& document, std::ostream& out,
                                   const std::string& schemaPath)
{
  using PrettyWriter = rapidjson::PrettyWriter<rapidjson::OStreamWrapper>;
  const std::unique_ptr<rapidjson::SchemaDocument> schema = loadSchema(schemaPath);
  rapidjson::OStreamWrapper wrapper(out);
  PrettyWriter writer(wrapper);
  writer.SetIndent(' ', 2);
  IPConfig::ForwardingHandler<PrettyWriter> toWriter(writer);
  rapidjson::GenericSchemaValidator<rapidjson::SchemaDocument, decltype(toWriter)> validator(
      *schema, toWriter);
  return document.Accept(validator);
}
