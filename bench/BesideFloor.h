#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>
#include <map>

// Times of the library beside its floor, RapidJSON alone on the same text,
// taken in the same iteration so that both see the same load.

template <typename Action>
double seconds(const Action& action)
{
  const auto start = std::chrono::steady_clock::now();
  action();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Sets the counters from the summed times of both: x_floor, the library's
// time over the floor's, and, at the size `large`, the library's mean time
// over its mean at `small` under the name `growth` (linear is large / small).
// `means` keeps each size's mean between runs.
inline void reportBesideFloor(benchmark::State& state, std::map<int64_t, double>& means,
                              double library, double floor, int64_t small, int64_t large,
                              const char* growth)
{
  const int64_t count = state.range(0);
  means[count] = library / static_cast<double>(state.iterations());
  state.counters["x_floor"] = library / floor;
  if (count == large && means.count(small))
    state.counters[growth] = means[large] / means[small];
  state.SetItemsProcessed(state.iterations() * count);
}
