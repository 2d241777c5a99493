#include "HUTFile.h"

#include <boost/filesystem.hpp>

namespace fs = boost::filesystem;

HUTFile::HUTFile(const std::string& path) : path_(path) {}

HUTFile::~HUTFile() = default;

bool HUTFile::exists() const
{
  boost::system::error_code ec;
  return fs::exists(path_, ec);
}

bool HUTFile::isFile() const
{
  boost::system::error_code ec;
  return fs::is_regular_file(path_, ec);
}

std::uintmax_t HUTFile::size() const
{
  boost::system::error_code ec;
  const std::uintmax_t bytes = fs::file_size(path_, ec);
  return ec ? 0 : bytes;
}

void HUTFile::getName(std::string& out) const
{
  out = path_;
}

void HUTFile::getCanonicalName(std::string& out) const
{
  boost::system::error_code ec;
  fs::path canonical = fs::weakly_canonical(fs::absolute(path_), ec);
  if (ec)
    canonical = fs::absolute(path_).lexically_normal();
  out = canonical.string();
}

void HUTFile::rm()
{
  boost::system::error_code ec;
  fs::remove(path_, ec);
}

const std::string& HUTFile::getDirSeparator()
{
  static const std::string separator(1, fs::path::preferred_separator);
  return separator;
}
