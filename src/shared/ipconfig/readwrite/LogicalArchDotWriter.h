#pragma once

#include "ZXLogicalArchForward.h"
#include "ZXLogicalNOCIPInstance.h"
#include "ZXLogicalPLIPInstance.h"
#include "ZXLogicalZXIPInstance.h"
#include "ipconfig_readwrite_export.h"

#include <cstddef>
#include <iosfwd>
#include <string>
#include <unordered_map>
#include <vector>

namespace IPConfig::Frameworks {

// Draws a logical architecture as a Graphviz DOT graph: one node per
// instance, grouped by kind into the clusters "compute array", "NoC" and
// "PL"; one edge per destination of each connection, labelled with the
// source and destination port and the connection's direction. Nodes are
// named n0, n1, ... in the model's order, so the same model gives the same
// text. An end a connection lacks is drawn as a point named after it.
class IPCONFIG_READWRITE_EXPORT LogicalArchDotWriter {
public:
  explicit LogicalArchDotWriter(const ZXLogicalArchModel& model);

  void write(std::ostream& out) const;

private:
  using NodeIds = std::unordered_map<const ZXLogicalArchLInst*, std::string>;

  template <typename Instance>
  void writeCluster_(std::ostream& out, const char* id, const char* label,
                     const std::vector<Instance*>& instances) const;
  void writeConnections_(std::ostream& out) const;
  void writeConnection_(std::ostream& out, const ZXLogicalConnection& connection,
                        std::size_t number) const;
  // The node of the port's instance, or "" when the port or its owner is unknown.
  std::string nodeOf_(const ZXLogicalPort* port) const;

  const ZXLogicalArchModel& model;
  std::vector<ZXLogicalZXIPInstance*> arrays;
  std::vector<ZXLogicalNOCIPInstance*> nocs;
  std::vector<ZXLogicalPLIPInstance*> kernels;
  NodeIds nodeIds;
};

}  // namespace IPConfig::Frameworks
