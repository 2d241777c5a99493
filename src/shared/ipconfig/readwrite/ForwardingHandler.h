#pragma once

#include <rapidjson/rapidjson.h>

#include <cstdint>

namespace IPConfig {

// A RapidJSON handler that passes every event on to `Target`, such as a
// writer, or nowhere when default-made. A schema validator with an output
// handler hands a default-made one to the validators it makes for parts of a
// schema (pattern properties, combinations); a writer made that way has no
// stream, which is why a writer is wrapped in this rather than given to the
// validator itself.
template <typename Target>
class ForwardingHandler {
public:
  using Ch = typename Target::Ch;

  ForwardingHandler() = default;
  explicit ForwardingHandler(Target& target) : target(&target) {}

  bool Null() { return !target || target->Null(); }
  bool Bool(bool b) { return !target || target->Bool(b); }
  bool Int(int i) { return !target || target->Int(i); }
  bool Uint(unsigned u) { return !target || target->Uint(u); }
  bool Int64(std::int64_t i) { return !target || target->Int64(i); }
  bool Uint64(std::uint64_t u) { return !target || target->Uint64(u); }
  bool Double(double d) { return !target || target->Double(d); }
  bool RawNumber(const Ch* text, rapidjson::SizeType length, bool copy)
  {
    return !target || target->RawNumber(text, length, copy);
  }
  bool String(const Ch* text, rapidjson::SizeType length, bool copy)
  {
    return !target || target->String(text, length, copy);
  }
  bool StartObject() { return !target || target->StartObject(); }
  bool Key(const Ch* text, rapidjson::SizeType length, bool copy)
  {
    return !target || target->Key(text, length, copy);
  }
  bool EndObject(rapidjson::SizeType count) { return !target || target->EndObject(count); }
  bool StartArray() { return !target || target->StartArray(); }
  bool EndArray(rapidjson::SizeType count) { return !target || target->EndArray(count); }

private:
  Target* target = nullptr;
};

}  // namespace IPConfig
