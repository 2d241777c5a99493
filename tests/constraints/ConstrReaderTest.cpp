#include "ConstrSupport.h"

#include "AttrConstr.h"
#include "BaseNameResolver.h"
#include "ConstrHandler.h"
#include "ConstrReader.h"
#include "HEXAlgException.h"

#include <memory>
#include <set>
#include <sstream>

namespace {

using namespace qpe::constraints;
using constr_support::ChildHandler;
using constr_support::DataTree;
using constr_support::schemaName;
using testing_support::ExpectedMsg;
using testing_support::MessageLogTest;
using testing_support::TempDir;
using testing_support::writeFile;
using Base = BaseConstraint;
using Mask = ComMsgMgr::MsgMask;

// Names listed as unknown resolve to nothing.
class PartialResolver : public BaseNameResolver {
public:
  PartialResolver(std::set<std::string> unknown, std::string scope)
      : unknown_(std::move(unknown)), scope_(std::move(scope))
  {
  }
  std::string getScopeName() const override { return scope_; }
  std::string resolveNodeName(const std::string& name) const override { return known(name); }
  std::string resolvePortName(const std::string& name) const override { return known(name); }
  std::string resolveNetName(const std::string& name) const override { return known(name); }

private:
  std::string known(const std::string& name) const { return unknown_.count(name) ? "" : name; }
  std::set<std::string> unknown_;
  std::string scope_;
};

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

  // The recorded location of the object's attribute, "kind file line:column".
  std::string location(const std::string& objName, const std::string& attrName) const
  {
    const AttrConstr* attr = handler.getAttrConstr(objName, attrName);
    if (!attr)
      return "no attribute";
    const SrcInfo& info = attr->getSrcInfo();
    return std::to_string(info.getKind()) + " " + info.getFile() + " " +
           std::to_string(info.getLine()) + ":" + std::to_string(info.getColumn());
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
    "NetConstraints": {"e": {"Weight": 1.0}}
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

TEST_F(ConstrReaderTest, AnEmptyRootAndEmptySectionsGiveNothing)
{
  for (const char* text : {"{}", R"({"NodeConstraints": {}, "PortConstraints": {},
                                     "NetConstraints": {}, "GlobalConstraints": {}})"}) {
    handler.read(put(text));
    EXPECT_TRUE(handler.empty()) << text;
  }
  expectSent({});
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
  EXPECT_EQ(location("n", "a"), "1 design.cpp 12:3");
  EXPECT_EQ(location("n", "b"), "0 " + path + " 6:7") << "not right behind its key";
  EXPECT_EQ(location("n", "c"), "0 " + path + " 7:7");
  EXPECT_EQ(location("n", "d"), "2  0:0") << "a source location without a file";
  EXPECT_EQ(location("n", "not_e"), "2  0:0") << "no location for a not- key";
  EXPECT_EQ(location("e", "w"), "0 " + path + " 17:7") << "a source key before it counts not";
  EXPECT_EQ(location("e", "v"), "1 net.cpp 9:4");
}

TEST_F(ConstrReaderTest, AKeyThatIsNotFoundByTextGetsLineZero)
{
  // The file's name for the object is not the resolved one, so its text is
  // not found.
  class Renaming : public BaseNameResolver {
    std::string resolveNodeName(const std::string& name) const override { return "top/" + name; }
  } renaming;
  std::istringstream in(R"({"NodeConstraints": {"n": {"k": 1}}})");
  ConstrReader reader(handler, renaming);
  reader.read(in, put(in.str()), true);
  EXPECT_EQ(location("top/n", "k"), "0 " + reader.getJsonPath() + " 0:0");
}

TEST_F(ConstrReaderTest, TheRecordedPathIsRelativeToTheCurrentDirectory)
{
  ConstrReader reader(handler);
  reader.read(put("{}"), true);
  const std::string recorded = reader.getJsonPath();
  EXPECT_TRUE(boost::filesystem::path(recorded).is_relative()) << recorded;
  EXPECT_TRUE(boost::filesystem::equivalent(recorded, file));

  std::istringstream in("{}");
  reader.read(in, "relative/name.json", false);
  EXPECT_EQ(reader.getJsonPath(), "relative/name.json");
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
  const PartialResolver resolver({"fifo_locations_records", "dma0", "p"}, "");
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
  JDocument written;
  written.SetObject();
  records.write(written, written);
  EXPECT_EQ(testing_support::toText(written),
            R"({"fifo_locations_records":{"dma_fifos":{"dma0":{"tile_type":"mem","row":2,)"
            R"("column":1,"size":4,"offset":3,"bankId":5}},"stream_fifos":{"s0":)"
            R"({"tile_type":"core","column":6,"channel":7}}}})");
  EXPECT_TRUE(handler.empty()) << "records are no constraints";
}

struct UnresolvedCase {
  const char* section;
  std::string scope;
  ExpectedMsg expected;
};

void PrintTo(const UnresolvedCase& c, std::ostream* out)
{
  *out << c.section << (c.scope.empty() ? "" : " with scope");
}

class ConstrReaderUnresolvedTest : public ConstrReaderTest,
                                   public ::testing::WithParamInterface<UnresolvedCase> {};

TEST_P(ConstrReaderUnresolvedTest, AnUnresolvedObjectIsSkippedAndTheReadGoesOn)
{
  const UnresolvedCase& c = GetParam();
  const PartialResolver resolver({"gone"}, c.scope);
  std::istringstream in(std::string(R"({")") + c.section +
                        R"(": {"gone": {"a": 1}, "kept": {"a": 2}}})");
  handler.read(in, put(in.str()), resolver);
  expectSent({c.expected});
  EXPECT_EQ(handler.size(), 1u);
  EXPECT_EQ(handler.getAttrConstr("kept", "a")->getIntVal(), 2);
}

