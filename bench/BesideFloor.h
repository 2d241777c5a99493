#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <map>
#include <string>

// Times of the library beside its floor, RapidJSON alone on the same text,
// taken in the same iteration so that both see the same load. Times are the
// thread's CPU time, which a machine shared with other jobs leaves steady
// where the wall clock is not.

inline double threadSeconds()
{
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

template <typename Action>
double seconds(const Action& action)
{
  const double start = threadSeconds();
  action();
  return threadSeconds() - start;
}

// The summed times of the library and of each of its floors over the runs:
// the counter of a floor is the library's time over the floor's.
struct BesideFloors {
  double library = 0;
  std::map<std::string, double> floors;

  void report(benchmark::State& state) const
  {
    for (const auto& [counter, floor] : floors)
      state.counters[counter] = library / floor;
  }
};

// The peak resident memory of the process from the moment of make, above
// what was resident then: Linux resets the peak on "5" to clear_refs.
class PeakMemory {
public:
  PeakMemory() : start(status("VmRSS:"))
  {
    std::ofstream("/proc/self/clear_refs") << "5";
  }

  // Bytes above the start, per item, as a counter.
  void report(benchmark::State& state, int64_t items) const
  {
    state.counters["peak_bytes_per_item"] =
        static_cast<double>(status("VmHWM:") - start) / static_cast<double>(items);
  }

private:
  // A "kB" line of /proc/self/status, in bytes.
  static int64_t status(const std::string& name)
  {
    std::ifstream in("/proc/self/status");
    std::string word;
    while (in >> word)
      if (word == name) {
        int64_t kiloBytes = 0;
        in >> kiloBytes;
        return kiloBytes * 1024;
      }
    return 0;
  }

  int64_t start;
};

// The sizes of a benchmark: `large` only when IPCONFIG_RW_BENCH_LARGE is set,
// since one run of it takes many seconds.
inline void addSizes(benchmark::internal::Benchmark* bench, int64_t small, int64_t medium,
                     int64_t large)
{
  bench->Arg(small)->Arg(medium);
  if (std::getenv("IPCONFIG_RW_BENCH_LARGE"))
    bench->Arg(large);
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
