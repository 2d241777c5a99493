#include "HATAttr.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace {

TEST(HATAttrTest, CopyCopiesValueAndFlagByte)
{
  HATAttr original(HATAttrTypes::AttrString);
  original.setStringVal("tile");
  *original.getFlags() = 0x20;

  HATAttr copy(original);
  HATAttr assigned(HATAttrTypes::AttrInt);
  assigned = original;
  *original.getFlags() = 0;
  original.setStringVal("changed");

  for (const HATAttr* attr : {&copy, &assigned}) {
    EXPECT_STREQ(attr->getStringVal(), "tile");
    EXPECT_EQ(*attr->getFlags(), 0x20);
    EXPECT_NE(attr->getFlags(), original.getFlags()) << "each value owns its flag byte";
  }
}

TEST(HATAttrTest, NewValueHoldsTheZeroOfItsType)
{
  EXPECT_FALSE(HATAttr(HATAttrTypes::AttrBool).getBoolVal());
  EXPECT_EQ(HATAttr(HATAttrTypes::AttrInt).getIntVal(), 0);
  EXPECT_EQ(HATAttr(HATAttrTypes::AttrDouble).getDoubleVal(), 0.0);
  EXPECT_STREQ(HATAttr(HATAttrTypes::AttrString).getStringVal(), "");
  EXPECT_TRUE(HATAttr(HATAttrTypes::AttrStringList).getStringList().empty());
  EXPECT_EQ(*HATAttr(HATAttrTypes::AttrInt).getFlags(), 0);
}

struct ConversionCase {
  double stored;
  int asInt;
  bool asBool;
};

void PrintTo(const ConversionCase& c, std::ostream* out)
{
  *out << c.stored;
}

class NumericConversionTest : public ::testing::TestWithParam<ConversionCase> {};

TEST_P(NumericConversionTest, DoubleReadAsIntTruncatesWithinRange)
{
  HATAttr attr(HATAttrTypes::AttrDouble);
  attr.setDoubleVal(GetParam().stored);
  EXPECT_EQ(attr.getIntVal(), GetParam().asInt);
  EXPECT_EQ(attr.getBoolVal(), GetParam().asBool);
}

INSTANTIATE_TEST_SUITE_P(Values, NumericConversionTest,
                         ::testing::Values(ConversionCase{2.9, 2, true},
                                           ConversionCase{-2.9, -2, true},
                                           ConversionCase{0.0, 0, false},
                                           ConversionCase{3e10, 0, true},
                                           ConversionCase{std::numeric_limits<double>::quiet_NaN(),
                                                          0, true}));

TEST(HATAttrTest, IntReadsAsDoubleAndStringListKeepsOrder)
{
  HATAttr number(HATAttrTypes::AttrInt);
  number.setIntVal(-4);
  EXPECT_EQ(number.getDoubleVal(), -4.0);
  EXPECT_STREQ(number.getStringVal(), "");

  HATAttr list(HATAttrTypes::AttrStringList);
  list.setStringList(HSTSList<std::string>{"b", "a", "c"});
  const HSTSList<std::string>& held = list.getStringList();
  EXPECT_EQ(std::vector<std::string>(held.begin(), held.end()),
            (std::vector<std::string>{"b", "a", "c"}));
}

}  // namespace