INSTANTIATE_TEST_SUITE_P(
    Sections, ConstrReaderUnresolvedTest,
    ::testing::Values(
        UnresolvedCase{"NodeConstraints", "", {"@75-407@%s", Mask::CriticalWarning, {"gone"}}},
        UnresolvedCase{"NodeConstraints", "top", {"@75-407@%s", Mask::CriticalWarning, {"gone"}}},
        UnresolvedCase{"PortConstraints", "", {"@75-498@%s", Mask::CriticalWarning, {"gone"}}},
        UnresolvedCase{"PortConstraints",
                       "top",
                       {"@75-497@%s%s", Mask::CriticalWarning, {"gone", "top"}}},
        UnresolvedCase{"NetConstraints", "", {"@75-408@%s", Mask::CriticalWarning, {"gone"}}}));

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
  try {
    handler.read(put(toolFile));
    ADD_FAILURE() << "no exception";
  } catch (const HEXAlgException& failure) {
    EXPECT_STREQ(failure.what(), "ConstrReader::readConstraints() - could not get the child "
                                 "tool generated constraint handler");
  }
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

// The failures of a read, in a directory that holds the file.
struct FailureCase {
  const char* name;
  std::function<void(ConstrReader&, const TempDir& dir)> read;
  std::string format;
  std::function<std::vector<std::string>(const TempDir& dir)> args;
};

void PrintTo(const FailureCase& c, std::ostream* out)
{
  *out << c.name;
}

class ConstrReaderFailureTest : public ConstrReaderTest,
                                public ::testing::WithParamInterface<FailureCase> {};

TEST_P(ConstrReaderFailureTest, ThrowsTheMessageAndLeavesTheHandlerAsItWas)
{
  handler.setAttrConstr(Base::NODE, "before", "a", 1);
  put(R"({"NodeConstraints": {"n": {"a": 1}}})");
  ConstrReader reader(handler);
  expectThrows([&] { GetParam().read(reader, dir); }, GetParam().format, GetParam().args(dir));
  EXPECT_EQ(handler.size(), 1u);
}

using Args = std::vector<std::string>;

std::string fileIn(const TempDir& dir)
{
  return dir.file("constraints.json");
}

std::string schemaIn(const TempDir& dir)
{
  return dir.file("schema.json");
}

