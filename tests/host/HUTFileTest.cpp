#include "TestSupport.h"

#include "HUTFile.h"
#include "HUTFileUtils.h"

namespace {

using testing_support::TempDir;
using testing_support::writeFile;
namespace fs = boost::filesystem;

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

TEST(HUTFileTest, RemoveAcceptsAMissingFile)
{
  const TempDir dir;
  writeFile(dir.file("a.json"), "{}");
  HUTFile file(dir.file("a.json"));
  file.rm();
  EXPECT_FALSE(file.exists());
  EXPECT_NO_THROW(file.rm());
}

struct RelativeCase {
  const char* base;
  const char* path;
  bool made;
  const char* result;
};

void PrintTo(const RelativeCase& c, std::ostream* out)
{
  *out << c.base << " " << c.path;
}

class MakeRelativeTest : public ::testing::TestWithParam<RelativeCase> {};

TEST_P(MakeRelativeTest, RewritesOnlyWhenARelativeFormExists)
{
  std::string path = GetParam().path;
  EXPECT_EQ(HUTFileUtils::makeRelativeToPath(GetParam().base, path), GetParam().made);
  EXPECT_EQ(path, GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Paths, MakeRelativeTest,
                         ::testing::Values(RelativeCase{"/w/p", "/w/p/c/a.json", true, "c/a.json"},
                                           RelativeCase{"/w/p/", "/w/q/a.json", true,
                                                        "../q/a.json"},
                                           RelativeCase{"/w/p", "rel/a.json", false,
                                                        "rel/a.json"},
                                           RelativeCase{"", "/w/a.json", false, "/w/a.json"}));

}  // namespace
