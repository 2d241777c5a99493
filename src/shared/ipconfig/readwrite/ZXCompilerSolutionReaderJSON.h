#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
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
class ZXLogicalZXIPInstance;

// Reads the array compiler's shim placement (schema "ZXSolutionSchema.json")
// into a QPEShimInterfaceSolution. Each placement names a port of a
// compute-array instance; each of its channels is tied, by the parity of the
// channel and the "<0>_INST"/"<1>_INST" marker in the port's logical
// instance names, to a logical instance of the traffic model, which is placed
// on the channel's bel unlocked. What cannot be tied to the models is
// dropped without a word; an instance placed already keeps its bel. The
// solution is not cleared first. Failures of the file throw the HEXAll of
// the HCRapidJsonReadWriteUtils error calls. Progress: 20 after validation,
// 100 at the end.
class IPCONFIG_READWRITE_EXPORT ZXCompilerSolutionReaderJSON {
public:
  // Return true. `prefix`, when not empty, limits the compute-array
  // instances to those whose names begin with it.
  bool readFromJsonFile(const std::string& fileName, const HDARPart& part,
                        const ZXLogicalArchModel& model, const HrdIPToolCntr::TrafficSpec& spec,
                        QPEShimInterfaceSolution& solution, HDGUIStatus& status);
  bool readFromJsonFile(const std::string& fileName, const HDARPart& part,
                        const ZXLogicalArchModel& model, const HrdIPToolCntr::TrafficSpec& spec,
                        const std::string& prefix, QPEShimInterfaceSolution& solution,
                        HDGUIStatus& status);
  bool readFromJsonFile(std::istream& in, const std::string& fileName, const HDARPart& part,
                        const ZXLogicalArchModel& model, const HrdIPToolCntr::TrafficSpec& spec,
                        QPEShimInterfaceSolution& solution, HDGUIStatus& status);
  bool readFromJsonFile(std::istream& in, const std::string& fileName, const HDARPart& part,
                        const ZXLogicalArchModel& model, const HrdIPToolCntr::TrafficSpec& spec,
                        const std::string& prefix, QPEShimInterfaceSolution& solution,
                        HDGUIStatus& status);

  // The first compute-array instance (among those under `prefix`) whose
  // name contains `name`; failing that, the only compute-array instance of
  // the model whatever its name; else null.
  static ZXLogicalZXIPInstance* findZXIPInstance(const ZXLogicalArchModel& model,
                                                 const std::string& prefix,
                                                 const std::string& name);
  // The logical instance name of a port behind `channel`: the only name, or
  // the first holding "<0>_INST" for an even channel and "<1>_INST" for an
  // odd one; empty if none does.
  static std::string findInstanceNameForChannel(const std::vector<std::string>& names,
                                                unsigned channel);
  // NOC::findLogicalInstance.
  static const HrdIPToolCntr::TrafficLInst* findLogicalInstance(
      const HrdIPToolCntr::TrafficSpec& spec, const std::string& name);
};

}  // namespace IPConfig::Frameworks