INSTANTIATE_TEST_SUITE_P(
    Failures, ConstrReaderFailureTest,
    ::testing::Values(
        FailureCase{"NoSchema",
                    [](ConstrReader& reader, const TempDir& dir) {
                      const DataTree tree;
                      tree.hide(schemaName);
                      tree.hide(constr_support::oldSchemaName);
                      reader.read(fileIn(dir), true);
                    },
                    "@75-391@", [](const TempDir&) { return Args{}; }},
        FailureCase{"MissingSchema",
                    [](ConstrReader& reader, const TempDir& dir) {
                      reader.setSchema(schemaIn(dir));
                      reader.read(fileIn(dir), false);
                    },
                    "@90-5@%s%s",
                    [](const TempDir& dir) {
                      return Args{schemaIn(dir), "file does not exist: " + schemaIn(dir)};
                    }},
        FailureCase{"MalformedSchema",
                    [](ConstrReader& reader, const TempDir& dir) {
                      writeFile(schemaIn(dir), "{\"type\": ");
                      reader.setSchema(schemaIn(dir));
                      reader.read(fileIn(dir), true);
                    },
                    "@90-4@%s%s",
                    [](const TempDir& dir) {
                      return Args{schemaIn(dir), "Invalid value. (offset 9)"};
                    }},
        FailureCase{"BadStream",
                    [](ConstrReader& reader, const TempDir& dir) {
                      std::istringstream in("{}");
                      in.setstate(std::ios_base::badbit);
                      reader.read(in, fileIn(dir), true);
                    },
                    "@90-1@%s", [](const TempDir& dir) { return Args{fileIn(dir)}; }},
        FailureCase{"MissingFile",
                    [](ConstrReader& reader, const TempDir& dir) {
                      reader.read(dir.file("missing.json"), true);
                    },
                    "@90-1@%s", [](const TempDir& dir) { return Args{dir.file("missing.json")}; }},
        FailureCase{"SyntaxError",
                    [](ConstrReader& reader, const TempDir& dir) {
                      std::istringstream in(R"({"NodeConstraints": {"n": {"a": 1,}}})");
                      reader.read(in, fileIn(dir), false);
                    },
                    "@90-2@%s%s",
                    [](const TempDir& dir) {
                      return Args{fileIn(dir), "Missing a name for object member. (offset 34)"};
                    }},
        FailureCase{"SchemaViolation",
                    [](ConstrReader& reader, const TempDir& dir) {
                      std::istringstream in(
                          R"({"NodeConstraints": {"n": {"a": 1}}, "isSoft": "yes"})");
                      reader.read(in, fileIn(dir), true);
                    },
                    "@75-571@%s%s%s%s",
                    [](const TempDir& dir) {
                      return Args{fileIn(dir), "/properties/isSoft", "type", "/isSoft"};
                    }}));

// What the shipped schema takes, and where it points for what it refuses.
struct SchemaCase {
  const char* name;
  const char* text;
  std::string schemaPointer;
  std::string keyword;  // empty: valid
  std::string documentPointer;
};

void PrintTo(const SchemaCase& c, std::ostream* out)
{
  *out << c.name;
}

class ConstrSchemaTest : public ConstrReaderTest,
                         public ::testing::WithParamInterface<SchemaCase> {};

TEST_P(ConstrSchemaTest, ValidatesEveryKindsKeysAndPointsAtTheOffendingOne)
{
  const SchemaCase& c = GetParam();
  std::istringstream in(c.text);
  if (c.keyword.empty()) {
    EXPECT_NO_THROW(ConstrReader(handler).read(in, file, true));
    return;
  }
  expectThrows([&] { ConstrReader(handler).read(in, file, true); }, "@75-571@%s%s%s%s",
               {file, c.schemaPointer, c.keyword, c.documentPointer});
}

