#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "HDDMBel.h"
#include "QPEShimPortBels.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <string>
#include <vector>

class HDARPart;

namespace HrdIPToolCntr {
class TrafficSpec;
}

namespace IPConfig::Frameworks {

class QPEShimInterfaceSolution;
class ZXLogicalArchModel;
class ZXLogicalPort;

// Writes the PL interface file (root "partition", no schema): the array
// columns a partition takes and, for every port of every compute-array
// instance, the shim channels it took and how it is set up. A port stands
// under the flat name of its last bel, or the empty key without one, so
// that ports without bels repeat the empty key; the file names no port:
// its "annotation" does.
class IPCONFIG_READWRITE_EXPORT QPEPLIntfWriter {
public:
  // The columns are `partitionStart` and `partitionSize` unless both are
  // -1, then `arrayStart` and `arraySize`. False if the file cannot be
  // opened, with no message.
  bool writeToJsonFile(const std::string& fileName, const HrdIPToolCntr::TrafficSpec& spec,
                       const QPEShimInterfaceSolution& solution, const ZXLogicalArchModel& model,
                       const HDARPart& part, int partitionStart, int partitionSize,
                       int arrayStart, int arraySize);

private:
  static bool writeToJsonFile_(std::ostream& out, const ZXLogicalArchModel& model,
                               const HrdIPToolCntr::TrafficSpec& spec,
                               const QPEShimInterfaceSolution& solution, const HDARPart& part,
                               int partitionStart, int partitionSize, int arrayStart,
                               int arraySize);
  static void writeColumns_(JValue& partition, int partitionStart, int partitionSize,
                            int arrayStart, int arraySize, JAllocator& alloc);
  static void writeShimPorts_(JValue& partition, const ZXLogicalArchModel& model,
                              const HrdIPToolCntr::TrafficSpec& spec,
                              const QPEShimInterfaceSolution& solution, const HDARPart& part,
                              JAllocator& alloc);
  static JValue writePort_(const ZXLogicalPort& port, const std::vector<HDDMBel>& bels,
                           const HDARPart& part, JAllocator& alloc);
};

}  // namespace IPConfig::Frameworks
