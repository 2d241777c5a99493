#pragma once

#include "HEXAll.h"
#include "JsonFileFrame.h"
#include "ipconfig_readwrite_export.h"

#include <rapidjson/stringbuffer.h>

#include <memory>
#include <string>

namespace qpe::constraints {

// The schema of the constraints file: where it lies in the data directory,
// loading it, and the report of a file that breaks it.
class IPCONFIG_READWRITE_EXPORT SchemaFile {
public:
  // The canonical path of `name` under the data directory; empty when that is
  // no regular file.
  static std::string findFileInDataDir(const std::string& name);
  // "qpetools_constr_schema.json", else the file at the old path; empty when
  // neither is there.
  static std::string getConstraintsSchema();
  // "parts/tarnel/common/merrow/QPEConstrSchema.json" in the data directory.
  static std::string getConstraintsSchemaOld();
  // The schema inside a source tree at $KVR_ROOT, for development; whether
  // the file exists is not tested. Throws std::logic_error when KVR_ROOT is
  // not set.
  static std::string getLocalConstraintsSchema();

  // Checks, reads and compiles the schema at `path`; a failure throws through
  // the error calls of HCRapidJsonReadWriteUtils.
  static std::unique_ptr<IPConfig::JSchemaDocument> load(const std::string& path);

  // The exception for a document that `validator` found breaking the schema:
  // `format` with the file, the schema pointer, the keyword and the document
  // pointer, mask Error, the file attached.
  template <typename Validator>
  static HEXAll violation(const char* format, const std::string& file, const Validator& validator)
  {
    rapidjson::StringBuffer schemaPointer;
    validator.GetInvalidSchemaPointer().Stringify(schemaPointer);
    rapidjson::StringBuffer documentPointer;
    validator.GetInvalidDocumentPointer().Stringify(documentPointer);
    return violation_(format, file, schemaPointer.GetString(), validator.GetInvalidSchemaKeyword(),
                      documentPointer.GetString());
  }

private:
  static HEXAll violation_(const char* format, const std::string& file, const char* schemaPointer,
                           const char* keyword, const char* documentPointer);
};

}  // namespace qpe::constraints
