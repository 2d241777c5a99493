#include "TestSupport.h"

#include "HDARPartReader.h"

namespace {

using namespace testing_support;

class HDARPartReaderTest : public MessageLogTest {};

TEST_F(HDARPartReaderTest, ShippedDeviceHasSixShimColumnsOfEightChannels)
{
  const std::unique_ptr<HDARPart> part = HDARPartReader::readByName("qpe_demo");
  EXPECT_EQ(part->getName(), "qpe_demo");
  EXPECT_EQ(part->getOracle().getNumBels(), 48u);
  EXPECT_EQ(part->getQpeOracle().getZXShimColumns(), (std::vector<int>{0, 1, 2, 3, 4, 5}));

  const HDDMBel bel = part->getOracle().getBelByName("QPE_ML_SHIM_X5Y0/M_AXIS2");
  ASSERT_TRUE(bel.isValid());
  EXPECT_EQ(bel.getHierarchicalName1(), "QPE_ML_SHIM_X5Y0/M_AXIS2");
  EXPECT_EQ(bel.getElementId(), 46);
  HDDMQpeOracle::ZXRegion region = HDDMQpeOracle::ZX_REGION_NONE;
  HDDMQpeOracle::ZXShimBelType type = HDDMQpeOracle::SHIM_BEL_NONE;
  int column = -1;
  int channel = -1;
  EXPECT_TRUE(part->getQpeOracle().getZXShimArrayCoords(bel, region, column, channel, type));
  EXPECT_EQ(region, HDDMQpeOracle::ZX_REGION_QPE_ML);
  EXPECT_EQ(column, 5);
  EXPECT_EQ(channel, 6);
  EXPECT_EQ(type, HDDMQpeOracle::SHIM_NOC_OUT);
  EXPECT_EQ(part->getQpeOracle().getZXShimBel(5, 6), bel);
  EXPECT_EQ(part->getOracle().getBelByElementId(46), bel);

  const HDDMBel first = part->getOracle().getBelByName("QPE_SHIM_X0Y0/S_AXIS0");
  EXPECT_EQ(first.getElementId(), 0);
  EXPECT_TRUE(first < bel) << "device order";
  EXPECT_TRUE(HDDMBel() < first) << "the invalid handle first";
  EXPECT_FALSE(part->getOracle().getBelByName("QPE_SHIM_X0Y0_S_AXIS0").isValid());
  EXPECT_FALSE(part->getQpeOracle().getZXShimBel(0, 8).isValid());
  EXPECT_FALSE(part->getQpeOracle().getZXShimArrayCoords(HDDMBel(), region, column, channel, type));
  EXPECT_EQ(column, 5) << "left untouched";
  EXPECT_EQ(HDDMBel().getHierarchicalName1(), "");
  EXPECT_EQ(HDDMBel().getElementId(), -1);
}

TEST_F(HDARPartReaderTest, AHandleOfAnotherDeviceHasNoCoordinatesHere)
{
  const std::unique_ptr<HDARPart> one = HDARPartReader::readByName("qpe_demo");
  const std::unique_ptr<HDARPart> two = HDARPartReader::readByName("qpe_demo");
  const HDDMBel foreign = two->getQpeOracle().getZXShimBel(1, 1);
  HDDMQpeOracle::ZXRegion region;
  HDDMQpeOracle::ZXShimBelType type;
  int column = -1;
  int channel = -1;
  EXPECT_FALSE(one->getQpeOracle().getZXShimArrayCoords(foreign, region, column, channel, type));
  EXPECT_NE(one->getQpeOracle().getZXShimBel(1, 1), foreign);
}

TEST_F(HDARPartReaderTest, MissingDeviceNamesItsFile)
{
  const std::string path = HDARPartReader::getDeviceFile("no_such_device");
  EXPECT_NE(path.find("parts/tarnel/common/qpe/devices/no_such_device.json"), std::string::npos);
  expectThrows([] { HDARPartReader::readByName("no_such_device"); }, "@90-1@%s", {path});
}

std::string device(const std::string& columns)
{
  return R"({"device": "d", "shimColumns": [)" + columns + "]}";
}

std::string column(const std::string& site, int number, const std::string& channels,
                   const std::string& region = "QPE")
{
  return R"({"site": ")" + site + R"(", "region": ")" + region + R"(", "column": )" +
         std::to_string(number) + R"(, "channels": [)" + channels + "]}";
}

std::string channel(const std::string& bel, int elementId, const std::string& type = "PL_IN")
{
  return R"({"bel": ")" + bel + R"(", "type": ")" + type + R"(", "elementId": )" +
         std::to_string(elementId) + "}";
}

// A device text that is refused: the message and its arguments after the file name.
TEST_F(HDARPartReaderTest, BadDeviceTextsAreRefusedWithTheirNumberAndPlace)
{
  const std::string good = column("QPE_SHIM_X0Y0", 0, channel("S_AXIS0", 0));
  const struct {
    const char* name;
    std::string text;
    std::string format;
    std::string pointer;
    std::string detail;
  } cases[] = {
      {"notJson", "{\"device\": ", "@90-2@%s%s", "", "Invalid value. (offset 11)"},
      {"rootArray", "[]", "@90-30@%s%s%s", "", "an object"},
      {"noDevice", R"({"shimColumns": []})", "@90-30@%s%s%s", "/device", "present"},
      {"emptyDevice", R"({"device": "", "shimColumns": []})", "@90-30@%s%s%s",
       "/device", "a non-empty string"},
      {"columnsNoArray", R"({"device": "d", "shimColumns": {}})", "@90-30@%s%s%s",
       "/shimColumns", "an array"},
      {"columnNoObject", device(good + ", 3"), "@90-30@%s%s%s", "/shimColumns/1", "an object"},
      {"siteOfThreeUnderscores", device(column("QPE_SHIM_PL_X0Y0", 0, "")),
       "@90-30@%s%s%s", "/shimColumns/0/site",
       "a site name of two underscores, three when it begins with QPE_ML"},
      {"mlSiteOfTwoUnderscores", device(column("QPE_MLSHIM_X0Y0", 0, "")),
       "@90-30@%s%s%s", "/shimColumns/0/site",
       "a site name of two underscores, three when it begins with QPE_ML"},
      {"siteWithSlash", device(column("QPE_SHIM_X0/Y0", 0, "")), "@90-30@%s%s%s",
       "/shimColumns/0/site", "a name without '/'"},
      {"unknownRegion", device(column("QPE_SHIM_X0Y0", 0, "", "PL")), "@90-30@%s%s%s",
       "/shimColumns/0/region", "QPE or QPE_ML"},
      {"negativeColumn", device(column("QPE_SHIM_X0Y0", -1, "")), "@90-30@%s%s%s",
       "/shimColumns/0/column", "a non-negative integer"},
      {"unknownBelType", device(column("QPE_SHIM_X0Y0", 0, channel("S0", 0, "IN"))),
       "@90-30@%s%s%s", "/shimColumns/0/channels/0/type", "PL_IN, PL_OUT, NOC_IN or NOC_OUT"},
      {"fractionalElementId",
       device(R"({"site": "QPE_SHIM_X0Y0", "region": "QPE", "column": 0, "channels":
                 [{"bel": "S0", "type": "PL_IN", "elementId": 1.5}]})"),
       "@90-30@%s%s%s", "/shimColumns/0/channels/0/elementId", "a non-negative integer"},
      {"belWithSlash", device(column("QPE_SHIM_X0Y0", 0, channel("S/0", 0))),
       "@90-30@%s%s%s", "/shimColumns/0/channels/0/bel", "a name without '/'"},
      {"siteTwice", device(good + "," + column("QPE_SHIM_X0Y0", 1, "")),
       "@90-31@%s%s%s", "/shimColumns/1/site", "QPE_SHIM_X0Y0"},
      {"columnTwice", device(good + "," + column("QPE_ML_SHIM_X0Y0", 0, "", "QPE_ML")),
       "@90-31@%s%s%s", "/shimColumns/1/column", "0"},
      {"belTwice", device(column("QPE_SHIM_X0Y0", 0, channel("S0", 0) + "," + channel("S0", 1))),
       "@90-31@%s%s%s", "/shimColumns/0/channels/1/bel", "S0"},
      {"elementIdTwice", device(good + "," + column("QPE_SHIM_X1Y0", 1, channel("S_AXIS0", 0))),
       "@90-31@%s%s%s", "/shimColumns/1/channels/0/elementId", "0"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    std::istringstream in(c.text);
    std::vector<std::string> args{"dev.json", c.detail};
    if (c.format != "@90-2@%s%s")
      args.insert(args.begin() + 1, c.pointer);
    expectThrows([&] { HDARPartReader::read(in, "dev.json"); }, c.format, args);
  }
}

}  // namespace
