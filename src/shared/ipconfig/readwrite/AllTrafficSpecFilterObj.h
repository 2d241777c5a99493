#pragma once

#include "ipconfig_readwrite_export.h"

#include <functional>

namespace HrdIPToolCntr {
class TrafficLInst;
}  // namespace HrdIPToolCntr

namespace NOC {

// Picks the instances that a NoC writer writes; a path goes with its ends.
using TrafficSpecFilter = std::function<bool(const HrdIPToolCntr::TrafficLInst*)>;

// The instance filter of the NoC writers that writes the whole design: it
// keeps every instance.
class IPCONFIG_READWRITE_EXPORT AllTrafficSpecFilterObj {
public:
  bool operator()(const HrdIPToolCntr::TrafficLInst* instance) const;
};

}  // namespace NOC
