#include "HATAttr.h"

#include <gtest/gtest.h>


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

}  // namespace
