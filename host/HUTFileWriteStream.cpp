#include "HUTFileWriteStream.h"

HUTFileWriteStream::HUTFileWriteStream(const std::string& path, std::ios_base::openmode mode)
  : std::ofstream(path, mode | std::ios_base::out)
{
}

HUTFileWriteStream::~HUTFileWriteStream() = default;
