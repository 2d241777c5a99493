#pragma once

#include "ipconfig_hrdip_export.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace DevHrdIP {
class Link;
}

namespace HrdIPToolCntr {

// The way the NoC compiler found for one net, link by link.
class IPCONFIG_HRDIP_EXPORT Route {
public:
  std::uint8_t vc = 0;
  // The phase whose bandwidth is the route's own; empty without phases.
  std::string limitingPhase;
  std::vector<const DevHrdIP::Link*> links;
  unsigned achievedBw = 0;
  bool locked = false;
  std::map<std::string, unsigned> achievedPhaseBw;

  // One unit of latency for each link the route crosses.
  unsigned getStructLatency() const { return static_cast<unsigned>(links.size()); }
  // The bandwidth achieved in the phase; the route's own if it has none for it.
  unsigned getAchievedPhaseBW(const std::string& phase) const;
};

}  // namespace HrdIPToolCntr
