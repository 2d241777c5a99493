#include "BesideFloor.h"
#include "ComMsgMgr.h"
#include "HDARPart.h"
#include "HDGUIStatus.h"
#include "NOCJsonReadWriteUtils.h"
#include "QPEShimInterfaceSolution.h"
#include "TrafficSpec.h"
#include "ZXCompilerSolutionReaderJSON.h"
#include "ZXCompilerSolutionWriterJSON.h"
#include "ZXLogicalArchModel.h"

#include "ParseAndValidate.h"

#include <benchmark/benchmark.h>

#include <map>
#include <sstream>
#include <string>

// The compiler solution file of one array instance with many two-channel
// ports, read and written, each timed beside its floors in the same iteration
// (see BesideFloor.h and ParseAndValidate.h): x_a and x_b beside the read,
// x_wb beside the write; peak_bytes_per_item, the peak memory of a library
// run per port; x_2k, at 20,000 ports, the library's time over its time at
// 2,000 (linear is 10). The 200,000 size runs with IPCONFIG_RW_BENCH_LARGE
// set.
namespace {

using namespace IPConfig::Frameworks;
namespace Defs = DevHrdIP::Definitions;

constexpr int channelsPerColumn = 8;

// A device with enough shim columns, an array instance whose ports each have
// two traffic instances, and the placement of every one of them.
class Design {
public:
  explicit Design(int ports) : part(makePart(ports)), solution(*part)
  {
    ZXLogicalZXIPInstance* array = model.addZXIPInstance("top/array");
    for (int i = 0; i < ports; ++i) {
      ZXLogicalPort* port = model.addShimPort("port_" + std::to_string(i), array);
      for (int half = 0; half < 2; ++half) {
        const std::string name =
            "top/array/port_" + std::to_string(i) + "<" + std::to_string(half) + ">_INST";
        port->logicalInstNames.push_back(name);
        const HrdIPToolCntr::TrafficLInst* instance =
            spec.addLogicalInstance(name, Defs::AXI_STRM, Defs::COMP_TYPE_UNKNOWN, {});
        const int channel = 2 * i + half;
        const HDDMBel bel = part->getQpeOracle().getZXShimBel(channel / channelsPerColumn,
                                                              channel % channelsPerColumn);
        solution.placed.emplace(instance, std::make_pair(bel, false));
        solution.reversePlaced.emplace(bel, instance);
      }
    }
    std::ostringstream out;
    ZXCompilerSolutionWriterJSON().writeToJsonFile(out, model, spec, solution, *part, status);
    text = out.str();
  }

  void read(QPEShimInterfaceSolution& into)
  {
    std::istringstream in(text);
    ZXCompilerSolutionReaderJSON().readFromJsonFile(in, "bench.json", *part, model, spec, into,
                                                    status);
  }

  void write()
  {
    std::ostringstream out;
    ZXCompilerSolutionWriterJSON().writeToJsonFile(out, model, spec, solution, *part, status);
  }

  std::unique_ptr<HDARPart> part;
  ZXLogicalArchModel model;
  HrdIPToolCntr::TrafficSpec spec;
  QPEShimInterfaceSolution solution;
  HDGUIStatus status;
  std::string text;

private:
  static std::unique_ptr<HDARPart> makePart(int ports)
  {
    auto oracle = std::make_unique<HDDMOracle>();
    const int columns = (2 * ports + channelsPerColumn - 1) / channelsPerColumn;
    int elementId = 0;
    for (int column = 0; column < columns; ++column) {
      const HDDMSiteRecord* site = oracle->addShimSite(
          "QPE_SHIM_X" + std::to_string(column) + "Y0", HDDMQpeOracle::ZX_REGION_QPE, column);
      for (int channel = 0; channel < channelsPerColumn; ++channel)
        oracle->addShimBel(*site, "AXIS" + std::to_string(channel),
                           HDDMQpeOracle::SHIM_PL_IN, elementId++);
    }
    return std::make_unique<HDARPart>("bench", std::move(oracle));
  }
};

std::string schemaPath()
{
  return NOC::NOCJsonReadWriteUtils::getZXSolutionJsonSchemaFile();
}

void addPortSizes(benchmark::internal::Benchmark* bench)
{
  addSizes(bench, 2000, 20000, 200000);
}

void BM_CompilerSolutionRead(benchmark::State& state)
{
  ComMsgMgr::setConsole(nullptr);
  Design design(static_cast<int>(state.range(0)));
  static std::map<int64_t, double> means;
  BesideFloors runs(state, state.range(0));
  runs.run([&] {
    readFloors(runs, design.text, schemaPath());
    QPEShimInterfaceSolution read(*design.part);
    runs.libraryRun([&] { design.read(read); });
  });
  runs.reportGrowth(means, 2000, 20000, "x_2k");
}
BENCHMARK(BM_CompilerSolutionRead)
    ->Apply(addPortSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void BM_CompilerSolutionWrite(benchmark::State& state)
{
  ComMsgMgr::setConsole(nullptr);
  Design design(static_cast<int>(state.range(0)));
  JDocument written;
  written.Parse(design.text.c_str(), design.text.size());
  static std::map<int64_t, double> means;
  BesideFloors runs(state, state.range(0));
  runs.run([&] {
    writeFloor(runs, written, schemaPath());
    runs.libraryRun([&] { design.write(); });
  });
  runs.reportGrowth(means, 2000, 20000, "x_2k");
}
BENCHMARK(BM_CompilerSolutionWrite)
    ->Apply(addPortSizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
