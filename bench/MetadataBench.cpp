#include "QPEPrjMetaDataModel.h"

#include <benchmark/benchmark.h>

#include <sstream>

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

void BM_MetadataWrite(benchmark::State& state)
{
  const QPEPrjMetaDataModel model = makeModel(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    std::ostringstream file;
    model.writeToJSONStream(file);
    benchmark::DoNotOptimize(file.tellp());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_MetadataWrite)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_MetadataRead(benchmark::State& state)
{
  std::ostringstream file;
  makeModel(static_cast<int>(state.range(0))).writeToJSONStream(file);
  const std::string text = file.str();
  for (auto _ : state) {
    std::istringstream in(text);
    QPEPrjMetaDataModel back;
    back.readFromJSONStream("bench.json", in);
    benchmark::DoNotOptimize(back.getProperties().size());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_MetadataRead)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
