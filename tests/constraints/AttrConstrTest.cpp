#include "TestSupport.h"

#include "AttrConstr.h"
#include "ConstrHandler.h"

#include <functional>

namespace {

using namespace qpe::constraints;
using testing_support::toText;

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

}  // namespace
