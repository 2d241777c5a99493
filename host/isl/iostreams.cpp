#include "isl/iostreams.h"

#include <boost/iostreams/device/file.hpp>
#include <boost/iostreams/filter/bzip2.hpp>
#include <boost/iostreams/filter/gzip.hpp>
#include <boost/iostreams/filter/lzma.hpp>

#include <algorithm>
#include <array>

namespace isl::iostreams {

namespace {

enum class Compression { none, gzip, bzip2, xz };

// The stream's storage slot that records what xp_autodetect pushed.
int compressionSlot()
{
  static const int slot = std::ios_base::xalloc();
  return slot;
}

// Reads the first bytes of the file into `magic`, with their count (0 for an
// empty file) in `length`; false if they cannot be read.
bool readMagic(boost::iostreams::file_source& source, std::array<unsigned char, 6>& magic,
               std::streamsize& length)
{
  try {
    length = std::max<std::streamsize>(
        0, boost::iostreams::read(source, reinterpret_cast<char*>(magic.data()), magic.size()));
    boost::iostreams::seek(source, 0, std::ios_base::beg);
    return true;
  } catch (const std::ios_base::failure&) {
    return false;
  }
}

Compression detect(const std::array<unsigned char, 6>& magic, std::streamsize length)
{
  const auto startsWith = [&](std::initializer_list<unsigned char> prefix) {
    return length >= static_cast<std::streamsize>(prefix.size()) &&
           std::equal(prefix.begin(), prefix.end(), magic.begin());
  };
  if (startsWith({0x1f, 0x8b}))
    return Compression::gzip;
  if (startsWith({'B', 'Z', 'h'}))
    return Compression::bzip2;
  if (startsWith({0xfd, '7', 'z', 'X', 'Z', 0x00}))
    return Compression::xz;
  return Compression::none;
}

boost::iostreams::file_source openSource(const char* path, filtering_stream<input>& stream)
{
  boost::iostreams::file_source source(path, stream.openMode() | std::ios_base::in);
  if (!source.is_open())
    stream.setstate(std::ios_base::failbit);
  return source;
}

}  // namespace

void basic_file::operator()(const char* path, filtering_stream<input>& stream) const
{
  boost::iostreams::file_source source = openSource(path, stream);
  if (source.is_open())
    stream.push(source);
}

void xp_autodetect::operator()(const char* path, filtering_stream<input>& stream) const
{
  boost::iostreams::file_source source = openSource(path, stream);
  if (!source.is_open())
    return;
  std::array<unsigned char, 6> magic{};
  std::streamsize length = 0;
  if (!readMagic(source, magic, length)) {
    stream.setstate(std::ios_base::failbit);
    return;
  }
  const Compression compression = detect(magic, length);
  stream.iword(compressionSlot()) = static_cast<long>(compression);
  switch (compression) {
  case Compression::gzip: stream.push(boost::iostreams::gzip_decompressor()); break;
  case Compression::bzip2: stream.push(boost::iostreams::bzip2_decompressor()); break;
  case Compression::xz: stream.push(boost::iostreams::lzma_decompressor()); break;
  case Compression::none: break;
  }
  stream.push(source);
}

std::string compressionOf(std::ios_base& stream)
{
  switch (static_cast<Compression>(stream.iword(compressionSlot()))) {
  case Compression::gzip: return "gzip";
  case Compression::bzip2: return "bzip2";
  case Compression::xz: return "xz";
  case Compression::none: break;
  }
  return {};
}

}  // namespace isl::iostreams
