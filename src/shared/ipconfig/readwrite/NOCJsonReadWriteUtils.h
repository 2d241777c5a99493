#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <map>
#include <string>
#include <vector>

namespace NOC {

// Finds the schema files of the JSON formats in the data directory, sends
// the two messages about bad ports that several NoC readers share, and adds
// the optional keys that the writers leave out when unset.
class IPCONFIG_READWRITE_EXPORT NOCJsonReadWriteUtils {
public:
  // Full paths; the files are not looked at here.
  static std::string getTrafficJsonSchemaFile();
  static std::string getSolutionJsonSchemaFile();
  static std::string getConstraintsJsonSchemaFile();
  // The NoC constraints schema, deliberately: shim constraints share its format.
  static std::string getQPEShimConstraintsJsonSchemaFile();
  static std::string getLogicalArchJsonSchemaFile();
  static std::string getZXSolutionJsonSchemaFile();

  static bool validateTrafficSchemaFile(const std::string& path);
  static bool validateSolutionSchemaFile(const std::string& path);
  static bool validateConstraintsSchemaFile(const std::string& path);
  static bool validateLogicalArchSchemaFile(const std::string& path);
  static bool validateZXSolutionSchemaFile(const std::string& path);

  // "@73-30@%s%s", critical warning: the caller skips the port and goes on.
  static void issueInvalidPortForLogicalSlave(const std::string& port,
                                              const std::string& instance);
  // "@73-448@%s", critical warning: the caller skips the port and goes on.
  static void issueInvalidPortType(const std::string& port);

  // Optional keys: a flag is written only when true, a text, a list or a map
  // only when not empty. A map becomes an object, in its sorted order.
  static void addIfSet(JValue& object, const char* key, bool value, JAllocator& alloc);
  static void addIfNotEmpty(JValue& object, const char* key, const std::string& value,
                            JAllocator& alloc);
  static void addIfNotEmpty(JValue& object, const char* key,
                            const std::vector<std::string>& values, JAllocator& alloc);
  static void addIfNotEmpty(JValue& object, const char* key,
                            const std::map<std::string, std::string>& map, JAllocator& alloc);
};

}  // namespace NOC
