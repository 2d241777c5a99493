#include "ShimHandOffSupport.h"

#include "QPEHDDMDeviceUtils.h"
#include "QPEShimInterfaceConstraints.h"

#include <map>

namespace {

using namespace shim_support;
using HrdIPToolCntr::TrafficLInst;

// Flat names as the files hold them, and what the device makes of them.
struct NameCase {
  const char* flat;
  const char* hierarchical;  // empty: no bel
  std::uint32_t column;
  std::uint32_t channel;
};

TEST(QPEHDDMDeviceUtilsTest, FlatNamesSplitAtTheUnderscoreThatEndsTheSite)
{
  const std::uint32_t none = 0xFFFFFFFF;
  const NameCase cases[] = {
      {"QPE_SHIM_X0Y0_S_AXIS0", "QPE_SHIM_X0Y0/S_AXIS0", 0, 0},
      {"QPE_SHIM_X3Y0_M_AXIS3", "QPE_SHIM_X3Y0/M_AXIS3", 3, 7},
      {"QPE_ML_SHIM_X4Y0_S_AXIS1", "QPE_ML_SHIM_X4Y0/S_AXIS1", 4, 1},
      {"QPE_ML_SHIM_X5Y0_M_AXIS0", "QPE_ML_SHIM_X5Y0/M_AXIS0", 5, 4},
      {"QPE_SHIM_X0Y0/S_AXIS0", "", none, none},  // the third underscore is in the bel
      {"QPE_ML_SHIM_X4Y0", "", none, none},       // too few underscores: asked as it stands
      {"QPE_SHIM_X9Y0_S_AXIS0", "", none, none},
      {"", "", none, none},
  };
  for (const NameCase& c : cases) {
    SCOPED_TRACE(c.flat);
    const HDDMBel found = QPEHDDMDeviceUtils::getHDDMBel(demo(), c.flat);
    EXPECT_EQ(found.getHierarchicalName1(), c.hierarchical);
    EXPECT_EQ(QPEHDDMDeviceUtils::getShimColumn(demo(), found), c.column);
    EXPECT_EQ(QPEHDDMDeviceUtils::getIndexOfChanInShim(demo(), found), c.channel);
    EXPECT_EQ(QPEHDDMDeviceUtils::getHierName(demo(), found),
              found.isValid() ? std::string(c.flat) : "");
  }
}

TEST(QPEHDDMDeviceUtilsTest, EveryBelOfTheDeviceComesBackFromItsFlatName)
{
  const HDDMQpeOracle& oracle = demo().getQpeOracle();
  std::size_t bels = 0;
  for (int column : oracle.getZXShimColumns())
    for (int channel = 0; oracle.getZXShimBel(column, channel).isValid(); ++channel, ++bels) {
      const HDDMBel bel = oracle.getZXShimBel(column, channel);
      const std::string flat = QPEHDDMDeviceUtils::getHierName(demo(), bel);
      EXPECT_EQ(flat.find('/'), std::string::npos);
      EXPECT_EQ(QPEHDDMDeviceUtils::getHDDMBel(demo(), flat), bel) << flat;
    }
  EXPECT_EQ(bels, demo().getOracle().getNumBels());
}

TEST(QPEHDDMDeviceUtilsTest, ANameOfTwoUnderscoresReachesTheOracleUnchanged)
{
  std::istringstream in(R"({"device": "d", "shimColumns": [{"site": "A_B_C", "region": "QPE",
      "column": 0, "channels": [{"bel": "D", "type": "PL_IN", "elementId": 0}]}]})");
  const std::unique_ptr<HDARPart> part = HDARPartReader::read(in, "d.json");
  EXPECT_EQ(QPEHDDMDeviceUtils::getHDDMBel(*part, "A_B_C/D").getHierarchicalName1(), "A_B_C/D");
  EXPECT_EQ(QPEHDDMDeviceUtils::getHDDMBel(*part, "A_B_C_D").getHierarchicalName1(), "A_B_C/D");
}

// Three instances side by side, so that their pointer order, the order of
// every walk, is a, b, c.
class ShimRecordTest : public ::testing::Test {
protected:
  ShimRecordTest()
  {
    for (const char* name : {"a", "b", "c"})
      storage.emplace_back(name, Defs::AXI_STRM, Defs::COMP_TYPE_UNKNOWN,
                           std::vector<std::vector<std::string>>{});
    a = &storage[0];
    b = &storage[1];
    c = &storage[2];
  }

  // The names of instances, in the order given.
  static std::vector<std::string> names(const std::vector<const TrafficLInst*>& list)
  {
    std::vector<std::string> result;
    for (const TrafficLInst* instance : list)
      result.push_back(instance ? instance->name : "null");
    return result;
  }

  HrdIPToolCntr::TrafficSpec spec;
  std::vector<TrafficLInst> storage;
  const TrafficLInst* a = nullptr;
  const TrafficLInst* b = nullptr;
  const TrafficLInst* c = nullptr;
  const HDDMBel bel0 = bel("QPE_SHIM_X0Y0/S_AXIS0");
  const HDDMBel bel1 = bel("QPE_SHIM_X1Y0/S_AXIS1");
  const HDDMBel bel2 = bel("QPE_ML_SHIM_X4Y0/M_AXIS0");
};

