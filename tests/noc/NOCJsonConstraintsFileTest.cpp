#include "TestSupport.h"

#include "Constraints.h"
#include "HDGUIStatus.h"
#include "HIPDevice.h"
#include "HUTFile.h"
#include "NOCFindLogicalInstance.h"
#include "NOCJsonConstraintsReader.h"
#include "NOCJsonConstraintsWriter.h"
#include "NOCModel.h"
#include "TrafficSpec.h"

namespace {

using namespace testing_support;
using HrdIPToolCntr::Constraints;
using HrdIPToolCntr::TrafficLInst;
namespace Defs = DevHrdIP::Definitions;
using DevHrdIP::Component;

// The written form of two placements, by hand: keys in writing order, every
// key every time, two blanks of indent, no newline at the end.
const std::string twoPlacements = R"({
  "Placement": [
    {
      "LogicalInstance": "top/m",
      "PhysicalInstance": [
        "NOC_NMU_X0Y0",
        "NOC_NMU_X1Y0"
      ],
      "IsSoft": true
    },
    {
      "LogicalInstance": "top/o",
      "PhysicalInstance": [
        "NOC_NSU_X0Y1"
      ],
      "IsSoft": false
    }
  ]
})";

class NOCJsonConstraintsFileTest : public MessageLogTest {
protected:
  NOCJsonConstraintsFileTest()
  {
    master = spec.addLogicalInstance("top/m", Defs::AXI_MM, Defs::PL_NMU, {});
    slave = spec.addLogicalInstance("top/s", Defs::AXI_MM, Defs::PL_NSU, {});
    other = spec.addLogicalInstance("top/o", Defs::AXI_STRM, Defs::COMP_TYPE_UNKNOWN, {});
    for (const char* name : {"NOC_NMU_X0Y0", "NOC_NMU_X1Y0"})
      nmus.push_back(model.addComponent(name, Defs::PL_NMU, Component::MASTER_SIDE));
    nsu = model.addComponent("NOC_NSU_X0Y1", Defs::PL_NSU, Component::SLAVE_SIDE);
  }

  void read(const std::string& text)
  {
    std::istringstream in(text);
    EXPECT_TRUE(NOC::NOCJsonConstraintsReader().readFromJsonFile(in, "in.json", device, spec,
                                                                  constraints, status));
  }

  std::string write()
  {
    std::ostringstream out;
    EXPECT_TRUE(NOC::NOCJsonConstraintsWriter().writeToJsonFile(out, constraints, status));
    return out.str();
  }

  // "name: component component (soft)" for each placed instance, in order.
  std::vector<std::string> placements() const
  {
    std::vector<const TrafficLInst*> instances;
    constraints.getAllConstrainedInstances(instances);
    std::vector<std::string> result;
    for (const TrafficLInst* instance : instances) {
      std::vector<const Component*> components;
      bool isSoft = false;
      constraints.getPlacementConst(instance, components, isSoft);
      std::string line = instance->name + ":";
      for (const Component* component : components)
        line += " " + component->getName();
      result.push_back(line + (isSoft ? " (soft)" : ""));
    }
    return result;
  }

  HrdIPToolCntr::TrafficSpec spec;
  TrafficLInst* master;
  TrafficLInst* slave;
  TrafficLInst* other;
  DevHrdIP::NOCModel model;
  std::vector<const Component*> nmus;
  const Component* nsu;
  DevHrdIP::HIPDevice device{&model};
  Constraints constraints;
  HDGUIStatus status;
};

TEST_F(NOCJsonConstraintsFileTest, UnknownNamesAreDroppedWithoutAWord)
{
  std::vector<double> progress;
  status.setListener([&](const std::string&, double value) { progress.push_back(value); });
  read(R"({"Placement": [
    {"LogicalInstance": "top/gone", "PhysicalInstance": ["NOC_NMU_X0Y0"], "IsSoft": true},
    {"LogicalInstance": "top/m", "PhysicalInstance": ["NOC_NMU_X1Y0", "NOC_XXX", "NOC_NMU_X0Y0"]},
    {"LogicalInstance": "top/s", "PhysicalInstance": ["NOC_YYY"], "IsSoft": true},
    {"LogicalInstance": "top/o", "PhysicalInstance": ["NOC_NSU_X0Y1"], "IsSoft": true},
    {"LogicalInstance": "top/s", "IsSoft": true},
    {"PhysicalInstance": ["NOC_NSU_X0Y1"]},
    {"LogicalInstance": "top/m", "PhysicalInstance": ["NOC_NSU_X0Y1"], "IsSoft": true, "Note": 1}
  ]})");
  EXPECT_EQ(placements(), (std::vector<std::string>{"top/m: NOC_NMU_X1Y0 NOC_NMU_X0Y0",
                                                    "top/o: NOC_NSU_X0Y1 (soft)"}));
  expectSent({});
  EXPECT_EQ(progress, (std::vector<double>{20.0, 100.0}));
}

TEST_F(NOCJsonConstraintsFileTest, FilesWithoutPlacementsOrDeviceAddNothing)
{
  for (const char* text : {"{}", R"({"Placement": []})", R"({"Other": [1]})"})
    read(text);
  const DevHrdIP::HIPDevice noModel;
  std::istringstream in(R"({"Placement": [{"LogicalInstance": "top/m",
                                           "PhysicalInstance": ["NOC_NMU_X0Y0"]}]})");
  NOC::NOCJsonConstraintsReader().readFromJsonFile(in, "in.json", noModel, spec, constraints,
                                                   status);
  EXPECT_TRUE(placements().empty());
  EXPECT_EQ(status.getProgress(), 100.0);
  expectSent({});
}

