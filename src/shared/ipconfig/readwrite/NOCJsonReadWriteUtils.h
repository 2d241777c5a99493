#pragma once

#include "ipconfig_readwrite_export.h"

#include <string>

namespace NOC {

// Finds the schema files of the JSON formats in the data directory, and sends
// the two messages about bad ports that several NoC readers share.
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
};

}  // namespace NOC