class QPEShimInterfaceConstraintsTest : public ShimRecordTest {
protected:
  std::vector<std::string> constrained() const
  {
    std::vector<const TrafficLInst*> list;
    constraints.getAllConstrainedInstances(list);
    return names(list);
  }

  // The bels and the flag that a lookup of `instance` leaves in `bels` and `flag`.
  std::pair<std::vector<HDDMBel>, bool> placementOf(const TrafficLInst* instance,
                                                    std::vector<HDDMBel> bels = {},
                                                    bool flag = false) const
  {
    constraints.getPlacementConst(instance, bels, flag);
    return {bels, flag};
  }

  QPEShimInterfaceConstraints constraints{demo(), {&spec}};
};

TEST_F(QPEShimInterfaceConstraintsTest, AddKeepsTheFirstPlacementAndGetLeavesAbsentOnesAlone)
{
  EXPECT_TRUE(constraints.empty());
  EXPECT_TRUE(constraints.addPlacementConst(a, {bel0, bel1}, true));
  EXPECT_FALSE(constraints.addPlacementConst(a, {bel2}, false));
  EXPECT_EQ(placementOf(a), std::make_pair(std::vector<HDDMBel>{bel0, bel1}, true));
  EXPECT_EQ(placementOf(b, {bel2}, true), std::make_pair(std::vector<HDDMBel>{bel2}, true));

  EXPECT_TRUE(constraints.hasLogical(bel1));
  EXPECT_FALSE(constraints.hasLogical(bel2));
  constraints.clear();
  EXPECT_TRUE(constraints.empty());
  EXPECT_FALSE(constraints.hasLogical(bel1));
}

TEST_F(QPEShimInterfaceConstraintsTest, ABelStaysTakenUntilItsLastPlacementGoes)
{
  constraints.addPlacementConst(a, {bel0, bel0}, false);
  constraints.addPlacementConst(b, {bel0, bel1}, false);
  constraints.removePlacementConst(a);
  EXPECT_TRUE(constraints.hasLogical(bel0));
  constraints.removePlacementConst(std::vector<const TrafficLInst*>{b, c});
  EXPECT_FALSE(constraints.hasLogical(bel0));
  EXPECT_FALSE(constraints.hasLogical(bel1));
  EXPECT_TRUE(constraints.empty());
}

TEST_F(QPEShimInterfaceConstraintsTest, MoveHandsThePlacementOnUnlessTheTargetHasOne)
{
  constraints.addPlacementConst(a, {bel0}, true);
  constraints.addPlacementConst(c, {bel2}, false);

  EXPECT_TRUE(constraints.movePlacementConst(b, c)) << "nothing to move";
  EXPECT_EQ(constrained(), (std::vector<std::string>{"a", "c"}));

  EXPECT_TRUE(constraints.replaceLogicalInstances(a, b));
  EXPECT_EQ(constrained(), (std::vector<std::string>{"b", "c"}));
  EXPECT_EQ(placementOf(b), std::make_pair(std::vector<HDDMBel>{bel0}, true));

  EXPECT_TRUE(constraints.movePlacementConst(b, c));
  EXPECT_EQ(constrained(), std::vector<std::string>{"c"}) << "b's placement is lost";
  EXPECT_EQ(placementOf(c), std::make_pair(std::vector<HDDMBel>{bel2}, false));
  EXPECT_FALSE(constraints.hasLogical(bel0));
}

TEST_F(QPEShimInterfaceConstraintsTest, CopyStopsAtTheFirstInstanceAlreadyHere)
{
  QPEShimInterfaceConstraints other(demo(), {});
  other.addPlacementConst(a, {bel0}, true);
  other.addPlacementConst(b, {bel1}, false);
  other.addPlacementConst(c, {bel2}, false);
  constraints.addPlacementConst(b, {bel2}, true);

  EXPECT_FALSE(constraints.copyFrom(other));
  EXPECT_EQ(constrained(), (std::vector<std::string>{"a", "b"})) << "a added, c never reached";
  EXPECT_EQ(placementOf(b), std::make_pair(std::vector<HDDMBel>{bel2}, true));

  QPEShimInterfaceConstraints fresh(demo(), {});
  EXPECT_TRUE(fresh.copyFrom(other));
  EXPECT_EQ(fresh.hasLogical(bel2), true);
}

// A solution after some operations: placed instances with their bels and
// locks, and the mirror.
struct SolutionState {
  std::vector<std::string> placed;  // "name@bel", "!" marks a lock
  std::vector<std::string> reverse;  // "bel>name"
  bool empty;
};

