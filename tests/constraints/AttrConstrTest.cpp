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

// Each attribute carries a location in another source file, which goes with
// its value or not at all; the text shows the value whether written or not.
TEST(AttrConstrTest, WritesTheKeyWithoutPrefixesAndPrintsTheValueByType)
{
  const std::string at = R"(_src_info":{"file":"a.cc","line":3,"column":4}})";
  const struct {
    const char* name;
    AttrConstr::AttrType type;
    std::function<void(AttrConstr&)> set;
    std::string json;
    const char* str;
  } cases[] = {
      {"qpe.foo", HATAttrTypes::AttrInt, [](AttrConstr& a) { a.setVal(-5); },
       R"({"foo":-5,"foo)" + at, " attr(n)=(-5)"},
      {"margin", HATAttrTypes::AttrInt, [](AttrConstr& a) { a.setVal(-1); }, "{}", " attr(n)=(-1)"},
      {"margin", HATAttrTypes::AttrInt, [](AttrConstr& a) { a.setVal(-5); }, "{}", " attr(n)=(-5)"},
      {"utilization", HATAttrTypes::AttrDouble, [](AttrConstr& a) { a.setVal(-0.5); }, "{}",
       " attr(n)=(-0.5)"},
      {"runtime", HATAttrTypes::AttrInt, [](AttrConstr& a) { a.setVal(5); },
       R"({"runtime":5,"runtime)" + at, " attr(n)=(5)"},
      {"Utilization", HATAttrTypes::AttrDouble, [](AttrConstr& a) { a.setVal(0.25); },
       R"({"utilization":0.25,"utilization)" + at, " attr(n)=(0.25)"},
      {"ratio", HATAttrTypes::AttrDouble, [](AttrConstr& a) { a.setVal(1e10); },
       R"({"ratio":10000000000.0,"ratio)" + at, " attr(n)=(1e+10)"},
      {"zx.Foo", HATAttrTypes::AttrBool, [](AttrConstr& a) { a.setVal(true); },
       R"({"foo":true,"foo)" + at, " attr(n)=(true)"},
      {"flag", HATAttrTypes::AttrBool, [](AttrConstr&) {}, "{}", " attr(n)=(false)"},
      {"Qpe.Label", HATAttrTypes::AttrString, [](AttrConstr& a) { a.setVal("x y"); },
       R"({"label":"x y","label)" + at, " attr(n)=(x y)"},
      {"list", HATAttrTypes::AttrStringList, [](AttrConstr&) {}, "{}", " attr(n)="}};
  for (const auto& c : cases) {
    AttrConstr attr(BaseConstraint::NODE, "n", c.type, AttrConstr::makeCanonicalAttrName(c.name));
    attr.getSrcInfo().set(SrcInfo::SourceFile, "a.cc", 3, 4);
    c.set(attr);
    EXPECT_EQ(written(attr), c.json) << c.name;
    EXPECT_EQ(attr.str(), c.str) << c.name;
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
  namespace Types = HATAttrTypes;
  const struct {
    const char* name;
    AttrValue value;
    bool isDefault;
  } cases[] = {
      {"newBool", AttrValue(Types::AttrBool), true}, {"newInt", AttrValue(Types::AttrInt), true},
      {"newDouble", AttrValue(Types::AttrDouble), true},
      {"newString", AttrValue(Types::AttrString), true},
      {"newList", AttrValue(Types::AttrStringList), true},
      {"intIsDefault", AttrValue(-1, -1), true},
      {"intZeroDefaultZero", AttrValue(0, 0), true},
      {"intMinusOneDefaultZero", AttrValue(-1, 0), false}, {"intFive", AttrValue(5, -1), false},
      {"stringEmpty", AttrValue("", ""), true}, {"stringIsDefault", AttrValue("x", "x"), true},
      {"stringEmptyDefaultX", AttrValue("", "x"), false},
      {"boolTrue", after(AttrValue(Types::AttrBool), [](auto& a) { a.setBoolVal(true); }), false},
      {"boolFalse", after(AttrValue(Types::AttrBool), [](auto& a) { a.setBoolVal(false); }), true},
      {"doubleMinusOne", after(AttrValue(Types::AttrDouble), [](auto& a) { a.setDoubleVal(-1); }),
       true},
      {"doubleZero", after(AttrValue(Types::AttrDouble), [](auto& a) { a.setDoubleVal(0); }),
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

}  // namespace
