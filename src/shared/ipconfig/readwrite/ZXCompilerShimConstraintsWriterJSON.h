#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

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

// For the compute-array instance named exactly `instName`: writes the shim
// placement of a QPEShimInterfaceSolution back as firm constraints for the
// array compiler (the NoC constraints format and schema, with port and bel
// names), and computes the identifier of the instance's interface to the
// PL from its ports' widths, clocks, register flags and channels.
class IPCONFIG_READWRITE_EXPORT ZXCompilerShimConstraintsWriterJSON {
public:
  using PortData = std::map<std::string, std::vector<std::string>>;

  // One element for each name of each port that took a bel: a port's
  // single logical instance, or its "<0>_INST" one. True when nothing was
  // to be written or the document passed its schema; false with
  // "@75-645@%s%s%s" when it failed. The path form gives false when the
  // file cannot be opened.
  bool writeToJsonFile(std::ostream& out, const ZXLogicalArchModel& model,
                       const HrdIPToolCntr::TrafficSpec& spec,
                       const QPEShimInterfaceSolution& solution, const HDARPart& part,
                       const std::string& instName, HDGUIStatus& status);
  bool writeToJsonFile(const std::string& fileName, const ZXLogicalArchModel& model,
                       const HrdIPToolCntr::TrafficSpec& spec,
                       const QPEShimInterfaceSolution& solution, const HDARPart& part,
                       const std::string& instName, HDGUIStatus& status);

  // NOC::findLogicalInstance.
  static const HrdIPToolCntr::TrafficLInst* findLogicalInstance(
      const HrdIPToolCntr::TrafficSpec& spec, const std::string& name);

  // For each port that took a bel, keyed by its first software annotation:
  // "dw%02d" of its bus width and "cf%6.3f" of its clock (not for memory
  // ports), "reg0" or "reg1", then its bels' flat names. With `rangeStart`
  // at or above 0 only bels whose element id (low 16 bits) lies in
  // [rangeStart, rangeStart + rangeSize) count. False, `out` untouched, when
  // the model has no compute-array instance.
  static bool getQPEPLIntefacePortData(const ZXLogicalArchModel& model,
                                       const HrdIPToolCntr::TrafficSpec& spec,
                                       const QPEShimInterfaceSolution& solution,
                                       const HDARPart& part, const std::string& instName,
                                       int rangeStart, int rangeSize, HDGUIStatus& status,
                                       PortData& out);
  // The canonical text of the whole interface, over all channels. True.
  static bool computeQPEPLIntefaceID(const ZXLogicalArchModel& model,
                                     const HrdIPToolCntr::TrafficSpec& spec,
                                     const QPEShimInterfaceSolution& solution,
                                     const HDARPart& part, const std::string& instName,
                                     std::string& out, HDGUIStatus& status);
  // One canonical text for each port in the range, in order of the port
  // keys, each led by its key unless `omitPortKey`. True.
  static bool computeQPEPLIntefaceIDs(const ZXLogicalArchModel& model,
                                      const HrdIPToolCntr::TrafficSpec& spec,
                                      const QPEShimInterfaceSolution& solution,
                                      const HDARPart& part, const std::string& instName,
                                      int rangeStart, int rangeSize, bool omitPortKey,
                                      HDGUIStatus& status, std::vector<std::string>& out);

private:
  // Appends an element for each name of each port that took a bel.
  static void writePlacements_(const ZXLogicalArchModel& model,
                               const HrdIPToolCntr::TrafficSpec& spec,
                               const QPEShimInterfaceSolution& solution, const HDARPart& part,
                               const std::string& instName, JValue& placements,
                               JAllocator& alloc);
  static std::vector<std::string> getPortData_(const ZXLogicalPort& port,
                                               const std::vector<std::string>& belNames);
};

}  // namespace IPConfig::Frameworks
