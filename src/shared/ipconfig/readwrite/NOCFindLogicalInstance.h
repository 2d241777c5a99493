#pragma once

#include "ipconfig_readwrite_export.h"

#include <string>

namespace HrdIPToolCntr {
class TrafficLInst;
class TrafficSpec;
}  // namespace HrdIPToolCntr

namespace NOC {

// The instance of that name: a master, else a slave, else one of the
// instances that are neither; null if the traffic model has none.
IPCONFIG_READWRITE_EXPORT HrdIPToolCntr::TrafficLInst* findLogicalInstance(
    const HrdIPToolCntr::TrafficSpec& spec, const std::string& name);

}  // namespace NOC
