#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ZXLogicalArchForward.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <string>

class HDGUIStatus;

namespace IPConfig::Frameworks {

// Writes a logical architecture model as a file of the schema
// "LogicalArchSchema.json", validating as it writes. With a prefix, only the
// instances and connections whose names begin with it are written, under
// their names with the prefix and then one "/" taken out.
//
// An empty model gives false and no text. Otherwise the result is true even
// when the document fails the schema: the text then stops at the failing
// value. The status is accepted for the caller's convenience and not used.
class IPCONFIG_READWRITE_EXPORT ZXLogicalArchWriter {
public:
  bool writeToJsonFile(std::ostream& out, const ZXLogicalArchModel& model);
  bool writeToJsonFile(std::ostream& out, const ZXLogicalArchModel& model, HDGUIStatus& status);
  bool writeToJsonFile(const std::string& prefix, std::ostream& out,
                       const ZXLogicalArchModel& model, HDGUIStatus& status);
  // False, with nothing written, when the file cannot be opened.
  bool writeToJsonFile(const std::string& fileName, const ZXLogicalArchModel& model);
  bool writeToJsonFile(const std::string& fileName, const ZXLogicalArchModel& model,
                       HDGUIStatus& status);

private:
  static bool writeToJsonFile_(const std::string& prefix, std::ostream& out,
                               const ZXLogicalArchModel& model);
  static void writeProperties_(const ZXLogicalArchModel& model, JValue& root, JAllocator& alloc);
  static void writeZXInstances_(const std::string& prefix, const ZXLogicalArchModel& model,
                                JValue& root, JAllocator& alloc);
  static void writeNOCInstances_(const std::string& prefix, const ZXLogicalArchModel& model,
                                 JValue& root, JAllocator& alloc);
  static void writePLInstances_(const std::string& prefix, const ZXLogicalArchModel& model,
                                JValue& root, JAllocator& alloc);
  static void writeConnections_(const std::string& prefix, const ZXLogicalArchModel& model,
                                JValue& root, JAllocator& alloc);
};

}  // namespace IPConfig::Frameworks
