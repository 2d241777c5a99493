#include "HCRapidJsonParser.h"

#include "HUTFile.h"
#include "isl/iostreams.h"

#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include <istream>

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

// The generator that GenericDocument::Populate runs: one iterative parse of
// the whole text, which has a NUL byte behind its end.
class IterativeParse {
public:
  explicit IterativeParse(const std::string& text) : text_(text) {}

  bool operator()(JDocument& document)
  {
    rapidjson::StringStream stream(text_.c_str());
    DepthLimitingHandler handler(document);
    rapidjson::Reader reader;
    result_ = reader.Parse<rapidjson::kParseIterativeFlag>(stream, handler);
    // A NUL byte ends the text for the parser: whatever follows one inside
    // the text is more than one root value.
    if (!result_.IsError() && stream.Tell() < text_.size())
      result_.Set(rapidjson::kParseErrorDocumentRootNotSingular, stream.Tell());
    return !result_.IsError();
  }

  const rapidjson::ParseResult& result() const { return result_; }

private:
  const std::string& text_;
  rapidjson::ParseResult result_;
};

constexpr std::size_t readBlock = std::size_t{1} << 16;

// Whatever `in` still holds, in large blocks rather than a character at a
// time: a decompressing stream decompresses into the text as it goes.
void readAll(std::istream& in, std::string& text)
{
  text.clear();
  // A string stream tells how much is left, a plain file its size to
  // parseJsonFile: either way the text then grows once.
  const std::streamsize left = in.rdbuf() ? in.rdbuf()->in_avail() : 0;
  if (left > 0)
    text.reserve(static_cast<std::size_t>(left) + readBlock);
  std::size_t size = 0;
  for (;;) {
    text.resize(size + readBlock);
    in.read(&text[size], static_cast<std::streamsize>(readBlock));
    const auto got = static_cast<std::size_t>(in.gcount());
    size += got;
    if (got < readBlock)
      break;
  }
  text.resize(size);
}

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
  std::string text;
  return parse(in, document, problem, text);
}

HCRapidJsonParser::Result HCRapidJsonParser::parse(std::istream& in, JDocument& document,
                                                   std::string& problem, std::string& text)
{
  document.SetNull();
  readAll(in, text);
  // A failed read would look like the end of the text to the parser: it is
  // told first, whatever the text up to there holds.
  if (in.bad()) {
    const std::string compression = isl::iostreams::compressionOf(in);
    if (compression.empty())
      return Result::unreadable;
    problem = "The " + compression + " compressed data is corrupt.";
    return Result::malformed;
  }
  IterativeParse parse(text);
  document.Populate(parse);
  if (parse.result().IsError()) {
    problem = describe(parse.result());
    return Result::malformed;
  }
  return Result::parsed;
}

std::ifstream HCRapidJsonParser::openJsonFile(const std::string& path, std::string& canonicalName)
{
  HUTFile(path).getCanonicalName(canonicalName);
  std::ifstream in(canonicalName, std::ios_base::binary);
  const HUTFile file(canonicalName);
  if (!file.exists() || !file.isFile() || !in.good())
    HCRapidJsonReadWriteUtils::errorReadingJsonFile(canonicalName);
  return in;
}

void HCRapidJsonParser::parseJsonFile(std::istream& in, const std::string& path,
                                      JDocument& document)
{
  std::string text;
  parseJsonFile(in, path, document, text);
}

void HCRapidJsonParser::parseJsonFile(std::istream& in, const std::string& path,
                                      JDocument& document, std::string& text)
{
  if (!in.good())
    HCRapidJsonReadWriteUtils::errorReadingJsonFile(path);
  // A plain file tells its size before it is read: the text then grows once,
  // instead of copying (and faulting in) every larger buffer on the way.
  if (isl::iostreams::compressionOf(in).empty())
    text.reserve(HUTFile(path).size() + readBlock);
  std::string problem;
  switch (parse(in, document, problem, text)) {
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
