#include "HDGUIStatus.h"
#include "LogicalArchDotWriter.h"
#include "NOCJsonReadWriteUtils.h"
#include "QPEPartitionWriter.h"
#include "ZXLogicalArchModel.h"
#include "ZXLogicalArchReader.h"
#include "ZXLogicalArchWriter.h"

#include "BesideFloor.h"
#include "ParseAndValidate.h"

#include <benchmark/benchmark.h>

#include <map>
#include <sstream>
#include <string>

namespace {

using namespace IPConfig::Frameworks;

const int portsPerKernel = 4;

// Half the ports are shim ports of one array, half the ports of PL kernels
// of four ports each; each kernel port streams into one shim port.
std::string makeLogicalArch(int ports)
{
  const int links = ports / 2;
  std::ostringstream text;
  text << R"({"appId": "bench", "schema": "1.0", "QPE": {"top/array": {"qpeshimPorts": {)";
  for (int i = 0; i < links; ++i)
    text << (i ? "," : "") << R"("in_)" << i << R"(": {"type": "stream", "direction": "slave", )"
         << R"("dataWidth": 64, "parameterIndex": )" << i
         << R"(, "clkFreq": 312.5, "annotation": ["in_)" << i << R"("]})";
  text << R"(}}}, "PL": {)";
  for (int i = 0; i < links; ++i) {
    if (i % portsPerKernel == 0)
      text << (i ? "}}," : "") << R"("top/k)" << i / portsPerKernel << R"(": {"plPorts": {)";
    else
      text << ",";
    text << R"("port)" << i % portsPerKernel
         << R"(": {"type": "stream", "direction": "master", "dataWidth": 64})";
  }
  text << R"(}}}, "connections": {)";
  for (int i = 0; i < links; ++i)
    text << (i ? "," : "") << R"("top/c)" << i << R"(": {"type": "stream", "srcPort": )"
         << R"({"instName": "top/k)" << i / portsPerKernel << R"(", "portName": "port)"
         << i % portsPerKernel << R"("}, "dstPorts": [{"instName": "top/array", "portName": "in_)"
         << i << R"("}], "direction": "pl_to_qpe"})";
  text << "}}";
  return text.str();
}

void setCounters(benchmark::State& state)
{
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void readModel(int ports, ZXLogicalArchModel& model)
{
  std::istringstream in(makeLogicalArch(ports));
  ZXLogicalArchReader().readFromJsonFile(in, "bench.json", model);
}

void BM_LogicalArchParseAndValidate(benchmark::State& state)
{
  const std::string text = makeLogicalArch(state.range(0));
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getLogicalArchJsonSchemaFile();
  for (auto _ : state)
    benchmark::DoNotOptimize(parseAndValidate(text, schemaPath));
  setCounters(state);
}
BENCHMARK(BM_LogicalArchParseAndValidate)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);

// The reader and the writer beside their floors in the same iteration (see
// BesideFloor.h and ParseAndValidate.h): x_a and x_b beside the read, x_wb
// beside the write; peak_bytes_per_item, the peak memory of a library run per
// port; x_20k, at 200k ports, the library's time over its time at 20k (linear
// is 10). The 2M size runs with IPCONFIG_RW_BENCH_LARGE set.
void addPortSizes(benchmark::internal::Benchmark* bench)
{
  addSizes(bench, 20000, 200000, 2000000);
}

void BM_LogicalArchRead(benchmark::State& state)
{
  const std::string text = makeLogicalArch(state.range(0));
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getLogicalArchJsonSchemaFile();
  HDGUIStatus status;
  static std::map<int64_t, double> means;
  BesideFloors runs(state, state.range(0));
  runs.run([&] {
    readFloors(runs, text, schemaPath);
    std::istringstream in(text);
    ZXLogicalArchModel model;
    runs.libraryRun([&] {
      ZXLogicalArchReader().readFromJsonFile(in, "bench.json", model, status);
    });
    benchmark::DoNotOptimize(model.isEmpty());
  });
  runs.reportGrowth(means, 20000, 200000, "x_20k");
}
BENCHMARK(BM_LogicalArchRead)
    ->Apply(addPortSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void BM_LogicalArchWrite(benchmark::State& state)
{
  ZXLogicalArchModel model;
  readModel(state.range(0), model);
  const JDocument written = writtenDocument(
      [&](std::ostream& out) { ZXLogicalArchWriter().writeToJsonFile(out, model); });
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getLogicalArchJsonSchemaFile();
  static std::map<int64_t, double> means;
  BesideFloors runs(state, state.range(0));
  runs.run([&] {
    writeFloor(runs, written, schemaPath);
    std::ostringstream out;
    runs.libraryRun([&] { ZXLogicalArchWriter().writeToJsonFile(out, model); });
    benchmark::DoNotOptimize(out.tellp());
  });
  runs.reportGrowth(means, 20000, 200000, "x_20k");
}
BENCHMARK(BM_LogicalArchWrite)
    ->Apply(addPortSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void BM_LogicalArchDot(benchmark::State& state)
{
  ZXLogicalArchModel model;
  readModel(state.range(0), model);
  for (auto _ : state) {
    std::ostringstream out;
    LogicalArchDotWriter(model).write(out);
    benchmark::DoNotOptimize(out.tellp());
  }
  setCounters(state);
}
BENCHMARK(BM_LogicalArchDot)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);

// A partition file for a model of that many compute arrays.
void BM_PartitionWrite(benchmark::State& state)
{
  ZXLogicalArchModel model;
  for (int i = 0; i < state.range(0); ++i)
    model.addZXIPInstance("top/array" + std::to_string(i));
  for (auto _ : state) {
    std::ostringstream out;
    QPEPartitionWriter().writeToJsonFile(out, model, {1u, 2u, 3u, 4u}, 42u, 10, 4, 0, 50, "ns");
    benchmark::DoNotOptimize(out.tellp());
  }
  setCounters(state);
}
BENCHMARK(BM_PartitionWrite)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

// Every shim port looked up by name, as the compiler solution reader does
// for each element of its file.
void BM_LogicalArchPortByName(benchmark::State& state)
{
  ZXLogicalArchModel model;
  readModel(state.range(0), model);
  const ZXLogicalArchLInst& array = *model.getLogicalInstance("top/array");
  std::vector<std::string> names;
  for (const std::unique_ptr<ZXLogicalPort>& port : array.getPorts())
    names.push_back(port->name);
  for (auto _ : state)
    for (const std::string& name : names)
      benchmark::DoNotOptimize(array.getLogicalPortByName(name));
  setCounters(state);
}
BENCHMARK(BM_LogicalArchPortByName)->Arg(2000)->Arg(20000)->Unit(benchmark::kMicrosecond);

}  // namespace
