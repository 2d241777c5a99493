#include "HCRapidJsonReadWriteUtils.h"

#include "ComMsgMgrInstance.h"
#include "HEXAll.h"
#include "HUTFileUtils.h"

#include <rapidjson/error/en.h>

namespace {

const JValue* findMember(const JValue& object, const std::string& key)
{
  if (!object.IsObject())
    return nullptr;
  const auto member = object.FindMember(key.c_str());
  return member == object.MemberEnd() ? nullptr : &member->value;
}

bool memberIs(const JValue& object, const std::string& key, bool (JValue::*isType)() const)
{
  const JValue* value = findMember(object, key);
  return value && (value->*isType)();
}

JValue copyOf(const std::string& text, JAllocator& alloc)
{
  return JValue(text.c_str(), static_cast<rapidjson::SizeType>(text.size()), alloc);
}

template <typename... Args>
[[noreturn]] void throwError(int line, const char* format, const std::string& path,
                             const Args&... more)
{
  ComMsgMgrInstance message = ComMsgMgrInstance::createInstance::eval(
      1 + sizeof...(Args), __FILE__, line, "ipconfig", ComMsgMgr::Error, format, path.c_str(),
      more.c_str()...);
  message.attachMetaType(0, ComMsgMgr::FILE, path, "");
  throw HEXAll(message);
}

}  // namespace

void HCRapidJsonReadWriteUtils::AddBooleanProperty(JValue& object, const std::string& key,
                                                   bool value, JAllocator& alloc)
{
  object.AddMember(copyOf(key, alloc), JValue(value), alloc);
}

void HCRapidJsonReadWriteUtils::AddIntegrProperty(JValue& object, const std::string& key,
                                                  int value, JAllocator& alloc)
{
  object.AddMember(copyOf(key, alloc), JValue(value), alloc);
}

void HCRapidJsonReadWriteUtils::AddULongProperty(JValue& object, const std::string& key,
                                                 unsigned long value, JAllocator& alloc)
{
  object.AddMember(copyOf(key, alloc), JValue(static_cast<uint64_t>(value)), alloc);
}

void HCRapidJsonReadWriteUtils::AddDoubleProperty(JValue& object, const std::string& key,
                                                  double value, JAllocator& alloc)
{
  object.AddMember(copyOf(key, alloc), JValue(value), alloc);
}

void HCRapidJsonReadWriteUtils::AddStringProperty(JValue& object, const std::string& key,
                                                  const std::string& value, JAllocator& alloc)
{
  object.AddMember(copyOf(key, alloc), copyOf(value, alloc), alloc);
}

void HCRapidJsonReadWriteUtils::AddStringArrayProperty(JValue& object, const std::string& key,
                                                       const std::vector<std::string>& values,
                                                       JAllocator& alloc)
{
  JValue array(rapidjson::kArrayType);
  array.Reserve(static_cast<rapidjson::SizeType>(values.size()), alloc);
  for (const std::string& value : values)
    array.PushBack(copyOf(value, alloc), alloc);
  object.AddMember(copyOf(key, alloc), array, alloc);
}

void HCRapidJsonReadWriteUtils::AddGenericValueProperty(JValue& object, const std::string& key,
                                                        JValue& value, JAllocator& alloc)
{
  object.AddMember(copyOf(key, alloc), value, alloc);
}

bool HCRapidJsonReadWriteUtils::GetBooleanProperty(const JValue& object, const std::string& key)
{
  const JValue* value = findMember(object, key);
  return value && value->IsBool() && value->GetBool();
}

int HCRapidJsonReadWriteUtils::GetIntegrProperty(const JValue& object, const std::string& key)
{
  const JValue* value = findMember(object, key);
  return value && value->IsInt() ? value->GetInt() : 0;
}

unsigned long HCRapidJsonReadWriteUtils::GetULongProperty(const JValue& object,
                                                          const std::string& key)
{
  const JValue* value = findMember(object, key);
  return value && value->IsUint64() ? value->GetUint64() : 0;
}

double HCRapidJsonReadWriteUtils::GetDoubleProperty(const JValue& object, const std::string& key)
{
  const JValue* value = findMember(object, key);
  return value && value->IsNumber() ? value->GetDouble() : 0.0;
}

std::string HCRapidJsonReadWriteUtils::GetStringProperty(const JValue& object,
                                                         const std::string& key)
{
  const JValue* value = findMember(object, key);
  if (!value || !value->IsString())
    return {};
  return std::string(value->GetString(), value->GetStringLength());
}

std::vector<std::string> HCRapidJsonReadWriteUtils::GetStringArrayProperty(
    const JValue& object, const std::string& key)
{
  std::vector<std::string> strings;
  const JValue* value = findMember(object, key);
  if (!value || !value->IsArray())
    return strings;
  strings.reserve(value->Size());
  for (const JValue& element : value->GetArray())
    if (element.IsString())
      strings.emplace_back(element.GetString(), element.GetStringLength());
  return strings;
}

bool HCRapidJsonReadWriteUtils::IsBooleanProperty(const JValue& object, const std::string& key)
{
  return memberIs(object, key, &JValue::IsBool);
}

bool HCRapidJsonReadWriteUtils::IsIntegrProperty(const JValue& object, const std::string& key)
{
  return memberIs(object, key, &JValue::IsInt);
}

bool HCRapidJsonReadWriteUtils::IsULongProperty(const JValue& object, const std::string& key)
{
  return memberIs(object, key, &JValue::IsUint64);
}

bool HCRapidJsonReadWriteUtils::IsDoubleProperty(const JValue& object, const std::string& key)
{
  return memberIs(object, key, &JValue::IsDouble);
}

bool HCRapidJsonReadWriteUtils::IsStringProperty(const JValue& object, const std::string& key)
{
  return memberIs(object, key, &JValue::IsString);
}

bool HCRapidJsonReadWriteUtils::IsArrayProperty(const JValue& object, const std::string& key)
{
  return memberIs(object, key, &JValue::IsArray);
}

bool HCRapidJsonReadWriteUtils::validateSchemaFile(const std::string& path)
{
  const std::string problem =
      path.empty() ? "no schema path given" : HUTFileUtils::checkFileForReading(path, {});
  if (!problem.empty())
    throwError(__LINE__, "@90-5@%s%s", path, problem);
  return true;
}

void HCRapidJsonReadWriteUtils::errorReadingJsonFile(const std::string& path)
{
  throwError(__LINE__, "@90-1@%s", path);
}

void HCRapidJsonReadWriteUtils::errorParsingJsonFile(const std::string& path,
                                                     const std::string& text)
{
  throwError(__LINE__, "@90-2@%s%s", path, text);
}

void HCRapidJsonReadWriteUtils::errorReadingSchemaFile(const std::string& path)
{
  throwError(__LINE__, "@90-3@%s", path);
}

void HCRapidJsonReadWriteUtils::errorParsingSchemaFile(const std::string& path,
                                                       const std::string& text)
{
  throwError(__LINE__, "@90-4@%s%s", path, text);
}

std::string HCRapidJsonReadWriteUtils::GetErrorMsgFromDocument(const JDocument& document)
{
  if (!document.HasParseError())
    return {};
  return std::string(rapidjson::GetParseError_En(document.GetParseError())) + " (offset " +
         std::to_string(document.GetErrorOffset()) + ")";
}
