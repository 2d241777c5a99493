#include "TestSupport.h"

#include "HPAParamMgr.h"
#include "HSTStrUtils.h"
#include "HUTFile.h"
#include "HUTFileUtils.h"
#include "HUTFileWriteStream.h"

namespace {

using testing_support::TempDir;
using testing_support::writeFile;
namespace fs = boost::filesystem;

TEST(HUTFileTest, TellsFilesFromDirectoriesAndMissingPaths)
{
  const TempDir dir;
  writeFile(dir.file("a.json"), "12345");
  const HUTFile file(dir.file("a.json"));
  const HUTFile directory(dir.path().string());
  const HUTFile missing(dir.file("none.json"));

  EXPECT_TRUE(file.exists());
  EXPECT_TRUE(file.isFile());
  EXPECT_EQ(file.size(), 5u);
  EXPECT_TRUE(directory.exists());
  EXPECT_FALSE(directory.isFile());
  EXPECT_FALSE(missing.exists());
  EXPECT_FALSE(missing.isFile());
  EXPECT_EQ(missing.size(), 0u);
}

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

TEST(HUTFileUtilsTest, CheckFileForReadingSaysWhyOrNothing)
{
  const TempDir dir;
  writeFile(dir.file("a.json"), "{}");
  EXPECT_EQ(HUTFileUtils::checkFileForReading(dir.file("a.json"), {}), "");
  EXPECT_EQ(HUTFileUtils::checkFileForReading("a.json", {dir.path().string()}), "");
  EXPECT_EQ(HUTFileUtils::checkFileForReading(dir.file("b.json"), {}),
            "file does not exist: " + dir.file("b.json"));
  EXPECT_EQ(HUTFileUtils::checkFileForReading(dir.path().string(), {}),
            "not a regular file: " + dir.path().string());
}

TEST(HUTFileWriteStreamTest, TruncatesAndFailsOnAnUnopenablePath)
{
  const TempDir dir;
  writeFile(dir.file("out.json"), "old contents");
  {
    HUTFileWriteStream out(dir.file("out.json"), std::ios_base::out);
    out << "new";
  }
  EXPECT_EQ(testing_support::readFile(dir.file("out.json")), "new");
  HUTFileWriteStream bad(dir.file("no/such/dir/out.json"), std::ios_base::out);
  EXPECT_TRUE(bad.fail());
}

TEST(HPAParamMgrTest, UnknownNamesReadFalseAndSetValuesStick)
{
  HPAParamMgr& params = HPAParamMgr::getParamMgr();
  EXPECT_EQ(&params, &HPAParamMgr::getParamMgr());
  EXPECT_FALSE(params.getValueAsBool("project.enableBlockModel"));
  params.setValueAsBool("project.enableBlockModel", true);
  EXPECT_TRUE(params.getValueAsBool("project.enableBlockModel"));
  params.reset();
  EXPECT_FALSE(params.getValueAsBool("project.enableBlockModel"));
}

TEST(HSTStrUtilsTest, ContainsIsASubstringTest)
{
  EXPECT_TRUE(HSTStrUtils::contains("top/noc_inst_0", "noc_inst"));
  EXPECT_TRUE(HSTStrUtils::contains("abc", ""));
  EXPECT_FALSE(HSTStrUtils::contains("abc", "abcd"));
  EXPECT_FALSE(HSTStrUtils::contains(nullptr, "a"));
}

}  // namespace
