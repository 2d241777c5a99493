#pragma once

#include "BesideFloor.h"
#include "ForwardingHandler.h"
#include "HCRapidJsonReadWriteUtils.h"

#include <rapidjson/istreamwrapper.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/schema.h>
#include <rapidjson/stringbuffer.h>

#include <fstream>
#include <memory>
#include <ostream>
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

// Floor `a` of a reader's time: RapidJSON alone parses `text` from memory.
inline bool parseText(const std::string& text, JDocument& document)
{
  document.Parse(text.c_str(), text.size());
  return !document.HasParseError();
}

// Floor `b`: `a`, and the schema at `schemaPath` loaded and validating.
inline bool parseAndValidate(const std::string& text, const std::string& schemaPath)
{
  JDocument document;
  parseText(text, document);
  const std::unique_ptr<rapidjson::SchemaDocument> schema = loadSchema(schemaPath);
  rapidjson::SchemaValidator validator(*schema);
  return document.Accept(validator);
}

// Floor `wb` of a writer's time: RapidJSON alone passes `document` through a
// validator of the schema at `schemaPath` into a pretty writer, with the
// indent and `formatOptions` of the library's files, into memory, and hands
// the text to `out` in one block.
inline bool validateAndPrettyPrint(
    const JDocument& document, std::ostream& out, const std::string& schemaPath,
    rapidjson::PrettyFormatOptions formatOptions = rapidjson::kFormatDefault)
{
  using PrettyWriter = rapidjson::PrettyWriter<rapidjson::StringBuffer>;
  const std::unique_ptr<rapidjson::SchemaDocument> schema = loadSchema(schemaPath);
  rapidjson::StringBuffer text;
  PrettyWriter writer(text);
  writer.SetIndent(' ', 2);
  writer.SetFormatOptions(formatOptions);
  IPConfig::ForwardingHandler<PrettyWriter> toWriter(writer);
  rapidjson::GenericSchemaValidator<rapidjson::SchemaDocument, decltype(toWriter)> validator(
      *schema, toWriter);
  const bool valid = document.Accept(validator);
  out.write(text.GetString(), static_cast<std::streamsize>(text.GetSize()));
  out.flush();
  return valid;
}

// Floor `w` of a writer whose file has no schema: RapidJSON alone
// pretty-prints `document` as the library's files are, into memory, and hands
// the text to `out` in one block.
inline bool prettyPrint(const JDocument& document, std::ostream& out)
{
  rapidjson::StringBuffer text;
  rapidjson::PrettyWriter<rapidjson::StringBuffer> writer(text);
  writer.SetIndent(' ', 2);
  const bool written = document.Accept(writer);
  out.write(text.GetString(), static_cast<std::streamsize>(text.GetSize()));
  out.flush();
  return written;
}

// A reader's floor `a` on `text` beside the library, under x_a.
inline void parseFloor(BesideFloors& runs, const std::string& text)
{
  runs.floor("x_a", [&] {
    JDocument document;
    benchmark::DoNotOptimize(parseText(text, document));
  });
}

// A reader's floors `a` and `b` on `text` beside the library, under x_a and
// x_b.
inline void readFloors(BesideFloors& runs, const std::string& text, const std::string& schemaPath)
{
  parseFloor(runs, text);
  runs.floor("x_b", [&] { benchmark::DoNotOptimize(parseAndValidate(text, schemaPath)); });
}

// What `write` writes to the stream it is given, parsed: the document of a
// writer's floor.
template <typename Write>
JDocument writtenDocument(const Write& write)
{
  std::ostringstream out;
  write(out);
  JDocument document;
  document.Parse(out.str().c_str());
  return document;
}

// A writer's floor `wb` on the document it writes, into memory, beside the
// library, under x_wb.
inline void writeFloor(BesideFloors& runs, const JDocument& document,
                       const std::string& schemaPath,
                       rapidjson::PrettyFormatOptions formatOptions = rapidjson::kFormatDefault)
{
  runs.floor("x_wb", [&] {
    std::ostringstream out;
    benchmark::DoNotOptimize(validateAndPrettyPrint(document, out, schemaPath, formatOptions));
  });
}
