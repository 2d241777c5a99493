#pragma once

#include "TrafficPerfSpec.h"
#include "ipconfig_hrdip_export.h"

#include <string>

namespace HrdIPToolCntr {

class TrafficLInst;
class TrafficPath;

// One direction of a path's traffic, which the NoC compiler routes. Read
// and read request nets carry the path's read figures, write and write
// response nets its write figures.
class IPCONFIG_HRDIP_EXPORT TrafficNet {
public:
  enum NetType { READ = 0, WRITE = 1, READ_REQ = 2, WRITE_RESP = 3 };

  // Orders nets by their place in the model: their path's index in the
  // TrafficSpec, then their own index in the path. Maps keyed by net walk in
  // the same order on every run, whatever the addresses. Nets of different
  // models that share a place fall back to their addresses.
  struct ModelOrder {
    bool operator()(const TrafficNet* left, const TrafficNet* right) const;
  };

  // The instance whose name messages show is the one where the net's traffic
  // starts: the slave for read data and write responses, the master for
  // writes and read requests. `index` is the net's place in its path.
  TrafficNet(TrafficPath* path, NetType type, int index);

  const TrafficLInst* instance;
  NetType type;
  TrafficPath* path;
  int index;

  bool isRead() const { return type == READ || type == READ_REQ; }

  // The plain figures, and those of a phase of the path's group by its number
  // (TrafficSpec::getPhaseNumber); a phase the path has no figures for gives
  // the plain figures.
  const TrafficPerfSpec& getPerfSpec() const;
  TrafficPerfSpec getPerfSpec(unsigned phaseNumber) const;

  // The bandwidth `bw` achieved in `phase` as it stands, unless the figures
  // the net has for that phase (failing them, its plain figures) ask for no
  // bandwidth: then 0.
  unsigned getEffectiveBw(unsigned bw, const std::string& phase) const;
};

}  // namespace HrdIPToolCntr
