#pragma once

#include "AllTrafficSpecFilterObj.h"
#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <vector>

class HIPLogicalObjectNameResolverInterface;

namespace HrdIPToolCntr {
class TrafficLInst;
}  // namespace HrdIPToolCntr

namespace NOC {

// Builds the "LogicalInstances" array that the traffic and solution files
// share: one object per instance that the filter keeps, in the order given,
// with its keys in file order. An instance outside the resolver's scope is
// written under the first of its connections inside it, as virtual.
class IPCONFIG_READWRITE_EXPORT NOCJsonLogicalInstancesWriter {
public:
  // Adds the array to `root`, even when empty. An empty filter throws
  // std::bad_function_call at the first instance.
  static void addLogicalInstances(const std::vector<const HrdIPToolCntr::TrafficLInst*>& instances,
                                  const TrafficSpecFilter& filter,
                                  const HIPLogicalObjectNameResolverInterface& resolver,
                                  JValue& root, JAllocator& alloc);

private:
  static JValue writeLogicalInstance_(const HrdIPToolCntr::TrafficLInst& instance,
                                      const HIPLogicalObjectNameResolverInterface& resolver,
                                      JAllocator& alloc);
  static void writeTrafficClasses_(const HrdIPToolCntr::TrafficLInst& instance, JValue& object,
                                   JAllocator& alloc);
  static void writePorts_(const HrdIPToolCntr::TrafficLInst& instance, JValue& object,
                          JAllocator& alloc);
  static void writeLimits_(const HrdIPToolCntr::TrafficLInst& instance, JValue& object,
                           JAllocator& alloc);
  static void writeInterleave_(const HrdIPToolCntr::TrafficLInst& instance, JValue& object,
                               JAllocator& alloc);
  static void writeAddresses_(const HrdIPToolCntr::TrafficLInst& instance, JValue& object,
                              JAllocator& alloc);
  static void writeParams_(const HrdIPToolCntr::TrafficLInst& instance, JValue& object,
                           JAllocator& alloc);
  static void writeSimMetaData_(const HrdIPToolCntr::TrafficLInst& instance, JValue& object,
                                JAllocator& alloc);
};

}  // namespace NOC
