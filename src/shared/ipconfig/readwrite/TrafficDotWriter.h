#pragma once

#include "TrafficSpec.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <string>
#include <unordered_map>
#include <vector>

namespace NOC {

// Draws the traffic of a NoC as a Graphviz DOT graph: the masters and the
// slaves in two clusters, each node labelled with the instance's name and
// component type, and one edge per path from its master to its slave,
// labelled with its read and write bandwidths. Instances that are neither
// master nor slave carry no path and are left out. Nodes are named n0, n1,
// ... in the order the instances were added, so the same model gives the
// same text.
class IPCONFIG_READWRITE_EXPORT TrafficDotWriter {
public:
  explicit TrafficDotWriter(const HrdIPToolCntr::TrafficSpec& traffic);

  void write(std::ostream& out) const;

private:
  using Instances = std::vector<const HrdIPToolCntr::TrafficLInst*>;

  void writeCluster_(std::ostream& out, const char* id, const char* label,
                     const Instances& members) const;
  void writePath_(std::ostream& out, const HrdIPToolCntr::TrafficPath& path) const;

  const HrdIPToolCntr::TrafficSpec& traffic;
  Instances masters;
  Instances slaves;
  std::unordered_map<const HrdIPToolCntr::TrafficLInst*, std::string> nodeIds;
};

}  // namespace NOC
