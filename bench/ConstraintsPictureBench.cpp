#include "ArrayPlacements.h"
#include "ConstrHandler.h"
#include "ConstraintsSvgWriter.h"
#include "PhysicalRange.h"
#include "PhysicalSpec.h"

#include <benchmark/benchmark.h>

#include <sstream>
#include <string>
#include <vector>

namespace {

using namespace qpe::constraints;

const int columns = 50;
const int rows = 8;

// That many nodes pinned over a 50 x 8 array, each with a shim channel, and
// one area group of that many members and one-tile ranges.
void fill(ConstrHandler& handler, int nodes)
{
  std::vector<std::string> members;
  std::vector<PhysicalRange> ranges;
  for (int i = 0; i < nodes; ++i) {
    const std::string node = "top/k" + std::to_string(i);
    handler.setTileConstr(node, i % columns, i / columns % rows, PhysicalSpec::Core);
    handler.setShimConstr(node, i % columns, i % 8);
    PhysicalSpec tile;
    tile.setXY(i % columns, i / columns % rows);
    ranges.emplace_back(tile);
    members.push_back(node);
  }
  handler.setAreaGroupConstr("all", members, ranges, false, false, false, false, false);
}

void BM_ConstraintsPicture(benchmark::State& state)
{
  ConstrHandler handler;
  fill(handler, static_cast<int>(state.range(0)));
  for (auto _ : state) {
    std::ostringstream out;
    ConstraintsSvgWriter(ArrayPlacements(handler), "bench.json").write(out);
    benchmark::DoNotOptimize(out.tellp());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ConstraintsPicture)->Arg(10000)->Arg(100000)->Arg(200000)->Unit(benchmark::kMillisecond);

}  // namespace
