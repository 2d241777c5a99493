#include "BesideFloor.h"
#include "ComMsgLog.h"
#include "ComMsgMgr.h"
#include "ConstrHandler.h"
#include "ParseAndValidate.h"
#include "SchemaFile.h"

#include <benchmark/benchmark.h>
#include <boost/filesystem.hpp>
#include <rapidjson/istreamwrapper.h>

#include <fstream>
#include <map>
#include <string>
#include <utility>

// ConstrHandler::read and write of generated constraints files, each timed
// beside its floors on the same file in the same iteration: `a`, RapidJSON
// alone parsing the same text from memory; `b`, `a` and the same schema read,
// compiled and validating, anew as the library does; and for the write,
// `wb`, RapidJSON alone passing the same document through the validator into
// a pretty writer. Counters: x_a, x_b, x_wb, the library's time over the
// floor's; x_10k, at 100k constraints, the library's time over its time at
// 10k (linear is 10); peak_bytes_per_item, the peak memory of a library run
// per constraint. The 1M size runs with IPCONFIG_RW_BENCH_LARGE set.
namespace {

using qpe::constraints::ConstrHandler;
using qpe::constraints::SchemaFile;
namespace fs = boost::filesystem;

// About `count` constraints: three attributes on each object, nodes, ports
// and nets in turn, one key in ten with a source location in another file;
// a tile on one node in fifty; and ten area groups.
std::string makeConstraints(int count)
{
  const int objects = count / 3;
  std::string sections[3];
  for (int i = 0; i < objects; ++i) {
    std::string& section = sections[i % 3];
    section += section.empty() ? "\n" : ",\n";
    section += "    \"top/inst_" + std::to_string(i) + "\": {\n      \"fifo_depth\": " +
               std::to_string(i % 64) + ",\n";
    if (i % 10 == 0)
      section += "      \"fifo_depth_src_info\": {\"file\": \"graph.cpp\", \"line\": " +
                 std::to_string(i) + ", \"column\": 3},\n";
    if (i % 150 == 0)
      section += "      \"tile\": {\"column\": " + std::to_string(i % 50) +
                 ", \"row\": " + std::to_string(i % 8) + "},\n";
    section += "      \"weight\": " + std::to_string(0.5 + i % 7) +
               ",\n      \"label\": \"kernel_" + std::to_string(i) + "\"\n    }";
  }
  std::string groups;
  for (int g = 0; g < 10; ++g)
    groups += std::string(g ? ",\n" : "\n") + "    \"areaGroup\": {\"name\": \"group_" +
              std::to_string(g) + "\", \"nodeGroup\": [\"top/inst_" + std::to_string(3 * g) +
              "\"], \"tileGroup\": [\"(" + std::to_string(g) + ",0):(" +
              std::to_string(g + 2) + ",3)\"]}";
  return "{\n  \"NodeConstraints\": {" + sections[0] + "\n  },\n  \"PortConstraints\": {" +
         sections[1] + "\n  },\n  \"NetConstraints\": {" + sections[2] +
         "\n  },\n  \"GlobalConstraints\": {" + groups + "\n  }\n}\n";
}

// `count` attributes, all on one node.
std::string makeOneObject(int count)
{
  std::string attrs;
  for (int i = 0; i < count; ++i)
    attrs += (i ? ",\n      \"key_" : "\n      \"key_") + std::to_string(i) +
             "\": " + std::to_string(i);
  return "{\n  \"NodeConstraints\": {\n    \"top/inst\": {" + attrs + "\n    }\n  }\n}\n";
}

// A generated file in a directory of its own, for as long as it is needed.
class GeneratedFile {
public:
  explicit GeneratedFile(int count) : GeneratedFile(makeConstraints(count)) {}
  explicit GeneratedFile(std::string content)
      : dir(fs::temp_directory_path() / fs::unique_path("ipconfig-rw-bench-%%%%-%%%%")),
        text(std::move(content))
  {
    fs::create_directories(dir);
    std::ofstream(path()) << text;
  }
  ~GeneratedFile() { fs::remove_all(dir); }

  std::string path() const { return (dir / "constraints.json").string(); }
  std::string output() const { return (dir / "out.json").string(); }

  const fs::path dir;
  const std::string text;
};

void BM_ConstrFileRead(benchmark::State& state)
{
  ComMsgMgr::setConsole(nullptr);
  const GeneratedFile file(static_cast<int>(state.range(0)));
  const std::string schemaPath = SchemaFile::getConstraintsSchema();
  static std::map<int64_t, double> means;
  BesideFloors runs(state, state.range(0));
  runs.run([&] {
    readFloors(runs, file.text, schemaPath);
    ConstrHandler handler;
    runs.libraryRun([&] { handler.read(file.path()); });
    handler.clear();
  });
  runs.reportGrowth(means, 10000, 100000, "x_10k");
}
BENCHMARK(BM_ConstrFileRead)
    ->Apply([](benchmark::internal::Benchmark* bench) { addSizes(bench, 10000, 100000, 1000000); })
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// The worst case of one object: time per attribute stays flat as it grows.
void BM_ConstrFileReadOneObject(benchmark::State& state)
{
  ComMsgMgr::setConsole(nullptr);
  const GeneratedFile file(makeOneObject(static_cast<int>(state.range(0))));
  for (auto _ : state) {
    ConstrHandler handler;
    const double read = seconds([&] { handler.read(file.path()); });
    state.SetIterationTime(read);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ConstrFileReadOneObject)
    ->Arg(10000)
    ->Arg(30000)
    ->Arg(100000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void BM_ConstrFileWrite(benchmark::State& state)
{
  ComMsgMgr::setConsole(nullptr);
  const GeneratedFile file(static_cast<int>(state.range(0)));
  const std::string schemaPath = SchemaFile::getConstraintsSchema();
  ConstrHandler handler;
  handler.read(file.path());
  handler.write(file.output());
  JDocument written;
  {
    std::ifstream in(file.output());
    rapidjson::IStreamWrapper wrapper(in);
    written.ParseStream(wrapper);
  }
  static std::map<int64_t, double> means;
  BesideFloors runs(state, state.range(0));
  runs.run([&] {
    runs.floor("x_wb", [&] {
      std::ofstream out(file.output());
      validateAndPrettyPrint(written, out, schemaPath, rapidjson::kFormatSingleLineArray);
    });
    runs.libraryRun([&] { handler.write(file.output()); });
    ComMsgLog::clear();
  });
  runs.reportGrowth(means, 10000, 100000, "x_10k");
}
BENCHMARK(BM_ConstrFileWrite)
    ->Apply([](benchmark::internal::Benchmark* bench) { addSizes(bench, 10000, 100000, 1000000); })
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
