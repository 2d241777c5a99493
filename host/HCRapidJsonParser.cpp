#include "HCRapidJsonParser.h"

#include "isl/iostreams.h"

#include <rapidjson/error/en.h>
#include <rapidjson/istreamwrapper.h>
#include <rapidjson/reader.h>

#include <istream>
#include <limits>

namespace {

// Passes every event on to the document and stops the parse, through the
// reader's termination error, at the first value nested too deep.
class DepthLimitingHandler {
public:
  explicit DepthLimitingHandler(JDocument& document) : document_(document) {}

  bool Null() { return document_.Null(); }
  bool Bool(bool value) { return document_.Bool(value); }
  bool Int(int value) { return document_.Int(value); }
  bool Uint(unsigned value) { return document_.Uint(value); }
  bool Int64(int64_t value) { return document_.Int64(value); }
  bool Uint64(uint64_t value) { return document_.Uint64(value); }
  bool Double(double value) { return document_.Double(value); }
  bool RawNumber(const char* text, rapidjson::SizeType length, bool copy)
  {
    return document_.RawNumber(text, length, copy);
  }
  bool String(const char* text, rapidjson::SizeType length, bool copy)
  {
    return document_.String(text, length, copy);
  }
  bool StartObject() { return enter() && document_.StartObject(); }
  bool Key(const char* text, rapidjson::SizeType length, bool copy)
  {
    return document_.Key(text, length, copy);
  }
  bool EndObject(rapidjson::SizeType memberCount)
  {
    --depth_;
    return document_.EndObject(memberCount);
  }
  bool StartArray() { return enter() && document_.StartArray(); }
  bool EndArray(rapidjson::SizeType elementCount)
  {
    --depth_;
    return document_.EndArray(elementCount);
  }

private:
  bool enter() { return ++depth_ <= HCRapidJsonParser::maxDepth; }

  JDocument& document_;
  unsigned depth_ = 0;
};

// The generator that GenericDocument::Populate runs: one iterative parse.
class IterativeParse {
public:
  explicit IterativeParse(std::istream& in) : in_(in) {}

  bool operator()(JDocument& document)
  {
    rapidjson::IStreamWrapper wrapper(in_);
    DepthLimitingHandler handler(document);
    rapidjson::Reader reader;
    result_ = reader.Parse<rapidjson::kParseIterativeFlag>(wrapper, handler);
    // The stream wrapper gives a NUL byte as the end of the text: whatever
    // follows it is more than one root value.
    if (!result_.IsError() && in_.peek() != std::istream::traits_type::eof())
      result_.Set(rapidjson::kParseErrorDocumentRootNotSingular, wrapper.Tell());
    return !result_.IsError();
  }

  const rapidjson::ParseResult& result() const { return result_; }

private:
  std::istream& in_;
  rapidjson::ParseResult result_;
};

std::string describe(const rapidjson::ParseResult& result)
{
  const std::string reason =
      result.Code() == rapidjson::kParseErrorTermination
          ? "Nesting deeper than " + std::to_string(HCRapidJsonParser::maxDepth) + " levels."
          : rapidjson::GetParseError_En(result.Code());
  return reason + " (offset " + std::to_string(result.Offset()) + ")";
}

}  // namespace

HCRapidJsonParser::Result HCRapidJsonParser::parse(std::istream& in, JDocument& document,
                                                   std::string& problem)
{
  document.SetNull();
  IterativeParse parse(in);
  document.Populate(parse);
  const std::string compression = isl::iostreams::compressionOf(in);
  // Corrupt compressed data mostly reads as malformed text before the
  // decompressor reaches its check: the rest is read to tell the two apart.
  if (parse.result().IsError() && !compression.empty())
    in.ignore(std::numeric_limits<std::streamsize>::max());
  // A failed read looks like the end of the text to the parser: it is checked
  // first, whatever the parser made of the truncated text.
  if (in.bad()) {
    document.SetNull();
    if (compression.empty())
      return Result::unreadable;
    problem = "The " + compression + " compressed data is corrupt.";
    return Result::malformed;
  }
  if (parse.result().IsError()) {
    problem = describe(parse.result());
    return Result::malformed;
  }
  return Result::parsed;
}

void HCRapidJsonParser::parseJsonFile(std::istream& in, const std::string& path,
                                      JDocument& document)
{
  std::string problem;
  switch (parse(in, document, problem)) {
  case Result::unreadable: HCRapidJsonReadWriteUtils::errorReadingJsonFile(path);
  case Result::malformed: HCRapidJsonReadWriteUtils::errorParsingJsonFile(path, problem);
  case Result::parsed: break;
  }
}

void HCRapidJsonParser::parseSchemaFile(std::istream& in, const std::string& path,
                                        JDocument& document)
{
  std::string problem;
  switch (parse(in, document, problem)) {
  case Result::unreadable: HCRapidJsonReadWriteUtils::errorReadingSchemaFile(path);
  case Result::malformed: HCRapidJsonReadWriteUtils::errorParsingSchemaFile(path, problem);
  case Result::parsed: break;
  }
}
