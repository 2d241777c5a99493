#pragma once

#include "ipconfig_host_export.h"

#include <rapidjson/document.h>

#include <string>
#include <vector>

using JAllocator = rapidjson::MemoryPoolAllocator<rapidjson::CrtAllocator>;
using JValue = rapidjson::GenericValue<rapidjson::UTF8<char>, JAllocator>;
using JDocument = rapidjson::GenericDocument<rapidjson::UTF8<char>, JAllocator>;

// Property helpers over RapidJSON objects, and the reports of a failed read.
//
// Getters and testers are strict about the JSON type: IsIntegrProperty is
// RapidJSON's IsInt, IsDoubleProperty its IsDouble. A getter on a missing key,
// a value of another type or a non-object gives false, 0, 0.0, "" or {}.
// GetDoubleProperty alone takes any number, since every JSON integer is also
// a double. Add... appends a member without looking for one of the same key:
// some formats repeat keys, and a search would make writing quadratic.
//
// The error calls throw HEXAll and never return. Their messages, mask Error:
//   "@90-1@%s"   a JSON file cannot be read (path)
//   "@90-2@%s%s" a JSON file is malformed or breaks its schema (path, text)
//   "@90-3@%s"   a schema file cannot be read (path)
//   "@90-4@%s%s" a schema file is malformed (path, text)
//   "@90-5@%s%s" a schema path is unusable (path, reason)
class IPCONFIG_HOST_EXPORT HCRapidJsonReadWriteUtils {
public:
  static void AddBooleanProperty(JValue& object, const std::string& key, bool value,
                                 JAllocator& alloc);
  static void AddIntegrProperty(JValue& object, const std::string& key, int value,
                                JAllocator& alloc);
  static void AddULongProperty(JValue& object, const std::string& key, unsigned long value,
                               JAllocator& alloc);
  static void AddDoubleProperty(JValue& object, const std::string& key, double value,
                                JAllocator& alloc);
  static void AddStringProperty(JValue& object, const std::string& key, const std::string& value,
                                JAllocator& alloc);
  static void AddStringArrayProperty(JValue& object, const std::string& key,
                                     const std::vector<std::string>& values, JAllocator& alloc);
  // Moves `value` into the new member; `value` is left null.
  static void AddGenericValueProperty(JValue& object, const std::string& key, JValue& value,
                                      JAllocator& alloc);

  static bool GetBooleanProperty(const JValue& object, const std::string& key);
  static int GetIntegrProperty(const JValue& object, const std::string& key);
  static unsigned long GetULongProperty(const JValue& object, const std::string& key);
  static double GetDoubleProperty(const JValue& object, const std::string& key);
  static std::string GetStringProperty(const JValue& object, const std::string& key);
  // The string elements of the array, in order; other elements are passed over.
  static std::vector<std::string> GetStringArrayProperty(const JValue& object,
                                                         const std::string& key);

  static bool IsBooleanProperty(const JValue& object, const std::string& key);
  static bool IsIntegrProperty(const JValue& object, const std::string& key);
  static bool IsULongProperty(const JValue& object, const std::string& key);
  static bool IsDoubleProperty(const JValue& object, const std::string& key);
  static bool IsStringProperty(const JValue& object, const std::string& key);
  static bool IsArrayProperty(const JValue& object, const std::string& key);

  // True when `path` names a readable regular file; otherwise throws.
  static bool validateSchemaFile(const std::string& path);
  [[noreturn]] static void errorReadingJsonFile(const std::string& path);
  [[noreturn]] static void errorParsingJsonFile(const std::string& path, const std::string& text);
  [[noreturn]] static void errorReadingSchemaFile(const std::string& path);
  [[noreturn]] static void errorParsingSchemaFile(const std::string& path,
                                                  const std::string& text);

  // "Missing a comma or ']' after an array element. (offset 17)"
  static std::string GetErrorMsgFromDocument(const JDocument& document);
};
