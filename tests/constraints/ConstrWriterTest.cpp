#include "ConstrSupport.h"

#include "AttrConstr.h"
#include "BaseNameResolver.h"
#include "ConstrHandler.h"
#include "ConstrWriter.h"
#include "HEXAlgException.h"
#include "SchemaFile.h"

#include <sstream>

namespace {

using namespace qpe::constraints;
using constr_support::ChildHandler;
using constr_support::DataTree;
using constr_support::schemaName;
using testing_support::MessageLogTest;
using testing_support::readFile;
using testing_support::TempDir;
using testing_support::writeFile;
using Base = BaseConstraint;
using Json = HCRapidJsonReadWriteUtils;

// Stand-ins for a port kind that writes a list and for a group, to show where
// the writer puts what they write.
class ListConstr : public BaseConstraint {
public:
  explicit ListConstr(const std::string& port) : BaseConstraint(ColocatedDma, PORT, port) {}
  void clone(ConstrHandler&, const BaseNameResolver*) const override {}
  void write(JDocument& doc, JValue& object, const BaseNameResolver*) const override
  {
    Json::AddStringArrayProperty(object, "colocated_dma", {"a", "b"}, doc.GetAllocator());
  }
  void offsetColumn(int) override {}
};

class GroupConstr : public BaseConstraint {
public:
  explicit GroupConstr(std::string name) : BaseConstraint(InstGroup), name_(std::move(name)) {}
  std::string getObjName() const override { return name_; }
  void clone(ConstrHandler&, const BaseNameResolver*) const override {}
  void write(JDocument& doc, JValue& parent, const BaseNameResolver*) const override
  {
    JValue group(rapidjson::kObjectType);
    Json::AddStringProperty(group, "name", name_, doc.GetAllocator());
    Json::AddStringArrayProperty(group, "nodeGroup", {"n"}, doc.GetAllocator());
    Json::AddGenericValueProperty(parent, "instGroup", group, doc.GetAllocator());
  }
  void offsetColumn(int) override {}

private:
  std::string name_;
};

class ConstrWriterTest : public MessageLogTest {
protected:
  std::string written(const ConstrHandler& source, bool validate = true)
  {
    std::ostringstream out;
    ConstrWriter(source).write(out, file, validate);
    return out.str();
  }

  const TempDir dir;
  const std::string file = dir.file("out.json");
  ConstrHandler handler;
};

TEST_F(ConstrWriterTest, RootKeysInTheirOrderObjectsAndKeysInCreationOrder)
{
  handler.setAttrConstr(Base::NET, "e", "w", 1);
  handler.addConstraint(new GroupConstr("g"));
  handler.setAttrConstr(Base::PORT, "p", "flag", true);
  handler.addConstraint(new ListConstr("p"));
  handler.setAttrConstr(Base::NODE, "n", "fifo_depth", 4);
  handler.getAttrConstr("n", "fifo_depth")->getSrcInfo().set(SrcInfo::SourceFile, "d.cpp", 3, 9);
  handler.setAttrConstr(Base::NODE, "n", "Label", "x");
  handler.getAttrConstr("n", "label")->getSrcInfo().set(SrcInfo::UserJson, "c.json", 5, 7);
  handler.setAttrConstr(Base::NODE, "m", "ratio", 0.25);
  handler.setAttrConstr(Base::NODE, "m", "margin", -1);
  handler.addStreamFifoRecord("s0", PhysicalSpec::Core, 4, 5, 6);
  EXPECT_EQ(written(handler), R"({
  "NodeConstraints": {
    "n": {
      "fifo_depth": 4,
      "fifo_depth_src_info": {
        "file": "d.cpp",
        "line": 3,
        "column": 9
      },
      "label": "x"
    },
    "m": {
      "ratio": 0.25
    }
  },
  "PortConstraints": {
    "fifo_locations_records": {
      "dma_fifos": {},
      "stream_fifos": {
        "s0": {
          "tile_type": "core",
          "row": 5,
          "column": 4,
          "channel": 6
        }
      }
    },
    "p": {
      "flag": true,
      "colocated_dma": ["a", "b"]
    }
  },
  "NetConstraints": {
    "e": {
      "w": 1
    }
  },
  "GlobalConstraints": {
    "instGroup": {
      "name": "g",
      "nodeGroup": ["n"]
    }
  }
})");
}

