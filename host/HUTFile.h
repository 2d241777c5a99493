#pragma once

#include "ipconfig_host_export.h"

#include <cstdint>
#include <string>

// A handle on a path; making one has no effect on the disk.
class IPCONFIG_HOST_EXPORT HUTFile {
public:
  explicit HUTFile(const std::string& path);
  ~HUTFile();

  bool exists() const;
  bool isFile() const;  // a regular file, after following links
  std::uintmax_t size() const;  // 0 when there is no such file
  // The name the handle was made from.
  void getName(std::string& out) const;
  // Absolute, normalised, with links resolved as far as the path exists.
  // `out` may be the string the handle was made from.
  void getCanonicalName(std::string& out) const;
  // Removes the file; a missing file is no error.
  void rm();

  static const std::string& getDirSeparator();

private:
  std::string path_;
};
