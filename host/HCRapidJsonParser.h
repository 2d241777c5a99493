#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_host_export.h"

#include <iosfwd>
#include <string>

// Parses JSON text from a stream into a document, for every reader.
//
// The parse runs without recursion, so no input can exhaust the call stack,
// and it refuses text nested deeper than maxDepth: no real file comes near,
// and everything that walks the tree afterwards (schema validation, a
// reader, a writer) does so recursively, in time that grows with the depth.
// A stream that fails part way through is told apart from malformed text: a
// decompressing stream whose data is corrupt names its compression.
class IPCONFIG_HOST_EXPORT HCRapidJsonParser {
public:
  static constexpr unsigned maxDepth = 1000;

  enum class Result {
    parsed,      // `document` holds the text's value
    unreadable,  // the stream failed while it was read
    malformed,   // `problem` says why, in the words of GetErrorMsgFromDocument
  };

  // On anything but `parsed`, `document` is left null.
  static Result parse(std::istream& in, JDocument& document, std::string& problem);

  // The same, reported under `path` through errorReadingJsonFile or
  // errorParsingJsonFile, and for a schema through their schema forms.
  static void parseJsonFile(std::istream& in, const std::string& path, JDocument& document);
  static void parseSchemaFile(std::istream& in, const std::string& path, JDocument& document);
};