TEST_F(ConstrWriterTest, AToolGeneratedChildSaysSoAndWhetherItIsSoft)
{
  for (const bool soft : {false, true}) {
    ChildHandler child(soft);
    child.setAttrConstr(Base::NET, "e", "w", 1);
    EXPECT_EQ(written(child), std::string("{\n  \"isToolGenerated\": true,\n") +
                                  (soft ? "  \"isSoft\": true,\n" : "") +
                                  "  \"NetConstraints\": {\n    \"e\": {\n      \"w\": 1\n"
                                  "    }\n  }\n}");
  }
}

TEST_F(ConstrWriterTest, ObjectsUnderTheirScopedNamesOrNotAtAll)
{
  class Scoping : public BaseNameResolver {
    std::string resolveScopedNodeName(const std::string& name) const override
    {
      return name == "hidden" ? "" : "top/" + name;
    }
  } scoping;
  handler.setAttrConstr(Base::NODE, "hidden", "a", 1);
  handler.setAttrConstr(Base::NODE, "n", "margin", -5);
  std::ostringstream out;
  handler.write(out, file, scoping);
  EXPECT_EQ(out.str(), "{\n  \"NodeConstraints\": {\n    \"top/n\": {}\n  }\n}");
  ASSERT_EQ(records().size(), 2u) << "the two reports of a write, no more";
}

TEST_F(ConstrWriterTest, AWriteReportsItsFileAndSchema)
{
  handler.setAttrConstr(Base::NODE, "n", "a", 1);
  written(handler);
  expectSent({{"@75-4195@%s", ComMsgMgr::Info, {file}},
              {"@75-4193@%s", ComMsgMgr::Info, {SchemaFile::getConstraintsSchema()}}});
}

TEST_F(ConstrWriterTest, TheGroupsAloneWithoutReports)
{
  ChildHandler child(true);
  child.setAttrConstr(Base::NODE, "n", "a", 1);
  std::ostringstream out;
  child.writeAreaGroupConstrs(out, file, BaseNameResolver());
  EXPECT_EQ(out.str(), "{}");
  child.addConstraint(new GroupConstr("g"));
  child.addConstraint(new GroupConstr("g"));
  out.str("");
  child.writeAreaGroupConstrs(out, file, BaseNameResolver());
  EXPECT_EQ(out.str(), R"({
  "GlobalConstraints": {
    "instGroup": {
      "name": "g",
      "nodeGroup": ["n"]
    },
    "instGroup": {
      "name": "g",
      "nodeGroup": ["n"]
    }
  }
})");
  expectSent({});
}

TEST_F(ConstrWriterTest, AnEmptyStoreRemovesTheFileAndWritesNothingToAStream)
{
  handler.addDmaFifoRecord("dma0", PhysicalSpec::Mem, 1, 2, 64, 128, 3);
  writeFile(file, "old");
  handler.write(file);
  EXPECT_FALSE(boost::filesystem::exists(file));
  ConstrWriter(handler).writeAreaGroupConstrs(file, true);
  EXPECT_FALSE(boost::filesystem::exists(file));
  EXPECT_EQ(written(handler), "");
  expectSent({});
}

TEST_F(ConstrWriterTest, TheDocumentLivesOnlyDuringAWrite)
{
  ConstrWriter writer(handler);
  EXPECT_EQ(writer.getDocument(), nullptr);
  try {
    writer.getAllocator();
    ADD_FAILURE() << "no exception";
  } catch (const HEXAlgException& failure) {
    EXPECT_STREQ(failure.what(), "ConstrWriter::getAllocator() - m_doc is null");
  }
}

TEST_F(ConstrWriterTest, AStreamThatIsNotGoodIsRefused)
{
  handler.setAttrConstr(Base::NODE, "n", "a", 1);
  std::ostringstream out;
  out.setstate(std::ios_base::failbit);
  expectThrows([&] { handler.write(out, file, BaseNameResolver()); }, "@75-573@%s", {file});
  expectThrows([&] { handler.write(dir.file("no/such/dir/out.json")); }, "@75-573@%s",
               {dir.file("no/such/dir/out.json")});
}

