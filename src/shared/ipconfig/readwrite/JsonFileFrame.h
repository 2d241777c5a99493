#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"
#include "isl/iostreams.h"

#include <rapidjson/schema.h>

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>

namespace IPConfig {

using InputFileStream = isl::iostreams::filtering_stream<isl::iostreams::input>;
using JSchemaDocument = rapidjson::GenericSchemaDocument<JValue>;

// The steps every JSON file other than the constraints file passes through
// before its first key is read and after its last key is set. Failures of a
// read go through the HCRapidJsonReadWriteUtils error calls, which throw;
// whatever the caller filled before stays filled.
class IPCONFIG_READWRITE_EXPORT JsonFileFrame {
public:
  enum class OpenCheck {
    refuseUnopened,   // a stream that failed to open gives false at once
    writeRegardless,  // the document is still built and validated; the text is lost
  };

  using StreamReader = std::function<void(std::istream& in, const std::string& canonicalName)>;
  using StreamWriter = std::function<bool(std::ostream& out)>;

  // Reading, path form: opens the canonical name of `path` with `opener` and
  // hands the stream and that name to `readStream`. A missing file, a
  // directory or a stream that is not good is errorReadingJsonFile.
  static void readFile(const std::string& path, const InputFileStream::Opener& opener,
                       const StreamReader& readStream);

  // Reading, stream form: refuses a stream that is not good, then parses it.
  static void parse(std::istream& in, const std::string& fileName, JDocument& document);

  // Validates `document` against the schema at `schemaPath`; a violation is
  // errorParsingJsonFile with the JSON pointer of the offending value.
  static void validate(const JDocument& document, const std::string& fileName,
                       const std::string& schemaPath, const InputFileStream::Opener& opener);

  // Opens, parses and compiles a schema, reported under its canonical name.
  static std::unique_ptr<JSchemaDocument> loadSchema(const std::string& schemaPath,
                                                     const InputFileStream::Opener& opener);

  // Writing, path form: opens the canonical name of `path` for output, calls
  // `writeStream`, closes the file; a failed close sets failbit on the stream
  // and leaves the result as `writeStream` gave it.
  static bool writeFile(const std::string& path, OpenCheck check, const StreamWriter& writeStream);

  // Writing, stream form: one walk validates the document and pretty-prints
  // it. A document that fails its schema sends "@75-585@%s" with `fileKind`,
  // leaves the text written so far, and gives false.
  static bool writeValidated(const JDocument& document, std::ostream& out,
                             const std::string& schemaPath, const char* fileKind);

  // Writing, stream form, as writeValidated, but a failure sends
  // "@75-645@%s%s%s" with where it failed: the schema pointer, the schema
  // keyword (empty if none) and the document pointer.
  static bool writeValidatedWithPointers(const JDocument& document, std::ostream& out,
                                         const std::string& schemaPath);

  // Writing, stream form, without a message: gives whether the document
  // passed its schema; the text stops at the first value that failed.
  static bool writeThroughSchema(const JDocument& document, std::ostream& out,
                                 const std::string& schemaPath);

  // Writing a file that has no schema: false if the writer refused a value.
  static bool writePretty(const JDocument& document, std::ostream& out);
};

}  // namespace IPConfig
