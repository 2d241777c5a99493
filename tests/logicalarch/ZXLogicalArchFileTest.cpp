#include "TestSupport.h"

#include "HDGUIStatus.h"
#include "ZXLogicalArchModel.h"
#include "ZXLogicalArchReader.h"
#include "ZXLogicalArchWriter.h"

#include <map>

namespace {

using namespace IPConfig::Frameworks;
using namespace testing_support;

const std::string fileName = "in/logical_arch.json";
const std::string example = IPCONFIG_RW_EXAMPLES_DIR "/logical_arch.json";
const std::string data = IPCONFIG_RW_TESTS_DATA_DIR "/";

void read(const std::string& text, ZXLogicalArchModel& model)
{
  std::istringstream in(text);
  EXPECT_TRUE(ZXLogicalArchReader().readFromJsonFile(in, fileName, model));
}

std::string write(const ZXLogicalArchModel& model, const std::string& prefix = "")
{
  std::ostringstream out;
  HDGUIStatus status;
  EXPECT_TRUE(ZXLogicalArchWriter().writeToJsonFile(prefix, out, model, status));
  return out.str();
}

std::string roundtrip(const std::string& text, const std::string& prefix = "")
{
  ZXLogicalArchModel model;
  read(text, model);
  return write(model, prefix);
}

class ZXLogicalArchFileTest : public MessageLogTest {};

// Files and the bytes they are written back as, under a prefix. Without a
// prefix the written bytes read and written again stay as they are; a prefix
// can cut references, which a second read drops. The loose forms are older or
// lenient ones: a text annotation, empty names, zero or negative figures,
// false flags.
TEST_F(ZXLogicalArchFileTest, WritesTheExactBytesAndStaysThere)
{
  const struct {
    std::string input, prefix, golden;
  } files[] = {{example, "", example},
               {data + "logical_arch_edges.json", "", data + "logical_arch_edges.json"},
               {data + "logical_arch_edges.json", "top",
                data + "logical_arch_edges_prefix_top.json"},
               {data + "logical_arch_edges.json", "top/",
                data + "logical_arch_edges_prefix_top_slash.json"},
               {data + "logical_arch_loose.json", "", data + "logical_arch_loose_written.json"}};
  for (const auto& file : files) {
    SCOPED_TRACE(file.golden);
    const std::string golden = readFile(file.golden);
    EXPECT_EQ(roundtrip(readFile(file.input), file.prefix), golden);
    if (file.prefix.empty()) {
      EXPECT_EQ(roundtrip(golden), golden);
    }
  }
}

TEST_F(ZXLogicalArchFileTest, PrefixesTopAndTopSlashAgreeOnOneLevelNamesAndStayStable)
{
  const std::string top = roundtrip(readFile(example), "top");
  EXPECT_EQ(roundtrip(readFile(example), "top/"), top);
  EXPECT_EQ(top.find("top"), std::string::npos);
  EXPECT_EQ(roundtrip(top), top);
}

TEST_F(ZXLogicalArchFileTest, ReadingTheExampleReportsProgressAndLinksPortsAndConnections)
{
  HDGUIStatus status;
  std::vector<double> progress;
  status.setListener([&](const std::string&, double value) { progress.push_back(value); });
  ZXLogicalArchModel model;
  EXPECT_TRUE(ZXLogicalArchReader().readFromJsonFile(example, model, status));
  EXPECT_EQ(progress, (std::vector<double>{20.0, 40.0, 60.0, 80.0, 100.0}));
  const ZXLogicalPort* out = model.getLogicalInstance("top/array")->getLogicalPort("out_spectrum");
  ASSERT_NE(out, nullptr);
  EXPECT_EQ(out->clkFreq, 312.5);
  EXPECT_EQ(out->annotation, (std::vector<std::string>{"spectrum_out", "fft_out"}));
  ASSERT_NE(out->connection, nullptr);
  EXPECT_EQ(out->connection->srcPort, out);
  ZXLogicalPort* shared = model.getLogicalInstance("top/noc")->getLogicalPort("S00_AXI");
  EXPECT_EQ(shared->connection->name, "top/buffer") << "the connection read last";
  EXPECT_EQ(out->connection->dstPorts, std::vector<ZXLogicalPort*>{shared});
  EXPECT_FALSE(model.hasLogicalConnection("top/buffer"));
}

TEST_F(ZXLogicalArchFileTest, ReadsAndWritesTheEnumeratedConnectionKeys)
{
  // A text of one key: the value read, and the text written back (null: the
  // key is not written).
  const struct {
    const char* key;
    const char* text;
    std::uint32_t value;
    const char* written;
  } texts[] = {{"direction", "qpe_to_pl", 0, "qpe_to_pl"},
               {"direction", "zx_to_pl", 0, "qpe_to_pl"},
               {"direction", "pl_to_zx", 1, "pl_to_qpe"},
               {"direction", "zx_to_noc", 2, "qpe_to_noc"},
               {"direction", "noc_to_zx", 3, "noc_to_qpe"},
               {"direction", "noc_to_qpe", 3, "noc_to_qpe"},
               {"direction", "noc_to_pl", 4, "noc_to_pl"},
               {"direction", "pl_to_noc", 5, "pl_to_noc"},
               {"direction", "noc_to_noc", 6, "noc_to_noc"},
               {"direction", "pl_to_pl", 7, "pl_to_pl"},
               {"direction", "zx_to_zx", 8, nullptr},
               {"type", "event", 2, "event"},
               {"type", "STREAM", 3, nullptr},
               {"memMode", "read-only", 0, "read-only"},
               {"memMode", "write-only", 1, "write-only"},
               {"memMode", "rw", 3, nullptr},
               {"addrType", "physical", 1, "physical"},
               {"addrType", "", 2, nullptr}};
  for (const auto& c : texts) {
    const std::string key = c.key;
    SCOPED_TRACE(key + " '" + c.text + "'");
    ZXLogicalArchModel model;
    read(R"({"connections": {"c": {")" + key + R"(": ")" + c.text + R"("}}})", model);
    std::vector<ZXLogicalConnection*> connections;
    ASSERT_EQ(model.getLogicalConnections(connections), 1u);
    const ZXLogicalConnection& connection = *connections[0];
    const std::map<std::string, std::uint32_t> values{
        {"type", connection.connectionType},
        {"direction", connection.connectionDirection},
        {"memMode", connection.memMode},
        {"addrType", connection.addrType}};
    EXPECT_EQ(values.at(key), c.value);
    EXPECT_EQ(write(model), c.written ? "{\n  \"connections\": {\n    \"c\": {\n      \"" + key +
                                            "\": \"" + c.written + "\"\n    }\n  }\n}"
                                      : "{\n  \"connections\": {\n    \"c\": {}\n  }\n}");
  }
}

TEST_F(ZXLogicalArchFileTest, WriterKeepsParameterIndexZeroAndNamesValuesWithoutTextUnknown)
{
  ZXLogicalArchModel model;
  ZXLogicalNOCIPInstance* noc = model.addNOCIPInstance("n");
  noc->type = ZXLogicalNOCIPInstance::NOCType(3);
  ZXLogicalPort* port = model.addNOCPort("p", noc);
  port->portType = ZXLogicalPort::PortType(4);
  port->direction = ZXLogicalPort::Direction(3);
  port->clkFreq = 0.0;
  ZXLogicalConnection* connection = model.addLogicalConnection("c");
  connection->connectionType = ZXLogicalPort::PortType(9);
  connection->connectionDirection = ZXLogicalConnection::Direction(9);
  connection->memMode = ZXLogicalConnection::MemMode(4);
  connection->addrType = ZXLogicalConnection::AddrType(3);
  EXPECT_EQ(write(model), readFile(data + "logical_arch_unknown_values.json"));
}

TEST_F(ZXLogicalArchFileTest, ReadingAddsToTheModelAndSkipsWhatItCannotPlace)
{
  ZXLogicalArchModel model;
  model.setAppId("kept");
  ZXLogicalPLIPInstance* known = model.addPLIPInstance("k");
  model.addPLPort("old", known);
  read(R"({"appId": "", "device": "d",
    "PL": {"k": {"ckernelName": "ignored", "plPorts": {"new": {}}},
           "j": {"plPorts": {"p": {"type": "mem"}, "p": {"type": "stream"}}}},
    "connections": {
      "c": {"srcPort": {"instName": "j", "portName": "p"},
            "dstPorts": [{"instName": "k", "portName": "old"}, {"instName": "k", "portName": "new"},
                         {"instName": "nowhere", "portName": "p"}]},
      "c": {"srcPort": {"instName": "j", "portName": "q"}}}})",
       model);
  EXPECT_EQ(model.getAppId(), "kept");
  EXPECT_EQ(model.getDevice(), "d");
  EXPECT_EQ(known->ckernelName, "");
  EXPECT_FALSE(known->hasLogicalPort("new"));
  const ZXLogicalArchLInst* j = model.getLogicalInstance("j");
  ASSERT_EQ(j->getPorts().size(), 1u);
  EXPECT_EQ(j->getPorts()[0]->portType, ZXLogicalPort::MEM);
  std::vector<ZXLogicalConnection*> connections;
  ASSERT_EQ(model.getLogicalConnections(connections), 2u) << "a repeated connection name adds";
  EXPECT_EQ(connections[0]->srcPort, j->getPorts()[0].get());
  EXPECT_EQ(connections[0]->dstPorts, std::vector<ZXLogicalPort*>{known->getLogicalPort("old")});
  EXPECT_EQ(connections[1]->srcPort, nullptr);
}

