#include "AttrValue.h"

#include <gtest/gtest.h>

namespace {

using qpe::constraints::AttrValue;
using Names = std::vector<std::string>;

template <typename Action>
AttrValue after(AttrValue value, Action action)
{
  action(value);
  return value;
}

AttrValue listOf(const Names& values)
{
  return after(AttrValue(HATAttrTypes::AttrStringList), [&](AttrValue& a) {
    for (const std::string& value : values)
      a.addStringVecVal(value);
  });
}

// The host's flag byte holds exactly the 0x20 bit, set when value == default.
TEST(AttrValueTest, DefaultBitIsSetExactlyWhenTheValueIsTheDefault)
{
  const struct {
    const char* name;
    AttrValue value;
    bool isDefault;
  } cases[] = {
      {"newBool", AttrValue(HATAttrTypes::AttrBool), true},
      {"newInt", AttrValue(HATAttrTypes::AttrInt), true},
      {"newDouble", AttrValue(HATAttrTypes::AttrDouble), true},
      {"newString", AttrValue(HATAttrTypes::AttrString), true},
      {"newList", AttrValue(HATAttrTypes::AttrStringList), true},
      {"intIsDefault", AttrValue(-1, -1), true},
      {"intZeroDefaultZero", AttrValue(0, 0), true},
      {"intMinusOneDefaultZero", AttrValue(-1, 0), false},
      {"intFive", AttrValue(5, -1), false},
      {"stringEmpty", AttrValue("", ""), true},
      {"stringIsDefault", AttrValue("x", "x"), true},
      {"stringEmptyDefaultX", AttrValue("", "x"), false},
      {"boolTrue", after(AttrValue(HATAttrTypes::AttrBool), [](auto& a) { a.setBoolVal(true); }),
       false},
      {"boolFalse", after(AttrValue(HATAttrTypes::AttrBool), [](auto& a) { a.setBoolVal(false); }),
       true},
      {"doubleMinusOne",
       after(AttrValue(HATAttrTypes::AttrDouble), [](auto& a) { a.setDoubleVal(-1.0); }), true},
      {"doubleZero", after(AttrValue(HATAttrTypes::AttrDouble), [](auto& a) { a.setDoubleVal(0); }),
       false},
      {"intSetBack", after(AttrValue(3, -1), [](auto& a) { a.setIntVal(-1); }), true},
      {"stringSet", after(AttrValue("", ""), [](auto& a) { a.setStringVal("n"); }), false},
      {"listSet", after(listOf({}), [](auto& a) { a.setStringVecVal({"a"}); }), false},
      {"listSetEmpty", after(listOf({"a"}), [](auto& a) { a.setStringVecVal({}); }), true},
      {"listAddedEmptyString", listOf({""}), false},
      {"clearedInt", after(AttrValue(5, 7), [](auto& a) { a.clear(); }), true},
      {"clearedString", after(AttrValue("a", "b"), [](auto& a) { a.clear(); }), true},
      {"clearedList", after(listOf({"a"}), [](auto& a) { a.clear(); }), true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(*c.value.getFlags(), c.isDefault ? 0x20 : 0x00) << c.name;
    EXPECT_EQ(c.value.isSet(), !c.isDefault) << c.name;
  }
}

TEST(AttrValueTest, ClearAndCopyKeepDefaultsAndOtherFlagBits)
{
  AttrValue number(5, 7);
  *number.getFlags() |= 0x01;
  AttrValue copy(HATAttrTypes::AttrBool);
  copy = number;
  copy.clear();
  EXPECT_EQ(copy.getIntVal(), 7) << "the default travels with a copy";
  EXPECT_EQ(*copy.getFlags(), 0x21) << "only the default bit is ours";
  EXPECT_EQ(copy.getAttrType(), HATAttrTypes::AttrInt);
  EXPECT_EQ(number.getIntVal(), 5);

  AttrValue text("name", "dflt");
  text.clear();
  EXPECT_EQ(text.getStringVal(), "dflt");

  for (auto type : {HATAttrTypes::AttrBool, HATAttrTypes::AttrInt, HATAttrTypes::AttrDouble}) {
    AttrValue value(type);
    const double expected = type == HATAttrTypes::AttrBool ? 0.0 : -1.0;
    EXPECT_EQ(value.getDoubleVal(), expected) << type;
    value.setIntVal(4);
    value.clear();
    EXPECT_EQ(value.getDoubleVal(), expected) << type;
  }
}

}  // namespace
