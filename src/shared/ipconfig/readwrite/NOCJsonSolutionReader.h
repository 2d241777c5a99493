#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "TrafficAddressSpace.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <map>
#include <string>
#include <utility>
#include <vector>

class HDGUIStatus;
class HIPLogicalObjectNameResolverInterface;

namespace HrdIPToolCntr {
class CompRes;
class TrafficSpec;
}  // namespace HrdIPToolCntr

namespace NOC {

// Reads a NoC solution file (schema "solution.json") into a CompRes against
// a finished traffic model, which it does not change, and the NoC model of
// the CompRes's device: the solution type, the route of each net link by
// link with its bandwidths, the achieved latencies and bandwidths of the
// paths, per phase where the file has phases, the placements and locks of
// the logical instances, and the destination identifiers of the components.
//
// The file's own copy of the logical instances is only a reference: it is
// read into instances of the call's own. Paths are read before "Components",
// so "FromLocked" and "ToLocked" lock only placements that the CompRes
// already held; a locked path locks its routes instead. What cannot be matched with the
// models is reported and passed over: an unknown master or slave
// ("@75-698@%s%s%s"), component ("@75-184@%s"), phase group or phase
// ("@75-4365@" to "@75-4368@"). A link that the device does not have throws
// std::runtime_error, a port index past a memory controller's ports
// std::out_of_range; the failures of the file frame throw HEXAll. What was
// added before a failure stays in the CompRes.
class IPCONFIG_READWRITE_EXPORT NOCJsonSolutionReader {
public:
  using AddressRanges = HrdIPToolCntr::TrafficAddressSpace::AddressRanges;
  // From a physical component's name to a logical instance's name.
  using PhysicalToLogical = std::map<std::string, std::string>;
  // From a set of system address ranges to the names of the instances that own it.
  using RangeOwners = std::map<AddressRanges, std::vector<std::string>>;
  // Output: the address ranges of the slaves that the paths reach.
  using InstanceRanges = std::map<std::string, AddressRanges>;
  // Output: paths with "InitialBoot" true, and 1 once any path has the key.
  using InitialBootCount = std::pair<unsigned int, int>;

  // Return true. The last four arguments place the paths whose ends the
  // traffic model does not know by the names in the file; the two outputs
  // may be null.
  bool readFromJsonFile(const std::string& path, HIPLogicalObjectNameResolverInterface& resolver,
                        const HrdIPToolCntr::TrafficSpec& spec, HrdIPToolCntr::CompRes& result,
                        HDGUIStatus& status, const PhysicalToLogical& physicalToLogical,
                        const RangeOwners& rangeOwners, InstanceRanges* instanceRanges,
                        InitialBootCount* initialBoot);
  bool readFromJsonFile(std::istream& in, const std::string& fileName,
                        HIPLogicalObjectNameResolverInterface& resolver,
                        const HrdIPToolCntr::TrafficSpec& spec, HrdIPToolCntr::CompRes& result,
                        HDGUIStatus& status, const PhysicalToLogical& physicalToLogical,
                        const RangeOwners& rangeOwners, InstanceRanges* instanceRanges,
                        InitialBootCount* initialBoot);
  // With HIPLogicalObjectNameResolverInterfaceIdentity.
  bool readFromJsonFile(const std::string& path, const HrdIPToolCntr::TrafficSpec& spec,
                        HrdIPToolCntr::CompRes& result, HDGUIStatus& status,
                        const PhysicalToLogical& physicalToLogical, const RangeOwners& rangeOwners,
                        InstanceRanges* instanceRanges, InitialBootCount* initialBoot);
  // With the identity resolver, no physical names, no ranges and no outputs.
  bool readFromJsonFile(std::istream& in, const std::string& fileName,
                        const HrdIPToolCntr::TrafficSpec& spec, HrdIPToolCntr::CompRes& result,
                        HDGUIStatus& status);

  // The name of the model that a name in the file stands for; false if none.
  static bool resolveNameUsingResolverInterface(
      const HIPLogicalObjectNameResolverInterface& resolver, const HrdIPToolCntr::TrafficSpec& spec,
      const std::string& name, std::string& out);
  // The memory controller number of "MC<n>_ddrc" in `name` (-1 if none) and
  // the DIMM letter of a DDR5 PHY path in it (empty if none).
  static void getDDRInfo(const std::string& name, int& index, std::string& dimm);

private:
  struct Context;
  struct PathRead;
  struct NetRead;

  static void readLogicalInstances_(const JValue& root, Context& context);
  static void readPath_(const JValue& element, Context& context);
  static void findPathEnds_(const JValue& element, PathRead& path, Context& context);
  static void placeByPhysicalNames_(const JValue& firstNet, PathRead& path, Context& context);
  static void readNet_(const JValue& element, PathRead& path, Context& context);
  static void readNetPhaseGroup_(const JValue& group, NetRead& net, Context& context);
  static void readPathPhaseGroup_(const JValue& group, PathRead& path, Context& context);
  static void readComponent_(const JValue& element, Context& context);
};

}  // namespace NOC
