#include "ConstrSupport.h"

#include "SchemaFile.h"

#include <stdexcept>

namespace {

using constr_support::DataTree;
using constr_support::oldSchemaName;
using constr_support::schemaName;
using qpe::constraints::SchemaFile;
using testing_support::ScopedEnv;

TEST(SchemaFileTest, TheShippedSchemaIsFoundWithoutSettingAnything)
{
  const ScopedEnv noRoot("KVR_ROOT", std::nullopt);
  const std::string found = SchemaFile::getConstraintsSchema();
  EXPECT_TRUE(boost::filesystem::equivalent(found,
                                            IPCONFIG_RW_DATA_SOURCE_DIR "/" + schemaName));
  EXPECT_EQ(SchemaFile::getConstraintsSchemaOld(), "");
}

TEST(SchemaFileTest, TheNewNameWinsThenTheOldPathThenNothing)
{
  const DataTree tree;
  const std::string mine = tree.put(schemaName, "{}");
  const std::string old = tree.put(oldSchemaName, "{}");
  EXPECT_EQ(SchemaFile::getConstraintsSchema(), mine);
  EXPECT_EQ(SchemaFile::findFileInDataDir(oldSchemaName), old);
  EXPECT_EQ(SchemaFile::getConstraintsSchemaOld(), old);

  boost::filesystem::remove(mine);
  tree.hide(schemaName);
  EXPECT_EQ(SchemaFile::findFileInDataDir(schemaName), "") << "a directory is no schema";
  EXPECT_EQ(SchemaFile::getConstraintsSchema(), old);

  boost::filesystem::remove(old);
  tree.hide(oldSchemaName);
  EXPECT_EQ(SchemaFile::getConstraintsSchema(), "");
}

TEST(SchemaFileTest, TheLocalSchemaLiesInTheSourceTreeAtKvrRoot)
{
  {
    const ScopedEnv root("KVR_ROOT", std::string("/src/tree"));
    EXPECT_EQ(SchemaFile::getLocalConstraintsSchema(),
              "/src/tree/src/shared/ipconfig/readwrite/zxcore/src/main/resources/data/" +
                  schemaName);
  }
  const ScopedEnv noRoot("KVR_ROOT", std::nullopt);
  EXPECT_THROW(SchemaFile::getLocalConstraintsSchema(), std::logic_error);
}

}  // namespace
