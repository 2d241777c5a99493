#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ZXLogicalArchForward.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <string>

class HDGUIStatus;

namespace IPConfig::Frameworks {

// Reads a logical architecture file (schema "LogicalArchSchema.json") into a
// model: the PL, compute-array and NoC instances with their ports, then the
// connections. Reading adds to the model: an instance whose name the model
// knows is skipped with its ports, and an endpoint that names no known port
// is dropped. A file that fails its schema throws the HEXAll of the
// HCRapidJsonReadWriteUtils error calls before the model is touched. The
// status, when given, goes 20, 40, 60, 80, 100 as the sections are read.
class IPCONFIG_READWRITE_EXPORT ZXLogicalArchReader {
public:
  // Return true.
  bool readFromJsonFile(const std::string& fileName, ZXLogicalArchModel& model);
  bool readFromJsonFile(const std::string& fileName, ZXLogicalArchModel& model,
                        HDGUIStatus& status);
  // `fileName` names the stream in messages.
  bool readFromJsonFile(std::istream& in, const std::string& fileName, ZXLogicalArchModel& model);
  bool readFromJsonFile(std::istream& in, const std::string& fileName, ZXLogicalArchModel& model,
                        HDGUIStatus& status);

private:
  static bool readFromJsonFile_(const std::string& fileName, ZXLogicalArchModel& model,
                                HDGUIStatus* status);
  static bool readFromJsonFile_(std::istream& in, const std::string& fileName,
                                ZXLogicalArchModel& model, HDGUIStatus* status);
  static void readProperties_(const JValue& root, ZXLogicalArchModel& model);
  static void readPLInstances_(const JValue& root, ZXLogicalArchModel& model);
  static void readZXInstances_(const JValue& root, ZXLogicalArchModel& model);
  static void readNOCInstances_(const JValue& root, ZXLogicalArchModel& model);
  static void readConnections_(const JValue& root, ZXLogicalArchModel& model);
};

}  // namespace IPConfig::Frameworks