TEST_F(ConstrWriterTest, AWriteNeedsItsSchemaEvenWithoutValidating)
{
  handler.setAttrConstr(Base::NODE, "n", "a", 1);
  const DataTree tree;
  tree.hide(schemaName);
  tree.hide(constr_support::oldSchemaName);
  for (const bool validate : {true, false}) {
    std::ostringstream out;
    expectThrows([&] { ConstrWriter(handler).write(out, file, validate); }, "@75-395@", {});
    EXPECT_EQ(out.str(), "");
  }
}

// A schema in the shipped one's place that refuses an integer "bad".
class ConstrWriterStrictSchemaTest : public ConstrWriterTest {
protected:
  ConstrWriterStrictSchemaTest()
  {
    tree.put(schemaName, R"({"properties": {"NodeConstraints": {"additionalProperties":
                              {"properties": {"bad": {"type": "string"}}}}}})");
    handler.setAttrConstr(Base::NODE, "n", "good", 1);
    handler.setAttrConstr(Base::NODE, "n", "bad", 2);
    handler.setAttrConstr(Base::NODE, "n", "after", 3);
  }

  const DataTree tree;
};

TEST_F(ConstrWriterStrictSchemaTest, AFailedWriteThrowsAndLeavesTheTextBeforeTheFault)
{
  expectThrows([&] { handler.write(file); }, "@75-572@%s%s%s%s",
               {file, "/properties/NodeConstraints/additionalProperties/properties/bad", "type",
                "/NodeConstraints/n/bad"});
  EXPECT_EQ(readFile(file), "{\n  \"NodeConstraints\": {\n    \"n\": {\n      \"good\": 1,\n"
                            "      \"bad\"");
}

TEST_F(ConstrWriterStrictSchemaTest, WithoutValidationTheWholeStoreIsWritten)
{
  EXPECT_EQ(written(handler, false), "{\n  \"NodeConstraints\": {\n    \"n\": {\n"
                                     "      \"good\": 1,\n      \"bad\": 2,\n"
                                     "      \"after\": 3\n    }\n  }\n}");
}

std::string roundTrip(const std::string& in, const std::string& out)
{
  ConstrHandler handler;
  handler.read(in);
  handler.write(out);
  return readFile(out);
}

class ConstrRoundTripTest : public MessageLogTest {};

TEST_F(ConstrRoundTripTest, TheExampleComesBackByteForByte)
{
  const TempDir dir;
  const std::string example = IPCONFIG_RW_EXAMPLES_DIR "/constraints.json";
  EXPECT_EQ(roundTrip(example, dir.file("once.json")), readFile(example));
}

TEST_F(ConstrRoundTripTest, AHandWrittenFileSettlesAfterOneWrite)
{
  const TempDir dir;
  writeFile(dir.file("in.json"), R"({"NetConstraints": {"e": {"W_src_info": {"file": "x"},
    "W": 2.0, "zx.old": "v", "w_src_info": {"file": "net.cpp", "line": 4}}},
    "NodeConstraints": {"n": {"Runtime": 1.5, "runtime_src_info": {"file": "f", "line": 1},
    "Margin": 3, "margin_src_info": {"file": "g"}, "BIG": 1e3, "list": [1], "not_x": "y"},
    "": {"k": 1}}})");
  const std::string once = roundTrip(dir.file("in.json"), dir.file("once.json"));
  EXPECT_EQ(once, R"({
  "NodeConstraints": {
    "n": {
      "runtime": 1.5,
      "margin": 3,
      "big": 1000.0,
      "not_x": "y"
    }
  },
  "NetConstraints": {
    "e": {
      "w": 2.0,
      "w_src_info": {
        "file": "net.cpp",
        "line": 4,
        "column": 0
      },
      "old": "v"
    }
  }
})");
  EXPECT_EQ(roundTrip(dir.file("once.json"), dir.file("twice.json")), once);
}

}  // namespace
