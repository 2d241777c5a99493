#include "QPEPrjMetaDataModel.h"

#include "BesideFloor.h"
#include "ParseAndValidate.h"

#include <benchmark/benchmark.h>

#include <map>
#include <sstream>
#include <string>

// The metadata file read and written, each timed beside its floor in the same
// iteration (see BesideFloor.h and ParseAndValidate.h). The file has no
// schema, so the read's floor is `a` alone (x_a), and the write's is `w`,
// RapidJSON alone pretty-printing the same document (x_w).
// peak_bytes_per_item, the peak memory of a library run per property; x_10k,
// at 100k properties, the library's time over its time at 10k (linear is
// 10). The 1M size runs with IPCONFIG_RW_BENCH_LARGE set.
namespace {

using IPConfig::Frameworks::QPEPrjMetaDataModel;

// One property of each of the six value types, round-robin.
QPEPrjMetaDataModel makeModel(int properties)
{
  QPEPrjMetaDataModel model;
  for (int i = 0; i < properties; ++i) {
    const std::string key = "property." + std::to_string(i);
    switch (i % 6) {
    case 0: model.addBooleanProperty(key, true); break;
    case 1: model.addIntegrProperty(key, i); break;
    case 2: model.addULongProperty(key, 5000000000ul + i); break;
    case 3: model.addDoubleProperty(key, i * 0.25); break;
    case 4: model.addStringProperty(key, "value " + key); break;
    case 5: model.addStringArrayProperty(key, {"a", key}); break;
    }
  }
  return model;
}

void BM_MetadataWriteRead(benchmark::State& state)
{
  const QPEPrjMetaDataModel model = makeModel(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    std::stringstream file;
    model.writeToJSONStream(file);
    QPEPrjMetaDataModel back;
    back.readFromJSONStream("bench.json", file);
    benchmark::DoNotOptimize(back.getProperties().size());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_MetadataWriteRead)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

std::string makeText(int properties)
{
  std::ostringstream file;
  makeModel(properties).writeToJSONStream(file);
  return file.str();
}

void addPropertySizes(benchmark::internal::Benchmark* bench)
{
  addSizes(bench, 10000, 100000, 1000000);
}

void BM_MetadataWrite(benchmark::State& state)
{
  const QPEPrjMetaDataModel model = makeModel(static_cast<int>(state.range(0)));
  JDocument written;
  written.Parse(makeText(static_cast<int>(state.range(0))).c_str());
  static std::map<int64_t, double> means;
  BesideFloors runs(state, state.range(0));
  runs.run([&] {
    runs.floor("x_w", [&] {
      std::ostringstream file;
      benchmark::DoNotOptimize(prettyPrint(written, file));
    });
    std::ostringstream file;
    runs.libraryRun([&] { model.writeToJSONStream(file); });
    benchmark::DoNotOptimize(file.tellp());
  });
  runs.reportGrowth(means, 10000, 100000, "x_10k");
}
BENCHMARK(BM_MetadataWrite)
    ->Apply(addPropertySizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void BM_MetadataRead(benchmark::State& state)
{
  const std::string text = makeText(static_cast<int>(state.range(0)));
  static std::map<int64_t, double> means;
  BesideFloors runs(state, state.range(0));
  runs.run([&] {
    parseFloor(runs, text);
    std::istringstream in(text);
    QPEPrjMetaDataModel back;
    runs.libraryRun([&] { back.readFromJSONStream("bench.json", in); });
    benchmark::DoNotOptimize(back.getProperties().size());
  });
  runs.reportGrowth(means, 10000, 100000, "x_10k");
}
BENCHMARK(BM_MetadataRead)
    ->Apply(addPropertySizes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
