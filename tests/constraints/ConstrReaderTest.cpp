#include "ConstrSupport.h"

#include "AreaGroupConstr.h"
#include "AttrConstr.h"
#include "ColocatedNodesConstr.h"
#include "ColocatedPortsConstr.h"
#include "ConstrReader.h"
#include "SchemaFile.h"

#include <boost/algorithm/string/replace.hpp>

#include <memory>
#include <sstream>
#include <stdexcept>

namespace {

using namespace constr_support;
using testing_support::ScopedEnv;

// A host's handler: a parent with a hard and a soft child for tool-generated files.
class ParentHandler : public ConstrHandler {
public:
  ConstrHandler* getChildCstHandler(bool soft) const override
  {
    return soft ? soft_.get() : hard_.get();
  }
  std::unique_ptr<ChildHandler> hard_ = std::make_unique<ChildHandler>(false);
  std::unique_ptr<ChildHandler> soft_ = std::make_unique<ChildHandler>(true);
};

class ConstrReaderTest : public MessageLogTest {
protected:
  std::string put(const std::string& text) const
  {
    writeFile(file, text);
    return file;
  }

  std::string location(const std::string& objName, const std::string& attrName) const
  {
    const AttrConstr* attr = handler.getAttrConstr(objName, attrName);
    return attr ? where(attr->getSrcInfo()) : "no attribute";
  }

  const TempDir dir;
  const std::string file = dir.file("constraints.json");
  ConstrHandler handler;
};

TEST_F(ConstrReaderTest, AttributeValuesByJsonType)
{
  handler.read(put(R"({
    "NodeConstraints": {"n": {"flag": true, "off": false, "margin": 3, "ratio": 0.5,
                              "label": "x", "big": 3000000000, "bigger": 3000000000.5,
                              "nothing": null, "list": [1], "object": {"a": 1}}},
    "PortConstraints": {"p": {"fifo_depth": -2}},
    "NetConstraints": {"e": {"Weight": 1.0}}, "GlobalConstraints": {}
  })"));
  expectSent({});
  const AttrConstr* flag = handler.getAttrConstr("n", "flag");
  ASSERT_NE(flag, nullptr);
  EXPECT_TRUE(flag->getBoolVal());
  EXPECT_FALSE(handler.getAttrConstr("n", "off")->isSet()) << "false is a bool's default";
  EXPECT_EQ(handler.getAttrConstr("n", "margin")->getIntVal(), 3);
  EXPECT_EQ(handler.getAttrConstr("n", "ratio")->getDoubleVal(), 0.5);
  EXPECT_EQ(handler.getAttrConstr("n", "label")->getStringVal(), "x");
  EXPECT_EQ(handler.getAttrConstr("n", "big"), nullptr);
  EXPECT_EQ(handler.getAttrConstr("n", "bigger")->getDoubleVal(), 3000000000.5);
  for (const char* ignored : {"nothing", "list", "object"})
    EXPECT_EQ(handler.getAttrConstr("n", ignored), nullptr) << ignored;
  EXPECT_EQ(handler.getAttrConstr("p", "fifo_depth")->getObjType(), Base::PORT);
  EXPECT_EQ(handler.getAttrConstr("e", "weight")->getAttrType(), HATAttrTypes::AttrDouble);
  EXPECT_EQ(handler.getAttrConstr("e", "weight")->getConstrName(), "qpe.Weight");
  EXPECT_EQ(handler.size(), 8u);
}

TEST_F(ConstrReaderTest, KeysGetThePlaceOfTheKeyInTheFileOrTheirOwnSourceLocation)
{
  ConstrReader reader(handler);
  reader.read(put(R"({
  "NodeConstraints": {
    "n": {
      "a": 1,
      "a_src_info": {"file": "design.cpp", "line": 12, "column": 3},
      "b": 2,
      "c": 3,
      "b_src_info": {"file": "ignored.cpp", "line": 1, "column": 1},
      "d": 4,
      "d_src_info": {"line": 7},
      "not_e": 5
    }
  },
  "NetConstraints": {
    "e": {
      "w_src_info": {"file": "early.cpp", "line": 2, "column": 2},
      "w": 1,
      "v": 2,
      "v_src_info": {"file": "net.cpp", "line": 9, "column": 4}
    }
  }
})"),
              true);
  const std::string path = reader.getJsonPath();
  EXPECT_TRUE(boost::filesystem::path(path).is_relative()) << "to the current directory";
  EXPECT_TRUE(boost::filesystem::equivalent(path, file));
  EXPECT_EQ(location("n", "a"), "1 design.cpp 12:3");
  EXPECT_EQ(location("n", "b"), "0 " + path + " 6:7") << "not right behind its key";
  EXPECT_EQ(location("n", "c"), "0 " + path + " 7:7");
  EXPECT_EQ(location("n", "d"), "2  0:0") << "a source location without a file";
  EXPECT_EQ(location("n", "not_e"), "2  0:0") << "no location for a not- key";
  EXPECT_EQ(location("e", "w"), "0 " + path + " 17:7") << "a source key before it counts not";
  EXPECT_EQ(location("e", "v"), "1 net.cpp 9:4");
}

