#include "TestSupport.h"

#include "HUTFile.h"
#include "NOCModel.h"
#include "NOCModelReader.h"

namespace {

using DevHrdIP::Component;
using DevHrdIP::NOCModel;
using DevHrdIP::NOCModelReader;
namespace Defs = DevHrdIP::Definitions;
using namespace testing_support;

class NOCModelReaderTest : public MessageLogTest {
protected:
  void read(const std::string& text)
  {
    std::istringstream in(text);
    NOCModelReader::read(in, "dev.json", model);
  }

  NOCModel model;
};

TEST_F(NOCModelReaderTest, ComponentsPortsAndLinks)
{
  read(R"({"Name": "dev",
           "Components": [{"Name": "N", "Type": "PL_NMU", "Role": "master"},
                          {"Name": "S", "Type": "NPS"},
                          {"Name": "MC", "Type": "DDRC", "Role": "slave",
                           "Ports": [{"Name": "P0", "Type": "DDRC_NSU", "Role": "slave"},
                                     {"Name": "P1", "Type": "DDRC_NSU", "Role": "none"}]}],
           "Links": [{"From": "N", "FromPort": "OUT", "To": "S", "ToPort": "IN"},
                     {"From": "S", "FromPort": "OUT", "To": "P1", "ToPort": "IN"}]})");
  const Component* n = model.getComponent("N");
  const Component* s = model.getComponent("S");
  const Component* mc = model.getComponent("MC");
  ASSERT_TRUE(n && s && mc);
  EXPECT_EQ(model.getAllTopLevelComponents(), (std::vector<Component*>{
                                                   model.getComponent("N"), model.getComponent("S"),
                                                   model.getComponent("MC")}));
  EXPECT_EQ(n->getType(), Defs::PL_NMU);
  EXPECT_EQ(n->getRole(), Component::MASTER_SIDE);
  EXPECT_EQ(s->getRole(), Component::NO_SIDE) << "no role is none";
  EXPECT_EQ(mc->getRole(), Component::SLAVE_SIDE);
  ASSERT_EQ(mc->getSubComponents().size(), 2u);
  EXPECT_EQ(mc->getSubComponents()[1], model.getComponent("P1"));
  EXPECT_EQ(model.getComponent("P1")->getRole(), Component::NO_SIDE);

  const DevHrdIP::Link* link = model.getLinkBetween("S", "OUT", "P1", "IN");
  ASSERT_NE(link, nullptr);
  EXPECT_EQ(link->getFirstComponent(), s);
  EXPECT_EQ(link->getSecondPort(), "IN");
  EXPECT_EQ(model.getLinkBetween("P1", "IN", "S", "OUT"), nullptr) << "one direction only";
  EXPECT_EQ(model.getLinkBetween("S", "OUTP", "1", "IN"), nullptr) << "names are not run together";
  EXPECT_EQ(model.addLink(*model.getComponent("N"), "OUT", *model.getComponent("S"), "IN"),
            model.getLinkBetween("N", "OUT", "S", "IN"))
      << "a link added again is the one there";
  expectSent({});
}

TEST_F(NOCModelReaderTest, BadDescriptionsNameTheOffendingValue)
{
  const std::vector<std::tuple<std::string, std::string, std::string>> cases{
      {"[]", "", "expected an object"},
      {R"({"Components": [], "Links": []})", "/Name", "expected a non-empty string"},
      {R"({"Name": "d", "Links": []})", "/Components", "expected an array"},
      {R"({"Name": "d", "Components": {}, "Links": []})", "/Components", "expected an array"},
      {R"({"Name": "d", "Components": [3], "Links": []})", "/Components/0", "expected an object"},
      {R"({"Name": "d", "Components": [{"Name": "A", "Type": "FOO"}], "Links": []})",
       "/Components/0/Type", "unknown component type FOO"},
      {R"({"Name": "d", "Components": [{"Name": "A", "Type": "NPS", "Role": "both"}]})",
       "/Components/0/Role", R"(expected "master", "slave" or "none")"},
      {R"({"Name": "d", "Components": [{"Name": "A", "Type": "NPS"},
                                        {"Name": "A", "Type": "NPS"}]})",
       "/Components/1/Name", "a component of that name exists: A"},
      {R"({"Name": "d", "Components": [{"Name": "A", "Type": "DDRC",
                                        "Ports": [{"Name": "P", "Type": "DDRC_NSU"},
                                                  {"Name": "Q"}]}]})",
       "/Components/0/Ports/1/Type", "expected a non-empty string"},
      {R"({"Name": "d", "Components": [{"Name": "A", "Type": "NPS"}]})", "/Links",
       "expected an array"},
      {R"({"Name": "d", "Components": [{"Name": "A", "Type": "NPS"}],
           "Links": [{"From": "A", "FromPort": "O", "To": "Z", "ToPort": "I"}]})",
       "/Links/0/To", "no component of that name: Z"},
      {R"({"Name": "d", "Components": [{"Name": "A", "Type": "NPS"}],
           "Links": [{"From": "A", "FromPort": "", "To": "A", "ToPort": "I"}]})",
       "/Links/0/FromPort", "expected a non-empty string"}};
  for (const auto& [text, pointer, reason] : cases) {
    SCOPED_TRACE(text);
    NOCModel fresh;
    std::istringstream in(text);
    expectThrows([&] { NOCModelReader::read(in, "dev.json", fresh); }, "@90-6@%s%s%s",
                 {"dev.json", pointer, reason});
  }
}

TEST_F(NOCModelReaderTest, UnreadableAndMalformedFilesFailThroughTheHostCalls)
{
  const TempDir dir;
  std::string missing;
  HUTFile(dir.file("none.json")).getCanonicalName(missing);
  expectThrows([&] { NOCModelReader::read(dir.file("none.json"), model); }, "@90-1@%s",
               {missing});
  expectThrows([&] { read("{"); }, "@90-2@%s%s",
               {"dev.json", "Missing a name for object member. (offset 1)"});
}

TEST_F(NOCModelReaderTest, TheShippedDeviceLoads)
{
  NOCModelReader::read(NOCModelReader::getDeviceFile("xq2vp1502"), model);
  EXPECT_EQ(model.getAllTopLevelComponents().size(), 9u);
  ASSERT_NE(model.getComponent("DDRMC_X0Y2"), nullptr);
  EXPECT_EQ(model.getComponent("DDRMC_X0Y2")->getSubComponents().size(), 2u);
  EXPECT_NE(model.getLinkBetween("NPS_X0Y1", "OUT0", "DDRMC_X0Y2_PORT0", "IN"), nullptr);
}

}  // namespace
