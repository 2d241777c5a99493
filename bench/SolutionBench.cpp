#include "CompRes.h"
#include "HDGUIStatus.h"
#include "HIPDevice.h"
#include "NOCJsonReadWriteUtils.h"
#include "NOCJsonSolutionReader.h"
#include "NOCJsonSolutionWriter.h"
#include "NOCModel.h"
#include "TrafficSpec.h"

#include "BesideFloor.h"
#include "ParseAndValidate.h"

#include <benchmark/benchmark.h>

#include <map>
#include <sstream>
#include <string>

// The NoC solution file read and written, each timed beside its floors in the
// same iteration (see BesideFloor.h and ParseAndValidate.h): x_a and x_b
// beside the read, x_wb beside the write; peak_bytes_per_item, the peak
// memory of a library run per path; x_5k, at 50k paths, the library's time
// over its time at 5k (linear is 10). The 500k size runs with
// IPCONFIG_RW_BENCH_LARGE set.
namespace {

using namespace HrdIPToolCntr;
namespace Defs = DevHrdIP::Definitions;

// `ends` masters and as many slaves, each on its own component, all joined
// through one switch; path p goes from master p % ends to slave p / ends % ends.
struct Design {
  Design(int ends, int paths)
  {
    for (int i = 0; i < ends; ++i) {
      const std::string index = std::to_string(i);
      TrafficLInst* master = spec.addLogicalInstance("m" + index, Defs::AXI_MM, Defs::PL_NMU, {});
      TrafficLInst* slave = spec.addLogicalInstance("s" + index, Defs::AXI_MM, Defs::PL_NSU, {});
      masters.push_back(master);
      slaves.push_back(slave);
      const DevHrdIP::Component* nmu =
          model.addComponent("NMU" + index, Defs::PL_NMU, DevHrdIP::Component::MASTER_SIDE);
      const DevHrdIP::Component* nsu =
          model.addComponent("NSU" + index, Defs::PL_NSU, DevHrdIP::Component::SLAVE_SIDE);
      model.addLink(*nmu, "OUT", *hub, "IN" + index);
      model.addLink(*hub, "OUT" + index, *nsu, "IN");
    }
    for (int p = 0; p < paths; ++p)
      spec.addPath(masters[p % ends], slaves[p / ends % ends])->setSlavePort(Defs::PORT0);
  }

  TrafficSpec spec;
  DevHrdIP::NOCModel model;
  DevHrdIP::Component* hub = model.addComponent("SW", Defs::NPS, DevHrdIP::Component::NO_SIDE);
  std::vector<TrafficLInst*> masters;
  std::vector<TrafficLInst*> slaves;
};

std::string route(int master, int slave)
{
  return R"(["NMU)" + std::to_string(master) + R"(", "OUT", "SW", "IN)" + std::to_string(master) +
         R"(", "SW", "OUT)" + std::to_string(slave) + R"(", "NSU)" + std::to_string(slave) +
         R"(", "IN"])";
}

// Each path routes its read request and its write net over two links.
std::string makeSolution(int ends, int paths)
{
  std::ostringstream text;
  text << R"({"SolutionType": "OPTIMAL", "LogicalInstances": [)";
  for (int i = 0; i < ends; ++i)
    text << (i ? "," : "") << R"({"Name": "m)" << i
         << R"(", "IsMaster": true, "CompType": "PL_NMU", "Protocol": "AXI_MM"}, {"Name": "s)"
         << i << R"(", "CompType": "PL_NSU", "Protocol": "AXI_MM", "SysAddresses": []})";
  text << R"(], "Paths": [)";
  for (int p = 0; p < paths; ++p) {
    const int master = p % ends;
    const int slave = p / ends % ends;
    text << (p ? "," : "") << R"({"From": "m)" << master << R"(", "To": "s)" << slave
         << R"(", "Port": "PORT0", "ReadAchievedBW": 90, "WriteAchievedBW": 80, )"
            R"("ReadLatency": 300, "WriteLatency": 300, "Nets": [)";
    for (const char* type : {"READ_REQ", "WRITE"})
      text << (type[0] == 'W' ? "," : "") << R"({"PhyInstanceStart": "NMU)" << master
           << R"(", "PhyInstanceEnd": "NSU)" << slave << R"(", "VC": 1, "CommType": ")" << type
           << R"(", "Connections": )" << route(master, slave)
           << R"(, "AchievedBW": 90, "AchievedLatency": 40})";
    text << "]}";
  }
  text << R"(], "Components": [)";
  for (int i = 0; i < ends; ++i)
    text << (i ? "," : "") << R"({"Name": "NMU)" << i << R"(", "TrafficLInst": "m)" << i
         << R"(", "DestId": )" << i % 4096 << R"(}, {"Name": "NSU)" << i
         << R"(", "TrafficLInst": "s)" << i << R"("})";
  text << "]}";
  return text.str();
}

// Masters and slaves, and paths: 5k, 50k and 500k paths.
void addPathSizes(benchmark::internal::Benchmark* bench)
{
  addSizes(bench, {500, 5000}, {2500, 50000}, {12500, 500000});
}

void BM_SolutionParseAndValidate(benchmark::State& state)
{
  const std::string text = makeSolution(state.range(0), state.range(1));
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getSolutionJsonSchemaFile();
  for (auto _ : state)
    benchmark::DoNotOptimize(parseAndValidate(text, schemaPath));
  state.SetItemsProcessed(state.iterations() * state.range(1));
}
BENCHMARK(BM_SolutionParseAndValidate)->Apply(addPathSizes)->Unit(benchmark::kMillisecond);

void BM_SolutionRead(benchmark::State& state)
{
  const Design design(state.range(0), state.range(1));
  const DevHrdIP::HIPDevice device(&design.model);
  const std::string text = makeSolution(state.range(0), state.range(1));
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getSolutionJsonSchemaFile();
  HDGUIStatus status;
  static std::map<int64_t, double> means;
  BesideFloors runs(state, state.range(1));
  runs.run([&] {
    readFloors(runs, text, schemaPath);
    std::istringstream in(text);
    CompRes result(&device);
    runs.libraryRun([&] {
      NOC::NOCJsonSolutionReader().readFromJsonFile(in, "bench.json", design.spec, result, status);
    });
    benchmark::DoNotOptimize(result.routes.size());
  });
  runs.reportGrowth(means, 5000, 50000, "x_5k");
}
BENCHMARK(BM_SolutionRead)
    ->Apply(addPathSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void BM_SolutionWrite(benchmark::State& state)
{
  const Design design(state.range(0), state.range(1));
  const DevHrdIP::HIPDevice device(&design.model);
  HDGUIStatus status;
  CompRes result(&device);
  std::istringstream in(makeSolution(state.range(0), state.range(1)));
  NOC::NOCJsonSolutionReader().readFromJsonFile(in, "bench.json", design.spec, result, status);
  const JDocument written = writtenDocument([&](std::ostream& out) {
    NOC::NOCJsonSolutionWriter().writeToJsonFile(out, design.spec, result, status, true);
  });
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getSolutionJsonSchemaFile();
  static std::map<int64_t, double> means;
  BesideFloors runs(state, state.range(1));
  runs.run([&] {
    writeFloor(runs, written, schemaPath);
    std::ostringstream out;
    runs.libraryRun([&] {
      NOC::NOCJsonSolutionWriter().writeToJsonFile(out, design.spec, result, status, true);
    });
    benchmark::DoNotOptimize(out.tellp());
  });
  runs.reportGrowth(means, 5000, 50000, "x_5k");
}
BENCHMARK(BM_SolutionWrite)
    ->Apply(addPathSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
