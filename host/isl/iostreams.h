#pragma once

#include "ipconfig_host_export.h"

#include <boost/iostreams/filtering_stream.hpp>

#include <functional>
#include <ios>
#include <string>

namespace isl::iostreams {

using input = boost::iostreams::input;

// A boost filtering stream opened on a file by an opener object, which pushes
// whatever filters the file needs. A file that cannot be opened leaves the
// stream with failbit set.
template <typename Mode>
class filtering_stream : public boost::iostreams::filtering_stream<Mode> {
public:
  using Opener = std::function<void(const char* path, filtering_stream& stream)>;

  filtering_stream(const std::string& path, std::ios_base::openmode mode, const Opener& opener)
    : mode_(mode)
  {
    opener(path.c_str(), *this);
  }

  std::ios_base::openmode openMode() const { return mode_; }

private:
  std::ios_base::openmode mode_;
};

// "gzip", "bzip2" or "xz" for a stream that xp_autodetect opened on a
// compressed file; empty for any other stream. Kept in the stream's own
// storage, so that it is found through a plain std::istream.
IPCONFIG_HOST_EXPORT std::string compressionOf(std::ios_base& stream);

// Opens the file as it stands.
struct IPCONFIG_HOST_EXPORT basic_file {
  void operator()(const char* path, filtering_stream<input>& stream) const;
};

// Opens the file and decompresses gzip, bzip2 or xz, told by the magic bytes.
// A file whose first bytes cannot be read (a directory) leaves failbit set.
struct IPCONFIG_HOST_EXPORT xp_autodetect {
  void operator()(const char* path, filtering_stream<input>& stream) const;
};

}  // namespace isl::iostreams
