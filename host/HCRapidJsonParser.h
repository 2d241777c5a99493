#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_host_export.h"

#include <fstream>
#include <iosfwd>
#include <string>

// Parses JSON text from a stream into a document, for every reader.
//
// The stream is read into one buffer in large blocks, and the buffer parsed:
// a parser that pulls its text a character at a time through a stream spends
// most of its time there.
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
  // The same; `text` keeps what was read, for those who look into it again.
  static Result parse(std::istream& in, JDocument& document, std::string& problem,
                      std::string& text);

  // Opens the canonical name of `path`, which `canonicalName` receives. A
  // missing file, a directory or a stream that is not good is
  // errorReadingJsonFile with that name.
  static std::ifstream openJsonFile(const std::string& path, std::string& canonicalName);

  // Refuses a stream that is not good, then parses it; failures are reported
  // under `path` through errorReadingJsonFile or errorParsingJsonFile, and
  // for a schema through their schema forms.
  static void parseJsonFile(std::istream& in, const std::string& path, JDocument& document);
  static void parseJsonFile(std::istream& in, const std::string& path, JDocument& document,
                            std::string& text);
  static void parseSchemaFile(std::istream& in, const std::string& path, JDocument& document);
};
