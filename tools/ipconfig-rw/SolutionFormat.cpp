#include "Format.h"

#include "CompRes.h"
#include "HDGUIStatus.h"
#include "HIPDevice.h"
#include "NOCJsonSolutionReader.h"
#include "NOCJsonSolutionWriter.h"
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

// A solution read against its traffic file and the shipped description of
// the device that the traffic file names.
struct LoadedSolution {
  HrdIPToolCntr::TrafficSpec spec;
  HDGUIStatus status;
  DevHrdIP::NOCModel nocModel;
  DevHrdIP::HIPDevice device{&nocModel};
  HrdIPToolCntr::CompRes result{&device};

  LoadedSolution(const std::string& trafficPath, const std::string& solutionPath)
  {
    NOC::NOCJsonTrafficSpecReader().readFromJsonFile(trafficPath, spec, status);
    DevHrdIP::NOCModelReader::read(DevHrdIP::NOCModelReader::getDeviceFile(spec.deviceName),
                                   nocModel);
    NOC::NOCJsonSolutionReader().readFromJsonFile(solutionPath, spec, result, status, {}, {},
                                                  nullptr, nullptr);
    // A traffic model with phases gets its solution's figures per phase.
    result.phaseMode = !spec.phaseGroupNames.empty();
  }
};

int check(const std::vector<std::string>& args, std::ostream& out)
{
  const LoadedSolution loaded(args[0], args[1]);
  const HrdIPToolCntr::TrafficSpec& spec = loaded.spec;
  const HrdIPToolCntr::CompRes& result = loaded.result;
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

int roundtrip(const std::vector<std::string>& args, std::ostream& out)
{
  LoadedSolution loaded(args[0], args[1]);
  if (!NOC::NOCJsonSolutionWriter().writeToJsonFile(args[2], loaded.spec, loaded.result,
                                                    loaded.status, true)) {
    out << "solution: cannot write " << args[2] << '\n';
    return exitBadInput;
  }
  out << "solution " << args[1] << " -> " << args[2] << ": "
      << solutionTypeText(loaded.result.solutionType) << ", " << loaded.result.routes.size()
      << " routes, " << loaded.result.destIds.size() << " destination ids\n";
  return exitOk;
}

}  // namespace

Format solutionFormat()
{
  return {"solution",
          "NoC solution file (read, write; schema solution.json), matched against its traffic file "
          "and the device that it names",
          {
              {"check", {"TRAFFIC", "SOLUTION"},
               "read TRAFFIC, then SOLUTION against it and the shipped device; summarise the "
               "routes, placements and destination ids",
               check},
              {"roundtrip", {"TRAFFIC", "IN", "OUT"},
               "read IN against TRAFFIC and the shipped device, and write it back to OUT "
               "with its logical instances",
               roundtrip},
          }};
}

}  // namespace ipconfig_rw
