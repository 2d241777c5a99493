#include "Constraints.h"
#include "HDGUIStatus.h"
#include "HIPDevice.h"
#include "NOCJsonConstraintsReader.h"
#include "NOCJsonConstraintsWriter.h"
#include "NOCJsonReadWriteUtils.h"
#include "NOCModel.h"
#include "TrafficSpec.h"

#include "ParseAndValidate.h"

#include <benchmark/benchmark.h>

#include <sstream>
#include <string>

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

void setCounters(benchmark::State& state)
{
  state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(1));
}

void BM_NocConstraintsParseAndValidate(benchmark::State& state)
{
  const Design design(state.range(0), state.range(1));
  const std::string schemaPath = NOC::NOCJsonReadWriteUtils::getConstraintsJsonSchemaFile();
  for (auto _ : state)
    benchmark::DoNotOptimize(parseAndValidate(design.text, schemaPath));
  setCounters(state);
}

void BM_NocConstraintsRead(benchmark::State& state)
{
  const Design design(state.range(0), state.range(1));
  for (auto _ : state) {
    HrdIPToolCntr::Constraints constraints;
    design.read(constraints);
    benchmark::DoNotOptimize(constraints.hasInstsWithDestIdConstraint());
  }
  setCounters(state);
}

void BM_NocConstraintsWrite(benchmark::State& state)
{
  const Design design(state.range(0), state.range(1));
  HrdIPToolCntr::Constraints constraints;
  design.read(constraints);
  HDGUIStatus status;
  for (auto _ : state) {
    std::ostringstream out;
    benchmark::DoNotOptimize(NOC::NOCJsonConstraintsWriter().writeToJsonFile(out, constraints,
                                                                             status));
  }
  setCounters(state);
}

// Many placements, and one placement of many components.
#define NOC_CONSTRAINTS_SIZES ->Args({10000, 2})->Args({100000, 2})->Args({1, 100000})
BENCHMARK(BM_NocConstraintsParseAndValidate) NOC_CONSTRAINTS_SIZES->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NocConstraintsRead) NOC_CONSTRAINTS_SIZES->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NocConstraintsWrite) NOC_CONSTRAINTS_SIZES->Unit(benchmark::kMillisecond);

}  // namespace
