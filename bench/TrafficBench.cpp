#include "HDGUIStatus.h"
#include "NOCJsonReadWriteUtils.h"
#include "NOCJsonTrafficSpecReader.h"
#include "NOCJsonTrafficSpecWriter.h"
#include "TrafficSpec.h"

#include "BesideFloor.h"
#include "ParseAndValidate.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <map>
#include <sstream>
#include <string>

namespace {

// Half the instances are masters, half slaves with an address each; every
// path goes from a master to a slave, one in ten with two phases.
std::string makeTraffic(int instances, int paths)
{
  const int masters = instances / 2;
  const int slaves = instances - masters;
  std::ostringstream text;
  text << R"({"SystemProperties": {"Frequency": 1000, "DeviceName": "dev"}, "LogicalInstances": [)";
  for (int i = 0; i < instances; ++i) {
    const bool master = i < masters;
    text << (i ? "," : "") << R"({"Name": "top/inst_)" << i << R"(", "IsMaster": )"
         << (master ? "true" : "false") << R"(, "CompType": ")" << (master ? "PL_NMU" : "PL_NSU")
         << R"(", "Protocol": "AXI_MM", "AxiDataWidth": 128, "SysAddresses": [)";
    if (!master)
      text << R"({"Base": "0x)" << std::hex << (0x100000ul * i) << std::dec
           << R"(", "Size": "0x100000"})";
    text << "]}";
  }
  text << R"(], "Paths": [)";
  for (int p = 0; p < paths; ++p) {
    text << (p ? "," : "") << R"({"Phase": 0, "From": "top/inst_)" << p % masters
         << R"(", "To": "top/inst_)" << masters + (p * 7) % slaves
         << R"(", "Port": "PORT0", "CommType": "MM_ReadWrite", "ReadBW": )" << 100 + p % 900
         << R"(, "ReadLatency": 300, "ReadAvgBurst": 4, "WriteBW": 200, "WriteLatency": 300, )"
            R"("WriteAvgBurst": 4, "WriteOrder": "relaxed")";
    if (p % 10 == 0)
      text << R"(, "PhaseGroups": [{"Name": "G", "Phases": [{"Name": "A", "ReadBW": 1, )"
              R"("WriteBW": 2, "ReadAvgBurst": 4, "WriteAvgBurst": 4}, {"Name": "B", )"
              R"("ReadBW": 3, "WriteBW": 4, "ReadAvgBurst": 4, "WriteAvgBurst": 4}]}])";
    text << "}";
  }
  text << "]}";
  return text.str();
}

void setCounters(benchmark::State& state)
{
  state.SetItemsProcessed(state.iterations() * (state.range(0) + state.range(1)));
}

void BM_TrafficParseAndValidate(benchmark::State& state)
{
  const std::string text = makeTraffic(state.range(0), state.range(1));
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getTrafficJsonSchemaFile();
  for (auto _ : state)
    benchmark::DoNotOptimize(parseAndValidate(text, schemaPath));
  setCounters(state);
}
BENCHMARK(BM_TrafficParseAndValidate)
    ->Args({500, 5000})
    ->Args({5000, 50000})
    ->Unit(benchmark::kMillisecond);

// Beside its floors in the same iteration (see BesideFloor.h): x_a, x_b.
void BM_TrafficRead(benchmark::State& state)
{
  const std::string text = makeTraffic(state.range(0), state.range(1));
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getTrafficJsonSchemaFile();
  HDGUIStatus status;
  BesideFloors times;
  for (auto _ : state) {
    times.floors["x_a"] += seconds([&] {
      JDocument document;
      benchmark::DoNotOptimize(parseText(text, document));
    });
    times.floors["x_b"] += seconds([&] { parseAndValidate(text, schemaPath); });
    std::istringstream in(text);
    HrdIPToolCntr::TrafficSpec spec;
    const PeakMemory peak;
    times.library += seconds(
        [&] { NOC::NOCJsonTrafficSpecReader().readFromJsonFile(in, "bench.json", spec, status); });
    peak.report(state, state.range(0) + state.range(1));
    benchmark::DoNotOptimize(spec.getNumPaths());
  }
  times.report(state);
  setCounters(state);
}
BENCHMARK(BM_TrafficRead)
    ->Args({500, 5000})
    ->Args({5000, 50000})
    ->Apply([](benchmark::internal::Benchmark* bench) {
      if (std::getenv("IPCONFIG_RW_BENCH_LARGE"))
        bench->Args({50000, 500000});
    })
    ->Unit(benchmark::kMillisecond);

// The writer beside its floor `wb` in the same iteration (see BesideFloor.h).
// Counters: x_floor, the writer's time over the floor's; x_5k, at 50,000
// paths, the writer's time over its time at 5,000 (linear is 10).
void BM_TrafficWrite(benchmark::State& state)
{
  HDGUIStatus status;
  HrdIPToolCntr::TrafficSpec spec;
  std::istringstream in(makeTraffic(state.range(0), state.range(1)));
  NOC::NOCJsonTrafficSpecReader().readFromJsonFile(in, "bench.json", spec, status);
  std::ostringstream first;
  NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(first, spec, status);
  JDocument written;
  written.Parse(first.str().c_str());
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getTrafficJsonSchemaFile();

  static std::map<int64_t, double> means;
  double library = 0;
  double floor = 0;
  for (auto _ : state) {
    floor += seconds([&] {
      std::ostringstream out;
      benchmark::DoNotOptimize(validateAndPrettyPrint(written, out, schemaPath));
    });
    const double write = seconds([&] {
      std::ostringstream out;
      benchmark::DoNotOptimize(NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(out, spec, status));
    });
    library += write;
    state.SetIterationTime(write);
  }
  const int64_t paths = state.range(1);
  means[paths] = library / static_cast<double>(state.iterations());
  state.counters["x_floor"] = library / floor;
  if (paths == 50000 && means.count(5000))
    state.counters["x_5k"] = means[50000] / means[5000];
  setCounters(state);
}
BENCHMARK(BM_TrafficWrite)
    ->Args({500, 5000})
    ->Args({5000, 50000})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
