#include "BaseNameResolver.h"
#include "PhysicalRange.h"
#include "PhysicalRangeArray.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

using namespace qpe::constraints;

// Ranges of the four element forms, round-robin: column alone (an integer),
// a tile "(x,y)", a rectangle "(x,y):(x,y)" and a name.
std::vector<PhysicalRange> makeRanges(int count)
{
  std::vector<PhysicalRange> ranges;
  ranges.reserve(count);
  for (int i = 0; i < count; ++i) {
    PhysicalSpec low;
    PhysicalSpec high;
    switch (i % 4) {
    case 0: low.setColumn(i); break;
    case 1: low.setXY(i, 1); break;
    case 2:
      low.setXY(i, 0);
      high.setXY(i + 3, 4);
      break;
    case 3: low.setName("tile_" + std::to_string(i)); break;
    }
    ranges.emplace_back(low, high);
  }
  return ranges;
}

void BM_RangeArrayPush(benchmark::State& state)
{
  const std::vector<PhysicalRange> ranges = makeRanges(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    JDocument doc;
    PhysicalRangeArray array(doc.GetAllocator());
    for (const PhysicalRange& range : ranges)
      array.pushTileRangeBack(range);
    benchmark::DoNotOptimize(array.get().Size());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_RangeArrayPush)->Arg(10000)->Unit(benchmark::kMillisecond);

// Every tenth name does not resolve; the report is silenced.
class SparseResolver : public BaseNameResolver {
public:
  SparseResolver() { quiet = true; }
  std::string resolveNodeName(const std::string& name) const override
  {
    return name.back() == '0' ? "" : name;
  }
};

void BM_ResolveNodeNames(benchmark::State& state)
{
  std::vector<std::string> names;
  for (int i = 0; i < state.range(0); ++i)
    names.push_back("node_" + std::to_string(i));
  const SparseResolver resolver;
  for (auto _ : state) {
    std::vector<std::string> resolved = names;
    resolver.resolveNodeNames(resolved);
    benchmark::DoNotOptimize(resolved.size());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ResolveNodeNames)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
