#include "TrafficDotWriter.h"

#include "DotText.h"

#include <ostream>

namespace NOC {

namespace {

bool holds(const HrdIPToolCntr::TrafficSpec::InstanceTable& table,
           const HrdIPToolCntr::TrafficLInst* instance)
{
  const auto found = table.find(instance->name);
  return found != table.end() && found->second == instance;
}

}  // namespace

TrafficDotWriter::TrafficDotWriter(const HrdIPToolCntr::TrafficSpec& traffic) : traffic(traffic)
{
  std::vector<const HrdIPToolCntr::TrafficLInst*> instances;
  traffic.getAllLogicalInstance(instances);
  for (const HrdIPToolCntr::TrafficLInst* instance : instances) {
    if (holds(traffic.getMasters(), instance))
      masters.push_back(instance);
    else if (holds(traffic.getSlaves(), instance))
      slaves.push_back(instance);
    else
      continue;
    nodeIds.emplace(instance, "n" + std::to_string(nodeIds.size()));
  }
}

void TrafficDotWriter::write(std::ostream& out) const
{
  out << "digraph traffic {\n";
  if (!traffic.deviceName.empty())
    out << "  label=" << IPConfig::DotText::quoted(traffic.deviceName) << ";\n";
  out << "  rankdir=LR;\n"
         "  node [shape=box];\n";
  writeCluster_(out, "cluster_masters", "masters", masters);
  writeCluster_(out, "cluster_slaves", "slaves", slaves);
  for (int index = 0; index < traffic.getNumPaths(); ++index)
    writePath_(out, *traffic.getPath(index));
  out << "}\n";
}

void TrafficDotWriter::writeCluster_(std::ostream& out, const char* id, const char* label,
                                     const Instances& members) const
{
  if (members.empty())
    return;
  out << "  subgraph " << id << " {\n"
      << "    label=\"" << label << "\";\n";
  for (const HrdIPToolCntr::TrafficLInst* instance : members) {
    out << "    " << nodeIds.at(instance) << " [label="
        << IPConfig::DotText::quotedLines(
               {instance->name, DevHrdIP::Definitions::toStr(instance->compType)})
        << "];\n";
  }
  out << "  }\n";
}

void TrafficDotWriter::writePath_(std::ostream& out, const HrdIPToolCntr::TrafficPath& path) const
{
  const auto master = nodeIds.find(path.master);
  const auto slave = nodeIds.find(path.slave);
  if (master == nodeIds.end() || slave == nodeIds.end())
    return;
  out << "  " << master->second << " -> " << slave->second << " [label="
      << IPConfig::DotText::quotedLines(
             {"read " + std::to_string(path.getReadPerfSpec().bandwidth),
              "write " + std::to_string(path.getWritePerfSpec().bandwidth)})
      << "];\n";
}

}  // namespace NOC
