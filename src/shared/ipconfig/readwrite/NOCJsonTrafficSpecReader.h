#pragma once

#include "Definitions.h"
#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <string>
#include <unordered_map>

class HDGUIStatus;
class HIPLogicalObjectNameResolverInterface;

namespace HrdIPToolCntr {
class TrafficLInst;
class TrafficPath;
class TrafficSpec;
}  // namespace HrdIPToolCntr

namespace NOC {

// Reads a traffic file (schema "traffic.json", gzip, bzip2 or xz compressed
// or plain) into a TrafficSpec: its logical instances, then its paths, then
// its system properties. Every instance name passes through the resolver.
// Reading adds to the model; what was added before a failure stays. A
// failure throws the HEXAll of the HCRapidJsonReadWriteUtils error calls;
// bad ports are reported as critical warnings and skipped.
class IPCONFIG_READWRITE_EXPORT NOCJsonTrafficSpecReader {
public:
  // Return true.
  bool readFromJsonFile(const std::string& path, HIPLogicalObjectNameResolverInterface& resolver,
                        HrdIPToolCntr::TrafficSpec& spec, HDGUIStatus& status);
  bool readFromJsonFile(std::istream& in, const std::string& fileName,
                        HIPLogicalObjectNameResolverInterface& resolver,
                        HrdIPToolCntr::TrafficSpec& spec, HDGUIStatus& status);
  // With HIPLogicalObjectNameResolverInterfaceIdentity.
  bool readFromJsonFile(const std::string& path, HrdIPToolCntr::TrafficSpec& spec,
                        HDGUIStatus& status);
  bool readFromJsonFile(std::istream& in, const std::string& fileName,
                        HrdIPToolCntr::TrafficSpec& spec, HDGUIStatus& status);

  // Adds the error slave and its routes unless the model has it already; the
  // result is that of the last call made to the model.
  bool enableDefaultSlv(HrdIPToolCntr::TrafficSpec& spec);

private:
  // From the names in the file to the resolved names, for the paths.
  using ResolvedNames = std::unordered_map<std::string, std::string>;

  struct Context {
    const std::string& fileName;
    HIPLogicalObjectNameResolverInterface& resolver;
    HrdIPToolCntr::TrafficSpec& spec;
    ResolvedNames resolvedNames;
  };

  static void readLogicalInstances_(const JValue& root, Context& context);
  static void readPath_(const JValue& element, Context& context);
  static void readPerformance_(const JValue& element, HrdIPToolCntr::TrafficPath& path);
  static void readDestIdIndex_(const JValue& element, HrdIPToolCntr::TrafficPath& path);
  static void readPhaseGroups_(const JValue& element, HrdIPToolCntr::TrafficPath& path);
  static void readSystemProperties_(const JValue& root, Context& context);
  static void readDfxPaths_(const JValue& properties, Context& context);
};

}  // namespace NOC
