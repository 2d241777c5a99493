#include "TestSupport.h"

#include "HUTEnv.h"

namespace {

using testing_support::ScopedEnv;
using testing_support::TempDir;
using testing_support::writeFile;
namespace fs = boost::filesystem;

const std::string sourceDataDir = IPCONFIG_RW_DATA_SOURCE_DIR;
// A file the source tree's data directory always holds.
const std::string inSourceTree = "README.md";

enum class Root { unset, withFile, emptyData, missing };

struct DataDirCase {
  const char* name;
  Root root;
  const char* relativePath;
  bool expectKvrRoot;  // else the source tree's data directory
};

void PrintTo(const DataDirCase& c, std::ostream* out)
{
  *out << c.name;
}

class DataDirTest : public ::testing::TestWithParam<DataDirCase> {};

TEST_P(DataDirTest, FirstCandidateHoldingThePathElseFirstExisting)
{
  const DataDirCase& c = GetParam();
  const TempDir root;
  if (c.root == Root::withFile)
    writeFile(root.file("data/parts/x/schema.json"), "{}");
  if (c.root == Root::emptyData)
    fs::create_directories(root.path() / "data");
  const ScopedEnv kvrRoot("KVR_ROOT", c.root == Root::unset
                                          ? std::nullopt
                                          : std::optional<std::string>(root.path().string()));

  const std::string expected = c.expectKvrRoot ? (root.path() / "data").string() : sourceDataDir;
  EXPECT_EQ(HUTEnv::getKVRDataDir(c.relativePath), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Candidates, DataDirTest,
    ::testing::Values(DataDirCase{"kvrRootHoldsIt", Root::withFile, "parts/x/schema.json", true},
                      DataDirCase{"onlySourceTreeHoldsIt", Root::emptyData, "README.md", false},
                      DataDirCase{"nobodyHoldsItKvrRootExists", Root::emptyData, "nothing.json",
                                  true},
                      DataDirCase{"kvrRootMissing", Root::missing, "nothing.json", false},
                      DataDirCase{"noKvrRoot", Root::unset, "nothing.json", false},
                      DataDirCase{"noKvrRootSourceHoldsIt", Root::unset, "README.md", false}),
    [](const auto& info) { return info.param.name; });

TEST(HUTEnvTest, PwdFollowsTheCurrentDirectory)
{
  const TempDir dir;
  const fs::path old = fs::current_path();
  fs::current_path(dir.path());
  const std::string pwd = HUTEnv::getPWD();
  fs::current_path(old);
  EXPECT_EQ(fs::canonical(pwd), fs::canonical(dir.path()));
  EXPECT_EQ(HUTEnv::getPWD(), old.string());
}

}  // namespace