TEST_F(ZXLogicalArchFileTest, BadFilesAreRefusedAndLeaveTheModelAlone)
{
  const BadText cases[] = {
      {"malformed", R"({"appId": "a",})", "Missing a name for object member. (offset 14)"},
      {"rootArray", "[]", ""},
      {"appIdNumber", R"({"appId": "a", "device": 1})", "/device"},
      {"sectionArray", R"({"PL": []})", "/PL"},
      {"negativeWidth", R"({"QPE": {"top/a": {"qpeshimPorts": {"p": {"dataWidth": -1}}}}})",
       "/QPE/top~1a/qpeshimPorts/p/dataWidth"},
      {"widthAbove32Bits", R"({"NoC": {"n": {"nocPorts": {"p": {"busWidth": 4294967296}}}}})",
       "/NoC/n/nocPorts/p/busWidth"},
      {"annotationNumbers", R"({"PL": {"k": {"plPorts": {"p": {"annotation": ["a", 2]}}}}})",
       "/PL/k/plPorts/p/annotation/1"},
      {"instanceAnnotationArray", R"({"PL": {"k": {"annotation": ["a"]}}})", "/PL/k/annotation"},
      {"endpointText", R"({"connections": {"c": {"dstPorts": [{}, "k/p"]}}})",
       "/connections/c/dstPorts/1"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    ZXLogicalArchModel model;
    model.setAppId("before");
    expectThrows([&] { read(c.text, model); }, "@90-2@%s%s", {fileName, c.detail});
    EXPECT_TRUE(model.isEmpty());
    EXPECT_EQ(model.getAppId(), "before");
  }
}

TEST_F(ZXLogicalArchFileTest, PathFormsReportTheCanonicalName)
{
  const TempDir dir;
  ZXLogicalArchModel model;
  expectThrows([&] { ZXLogicalArchReader().readFromJsonFile(dir.file("none.json"), model); },
               "@90-1@%s", {dir.file("none.json")});
  writeFile(dir.file("bad.json"), R"({"schema": true})");
  expectThrows([&] { ZXLogicalArchReader().readFromJsonFile(dir.file("sub/../bad.json"), model); },
               "@90-2@%s%s", {dir.file("bad.json"), "/schema"});

  ZXLogicalArchReader().readFromJsonFile(example, model);
  EXPECT_TRUE(ZXLogicalArchWriter().writeToJsonFile(dir.file("out.json"), model));
  EXPECT_EQ(readFile(dir.file("out.json")), readFile(example));
  EXPECT_FALSE(ZXLogicalArchWriter().writeToJsonFile(dir.file("no/dir/out.json"), model));
}

TEST_F(ZXLogicalArchFileTest, EmptyModelWritesNothing)
{
  ZXLogicalArchModel model;
  model.setAppId("only strings");
  std::ostringstream out;
  EXPECT_FALSE(ZXLogicalArchWriter().writeToJsonFile(out, model));
  EXPECT_EQ(out.str(), "");
}

TEST_F(ZXLogicalArchFileTest, DocumentFailingTheSchemaStopsTheTextButStillSucceeds)
{
  const ScopedSchema schema("parts/tarnel/common/merrow/LogicalArchSchema.json",
                            R"({"properties": {"device": {"type": "integer"}}})");
  ZXLogicalArchModel model;
  model.setAppId("a");
  model.setDevice("d");
  model.addPLIPInstance("k");
  std::ostringstream out;
  EXPECT_TRUE(ZXLogicalArchWriter().writeToJsonFile(out, model));
  EXPECT_EQ(out.str(), "{\n  \"appId\": \"a\",\n  \"device\"");
  expectSent({});
}

}  // namespace
