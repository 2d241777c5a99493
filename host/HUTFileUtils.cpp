#include "HUTFileUtils.h"

#include <boost/filesystem.hpp>

#include <fstream>

namespace fs = boost::filesystem;

bool HUTFileUtils::makeRelativeToPath(const std::string& base, std::string& path)
{
  if (base.empty() || path.empty())
    return false;
  const fs::path relative = fs::path(path).lexically_normal().lexically_relative(
      fs::path(base).lexically_normal());
  if (relative.empty())
    return false;
  path = relative.string();
  return true;
}

namespace {

std::string problemWith(const fs::path& file)
{
  boost::system::error_code ec;
  if (!fs::exists(file, ec))
    return "file does not exist: " + file.string();
  if (!fs::is_regular_file(file, ec))
    return "not a regular file: " + file.string();
  if (!std::ifstream(file.string()).is_open())
    return "file cannot be opened for reading: " + file.string();
  return {};
}

}  // namespace

std::string HUTFileUtils::checkFileForReading(const std::string& path,
                                              const HSTVector<std::string>& searchDirs)
{
  const std::string problem = problemWith(path);
  if (problem.empty() || fs::path(path).is_absolute())
    return problem;
  for (const std::string& dir : searchDirs)
    if (problemWith(fs::path(dir) / path).empty())
      return {};
  return problem;
}
