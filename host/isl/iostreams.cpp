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
  const std::streamsize length =
      boost::iostreams::read(source, reinterpret_cast<char*>(magic.data()), magic.size());
  boost::iostreams::seek(source, 0, std::ios_base::beg);
  switch (detect(magic, length)) {
  case Compression::gzip: stream.push(boost::iostreams::gzip_decompressor()); break;
  case Compression::bzip2: stream.push(boost::iostreams::bzip2_decompressor()); break;
  case Compression::xz: stream.push(boost::iostreams::lzma_decompressor()); break;
  case Compression::none: break;
  }
  stream.push(source);
}

}  // namespace isl::iostreams
