#include "TestSupport.h"

#include "HUTFile.h"
#include "HUTFileUtils.h"

namespace {

using namespace testing_support;

TEST(HUTFileTest, CanonicalNameIsAbsoluteNormalAndMayAliasTheInput)
{
  const TempDir dir;
  fs::create_directories(dir.path() / "sub");
  std::string path = (dir.path() / "sub" / ".." / "x.json").string();
  HUTFile(path).getCanonicalName(path);
  EXPECT_EQ(path, (fs::canonical(dir.path()) / "x.json").string());

  std::string relative;
  HUTFile("rel/./y.json").getCanonicalName(relative);
  EXPECT_EQ(relative, (fs::current_path() / "rel" / "y.json").string());
}

TEST(HUTFileUtilsTest, MakeRelativeRewritesOnlyWhenARelativeFormExists)
{
  const struct {
    const char* base;
    const char* path;
    bool made;
    const char* result;
  } rows[] = {{"/w/p", "/w/p/c/a.json", true, "c/a.json"},
              {"/w/p/", "/w/q/a.json", true, "../q/a.json"},
              {"/w/p", "rel/a.json", false, "rel/a.json"},
              {"", "/w/a.json", false, "/w/a.json"}};
  for (const auto& row : rows) {
    std::string path = row.path;
    EXPECT_EQ(HUTFileUtils::makeRelativeToPath(row.base, path), row.made) << row.path;
    EXPECT_EQ(path, row.result);
  }
}

}  // namespace