// The list of a "not_" key keeps no location, found or given; the list of an
// "exclusive_" key keeps both, in its own record.
TEST_F(ConstrReaderTest, NotListsLoseTheirLocationsExclusiveListsKeepTheirOwn)
{
  ConstrReader reader(handler);
  reader.read(put(R"({
  "NodeConstraints": {
    "n": {
      "colocated_nodes": ["a"],
      "not_colocated_nodes": ["b"],
      "not_colocated_nodes_src_info": {"file": "g.cc", "line": 3, "column": 4}
    }
  },
  "PortConstraints": {
    "p": {
      "exclusive_colocated_ports": ["q"],
      "not_colocated_ports": ["r"]
    },
    "p2": {
      "exclusive_colocated_ports": ["q"],
      "exclusive_colocated_ports_src_info": {"file": "x.cc", "line": 5, "column": 6},
      "colocated_ports": ["s"]
    }
  }
})"),
              true);
  const std::string path = reader.getJsonPath();
  const ColocatedNodesConstr* nodes = handler.getColocatedNodesConstr("n");
  ASSERT_NE(nodes, nullptr);
  EXPECT_EQ(where(nodes->getSrcInfo()), "0 " + path + " 4:7");
  EXPECT_EQ(where(nodes->getNotColocatedSrcInfo()), "2  0:0");
  const ColocatedPortsConstr* ports = handler.getColocatedPortsConstr("p");
  EXPECT_EQ(where(ports->getExclusiveSrcInfo()), "0 " + path + " 11:7");
  EXPECT_EQ(where(ports->getNotColocatedSrcInfo()), "2  0:0");
  EXPECT_EQ(where(ports->getSrcInfo()), "2  0:0") << "no key of the first list";
  ports = handler.getColocatedPortsConstr("p2");
  EXPECT_EQ(where(ports->getExclusiveSrcInfo()), "1 x.cc 5:6");
  EXPECT_EQ(where(ports->getSrcInfo()), "0 " + path + " 17:7");
}

TEST_F(ConstrReaderTest, AKeyThatIsNotFoundByTextGetsLineZero)
{
  // The file's name for the object is not the resolved one, so its text is
  // not found.
  const Resolver renaming("top/");
  std::istringstream in(R"({"NodeConstraints": {"n": {"k": 1}}})");
  ConstrReader reader(handler, renaming);
  reader.read(in, put(in.str()), true);
  EXPECT_EQ(location("top/n", "k"), "0 " + reader.getJsonPath() + " 0:0");
}

TEST_F(ConstrReaderTest, LocationsWithoutAFileToScanAreReportedPerKey)
{
  std::istringstream in(R"({"NodeConstraints": {"n": {"a": 1, "b": 2}}})");
  handler.read(in, "", BaseNameResolver());
  expectSent({{"@75-857@", ComMsgMgr::Warning, {}}, {"@75-857@", ComMsgMgr::Warning, {}}});
  EXPECT_EQ(location("n", "b"), "0  0:0");
}

TEST_F(ConstrReaderTest, FifoRecordsAreReadAndTheirNamesNotResolved)
{
  const Resolver resolver("", {"fifo_locations_records", "dma0", "p"});
  std::istringstream in(R"({"PortConstraints": {
    "fifo_locations_records": {
      "dma_fifos": {"dma0": {"column": 1, "row": 2, "tile_type": "mem", "offset": 3,
                             "size": 4, "bankId": 5}},
      "stream_fifos": {"s0": {"column": 6, "channel": 7}},
      "other": {"x": {}}
    }}})");
  handler.read(in, put(in.str()), resolver);
  expectSent({});
  const FifoLocationsRecords& records = handler.getFifoLocationsRecords();
  ASSERT_EQ(records.getRecords().size(), 2u);
  EXPECT_TRUE(records.getDmaFifoRecordSize() == 1 && records.getStreamFifoRecordSize() == 1);
  EXPECT_EQ(written(records),
            R"({"fifo_locations_records":{"dma_fifos":{"dma0":{"tile_type":"mem","row":2,)"
            R"("column":1,"size":4,"offset":3,"bankId":5}},"stream_fifos":{"s0":)"
            R"({"tile_type":"core","column":6,"channel":7}}}})");
  EXPECT_TRUE(handler.empty()) << "records are no constraints";
}

