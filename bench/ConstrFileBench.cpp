#include "BesideFloor.h"
#include "ComMsgLog.h"
#include "ComMsgMgr.h"
#include "ConstrHandler.h"
#include "ForwardingHandler.h"
#include "ParseAndValidate.h"
#include "SchemaFile.h"

#include <benchmark/benchmark.h>
#include <boost/filesystem.hpp>
#include <rapidjson/istreamwrapper.h>
#include <rapidjson/ostreamwrapper.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/schema.h>

#include <fstream>
#include <map>
#include <string>
#include <utility>

// ConstrHandler::read and write of generated constraints files, each timed
// beside its floor on the same file in the same iteration: RapidJSON alone
// parsing the same text and validating it with the same schema, read and compiled
// anew as the library does; and for the write, RapidJSON alone passing the
// same document through the validator into a pretty writer. Counters:
// x_floor, the library's time over the floor's; x_10k, at 100k constraints,
// the library's time over its time at 10k (linear is 10).
namespace {

using qpe::constraints::ConstrHandler;
using qpe::constraints::SchemaFile;
using PrettyWriter = rapidjson::PrettyWriter<rapidjson::OStreamWrapper>;
namespace fs = boost::filesystem;

// `count` attributes, three on each object: nodes, ports and nets in turn,
// one key in ten with a source location in another file.
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
    section += "      \"weight\": " + std::to_string(0.5 + i % 7) +
               ",\n      \"label\": \"kernel_" + std::to_string(i) + "\"\n    }";
  }
  return "{\n  \"NodeConstraints\": {" + sections[0] + "\n  },\n  \"PortConstraints\": {" +
         sections[1] + "\n  },\n  \"NetConstraints\": {" + sections[2] + "\n  }\n}\n";
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

void validateAndPrint(const JDocument& document, const std::string& path,
                      const std::string& schemaPath)
{
  const std::unique_ptr<rapidjson::SchemaDocument> schema = loadSchema(schemaPath);
  std::ofstream out(path);
  rapidjson::OStreamWrapper wrapper(out);
  PrettyWriter writer(wrapper);
  writer.SetIndent(' ', 2);
  writer.SetFormatOptions(rapidjson::kFormatSingleLineArray);
  IPConfig::ForwardingHandler<PrettyWriter> toWriter(writer);
  rapidjson::GenericSchemaValidator<rapidjson::SchemaDocument, decltype(toWriter)> validator(
      *schema, toWriter);
  benchmark::DoNotOptimize(document.Accept(validator));
}

void report(benchmark::State& state, std::map<int64_t, double>& means, double library,
            double floor)
{
  reportBesideFloor(state, means, library, floor, 10000, 100000, "x_10k");
}

void BM_ConstrFileRead(benchmark::State& state)
{
  ComMsgMgr::setConsole(nullptr);
  const GeneratedFile file(static_cast<int>(state.range(0)));
  const std::string schemaPath = SchemaFile::getConstraintsSchema();
  static std::map<int64_t, double> means;
  double library = 0;
  double floor = 0;
  for (auto _ : state) {
    floor += seconds([&] { parseAndValidate(file.text, schemaPath); });
    ConstrHandler handler;
    const double read = seconds([&] { handler.read(file.path()); });
    library += read;
    state.SetIterationTime(read);
  }
  report(state, means, library, floor);
}
BENCHMARK(BM_ConstrFileRead)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
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
  double library = 0;
  double floor = 0;
  for (auto _ : state) {
    floor += seconds([&] { validateAndPrint(written, file.output(), schemaPath); });
    const double write = seconds([&] { handler.write(file.output()); });
    library += write;
    state.SetIterationTime(write);
    ComMsgLog::clear();
  }
  report(state, means, library, floor);
}
BENCHMARK(BM_ConstrFileWrite)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
