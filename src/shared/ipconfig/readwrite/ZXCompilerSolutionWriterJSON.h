#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <string>

class HDARPart;
class HDGUIStatus;

namespace HrdIPToolCntr {
class TrafficLInst;
class TrafficSpec;
}  // namespace HrdIPToolCntr

namespace IPConfig::Frameworks {

class QPEShimInterfaceSolution;
class ZXLogicalArchModel;
class ZXLogicalPort;

// Writes the shim placement of a QPEShimInterfaceSolution as a compiler
// solution file (schema "ZXSolutionSchema.json"): one placement for each
// port of a compute-array instance whose logical instances took bels, with
// the instance named relative to `prefix`. Nothing is written, not even an
// empty document, when no port took a bel.
class IPCONFIG_READWRITE_EXPORT ZXCompilerSolutionWriterJSON {
public:
  // True when nothing was to be written or the document passed its schema;
  // false with "@75-645@%s%s%s" when it failed, the text then stopping at
  // the failing value. The path forms give false when the file cannot be
  // opened. `prefix`, when not empty, limits the instances to those whose
  // names begin with it.
  bool writeToJsonFile(std::ostream& out, const ZXLogicalArchModel& model,
                       const HrdIPToolCntr::TrafficSpec& spec,
                       const QPEShimInterfaceSolution& solution, const HDARPart& part,
                       HDGUIStatus& status);
  bool writeToJsonFile(const std::string& prefix, std::ostream& out,
                       const ZXLogicalArchModel& model, const HrdIPToolCntr::TrafficSpec& spec,
                       const QPEShimInterfaceSolution& solution, const HDARPart& part,
                       HDGUIStatus& status);
  bool writeToJsonFile(const std::string& fileName, const ZXLogicalArchModel& model,
                       const HrdIPToolCntr::TrafficSpec& spec,
                       const QPEShimInterfaceSolution& solution, const HDARPart& part,
                       HDGUIStatus& status);
  bool writeToJsonFile(const std::string& prefix, const std::string& fileName,
                       const ZXLogicalArchModel& model, const HrdIPToolCntr::TrafficSpec& spec,
                       const QPEShimInterfaceSolution& solution, const HDARPart& part,
                       HDGUIStatus& status);

  // NOC::findLogicalInstance.
  static const HrdIPToolCntr::TrafficLInst* findLogicalInstance(
      const HrdIPToolCntr::TrafficSpec& spec, const std::string& name);

private:
  // Appends the placement of each port that took a bel to `placements`.
  static void writePlacements_(const std::string& prefix, const ZXLogicalArchModel& model,
                               const HrdIPToolCntr::TrafficSpec& spec,
                               const QPEShimInterfaceSolution& solution, const HDARPart& part,
                               JValue& placements, JAllocator& alloc);
  static JValue writeLogicalInstance_(const std::string& instanceName, const ZXLogicalPort& port,
                                      JAllocator& alloc);
};

}  // namespace IPConfig::Frameworks