TEST_F(NOCJsonConstraintsFileTest, BadTextsAreRefusedBeforeAnythingIsAdded)
{
  const BadText cases[] = {
      {"malformed", R"({"Placement": [})", "Invalid value. (offset 15)"},
      {"rootArray", "[]", ""},
      {"placementObject", R"({"Placement": {}})", "/Placement"},
      {"elementString", R"({"Placement": ["top/m"]})", "/Placement/0"},
      {"instanceArray", R"({"Placement": [{"LogicalInstance": ["top/m"]}]})",
       "/Placement/0/LogicalInstance"},
      {"componentsText", R"({"Placement": [{}, {"PhysicalInstance": "NOC_NMU_X0Y0"}]})",
       "/Placement/1/PhysicalInstance"},
      {"componentNumber", R"({"Placement": [{"PhysicalInstance": ["a", 7]}]})",
       "/Placement/0/PhysicalInstance/1"},
      {"softText", R"({"Placement": [{"IsSoft": "true"}]})", "/Placement/0/IsSoft"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    expectThrows([&] { read(c.text); }, "@90-2@%s%s", {"in.json", c.detail});
    EXPECT_TRUE(placements().empty());
    EXPECT_EQ(status.getProgress(), 0.0);
  }
}

TEST_F(NOCJsonConstraintsFileTest, ReadingAFileNamesTheFileAsGivenAndWritesItBackAsItWas)
{
  const TempDir dir;
  writeFile(dir.file("c.json"), twoPlacements);
  EXPECT_TRUE(NOC::NOCJsonConstraintsReader().readFromJsonFile(dir.file("c.json"), device, spec,
                                                               constraints, status));
  EXPECT_EQ(placements(), (std::vector<std::string>{"top/m: NOC_NMU_X0Y0 NOC_NMU_X1Y0 (soft)",
                                                    "top/o: NOC_NSU_X0Y1"}));
  EXPECT_EQ(write(), twoPlacements) << "the round trip keeps the bytes";
  std::string canonical;
  HUTFile(dir.file("none.json")).getCanonicalName(canonical);
  expectThrows([&] {
    NOC::NOCJsonConstraintsReader().readFromJsonFile(dir.file("none.json"), device, spec,
                                                     constraints, status);
  }, "@90-1@%s", {canonical});
  writeFile(dir.file("bad.json"), R"({"Placement": 1})");
  expectThrows([&] {
    NOC::NOCJsonConstraintsReader().readFromJsonFile(dir.file("bad.json"), device, spec,
                                                     constraints, status);
  }, "@90-2@%s%s", {dir.file("bad.json"), "/Placement"});
}

TEST_F(NOCJsonConstraintsFileTest, WritesEveryKeyOfEachPlacementInOrder)
{
  constraints.addPlacementConst(master, nmus, true);
  constraints.addPlacementConst(slave, {}, true);  // no component: not written
  constraints.addPlacementConst(other, {nsu}, false);
  EXPECT_EQ(write(), twoPlacements);
  expectSent({});
}

TEST_F(NOCJsonConstraintsFileTest, DestIdsGetOneWarningForTheWholeFile)
{
  constraints.addDestIdConst(master, 3);
  constraints.addDestIdConst(other, 4);
  EXPECT_EQ(write(), "") << "no placement: nothing reaches the stream";
  constraints.addPlacementConst(master, {nmus[0]}, false);
  EXPECT_NE(write().find("\"NOC_NMU_X0Y0\""), std::string::npos);
  expectSent({{"@75-704@", ComMsgMgr::CriticalWarning, {}},
              {"@75-704@", ComMsgMgr::CriticalWarning, {}}});
}

TEST_F(NOCJsonConstraintsFileTest, PathFormWritesEmptyFilesAndIgnoresAFailedOpen)
{
  const TempDir dir;
  writeFile(dir.file("old.json"), "old text");
  EXPECT_TRUE(NOC::NOCJsonConstraintsWriter().writeToJsonFile(dir.file("old.json"), constraints,
                                                              status));
  EXPECT_TRUE(fs::exists(dir.file("old.json")));
  EXPECT_EQ(readFile(dir.file("old.json")), "");

  constraints.addPlacementConst(master, nmus, true);
  constraints.addPlacementConst(other, {nsu}, false);
  EXPECT_TRUE(NOC::NOCJsonConstraintsWriter().writeToJsonFile(dir.file("no/dir/c.json"),
                                                              constraints, status));
  EXPECT_FALSE(fs::exists(dir.file("no/dir/c.json")));
  EXPECT_TRUE(NOC::NOCJsonConstraintsWriter().writeToJsonFile(dir.file("c.json"), constraints,
                                                              status));
  EXPECT_EQ(readFile(dir.file("c.json")), twoPlacements);
  expectSent({});
}

TEST_F(NOCJsonConstraintsFileTest, ADocumentThatFailsItsSchemaStopsAtTheFailingValue)
{
  const ScopedSchema schema("parts/tarnel/common/noc/schemas/constraints.json",
                            R"({"properties": {"Placement": {"items": {"properties": {
                  "PhysicalInstance": {"maxItems": 1}}}}}})");
  constraints.addPlacementConst(master, nmus, true);
  std::ostringstream out;
  EXPECT_FALSE(NOC::NOCJsonConstraintsWriter().writeToJsonFile(out, constraints, status));
  expectSent({{"@75-585@%s", ComMsgMgr::Error, {"NoC Constraints"}}});
  EXPECT_EQ(out.str().rfind(R"({
  "Placement": [
    {
      "LogicalInstance": "top/m",
      "PhysicalInstance": [
        "NOC_NMU_X0Y0",
        "NOC_NMU_X1Y0")", 0), 0u) << out.str();
}

}  // namespace
