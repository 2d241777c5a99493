#pragma once

#include "HCRapidJsonReadWriteUtils.h"

#include <rapidjson/istreamwrapper.h>
#include <rapidjson/schema.h>

#include <fstream>
#include <sstream>
#include <string>

// The floor of a reader's time: RapidJSON alone parses `text` from a stream
// and validates it with the schema at `schemaPath`, read and compiled anew
// as every reader does.
inline bool parseAndValidate(const std::string& text, const std::string& schemaPath)
{
  std::istringstream in(text);
  rapidjson::IStreamWrapper wrapper(in);
  JDocument document;
  document.ParseStream(wrapper);
  std::ifstream schemaFile(schemaPath, std::ios::binary);
  rapidjson::IStreamWrapper schemaWrapper(schemaFile);
  JDocument schemaDocument;
  schemaDocument.ParseStream(schemaWrapper);
  const rapidjson::SchemaDocument schema(schemaDocument);
  rapidjson::SchemaValidator validator(schema);
  return document.Accept(validator);
}