TEST_F(ConstrReaderTest, AnUnresolvedObjectIsSkippedAndTheReadGoesOn)
{
  const struct {
    std::string section;
    std::string scope;
    ExpectedMsg expected;
  } cases[] = {
      {"NodeConstraints", "", {"@75-407@%s", Mask::CriticalWarning, {"gone"}}},
      {"NodeConstraints", "top", {"@75-407@%s", Mask::CriticalWarning, {"gone"}}},
      {"PortConstraints", "", {"@75-498@%s", Mask::CriticalWarning, {"gone"}}},
      {"PortConstraints", "top", {"@75-497@%s%s", Mask::CriticalWarning, {"gone", "top"}}},
      {"NetConstraints", "", {"@75-408@%s", Mask::CriticalWarning, {"gone"}}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.section + " " + c.scope);
    ComMsgLog::clear();
    ConstrHandler store;
    std::istringstream in(R"({")" + c.section + R"(": {"gone": {"a": 1}, "kept": {"a": 2}}})");
    store.read(in, put(in.str()), Resolver("", {"gone"}, c.scope));
    expectSent({c.expected});
    EXPECT_EQ(store.size(), 1u);
    EXPECT_EQ(store.getAttrConstr("kept", "a")->getIntVal(), 2);
  }
}

const char* const toolFile = R"({"isToolGenerated": true, "isSoft": true,
                                 "NodeConstraints": {"n": {"a": 1}}})";

TEST_F(ConstrReaderTest, AToolGeneratedFileGoesToTheChildReadAnewAndValidated)
{
  ParentHandler parent;
  ConstrReader reader(parent);
  reader.setSchema(IPCONFIG_RW_DATA_SOURCE_DIR "/" + schemaName);
  reader.read(put(toolFile), false);
  expectSent({{"@75-648@%s%s", Mask::Info, {file, "soft"}},
              {"@75-4193@%s", Mask::Info, {IPCONFIG_RW_DATA_SOURCE_DIR "/" + schemaName}}});
  EXPECT_TRUE(parent.empty());
  EXPECT_TRUE(parent.hard_->empty());
  EXPECT_EQ(parent.soft_->getAttrConstr("n", "a")->getIntVal(), 1);

  put(R"({"isToolGenerated": true, "NodeConstraints": {"n": [1]}})");
  expectThrows([&] { parent.read(file); }, "@75-571@%s%s%s%s",
               {file, "/definitions/node", "type", "/NodeConstraints/n"});
}

TEST_F(ConstrReaderTest, AChildOrAFileThatIsNotToolGeneratedReadsAsItStands)
{
  ChildHandler child(false);
  child.read(put(toolFile));
  EXPECT_EQ(child.size(), 1u);

  handler.read(put(R"({"isToolGenerated": false, "isSoft": true,
                       "NodeConstraints": {"n": {"a": 1}}})"));
  EXPECT_EQ(handler.size(), 1u);
  expectSent({});
}

TEST_F(ConstrReaderTest, AToolGeneratedFileWithoutAChildThrows)
{
  expectRefused([&] { handler.read(put(toolFile)); },
                "ConstrReader::readConstraints() - could not get the child tool generated "
                "constraint handler");
}

TEST_F(ConstrReaderTest, AReadMergesIntoWhatIsThere)
{
  handler.read(put(R"({"NodeConstraints": {"n": {"a": 1, "b": 2}}})"));
  handler.read(put(R"({"NodeConstraints": {"n": {"A": 5}, "m": {"a": 1}}})"));
  EXPECT_EQ(handler.size(), 3u);
  EXPECT_EQ(handler.getAttrConstr("n", "a")->getIntVal(), 5);
}

TEST_F(ConstrReaderTest, WithoutValidationAFileThatBreaksTheSchemaIsRead)
{
  std::istringstream in(R"({"isToolGenerated": 1, "NodeConstraints": {"n": {"a": 1}, "m": 2},
                            "PortConstraints": [], "NetConstraints": {"e": "x"}})");
  ConstrReader(handler).read(in, put(in.str()), false);
  EXPECT_EQ(handler.size(), 1u);
}

