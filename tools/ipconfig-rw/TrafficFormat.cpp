#include "Format.h"

#include "HDGUIStatus.h"
#include "NOCJsonTrafficSpecReader.h"
#include "NOCJsonTrafficSpecWriter.h"
#include "TrafficDotWriter.h"
#include "TrafficSpec.h"

#include <ostream>

namespace ipconfig_rw {

namespace {

void printSummary(const HrdIPToolCntr::TrafficSpec& spec, std::ostream& out)
{
  const std::size_t masters = spec.getMasters().size();
  const std::size_t slaves = spec.getSlaves().size();
  const std::size_t others = spec.getOthers().size();
  out << masters + slaves + others << " instances (" << masters
      << " master, " << slaves << " slave, " << others << " other), " << spec.getNumPaths()
      << " paths, " << spec.phaseGroupNames.size() << " phase groups, "
      << spec.getDfxPaths().size() << " DFX paths\n";
}

int check(const std::vector<std::string>& args, std::ostream& out)
{
  HrdIPToolCntr::TrafficSpec spec;
  HDGUIStatus status;
  NOC::NOCJsonTrafficSpecReader().readFromJsonFile(args[0], spec, status);
  out << "traffic " << args[0] << ": ";
  printSummary(spec, out);
  return exitOk;
}

int roundtrip(const std::vector<std::string>& args, std::ostream& out)
{
  HrdIPToolCntr::TrafficSpec spec;
  HDGUIStatus status;
  NOC::NOCJsonTrafficSpecReader().readFromJsonFile(args[0], spec, status);
  std::vector<const HrdIPToolCntr::TrafficLInst*> instances;
  spec.getAllLogicalInstance(instances);
  if (instances.empty() && spec.getUserSetFrequency() == 0 && !spec.hasDfxPaths()) {
    out << "traffic: " << args[0]
        << " has no instance, no user-set frequency and no DFX path; nothing written\n";
    return exitBadInput;
  }
  if (!NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(args[1], spec, status)) {
    out << "traffic: cannot write " << args[1] << '\n';
    return exitBadInput;
  }
  out << "traffic " << args[0] << " -> " << args[1] << ": ";
  printSummary(spec, out);
  return exitOk;
}

int dot(const std::vector<std::string>& args, std::ostream& out)
{
  HrdIPToolCntr::TrafficSpec traffic;
  HDGUIStatus status;
  NOC::NOCJsonTrafficSpecReader().readFromJsonFile(args[0], traffic, status);
  NOC::TrafficDotWriter(traffic).write(out);
  return exitOk;
}

}  // namespace

Format trafficFormat()
{
  return {"traffic",
          "NoC traffic file (read, write; schema traffic.json; read plain or compressed)",
          {
              {"check", {"FILE"}, "read FILE and summarise its instances, paths and phases",
               check},
              {"roundtrip", {"IN", "OUT"}, "read IN and write it back to OUT", roundtrip},
              {"dot", {"FILE"},
               "print FILE as a Graphviz DOT graph: masters, slaves and the bandwidths of "
               "their paths",
               dot},
          }};
}

}  // namespace ipconfig_rw
