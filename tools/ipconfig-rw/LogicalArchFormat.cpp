#include "Format.h"

#include "LogicalArchDotWriter.h"
#include "ZXLogicalArchModel.h"
#include "ZXLogicalArchReader.h"
#include "ZXLogicalArchWriter.h"

#include <ostream>

namespace ipconfig_rw {

namespace {

namespace fw = IPConfig::Frameworks;

void printSummary(const fw::ZXLogicalArchModel& model, std::ostream& out)
{
  std::vector<fw::ZXLogicalZXIPInstance*> arrays;
  std::vector<fw::ZXLogicalNOCIPInstance*> nocs;
  std::vector<fw::ZXLogicalPLIPInstance*> kernels;
  std::vector<fw::ZXLogicalPort*> ports;
  std::vector<fw::ZXLogicalConnection*> connections;
  model.getZXIPInstances(arrays);
  model.getNOCIPInstances(nocs);
  model.getPLIPInstances(kernels);
  model.getZXIPLogicalPorts(ports);
  model.getNOCIPLogicalPorts(ports);
  model.getPLIPLogicalPorts(ports);
  model.getLogicalConnections(connections);
  out << arrays.size() + nocs.size() + kernels.size() << " instances (" << arrays.size()
      << " QPE, " << nocs.size() << " NoC, " << kernels.size() << " PL), " << ports.size()
      << " ports, " << connections.size() << " connections\n";
}

int check(const std::vector<std::string>& args, std::ostream& out)
{
  fw::ZXLogicalArchModel model;
  fw::ZXLogicalArchReader().readFromJsonFile(args[0], model);
  out << "logicalarch " << args[0] << ": ";
  printSummary(model, out);
  return exitOk;
}

int roundtrip(const std::vector<std::string>& args, std::ostream& out)
{
  fw::ZXLogicalArchModel model;
  fw::ZXLogicalArchReader().readFromJsonFile(args[0], model);
  if (model.isEmpty()) {
    out << "logicalarch: " << args[0] << " has no instance and no connection; nothing written\n";
    return exitBadInput;
  }
  if (!fw::ZXLogicalArchWriter().writeToJsonFile(args[1], model)) {
    out << "logicalarch: cannot write " << args[1] << '\n';
    return exitBadInput;
  }
  out << "logicalarch " << args[0] << " -> " << args[1] << ": ";
  printSummary(model, out);
  return exitOk;
}

int dot(const std::vector<std::string>& args, std::ostream& out)
{
  fw::ZXLogicalArchModel model;
  fw::ZXLogicalArchReader().readFromJsonFile(args[0], model);
  fw::LogicalArchDotWriter(model).write(out);
  return exitOk;
}

}  // namespace

Format logicalArchFormat()
{
  return {"logicalarch",
          "logical architecture file (read, write; schema LogicalArchSchema.json)",
          {
              {"check", {"FILE"}, "read FILE and count its instances by kind, ports, connections",
               check},
              {"roundtrip", {"IN", "OUT"}, "read IN and write it back to OUT", roundtrip},
              {"dot", {"FILE"},
               "print FILE as a Graphviz DOT graph: instances by kind, connections as edges",
               dot},
          }};
}

}  // namespace ipconfig_rw
