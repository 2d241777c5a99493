#include "CompRes.h"
#include "HDGUIStatus.h"
#include "HIPDevice.h"
#include "NOCJsonReadWriteUtils.h"
#include "NOCJsonSolutionReader.h"
#include "NOCJsonSolutionWriter.h"
#include "NOCModel.h"
#include "TrafficSpec.h"

#include "ParseAndValidate.h"

#include <benchmark/benchmark.h>

#include <ctime>
#include <sstream>
#include <string>

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

// Processor seconds that `run` takes: the machine is shared, and wall time
// would count the others' work too.
template <typename Run>
double cpuSeconds(const Run& run)
{
  const std::clock_t start = std::clock();
  run();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

void BM_SolutionParseAndValidate(benchmark::State& state)
{
  const std::string text = makeSolution(state.range(0), state.range(1));
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getSolutionJsonSchemaFile();
  for (auto _ : state)
    benchmark::DoNotOptimize(parseAndValidate(text, schemaPath));
  state.SetItemsProcessed(state.iterations() * state.range(1));
}
BENCHMARK(BM_SolutionParseAndValidate)
    ->Args({500, 5000})
    ->Args({2500, 50000})
    ->Unit(benchmark::kMillisecond);

// "ratio": the reader's processor time over that of parsing and validating
// the same text, measured in turns.
void BM_SolutionRead(benchmark::State& state)
{
  const Design design(state.range(0), state.range(1));
  const DevHrdIP::HIPDevice device(&design.model);
  const std::string text = makeSolution(state.range(0), state.range(1));
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getSolutionJsonSchemaFile();
  HDGUIStatus status;
  double readSeconds = 0;
  double floorSeconds = 0;
  for (auto _ : state) {
    std::istringstream in(text);
    CompRes result(&device);
    readSeconds += cpuSeconds([&] {
      NOC::NOCJsonSolutionReader().readFromJsonFile(in, "bench.json", design.spec, result, status);
    });
    benchmark::DoNotOptimize(result.routes.size());
    state.PauseTiming();
    floorSeconds +=
        cpuSeconds([&] { benchmark::DoNotOptimize(parseAndValidate(text, schemaPath)); });
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(1));
  state.counters["ratio"] = readSeconds / floorSeconds;
}
BENCHMARK(BM_SolutionRead)->Args({500, 5000})->Args({2500, 50000})->Unit(benchmark::kMillisecond);

// "ratio": the writer's processor time over that of validating and
// pretty-printing the document it writes, measured in turns.
void BM_SolutionWrite(benchmark::State& state)
{
  const Design design(state.range(0), state.range(1));
  const DevHrdIP::HIPDevice device(&design.model);
  HDGUIStatus status;
  CompRes result(&device);
  std::istringstream in(makeSolution(state.range(0), state.range(1)));
  NOC::NOCJsonSolutionReader().readFromJsonFile(in, "bench.json", design.spec, result, status);
  std::ostringstream written;
  NOC::NOCJsonSolutionWriter().writeToJsonFile(written, design.spec, result, status, true);
  JDocument document;
  document.Parse(written.str().c_str());
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getSolutionJsonSchemaFile();
  double writeSeconds = 0;
  double floorSeconds = 0;
  for (auto _ : state) {
    std::ostringstream out;
    writeSeconds += cpuSeconds([&] {
      NOC::NOCJsonSolutionWriter().writeToJsonFile(out, design.spec, result, status, true);
    });
    benchmark::DoNotOptimize(out.tellp());
    state.PauseTiming();
    std::ostringstream floorOut;
    floorSeconds += cpuSeconds(
        [&] { benchmark::DoNotOptimize(validateAndPrettyPrint(document, floorOut, schemaPath)); });
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(1));
  state.counters["ratio"] = writeSeconds / floorSeconds;
}
BENCHMARK(BM_SolutionWrite)->Args({500, 5000})->Args({2500, 50000})->Unit(benchmark::kMillisecond);

}  // namespace