TEST_F(ConstrReaderTest, AStreamThatIsNotGoodIsRefused)
{
  std::istringstream in("{}");
  in.setstate(std::ios_base::badbit);
  expectThrows([&] { ConstrReader(handler).read(in, file, true); }, "@90-1@%s", {file});
}

TEST_F(ConstrReaderTest, TheShippedSchemaTakesEveryKeyOfEveryKind)
{
  EXPECT_NO_THROW(
      ConstrReader(handler).read(IPCONFIG_RW_TESTS_DATA_DIR "/constraints_every_key.json", true));
}

enum class Schema { shipped, hidden, missing, malformed };

// A read that fails, and what it throws: "$F" in the arguments stands for the
// file's path, "$S" for the schema's.
struct FailureCase {
  const char* name;
  const char* text;  // null: no file
  Schema schema;
  bool validate;
  std::string format;
  std::vector<std::string> args;
};

void PrintTo(const FailureCase& c, std::ostream* out)
{
  *out << c.name;
}

class ConstrReaderFailureTest : public ConstrReaderTest,
                                public ::testing::WithParamInterface<FailureCase> {};

TEST_P(ConstrReaderFailureTest, ThrowsTheMessageAndLeavesTheHandlerAsItWas)
{
  const FailureCase& c = GetParam();
  handler.setAttrConstr(Base::NODE, "before", "a", 1);
  if (c.text)
    put(c.text);
  const DataTree tree;
  const std::string schema = dir.file("schema.json");
  ConstrReader reader(handler);
  if (c.schema == Schema::hidden)
    tree.hideSchemas();
  if (c.schema == Schema::malformed)
    writeFile(schema, "{\"type\": ");
  if (c.schema == Schema::missing || c.schema == Schema::malformed)
    reader.setSchema(schema);
  std::vector<std::string> args = c.args;
  for (std::string& arg : args) {
    boost::replace_all(arg, "$F", file);
    boost::replace_all(arg, "$S", schema);
  }
  expectThrows([&] { reader.read(file, c.validate); }, c.format, args);
  EXPECT_EQ(handler.size(), 1u);
}

const char* const valid = R"({"NodeConstraints": {"n": {"a": 1}}})";
const std::string violation = "@75-571@%s%s%s%s";

const FailureCase failures[] = {
    {"NoSchema", valid, Schema::hidden, true, "@75-391@", {}},
    {"MissingSchema", valid, Schema::missing, false, "@90-5@%s%s",
     {"$S", "file does not exist: $S"}},
    {"MalformedSchema", valid, Schema::malformed, true, "@90-4@%s%s",
     {"$S", "Invalid value. (offset 9)"}},
    {"MissingFile", nullptr, Schema::shipped, true, "@90-1@%s", {"$F"}},
    {"SyntaxError", R"({"NodeConstraints": {"n": {"a": 1,}}})", Schema::shipped, false,
     "@90-2@%s%s", {"$F", "Missing a name for object member. (offset 34)"}},
    {"SectionNotAnObject", R"({"NodeConstraints": []})", Schema::shipped, true, violation,
     {"$F", "/properties/NodeConstraints", "type", "/NodeConstraints"}},
    {"SrcInfoLineNegative", R"({"NodeConstraints": {"n": {"k_src_info": {"line": -1}}}})",
     Schema::shipped, true, violation,
     {"$F", "", "patternProperties", "/NodeConstraints/n/k_src_info"}},
    {"ListNotAnArray", R"({"NodeConstraints": {"n": {"colocated_nodes": "a"}}})",
     Schema::shipped, true, violation,
     {"$F", "/definitions/listWithProperties", "type", "/NodeConstraints/n/colocated_nodes"}},
    {"PortLocNotAnObject", R"({"PortConstraints": {"p": {"port_loc": 2}}})", Schema::shipped,
     true, violation, {"$F", "/definitions/portLoc", "type", "/PortConstraints/p/port_loc"}}};

INSTANTIATE_TEST_SUITE_P(Failures, ConstrReaderFailureTest, ::testing::ValuesIn(failures),
                         [](const auto& info) { return info.param.name; });

