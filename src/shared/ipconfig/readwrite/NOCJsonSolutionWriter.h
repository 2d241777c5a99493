#pragma once

#include "AllTrafficSpecFilterObj.h"
#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

class HDGUIStatus;
class HIPLogicalObjectNameResolverInterface;

namespace HrdIPToolCntr {
class CompRes;
class Route;
class TrafficLInst;
class TrafficNet;
class TrafficPath;
class TrafficSpec;
}  // namespace HrdIPToolCntr

namespace NOC {

// Writes a CompRes and its TrafficSpec as a NoC solution file (schema
// "solution.json"), validating as it writes: the solution type, the logical
// instances when asked for the full file, the routed paths with their nets
// link by link, then the destination identifiers of the components. A
// filter and a scoped resolver write one block of a design, as the traffic
// writer does.
//
// What the reader takes as a switch or passes over is written from the
// traffic model: the required figures, the traffic classes, the latencies. An
// achieved write bandwidth the CompRes does not know is written as -1. A
// document that fails the schema sends "@75-585@%s" ("NoC Solution"), gives
// false and leaves the text up to the failing value.
class IPCONFIG_READWRITE_EXPORT NOCJsonSolutionWriter {
public:
  using Filter = TrafficSpecFilter;

  // `full` adds "LogicalInstances" and the paths' "InitialBoot".
  bool writeToJsonFile(std::ostream& out, const HrdIPToolCntr::TrafficSpec& spec,
                       const HrdIPToolCntr::CompRes& result, const Filter& filter,
                       HIPLogicalObjectNameResolverInterface& resolver, HDGUIStatus& status,
                       bool full);
  // Every instance, under its own name.
  bool writeToJsonFile(std::ostream& out, const HrdIPToolCntr::TrafficSpec& spec,
                       const HrdIPToolCntr::CompRes& result, HDGUIStatus& status, bool full);
  // False, with nothing written, when the file cannot be opened.
  bool writeToJsonFile(const std::string& path, const HrdIPToolCntr::TrafficSpec& spec,
                       const HrdIPToolCntr::CompRes& result, HDGUIStatus& status, bool full);

  // The name of an instance outside the scope: the first of its connections
  // that resolves inside it, or "" when none does.
  static std::string getVirtualININame(const HrdIPToolCntr::TrafficLInst* instance,
                                       HIPLogicalObjectNameResolverInterface& resolver);

private:
  struct Context;
  // The routed nets of one path, in the order of its nets.
  using RoutedNets =
      std::vector<std::pair<const HrdIPToolCntr::TrafficNet*, const HrdIPToolCntr::Route*>>;

  static void writeSolutionType_(const Context& context, JValue& root, JAllocator& alloc);
  static void writeLogicalInstances_(const Context& context, JValue& root, JAllocator& alloc);
  static void writePaths_(const Context& context, JValue& root, JAllocator& alloc);
  static void writeComponents_(const Context& context, JValue& root, JAllocator& alloc);

  static JValue writePath_(const HrdIPToolCntr::TrafficPath& path, const RoutedNets& nets,
                           const Context& context, JAllocator& alloc);
  static void writePathPhaseGroups_(const HrdIPToolCntr::TrafficPath& path,
                                    const Context& context, JValue& object, JAllocator& alloc);
  static void writeNets_(const RoutedNets& nets, const Context& context, JValue& object,
                         JAllocator& alloc);
  static JValue writeNet_(const HrdIPToolCntr::TrafficNet& net,
                          const HrdIPToolCntr::Route& route, const Context& context,
                          JAllocator& alloc);
  static void writeNetPhaseGroups_(const HrdIPToolCntr::TrafficNet& net,
                                   const HrdIPToolCntr::Route& route, JValue& object,
                                   JAllocator& alloc);
  static std::string endName_(const HrdIPToolCntr::TrafficLInst& instance,
                              HIPLogicalObjectNameResolverInterface& resolver);
};

}  // namespace NOC
