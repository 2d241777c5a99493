#include "ConstrSupport.h"

#include "AttrConstr.h"
#include "AttrValue.h"

#include <functional>

namespace {

using namespace constr_support;

TEST(AttrConstrTest, CanonicalNames)
{
  const std::pair<const char*, const char*> names[] = {
      {"runtime", "QPE.RUNTIME"},         {"Runtime", "QPE.RUNTIME"},
      {"qpe.runtime", "QPE.RUNTIME"},     {"QPE.RUNTIME", "QPE.RUNTIME"},
      {"Qpe.Fifo_Depth", "QPE.FIFO_DEPTH"}, {"buffer_count", "QPE.BUFFER_COUNT"},
      {"MyKey", "qpe.MyKey"},             {"qpe.MyKey", "qpe.MyKey"},
      {"QPE.MyKey", "QPE.MyKey"},         {"zx.foo", "qpe.zx.foo"},
      {"zx.runtime", "qpe.zx.runtime"},   {"margin2", "qpe.margin2"},
      {"", "qpe."},
  };
  for (const auto& [name, canonical] : names)
    EXPECT_EQ(AttrConstr::makeCanonicalAttrName(name), canonical) << name;

  EXPECT_TRUE(AttrConstr::isCanonicalAttrName("QpE.x"));
  EXPECT_FALSE(AttrConstr::isCanonicalAttrName("qpe"));
  EXPECT_TRUE(AttrConstr::isOldZXAttrName("ZX.x"));
  EXPECT_FALSE(AttrConstr::isOldZXAttrName("qpe.zx.x"));
  EXPECT_TRUE(AttrConstr::isPredefinedAttrName("qpe.Utilization"));
  EXPECT_FALSE(AttrConstr::isPredefinedAttrName("utilization"));
  EXPECT_FALSE(AttrConstr::isPredefinedAttrName("QPE.MARGINS"));

  const std::pair<const char*, const char*> stripped[] = {
      {"QPE.RunTime", "runtime"}, {"MyKey", "mykey"}, {"qpe.zx.Foo", "zx.foo"}, {"qpe", "qpe"}};
  for (const auto& [text, expected] : stripped) {
    std::string key = text;
    stripQPEPrefix(key);
    EXPECT_EQ(key, expected) << text;
  }
  std::string old = "ZX.Foo";
  stripOldZXPrefix(old);
  EXPECT_EQ(old, "foo");
}

struct WriteCase {
  const char* name;
  AttrConstr::AttrType type;
  std::function<void(AttrConstr&)> set;
  std::string json;
};

void PrintTo(const WriteCase& c, std::ostream* out)
{
  *out << c.name << " -> " << c.json;
}

class AttrWriteTest : public testing::TestWithParam<WriteCase> {};

// Each attribute carries a location in another source file, which goes with
// its value or not at all.
TEST_P(AttrWriteTest, WritesTheKeyWithoutPrefixes)
{
  const WriteCase& c = GetParam();
  AttrConstr attr(BaseConstraint::NODE, "n", c.type, AttrConstr::makeCanonicalAttrName(c.name));
  attr.getSrcInfo().set(SrcInfo::SourceFile, "a.cc", 3, 4);
  c.set(attr);
  JDocument doc;
  JValue object(rapidjson::kObjectType);
  attr.write(doc, object, nullptr);
  EXPECT_EQ(toText(object), c.json);
}

const std::string srcInfo = R"({"file":"a.cc","line":3,"column":4})";

INSTANTIATE_TEST_SUITE_P(
    Keys, AttrWriteTest,
    testing::Values(
        WriteCase{"qpe.foo", HATAttrTypes::AttrInt, [](AttrConstr& a) { a.setVal(-5); },
                  R"({"foo":-5,"foo_src_info":)" + srcInfo + "}"},
        WriteCase{"margin", HATAttrTypes::AttrInt, [](AttrConstr& a) { a.setVal(-1); }, "{}"},
        WriteCase{"margin", HATAttrTypes::AttrInt, [](AttrConstr& a) { a.setVal(-5); }, "{}"},
        WriteCase{"utilization", HATAttrTypes::AttrDouble, [](AttrConstr& a) { a.setVal(-0.5); },
                  "{}"},
        WriteCase{"runtime", HATAttrTypes::AttrInt, [](AttrConstr& a) { a.setVal(5); },
                  R"({"runtime":5,"runtime_src_info":)" + srcInfo + "}"},
        WriteCase{"Utilization", HATAttrTypes::AttrDouble, [](AttrConstr& a) { a.setVal(0.5); },
                  R"({"utilization":0.5,"utilization_src_info":)" + srcInfo + "}"},
        WriteCase{"zx.Foo", HATAttrTypes::AttrBool, [](AttrConstr& a) { a.setVal(true); },
                  R"({"foo":true,"foo_src_info":)" + srcInfo + "}"},
        WriteCase{"flag", HATAttrTypes::AttrBool, [](AttrConstr& a) { a.setVal(false); }, "{}"},
        WriteCase{"Qpe.Label", HATAttrTypes::AttrString, [](AttrConstr& a) { a.setVal("x y"); },
                  R"({"label":"x y","label_src_info":)" + srcInfo + "}"},
        WriteCase{"list", HATAttrTypes::AttrStringList, [](AttrConstr&) {}, "{}"}));

TEST(AttrConstrTest, PrintsTheValueByType)
{
  struct Case {
    AttrConstr::AttrType type;
    std::function<void(AttrConstr&)> set;
    const char* text;
  };
  const Case cases[] = {
      {HATAttrTypes::AttrBool, [](AttrConstr& a) { a.setVal(true); }, " attr(obj)=(true)"},
      {HATAttrTypes::AttrBool, [](AttrConstr&) {}, " attr(obj)=(false)"},
      {HATAttrTypes::AttrInt, [](AttrConstr& a) { a.setVal(-7); }, " attr(obj)=(-7)"},
      {HATAttrTypes::AttrDouble, [](AttrConstr& a) { a.setVal(0.25); }, " attr(obj)=(0.25)"},
      {HATAttrTypes::AttrDouble, [](AttrConstr& a) { a.setVal(1e10); }, " attr(obj)=(1e+10)"},
      {HATAttrTypes::AttrString, [](AttrConstr& a) { a.setVal("t"); }, " attr(obj)=(t)"},
      {HATAttrTypes::AttrStringList, [](AttrConstr&) {}, " attr(obj)="},
  };
  for (const Case& c : cases) {
    AttrConstr attr(BaseConstraint::NET, "obj", c.type, "qpe.name");
    c.set(attr);
    EXPECT_EQ(attr.str(), c.text);
  }
}

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