class QPEShimInterfaceSolutionTest : public ShimRecordTest {
protected:
  QPEShimInterfaceSolutionTest()
  {
    for (const auto& [name, hierarchical] :
         {std::pair<const char*, const char*>{"0", "QPE_SHIM_X0Y0/S_AXIS0"},
          {"1", "QPE_SHIM_X1Y0/S_AXIS1"},
          {"2", "QPE_ML_SHIM_X4Y0/M_AXIS0"}})
      belNames[bel(hierarchical)] = name;
  }

  // Inserts as the file readers do: placed first, the mirror if that took.
  static void place(QPEShimInterfaceSolution& target, const TrafficLInst* instance,
                    const HDDMBel& bel, bool locked)
  {
    if (target.placed.emplace(instance, std::make_pair(bel, locked)).second)
      target.reversePlaced.emplace(bel, instance);
  }

  SolutionState state(const QPEShimInterfaceSolution& of)
  {
    SolutionState result{{}, {}, of.empty()};
    for (const auto& [instance, entry] : of.placed)
      result.placed.push_back(std::string(entry.second ? "!" : "") +
                              (instance ? instance->name : "null") + "@" + belNames[entry.first]);
    for (const auto& [bel, instance] : of.reversePlaced)
      result.reverse.push_back(belNames[bel] + ">" + instance->name);
    return result;
  }

  void expectState(const QPEShimInterfaceSolution& of, const SolutionState& expected)
  {
    const SolutionState actual = state(of);
    EXPECT_EQ(actual.placed, expected.placed);
    EXPECT_EQ(actual.reverse, expected.reverse);
    EXPECT_EQ(actual.empty, expected.empty);
  }

  std::map<HDDMBel, std::string> belNames{{HDDMBel(), "invalid"}};
  QPEShimInterfaceSolution solution{demo()};
};

TEST_F(QPEShimInterfaceSolutionTest, ReplaceHandsTheBelOnWithTheLockInverted)
{
  place(solution, a, bel0, false);
  place(solution, c, bel2, true);

  EXPECT_TRUE(solution.replaceLogicalInstances(b, a)) << "b has nothing to hand on";
  expectState(solution, {{"a@0", "!c@2"}, {"0>a", "2>c"}, false});

  EXPECT_TRUE(solution.replaceLogicalInstances(a, b));
  // An unlocked a hands on a locked b.
  expectState(solution, {{"!b@0", "!c@2"}, {"0>b", "2>c"}, false});

  EXPECT_TRUE(solution.replaceLogicalInstances(c, a));
  // A locked c hands on an unlocked a.
  expectState(solution, {{"a@2", "!b@0"}, {"0>b", "2>a"}, false});
  std::vector<const TrafficLInst*> locked;
  solution.getAllLockedInstances(locked);
  EXPECT_EQ(names(locked), std::vector<std::string>{"b"});

  EXPECT_TRUE(solution.replaceLogicalInstances(a, b));
  // b keeps its own bel; a's is gone from both maps.
  expectState(solution, {{"!b@0"}, {"0>b"}, false});
}

TEST_F(QPEShimInterfaceSolutionTest, LocksAndRemovals)
{
  EXPECT_TRUE(solution.empty());
  EXPECT_FALSE(solution.lockLogicalInst(a));
  place(solution, a, bel0, false);
  place(solution, b, bel1, false);
  place(solution, c, bel0, false);  // a second instance on a taken bel
  expectState(solution, {{"a@0", "b@1", "c@0"}, {"0>a", "1>b"}, false});

  EXPECT_TRUE(solution.lockLogicalInst(b));
  std::vector<const TrafficLInst*> list{nullptr};
  solution.getAllLockedInstances(list);
  EXPECT_EQ(names(list), (std::vector<std::string>{"null", "b"})) << "appended";
  solution.lockAll();
  expectState(solution, {{"!a@0", "!b@1", "!c@0"}, {"0>a", "1>b"}, false});

  solution.removeLogicalInstance(c);  // erases bel 0 from the mirror, a's entry
  expectState(solution, {{"!a@0", "!b@1"}, {"1>b"}, false});
  solution.removeLogicalInstances({b});
  expectState(solution, {{"!a@0"}, {}, true});  // empty is judged on the mirror
  list.clear();
  solution.getAllPlacedInstances(list);
  EXPECT_EQ(names(list), std::vector<std::string>{"a"});
  solution.clear();
  expectState(solution, {{}, {}, true});
}

TEST_F(QPEShimInterfaceSolutionTest, CopyTakesValidPlacementsUnlockedThenRelocks)
{
  place(solution, c, bel2, true);  // replaced by the copy
  QPEShimInterfaceSolution other(demo());
  place(other, nullptr, bel1, true);
  place(other, a, bel0, true);
  place(other, b, HDDMBel(), true);
  place(other, c, bel1, false);

  EXPECT_TRUE(solution.copyFrom(other));
  expectState(solution, {{"!a@0", "c@1"}, {"0>a", "1>c"}, false});
  EXPECT_TRUE(solution.copyFrom(solution));
  expectState(solution, {{"!a@0", "c@1"}, {"0>a", "1>c"}, false});
}

}  // namespace
