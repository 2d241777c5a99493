#pragma once

#include "ipconfig_host_export.h"

#include <fstream>
#include <string>

// An output file stream; the file is created or truncated on construction.
class IPCONFIG_HOST_EXPORT HUTFileWriteStream : public std::ofstream {
public:
  HUTFileWriteStream(const std::string& path, std::ios_base::openmode mode);
  ~HUTFileWriteStream() override;
};
