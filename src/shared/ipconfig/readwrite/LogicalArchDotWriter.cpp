#include "LogicalArchDotWriter.h"

#include "DotText.h"
#include "ZXLogicalArchModel.h"
#include "ZXLogicalArchVocabulary.h"

#include <algorithm>
#include <ostream>

namespace IPConfig::Frameworks {

namespace {

std::string portName(const ZXLogicalPort* port)
{
  return port ? port->name : "?";
}

}  // namespace

LogicalArchDotWriter::LogicalArchDotWriter(const ZXLogicalArchModel& model) : model(model)
{
  model.getZXIPInstances(arrays);
  model.getNOCIPInstances(nocs);
  model.getPLIPInstances(kernels);
  const auto number = [this](const ZXLogicalArchLInst* instance) {
    nodeIds.emplace(instance, "n" + std::to_string(nodeIds.size()));
  };
  for (const ZXLogicalArchLInst* instance : arrays)
    number(instance);
  for (const ZXLogicalArchLInst* instance : nocs)
    number(instance);
  for (const ZXLogicalArchLInst* instance : kernels)
    number(instance);
}

void LogicalArchDotWriter::write(std::ostream& out) const
{
  out << "digraph logical_architecture {\n";
  if (!model.getAppId().empty())
    out << "  label=" << DotText::quoted(model.getAppId()) << ";\n";
  out << "  rankdir=LR;\n"
         "  node [shape=box];\n";
  writeCluster_(out, "cluster_qpe", "compute array", arrays);
  writeCluster_(out, "cluster_noc", "NoC", nocs);
  writeCluster_(out, "cluster_pl", "PL", kernels);
  writeConnections_(out);
  out << "}\n";
}

template <typename Instance>
void LogicalArchDotWriter::writeCluster_(std::ostream& out, const char* id, const char* label,
                                         const std::vector<Instance*>& instances) const
{
  if (instances.empty())
    return;
  out << "  subgraph " << id << " {\n"
      << "    label=\"" << label << "\";\n";
  for (const Instance* instance : instances)
    out << "    " << nodeIds.at(instance) << " [label=" << DotText::quoted(instance->name)
        << "];\n";
  out << "  }\n";
}

void LogicalArchDotWriter::writeConnections_(std::ostream& out) const
{
  std::vector<ZXLogicalConnection*> connections;
  model.getLogicalConnections(connections);
  for (std::size_t number = 0; number < connections.size(); ++number)
    writeConnection_(out, *connections[number], number);
}

void LogicalArchDotWriter::writeConnection_(std::ostream& out,
                                            const ZXLogicalConnection& connection,
                                            std::size_t number) const
{
  const std::string loose = "c" + std::to_string(number);
  const std::string source = nodeOf_(connection.srcPort);
  const bool hasLooseEnd =
      source.empty() || connection.dstPorts.empty() ||
      std::any_of(connection.dstPorts.begin(), connection.dstPorts.end(),
                  [this](const ZXLogicalPort* port) { return nodeOf_(port).empty(); });
  if (hasLooseEnd)
    out << "  " << loose << " [shape=point, xlabel=" << DotText::quoted(connection.name)
        << "];\n";
  const bool hasDirection =
      connection.connectionDirection != ZXLogicalConnection::UNSET_DIRECTION;
  const auto edge = [&](const ZXLogicalPort* targetPort) {
    const std::string target = nodeOf_(targetPort);
    const std::string ports = portName(connection.srcPort) + " -> " + portName(targetPort);
    out << "  " << (source.empty() ? loose : source) << " -> "
        << (target.empty() ? loose : target) << " [label="
        << (hasDirection ? DotText::quotedLines({ports, ZXLogicalArchVocabulary::connectionDirectionText(
                                                           connection.connectionDirection)})
                         : DotText::quoted(ports))
        << "];\n";
  };
  if (connection.dstPorts.empty() && !source.empty())
    edge(nullptr);
  for (const ZXLogicalPort* port : connection.dstPorts)
    edge(port);
}

std::string LogicalArchDotWriter::nodeOf_(const ZXLogicalPort* port) const
{
  if (!port)
    return {};
  const auto found = nodeIds.find(port->owner);
  return found == nodeIds.end() ? std::string() : found->second;
}

}  // namespace IPConfig::Frameworks