INSTANTIATE_TEST_SUITE_P(
    Documents, ConstrSchemaTest,
    ::testing::Values(
        SchemaCase{"RootKeys",
                   R"({"isToolGenerated": false, "isSoft": false, "Other": 1})", "", "", ""},
        SchemaCase{"NodeKeys",
                   R"json({"NodeConstraints": {"n": {
          "tile": {"name": "t", "column": 1, "row": 2, "tile_type": "core"},
          "tile_src_info": {"file": "f", "line": 1, "column": 2},
          "mem": [{"column": 1, "row": 2, "bankId": 3, "offset": 4}], "mem_src_info": {},
          "shim": {"column": 1, "channel": 2}, "reserved_memory": {"bankId": 1, "offset": 2},
          "colocated_nodes": ["a", {"b": {"issoft": true}}, {"c": true}],
          "relative_nodes": ["a:(X=1,Y=2)"], "not_colocated_nodes": [],
          "colocated_reserved_memories": ["m"], "not_colocated_reserved_memories": ["m"],
          "not_colocated_nodes_src_info": {"file": "f"},
          "colocated_ports": ["p"], "anything": null}}})json",
                   "", "", ""},
        SchemaCase{"PortKeysAndFifoRecords",
                   R"({"PortConstraints": {
          "fifo_locations_records": {
            "dma_fifos": {"d": {"tile_type": "mem", "row": 1, "column": 2, "size": 3,
                                "offset": 4, "bankId": 5}},
            "stream_fifos": {"s": {"tile_type": "core", "row": 1, "column": 2, "channel": 3}}},
          "p": {"buffers": [], "stream_channel": {"column": 1, "row": 2, "offset": 3,
                                                  "direction": "North", "channel": 4},
                "colocated_ports": ["q"], "not_colocated_ports": ["q"],
                "exclusive_colocated_ports": [{"q": {"issoft": false}}],
                "exclusive_colocated_ports_src_info": {"file": "f", "line": 3},
                "colocated_dma": ["q"], "fifo_locations": ["d", "s"],
                "loc": {"name": "l", "channel": 1, "channel_type": "control"},
                "port_loc": {"tile_type": "shim", "row": 0, "column": 1, "channel": 2}}}})",
                   "", "", ""},
        SchemaCase{"NetKeysAndGroups",
                   R"json({"NetConstraints": {"e": {"w": 1, "w_src_info": {"file": "f"}}},
          "GlobalConstraints": {
            "areaGroup": {"name": "g", "exclude": true, "issoft": false,
                          "contain_routing": true, "exclusive_routing": false,
                          "exclusive_placement": true, "nodeGroup": ["a"],
                          "tileGroup": ["(1,2):(3,4)", 3, [1, 2]], "memGroup": [[1, 2]],
                          "shimGroup": ["s"], "srcInfo": {"file": "f", "line": 1}},
            "areaGroup": {"name": "h"},
            "instGroup": {"name": "i", "isisomorphic": true, "nodeGroup": ["a"]},
            "dependentRoutingGroup": {"name": "d", "nodeGroup": ["a"]},
            "isomorphicGraphGroup": {"name": "m", "referenceGraph": "r",
                                     "stampedGraphs": ["s"]},
            "other": 1}})json",
                   "", "", ""},
        SchemaCase{"SectionNotAnObject",
                   R"({"NodeConstraints": []})", "/properties/NodeConstraints", "type",
                   "/NodeConstraints"},
        SchemaCase{"MemNotAnArray",
                   R"({"NodeConstraints": {"n": {"mem": {}}}})", "/definitions/addresses",
                   "type", "/NodeConstraints/n/mem"},
        SchemaCase{"SrcInfoLineNegative",
                   R"({"NodeConstraints": {"n": {"k_src_info": {"line": -1}}}})",
                   "", "patternProperties", "/NodeConstraints/n/k_src_info"},
        SchemaCase{"ListElementNotANameOrObject",
                   R"({"NodeConstraints": {"n": {"colocated_nodes": [1]}}})",
                   "/definitions/listWithProperties/items", "type",
                   "/NodeConstraints/n/colocated_nodes/0"},
        SchemaCase{"PortLocChannelNotAnInteger",
                   R"({"PortConstraints": {"p": {"port_loc": {"channel": "2"}}}})",
                   "/definitions/portLoc/properties/channel", "type",
                   "/PortConstraints/p/port_loc/channel"},
        SchemaCase{"GroupLocationNotALocation",
                   R"({"GlobalConstraints": {"areaGroup": {"name": "a"},
                                             "areaGroup": {"tileGroup": [true]}}})",
                   "/definitions/locations/items", "type",
                   "/GlobalConstraints/areaGroup/tileGroup/0"}));

}  // namespace
