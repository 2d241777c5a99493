#include "Constraints.h"
#include "HDGUIStatus.h"
#include "HIPDevice.h"
#include "NOCJsonConstraintsReader.h"
#include "NOCJsonConstraintsWriter.h"
#include "NOCJsonReadWriteUtils.h"
#include "NOCModel.h"
#include "TrafficSpec.h"

#include "BesideFloor.h"
#include "ParseAndValidate.h"

#include <benchmark/benchmark.h>

#include <map>
#include <sstream>
#include <string>

// The NoC constraints file read and written, each timed beside its floors in
// the same iteration (see BesideFloor.h and ParseAndValidate.h): x_a and x_b
// beside the read, x_wb beside the write; peak_bytes_per_item, the peak
// memory of a library run per pinned component; x_10k, at 100k components,
// the library's time over its time at 10k (linear is 10). The 1M size runs
// with IPCONFIG_RW_BENCH_LARGE set.
namespace {

namespace Defs = DevHrdIP::Definitions;

// `placements` instances, each pinned to `perPlacement` components of its
// own, all known to the traffic model and the device.
class Design {
public:
  Design(int placements, int perPlacement)
  {
    std::ostringstream out;
    out << R"({"Placement": [)";
    for (int i = 0; i < placements; ++i) {
      const std::string instance = "top/inst_" + std::to_string(i);
      spec.addLogicalInstance(instance, Defs::AXI_MM, Defs::PL_NMU, {});
      out << (i ? "," : "") << R"({"LogicalInstance": ")" << instance
          << R"(", "PhysicalInstance": [)";
      for (int c = 0; c < perPlacement; ++c) {
        const std::string component =
            "NOC_NMU_X" + std::to_string(i) + "Y" + std::to_string(c);
        model.addComponent(component, Defs::PL_NMU, DevHrdIP::Component::MASTER_SIDE);
        out << (c ? "," : "") << '"' << component << '"';
      }
      out << R"(], "IsSoft": )" << (i % 2 ? "true" : "false") << "}";
    }
    out << "]}";
    text = out.str();
  }

  void read(HrdIPToolCntr::Constraints& constraints) const
  {
    std::istringstream in(text);
    HDGUIStatus status;
    NOC::NOCJsonConstraintsReader().readFromJsonFile(in, "bench.json", device, spec, constraints,
                                                     status);
  }

  std::string text;

private:
  HrdIPToolCntr::TrafficSpec spec;
  DevHrdIP::NOCModel model;
  DevHrdIP::HIPDevice device{&model};
};

int64_t components(const benchmark::State& state)
{
  return state.range(0) * state.range(1);
}

void BM_NocConstraintsParseAndValidate(benchmark::State& state)
{
  const Design design(state.range(0), state.range(1));
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getConstraintsJsonSchemaFile();
  for (auto _ : state)
    benchmark::DoNotOptimize(parseAndValidate(design.text, schemaPath));
  state.SetItemsProcessed(state.iterations() * components(state));
}

void BM_NocConstraintsRead(benchmark::State& state)
{
  const Design design(state.range(0), state.range(1));
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getConstraintsJsonSchemaFile();
  static std::map<int64_t, double> means;
  BesideFloors runs(state, components(state));
  runs.run([&] {
    readFloors(runs, design.text, schemaPath);
    HrdIPToolCntr::Constraints constraints;
    runs.libraryRun([&] { design.read(constraints); });
    benchmark::DoNotOptimize(constraints.hasInstsWithDestIdConstraint());
  });
  runs.reportGrowth(means, 10000, 100000, "x_10k");
}

void BM_NocConstraintsWrite(benchmark::State& state)
{
  const Design design(state.range(0), state.range(1));
  HrdIPToolCntr::Constraints constraints;
  design.read(constraints);
  HDGUIStatus status;
  const JDocument written = writtenDocument([&](std::ostream& out) {
    NOC::NOCJsonConstraintsWriter().writeToJsonFile(out, constraints, status);
  });
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getConstraintsJsonSchemaFile();
  static std::map<int64_t, double> means;
  BesideFloors runs(state, components(state));
  runs.run([&] {
    writeFloor(runs, written, schemaPath);
    std::ostringstream out;
    runs.libraryRun([&] {
      benchmark::DoNotOptimize(
          NOC::NOCJsonConstraintsWriter().writeToJsonFile(out, constraints, status));
    });
  });
  runs.reportGrowth(means, 10000, 100000, "x_10k");
}

// Many placements of two components each: 10k, 100k and 1M components.
void addPlacementSizes(benchmark::internal::Benchmark* bench)
{
  addSizes(bench, {5000, 2}, {50000, 2}, {500000, 2});
}

BENCHMARK(BM_NocConstraintsParseAndValidate)
    ->Apply(addPlacementSizes)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NocConstraintsRead)
    ->Apply(addPlacementSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NocConstraintsWrite)
    ->Apply(addPlacementSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// The worst case: one placement of all the components.
BENCHMARK(BM_NocConstraintsRead)
    ->Args({1, 10000})
    ->Args({1, 100000})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
