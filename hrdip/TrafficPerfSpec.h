#pragma once

#include "Definitions.h"

#include <cstdint>

namespace HrdIPToolCntr {

// What a direction of a path asks of the NoC; known as TrafficPath::PerfSpec.
struct TrafficPerfSpec {
  DevHrdIP::Definitions::TrafficClass trafficClass = DevHrdIP::Definitions::BE;
  std::uint32_t bandwidth = 0;
  std::uint32_t latency = 0;
};

}  // namespace HrdIPToolCntr
