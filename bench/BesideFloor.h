#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <map>
#include <string>
#include <vector>

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

// The peak resident memory of the process from the moment of make, above
// what was resident then: the heap first hands its free pages back to the
// system, as a fresh process has them, so that what a run adds is its own;
// Linux resets the peak on "5" to clear_refs.
class PeakMemory {
public:
  PeakMemory() : start((malloc_trim(0), status("VmRSS:")))
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

// A benchmark's body run beside its floors. One untimed pass of the body
// first runs the library alone for its peak memory per item: the trimmed heap
// that takes makes a run pay for every page it touches, which the timed
// passes, the floors' and the library's alike, do not. Each timed pass then
// sums the library's time and each floor's; the library's is the iteration's,
// so a benchmark runs under manual time and the floors stay out of it.
// Counters: peak_bytes_per_item, and for each floor the library's time over
// the floor's.
class BesideFloors {
public:
  BesideFloors(benchmark::State& state, int64_t items) : state(state), items(items) {}

  template <typename Body>
  void run(const Body& body)
  {
    measuringPeak = true;
    body();
    measuringPeak = false;
    for (auto _ : state)
      body();
    for (const auto& [counter, floor] : floors)
      state.counters[counter] = library / floor;
  }

  template <typename Action>
  void floor(const std::string& counter, const Action& action)
  {
    if (!measuringPeak)
      floors[counter] += seconds(action);
  }

  template <typename Action>
  void libraryRun(const Action& action)
  {
    if (measuringPeak) {
      const PeakMemory peak;
      action();
      peak.report(state, items);
      return;
    }
    const double time = seconds(action);
    library += time;
    state.SetIterationTime(time);
  }

  // Counts the items of each iteration as processed and, at `larger` items,
  // sets the counter `growth`: the library's mean time there over its mean at
  // `small` items (linear is larger / small). `means` keeps each size's mean
  // between runs.
  void reportGrowth(std::map<int64_t, double>& means, int64_t small, int64_t larger,
                    const char* growth) const
  {
    means[items] = library / static_cast<double>(state.iterations());
    if (items == larger && means.count(small))
      state.counters[growth] = means[larger] / means[small];
    state.SetItemsProcessed(state.iterations() * items);
  }

private:
  benchmark::State& state;
  const int64_t items;
  bool measuringPeak = false;
  double library = 0;
  std::map<std::string, double> floors;
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

// As above, for a benchmark whose size is several arguments.
inline void addSizes(benchmark::internal::Benchmark* bench, const std::vector<int64_t>& small,
                     const std::vector<int64_t>& medium, const std::vector<int64_t>& large)
{
  bench->Args(small)->Args(medium);
  if (std::getenv("IPCONFIG_RW_BENCH_LARGE"))
    bench->Args(large);
}
