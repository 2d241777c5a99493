#pragma once

#include "ipconfig_host_export.h"

#include <string>

class IPCONFIG_HOST_EXPORT HUTEnv {
public:
  // The data directory under which `relativePath` lies. Candidates, in order:
  // $KVR_ROOT/data, the installed data directory (found from where this
  // library was loaded), the source tree's data directory. The first that
  // holds `relativePath` wins; failing that, the first that exists; failing
  // that, the first candidate.
  static std::string getKVRDataDir(const std::string& relativePath);

  // The current directory, as of this call.
  static const std::string& getPWD();
};
