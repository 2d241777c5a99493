#include "Format.h"

#include "HDGUIStatus.h"
#include "NOCJsonTrafficSpecReader.h"
#include "TrafficSpec.h"

#include <ostream>

namespace ipconfig_rw {

namespace {

int check(const std::vector<std::string>& args, std::ostream& out)
{
  HrdIPToolCntr::TrafficSpec spec;
  HDGUIStatus status;
  NOC::NOCJsonTrafficSpecReader().readFromJsonFile(args[0], spec, status);
  const std::size_t masters = spec.getMasters().size();
  const std::size_t slaves = spec.getSlaves().size();
  const std::size_t others = spec.getOthers().size();
  out << "traffic " << args[0] << ": " << masters + slaves + others << " instances (" << masters
      << " master, " << slaves << " slave, " << others << " other), " << spec.getNumPaths()
      << " paths, " << spec.phaseGroupNames.size() << " phase groups, "
      << spec.getDfxPaths().size() << " DFX paths\n";
  return exitOk;
}

}  // namespace

Format trafficFormat()
{
  return {"traffic",
          "NoC traffic file (read; schema traffic.json; plain or compressed)",
          {
              {"check", {"FILE"}, "read FILE and summarise its instances, paths and phases",
               check},
          }};
}

}  // namespace ipconfig_rw
