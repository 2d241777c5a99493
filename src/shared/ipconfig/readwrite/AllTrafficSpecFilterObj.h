#pragma once

#include "ipconfig_readwrite_export.h"

namespace HrdIPToolCntr {
class TrafficLInst;
}  // namespace HrdIPToolCntr

namespace NOC {

// The instance filter of the NoC writers that writes the whole design: it
// keeps every instance.
class IPCONFIG_READWRITE_EXPORT AllTrafficSpecFilterObj {
public:
  bool operator()(const HrdIPToolCntr::TrafficLInst* instance) const;
};

}  // namespace NOC