// Without $KVR_ROOT the shipped schema is found and there is no local one.
TEST(SchemaFileTest, TheShippedSchemaAndTheLocalOne)
{
  {
    const ScopedEnv root("KVR_ROOT", std::string("/src/tree"));
    EXPECT_EQ(SchemaFile::getLocalConstraintsSchema(),
              "/src/tree/src/shared/ipconfig/readwrite/zxcore/src/main/resources/data/" +
                  schemaName);
  }
  const ScopedEnv noRoot("KVR_ROOT", std::nullopt);
  EXPECT_TRUE(boost::filesystem::equivalent(SchemaFile::getConstraintsSchema(),
                                            IPCONFIG_RW_DATA_SOURCE_DIR "/" + schemaName));
  EXPECT_EQ(SchemaFile::getConstraintsSchemaOld(), "");
  EXPECT_THROW(SchemaFile::getLocalConstraintsSchema(), std::logic_error);
}

TEST(SchemaFileTest, TheNewNameWinsThenTheOldPathThenNothing)
{
  const DataTree tree;
  const std::string mine = tree.put(schemaName, "{}");
  const std::string old = tree.put(oldSchemaName, "{}");
  EXPECT_EQ(SchemaFile::getConstraintsSchema(), mine);
  EXPECT_EQ(SchemaFile::findFileInDataDir(oldSchemaName), old);
  EXPECT_EQ(SchemaFile::getConstraintsSchemaOld(), old);

  boost::filesystem::remove(mine);
  tree.hide(schemaName);
  EXPECT_EQ(SchemaFile::findFileInDataDir(schemaName), "") << "a directory is no schema";
  EXPECT_EQ(SchemaFile::getConstraintsSchema(), old);

  boost::filesystem::remove(old);
  tree.hide(oldSchemaName);
  EXPECT_EQ(SchemaFile::getConstraintsSchema(), "");
}

// Values that the reader passes over or reports on its own reach it through
// the validation: the user sees the reader's message, not the schema's.
TEST_F(ConstrReaderTest, ValuesTheReaderToleratesPassTheSchema)
{
  const struct {
    const char* name;
    std::string text;
    std::vector<ExpectedMsg> expected;
    std::size_t size;
  } cases[] = {
      {"flags of other types read as false",
       R"j({"isToolGenerated": "true", "isSoft": 1, "GlobalConstraints": {"areaGroup":
           {"name": "g", "exclude": "true", "issoft": 1, "contain_routing": null,
            "exclusive_routing": {}, "exclusive_placement": [true], "nodeGroup": ["a"]}}})j",
       {},
       1},
      {"mem that is no array",
       R"j({"NodeConstraints": {"n": {"mem": 5, "a": 1}}})j",
       {{"@75-579@%s%s", Mask::CriticalWarning, {file, "n"}}},
       1},
      {"buffers that are no array",
       R"j({"PortConstraints": {"p": {"buffers": {"column": 1}, "a": 1}}})j",
       {{"@75-579@%s%s", Mask::CriticalWarning, {file, "p"}}},
       1},
      {"group locations of no text",
       R"j({"GlobalConstraints": {"areaGroup": {"name": "g", "nodeGroup": ["a"],
           "tileGroup": [true], "shimGroup": [null], "memGroup": [false, "(1,0)"]}}})j",
       {{"@75-588@%s%s", Mask::CriticalWarning, {file, "g"}},
        {"@75-587@%s%s", Mask::CriticalWarning, {file, "g"}},
        {"@75-747@%s%s", Mask::CriticalWarning, {file, "g"}}},
       1},
      {"group keys that are no arrays",
       R"j({"GlobalConstraints": {"areaGroup": {"name": "g", "tileGroup": true,
           "shimGroup": null, "memGroup": "(1,0)"}}})j",
       {},
       1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    ComMsgLog::clear();
    ConstrHandler store;
    store.read(put(c.text));
    expectSent(c.expected);
    EXPECT_EQ(store.size(), c.size);
  }

  ConstrHandler store;
  store.read(put(cases[0].text));
  const AreaGroupConstr* group = store.getAreaGroupConstr("g");
  ASSERT_NE(group, nullptr);
  const AreaGroupConstr::Flags& flags = group->getFlags();
  EXPECT_FALSE(flags.exclude || flags.isSoft || flags.containRouting || flags.exclusiveRouting ||
               flags.exclusivePlacement);
  EXPECT_EQ(store.getConstr("g", BaseConstraint::AreaGroup), group);

  store.read(put(cases[3].text));
  EXPECT_EQ(group->getPhysicalGroup().size(), 1u) << "the good element is kept";
}

}  // namespace
