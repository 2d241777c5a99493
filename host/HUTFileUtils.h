#pragma once

#include "HSTVector.h"
#include "ipconfig_host_export.h"

#include <string>

class IPCONFIG_HOST_EXPORT HUTFileUtils {
public:
  // Rewrites `path` relative to the directory `base`. False, with `path`
  // untouched, when no relative form exists (another root, empty input).
  static bool makeRelativeToPath(const std::string& base, std::string& path);

  // Why `path` cannot be read, or an empty string when it can. `searchDirs`
  // are directories in which a relative `path` is also looked for.
  static std::string checkFileForReading(const std::string& path,
                                         const HSTVector<std::string>& searchDirs);
};
