#include "TestSupport.h"

#include "HUTEnv.h"

namespace {

using namespace testing_support;

TEST(HUTEnvTest, DataDirIsTheFirstCandidateHoldingThePathElseTheFirstExisting)
{
  enum class Root { unset, withFile, emptyData, missing };
  const struct {
    Root root;
    const char* relativePath;
    bool expectKvrRoot;  // else the source tree's data directory
  } rows[] = {{Root::withFile, "parts/x/schema.json", true},
              {Root::emptyData, "README.md", false},  // only the source tree holds it
              {Root::emptyData, "nothing.json", true},
              {Root::missing, "nothing.json", false},
              {Root::unset, "nothing.json", false}};
  for (const auto& row : rows) {
    SCOPED_TRACE(std::to_string(static_cast<int>(row.root)) + " " + row.relativePath);
    const TempDir root;
    if (row.root == Root::withFile)
      writeFile(root.file("data/parts/x/schema.json"), "{}");
    if (row.root == Root::emptyData)
      fs::create_directories(root.path() / "data");
    const ScopedEnv kvrRoot("KVR_ROOT", row.root == Root::unset
                                            ? std::nullopt
                                            : std::optional<std::string>(root.path().string()));
    EXPECT_EQ(HUTEnv::getKVRDataDir(row.relativePath),
              row.expectKvrRoot ? (root.path() / "data").string() : IPCONFIG_RW_DATA_SOURCE_DIR);
  }
}

}  // namespace
