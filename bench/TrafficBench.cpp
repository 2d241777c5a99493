#include "HDGUIStatus.h"
#include "NOCJsonReadWriteUtils.h"
#include "NOCJsonTrafficSpecReader.h"
#include "NOCJsonTrafficSpecWriter.h"
#include "TrafficSpec.h"

#include "BesideFloor.h"
#include "ParseAndValidate.h"

#include <benchmark/benchmark.h>

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

int64_t items(const benchmark::State& state)
{
  return state.range(0) + state.range(1);
}

// Instances and paths: 5.5k, 55k and 550k of them.
void addTrafficSizes(benchmark::internal::Benchmark* bench)
{
  addSizes(bench, {500, 5000}, {5000, 50000}, {50000, 500000});
}

void BM_TrafficParseAndValidate(benchmark::State& state)
{
  const std::string text = makeTraffic(state.range(0), state.range(1));
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getTrafficJsonSchemaFile();
  for (auto _ : state)
    benchmark::DoNotOptimize(parseAndValidate(text, schemaPath));
  state.SetItemsProcessed(state.iterations() * items(state));
}
BENCHMARK(BM_TrafficParseAndValidate)->Apply(addTrafficSizes)->Unit(benchmark::kMillisecond);

// The reader and the writer beside their floors in the same iteration (see
// BesideFloor.h and ParseAndValidate.h): x_a and x_b beside the read, x_wb
// beside the write; peak_bytes_per_item, the peak memory of a library run per
// instance or path; x_5k, at 50,000 paths, the library's time over its time
// at 5,000 (linear is 10). The 500,000 size runs with IPCONFIG_RW_BENCH_LARGE
// set.
void BM_TrafficRead(benchmark::State& state)
{
  const std::string text = makeTraffic(state.range(0), state.range(1));
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getTrafficJsonSchemaFile();
  HDGUIStatus status;
  static std::map<int64_t, double> means;
  BesideFloors runs(state, items(state));
  runs.run([&] {
    readFloors(runs, text, schemaPath);
    std::istringstream in(text);
    HrdIPToolCntr::TrafficSpec spec;
    runs.libraryRun([&] {
      NOC::NOCJsonTrafficSpecReader().readFromJsonFile(in, "bench.json", spec, status);
    });
    benchmark::DoNotOptimize(spec.getNumPaths());
  });
  runs.reportGrowth(means, 5500, 55000, "x_5k");
}
BENCHMARK(BM_TrafficRead)
    ->Apply(addTrafficSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void BM_TrafficWrite(benchmark::State& state)
{
  HDGUIStatus status;
  HrdIPToolCntr::TrafficSpec spec;
  std::istringstream in(makeTraffic(state.range(0), state.range(1)));
  NOC::NOCJsonTrafficSpecReader().readFromJsonFile(in, "bench.json", spec, status);
  const JDocument written = writtenDocument([&](std::ostream& out) {
    NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(out, spec, status);
  });
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getTrafficJsonSchemaFile();
  static std::map<int64_t, double> means;
  BesideFloors runs(state, items(state));
  runs.run([&] {
    writeFloor(runs, written, schemaPath);
    std::ostringstream out;
    runs.libraryRun([&] {
      benchmark::DoNotOptimize(NOC::NOCJsonTrafficSpecWriter().writeToJsonFile(out, spec, status));
    });
  });
  runs.reportGrowth(means, 5500, 55000, "x_5k");
}
BENCHMARK(BM_TrafficWrite)
    ->Apply(addTrafficSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
