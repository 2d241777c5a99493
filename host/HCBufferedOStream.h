#pragma once

#include "ipconfig_host_export.h"

#include <cstddef>
#include <iosfwd>
#include <memory>

// A RapidJSON output stream onto a std::ostream that hands the text on in
// large blocks: a writer that puts one character at a time through a stream
// spends most of its time there. Whatever is put reaches the stream by the
// time of a Flush or of the destructor, so a walk that stops part way leaves
// the same text behind as an unbuffered one would.
class IPCONFIG_HOST_EXPORT HCBufferedOStream {
public:
  using Ch = char;

  explicit HCBufferedOStream(std::ostream& out);
  ~HCBufferedOStream();
  HCBufferedOStream(const HCBufferedOStream&) = delete;
  HCBufferedOStream& operator=(const HCBufferedOStream&) = delete;

  void Put(char c)
  {
    if (next_ == end_)
      drain_();
    *next_++ = c;
  }
  // Hands the block on and flushes the stream.
  void Flush();

private:
  static constexpr std::size_t blockSize = std::size_t{1} << 16;

  void drain_();

  std::ostream& out_;
  std::unique_ptr<char[]> block_;
  char* next_;
  char* end_;
};
