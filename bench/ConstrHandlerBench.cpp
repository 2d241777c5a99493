#include "ConstrHandler.h"

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace {

using namespace qpe::constraints;

// `count` attributes on count / 2 objects, two on each; even objects are
// ports, odd ones nodes.
struct Store {
  explicit Store(int count) : objects(count / 2)
  {
    for (int i = 0; i < objects; ++i)
      names.push_back("obj_" + std::to_string(i));
    fill(handler);
  }

  void fill(ConstrHandler& target) const
  {
    for (int attr = 0; attr < 2; ++attr)
      for (int i = 0; i < objects; ++i)
        target.setAttrConstr(i % 2 ? BaseConstraint::NODE : BaseConstraint::PORT, names[i],
                             attrNames[attr], i);
  }

  int objects;
  std::vector<std::string> names;
  const std::string attrNames[2] = {"fifo_depth", "qpe.user_key"};
  ConstrHandler handler;
};

void setItems(benchmark::State& state)
{
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_StoreCreate(benchmark::State& state)
{
  const Store store(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    ConstrHandler handler;
    store.fill(handler);
    benchmark::DoNotOptimize(handler.size());
    state.PauseTiming();
    handler.clear();
    state.ResumeTiming();
  }
  setItems(state);
}
BENCHMARK(BM_StoreCreate)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_StoreQueryByObjectAndName(benchmark::State& state)
{
  const Store store(static_cast<int>(state.range(0)));
  for (auto _ : state)
    for (const std::string& name : store.names)
      for (const std::string& attr : store.attrNames)
        benchmark::DoNotOptimize(store.handler.getAttrConstr(name, attr));
  setItems(state);
}
BENCHMARK(BM_StoreQueryByObjectAndName)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

// As many ports as a tenth of the constraints, renamed there and back.
void BM_StoreRenamePorts(benchmark::State& state)
{
  Store store(static_cast<int>(state.range(0)));
  std::map<std::string, std::string> there;
  std::map<std::string, std::string> back;
  for (int i = 0; i < state.range(0) / 5; i += 2) {
    there[store.names[i]] = store.names[i] + "_renamed";
    back[store.names[i] + "_renamed"] = store.names[i];
  }
  for (auto _ : state) {
    store.handler.renamePorts(there);
    store.handler.renamePorts(back);
  }
  state.SetItemsProcessed(state.iterations() * 2 * static_cast<int64_t>(there.size()));
}
BENCHMARK(BM_StoreRenamePorts)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_StoreCopy(benchmark::State& state)
{
  const Store store(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    ConstrHandler copy;
    copy.copy(store.handler);
    benchmark::DoNotOptimize(copy.size());
    state.PauseTiming();
    copy.clear();
    state.ResumeTiming();
  }
  setItems(state);
}
BENCHMARK(BM_StoreCopy)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_StoreClear(benchmark::State& state)
{
  const Store store(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    ConstrHandler handler;
    store.fill(handler);
    state.ResumeTiming();
    handler.clear();
    benchmark::DoNotOptimize(handler.size());
  }
  setItems(state);
}
BENCHMARK(BM_StoreClear)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

// One group grown by single adds, as a reader merging entries of one name
// does: time per node stays flat as the group grows.
void BM_AreaGroupSingleAdds(benchmark::State& state)
{
  std::vector<std::string> nodes;
  for (int i = 0; i < state.range(0); ++i)
    nodes.push_back("node_" + std::to_string(i));
  for (auto _ : state) {
    ConstrHandler handler;
    for (const std::string& node : nodes)
      handler.addAreaGroupConstr("group", {node}, {}, false, false, false, false, false);
    benchmark::DoNotOptimize(handler.size());
    state.PauseTiming();
    handler.clear();
    state.ResumeTiming();
  }
  setItems(state);
}
BENCHMARK(BM_AreaGroupSingleAdds)
    ->Arg(10000)
    ->Arg(30000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);

// The worst cases of a relation: one node listing `count` nodes, then
// `count` nodes each listing one and the same node. Each query answers from
// both sides.
void BM_RelationQueries(benchmark::State& state)
{
  const int count = static_cast<int>(state.range(0));
  ConstrHandler handler;
  std::vector<std::string> members;
  for (int i = 0; i < count; ++i)
    members.push_back("member_" + std::to_string(i));
  handler.addColocatedNodesConstr(BaseConstraint::NODE, "owner", members, false);
  for (const std::string& member : members)
    handler.addColocatedNodesConstr(BaseConstraint::NODE, member, {"shared"}, false);
  std::vector<std::string> out;
  for (auto _ : state) {
    handler.getColocatedNodes("owner", out);
    handler.getColocatedNodes("shared", out);
    benchmark::DoNotOptimize(out.size());
  }
  setItems(state);
}
BENCHMARK(BM_RelationQueries)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

// One port's list of `count` names read from its file text, merging one key
// into the next.
void BM_ColocationListAdd(benchmark::State& state)
{
  const int count = static_cast<int>(state.range(0));
  std::vector<std::string> names;
  for (int i = 0; i < count; ++i)
    names.push_back("port_" + std::to_string(i));
  for (auto _ : state) {
    ConstrHandler handler;
    handler.addColocatedPortsConstr(BaseConstraint::PORT, "p", names, false);
    handler.addColocatedPortsConstr(BaseConstraint::PORT, "p", names, false);
    benchmark::DoNotOptimize(handler.size());
    state.PauseTiming();
    handler.clear();
    state.ResumeTiming();
  }
  setItems(state);
}
BENCHMARK(BM_ColocationListAdd)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
