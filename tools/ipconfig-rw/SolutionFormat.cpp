#include "Format.h"

#include "CompRes.h"
#include "HDGUIStatus.h"
#include "HIPDevice.h"
#include "NOCJsonSolutionReader.h"
#include "NOCJsonTrafficSpecReader.h"
#include "NOCModel.h"
#include "NOCModelReader.h"
#include "TrafficSpec.h"

#include <ostream>

namespace ipconfig_rw {

namespace {

const char* solutionTypeText(int type)
{
  static const char* const texts[] = {"NO_SOLUTION", "OPTIMAL", "SUBOPTIMAL", "DEADLOCKS"};
  return type >= 0 && type < 4 ? texts[type] : "NO_SOLUTION";
}

// The solution is matched against its traffic file and the shipped
// description of the device that the traffic file names.
int check(const std::vector<std::string>& args, std::ostream& out)
{
  HrdIPToolCntr::TrafficSpec spec;
  HDGUIStatus status;
  NOC::NOCJsonTrafficSpecReader().readFromJsonFile(args[0], spec, status);
  DevHrdIP::NOCModel nocModel;
  DevHrdIP::NOCModelReader::read(DevHrdIP::NOCModelReader::getDeviceFile(spec.deviceName),
                                 nocModel);
  const DevHrdIP::HIPDevice device(&nocModel);
  HrdIPToolCntr::CompRes result(&device);
  NOC::NOCJsonSolutionReader().readFromJsonFile(args[1], spec, result, status, {}, {}, nullptr,
                                                nullptr);

  std::size_t links = 0;
  std::size_t lockedRoutes = 0;
  for (const auto& [net, route] : result.routes) {
    links += route.links.size();
    lockedRoutes += route.locked ? 1 : 0;
  }
  std::size_t lockedPlacements = 0;
  for (const auto& [instance, placement] : result.placements)
    lockedPlacements += placement.second ? 1 : 0;
  out << "solution " << args[1] << ": " << solutionTypeText(result.solutionType) << " on "
      << spec.deviceName << ", " << result.routes.size() << " routes (" << lockedRoutes
      << " locked) over " << links << " links, " << result.placements.size() << " placements ("
      << lockedPlacements << " locked), " << result.destIds.size() << " destination ids, "
      << result.readLatencyBw.size() << " read and " << result.writeLatencyBw.size()
      << " write path latencies\n";
  return exitOk;
}

}  // namespace

Format solutionFormat()
{
  return {"solution",
          "NoC solution file (read; schema solution.json), matched against its traffic file "
          "and the device that it names",
          {
              {"check", {"TRAFFIC", "SOLUTION"},
               "read TRAFFIC, then SOLUTION against it and the shipped device; summarise the "
               "routes, placements and destination ids",
               check},
          }};
}

}  // namespace ipconfig_rw
