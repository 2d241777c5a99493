#include "HUTEnv.h"

#include <boost/filesystem.hpp>

#include <dlfcn.h>

#include <cstdlib>
#include <vector>

namespace fs = boost::filesystem;

namespace {

// Where the installed data directory lies relative to this library's file, so
// that an installed tree can be moved as a whole.
fs::path installedDataDir()
{
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&HUTEnv::getKVRDataDir), &info) == 0 || !info.dli_fname)
    return {};
  return (fs::path(info.dli_fname).parent_path() / IPCONFIG_RW_INSTALLED_DATA_RELPATH)
      .lexically_normal();
}

std::vector<fs::path> dataDirCandidates()
{
  std::vector<fs::path> candidates;
  if (const char* root = std::getenv("KVR_ROOT"); root && *root)
    candidates.push_back(fs::path(root) / "data");
  static const fs::path installed = installedDataDir();
  if (!installed.empty())
    candidates.push_back(installed);
  candidates.push_back(fs::path(IPCONFIG_RW_SOURCE_DATA_DIR));
  return candidates;
}

}  // namespace

std::string HUTEnv::getKVRDataDir(const std::string& relativePath)
{
  const std::vector<fs::path> candidates = dataDirCandidates();
  boost::system::error_code ec;
  for (const fs::path& dir : candidates)
    if (fs::exists(dir / relativePath, ec))
      return dir.string();
  for (const fs::path& dir : candidates)
    if (fs::is_directory(dir, ec))
      return dir.string();
  return candidates.front().string();
}

const std::string& HUTEnv::getPWD()
{
  thread_local std::string pwd;
  boost::system::error_code ec;
  pwd = fs::current_path(ec).string();
  return pwd;
}
