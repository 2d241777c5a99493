#pragma once

#include "AllTrafficSpecFilterObj.h"
#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <string>

class HDGUIStatus;
class HIPLogicalObjectNameResolverInterface;

namespace HrdIPToolCntr {
class TrafficLInst;
class TrafficPath;
class TrafficSpec;
}  // namespace HrdIPToolCntr

namespace NOC {

// Writes a TrafficSpec as a traffic file (schema "traffic.json"), validating
// as it writes: its system properties, its logical instances, then its
// paths. A filter picks the instances to write, and a path goes with its
// ends; a resolver with a scope maps the model's names to those of the block
// being written.
//
// A model with no instance, no user-set frequency and no DFX path gives
// false and no text. A document that fails the schema sends "@75-585@%s"
// with the writer's name as its argument, gives false and leaves the text up to the failing
// value.
class IPCONFIG_READWRITE_EXPORT NOCJsonTrafficSpecWriter {
public:
  using Filter = TrafficSpecFilter;

  bool writeToJsonFile(std::ostream& out, const HrdIPToolCntr::TrafficSpec& spec,
                       const Filter& filter, HIPLogicalObjectNameResolverInterface& resolver,
                       HDGUIStatus& status);
  // Every instance, under its own name.
  bool writeToJsonFile(std::ostream& out, const HrdIPToolCntr::TrafficSpec& spec,
                       HDGUIStatus& status);
  // False, with nothing written, when the file cannot be opened.
  bool writeToJsonFile(const std::string& path, const HrdIPToolCntr::TrafficSpec& spec,
                       HDGUIStatus& status);

  // The name under which a path's end is written: its own scoped name when it
  // lies in scope, else the first of its connections in scope. With the host
  // parameter "project.enableBlockModel" on, a DDRC end looks only at the
  // connection list of `port`, and gives "" when none of it is in scope.
  static std::string getScopedName(HIPLogicalObjectNameResolverInterface& resolver,
                                   const HrdIPToolCntr::TrafficLInst* instance, int port);

private:
  static void writeSystemProperties_(const HrdIPToolCntr::TrafficSpec& spec,
                                     const HIPLogicalObjectNameResolverInterface& resolver,
                                     JValue& root, JAllocator& alloc);
  static void writePaths_(const HrdIPToolCntr::TrafficSpec& spec, const Filter& filter,
                          HIPLogicalObjectNameResolverInterface& resolver, JValue& root,
                          JAllocator& alloc);
  // False when an end has no name in the scope: the path is left out.
  static bool writePath_(const HrdIPToolCntr::TrafficPath& path,
                         HIPLogicalObjectNameResolverInterface& resolver, JValue& object,
                         JAllocator& alloc);
  static void writePerformance_(const HrdIPToolCntr::TrafficPath& path, JValue& object,
                                JAllocator& alloc);
  static void writeRouting_(const HrdIPToolCntr::TrafficPath& path, JValue& object,
                            JAllocator& alloc);
  static void writePhaseGroups_(const HrdIPToolCntr::TrafficPath& path, JValue& object,
                                JAllocator& alloc);
};

}  // namespace NOC
