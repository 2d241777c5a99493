#include "TestSupport.h"

#include "BaseNameResolver.h"
#include "PortRenamer.h"

namespace {

using namespace qpe::constraints;
using testing_support::MessageLogTest;
using Names = std::vector<std::string>;

// Knows every name but those starting with '?', in plain and scoped form.
class PartialResolver : public BaseNameResolver {
public:
  explicit PartialResolver(bool silent = false) { quiet = silent; }

  std::string resolveNodeName(const std::string& n) const override { return known(n); }
  std::string resolvePortName(const std::string& n) const override { return known(n); }
  std::string resolveNetName(const std::string& n) const override { return known(n); }
  std::string resolveScopedNodeName(const std::string& n) const override { return known(n); }
  std::string resolveScopedPortName(const std::string& n) const override { return known(n); }
  std::string resolveScopedNetName(const std::string& n) const override { return known(n); }
  void resolvePortPattern(const std::string& pattern, Names& out) const override
  {
    if (pattern == "bus*")
      out.insert(out.end(), {"bus0", "bus1"});
    else
      BaseNameResolver::resolvePortPattern(pattern, out);
  }

private:
  static std::string known(const std::string& n) { return n.rfind('?', 0) == 0 ? "" : n; }
};

class BaseNameResolverTest : public MessageLogTest {};

TEST_F(BaseNameResolverTest, ListsDropAndReportWhatDoesNotResolve)
{
  const struct {
    void (BaseNameResolver::*resolve)(Names&) const;
    const char* oneUnresolved;
    const char* severalUnresolved;
  } cases[] = {
      {&BaseNameResolver::resolveNodeNames, "@75-412@%s", "@75-413@%s"},
      {&BaseNameResolver::resolvePortNames, "@75-414@%s", "@75-415@%s"},
      {&BaseNameResolver::resolveNetNames, "@75-410@%s", "@75-411@%s"},
      {&BaseNameResolver::resolveScopedNodeNames, "@75-418@%s", "@75-419@%s"},
      {&BaseNameResolver::resolveScopedPortNames, "@75-420@%s", "@75-421@%s"},
      {&BaseNameResolver::resolveScopedNetNames, "@75-416@%s", "@75-417@%s"},
  };
  const PartialResolver resolver;
  const PartialResolver silent(true);
  for (const auto& c : cases) {
    SCOPED_TRACE(c.oneUnresolved);
    ComMsgLog::clear();
    Names one{"a", "?x", "b"}, several{"?x", "c", "?y", "?z"}, all{"d", "e"};
    for (Names* names : {&one, &several, &all})
      (resolver.*c.resolve)(*names);
    EXPECT_EQ(one, (Names{"a", "b"}));
    EXPECT_EQ(several, (Names{"c"}));
    EXPECT_EQ(all, (Names{"d", "e"}));
    (silent.*c.resolve)(one = {"?x", "?y"});
    EXPECT_TRUE(one.empty());
    expectSent({{c.oneUnresolved, ComMsgMgr::CriticalWarning, {"?x"}},
                {c.severalUnresolved, ComMsgMgr::CriticalWarning, {"?x ?y ?z"}}});
  }
}

TEST_F(BaseNameResolverTest, IdentityKeepsNamesButNotEmptyOnes)
{
  const BaseNameResolver identity;
  Names names{"a", "b", "a"};
  identity.resolveNodeNames(names);
  EXPECT_EQ(names, (Names{"a", "b", "a"}));
  expectSent({});

  names = {"", "a"};
  identity.resolveNodeNames(names);
  names = {"", ""};
  identity.resolveNodeNames(names);
  Names pattern;
  identity.resolveNetPattern("", pattern);
  EXPECT_TRUE(pattern.empty());
  expectSent({{"@75-412@%s", ComMsgMgr::CriticalWarning, {""}},
              {"@75-413@%s", ComMsgMgr::CriticalWarning, {" "}}});
}

TEST_F(BaseNameResolverTest, PatternsExpandOnlyInThePlainLists)
{
  const PartialResolver resolver;
  Names plain{"bus*", "clk"};
  resolver.resolvePortNames(plain);
  EXPECT_EQ(plain, (Names{"bus0", "bus1", "clk"}));
  Names scoped{"bus*"};
  resolver.resolveScopedPortNames(scoped);
  EXPECT_EQ(scoped, (Names{"bus*"}));
  expectSent({});
}

TEST(PortRenamerTest, RenamesNamesListsAndProperties)
{
  const PortRenamer renamer({{"a", "b"}, {"b", "c"}, {"x", "y"}});
  EXPECT_EQ(renamer.getNewPortName("a"), "b");
  EXPECT_EQ(renamer.getNewPortName("q"), "q");

  Names renamed{"untouched"};
  renamer.getNewPortNames({"q", "r", "q"}, renamed);
  EXPECT_EQ(renamed, (Names{"untouched"})) << "nothing changed, nothing given";
  renamer.getNewPortNames({"q", "a", "b"}, renamed);
  EXPECT_EQ(renamed, (Names{"q", "b", "c"}));

  // In the order of the old names: "a" moves onto "b", then "b" onto "c".
  ConstrPropertiesMap props{{"a", {true}}, {"b", {false}}, {"c", {false}}, {"q", {true}}};
  renamer.renameConstrObjectProperties(props);
  EXPECT_EQ(props, (ConstrPropertiesMap{{"c", {true}}, {"q", {true}}}));

  // A move onto a name that the walk has passed is not moved again; a swap
  // ends where the walk leaves it.
  struct Walk {
    PortRenamer::RenameMap renames;
    ConstrPropertiesMap before;
    ConstrPropertiesMap after;
  };
  const Walk walks[] = {
      {{{"a", "z"}, {"b", "a"}}, {{"b", {true}}}, {{"a", {true}}}},
      {{{"a", "b"}, {"b", "a"}}, {{"a", {true}}, {"b", {false}}}, {{"a", {true}}}},
  };
  for (Walk walk : walks) {
    PortRenamer::renameConstrObjectProperties(walk.renames, walk.before);
    EXPECT_EQ(walk.before, walk.after);
  }
}

}  // namespace
