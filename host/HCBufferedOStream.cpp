#include "HCBufferedOStream.h"

#include <ostream>

HCBufferedOStream::HCBufferedOStream(std::ostream& out)
    : out_(out), block_(new char[blockSize]), next_(block_.get()), end_(next_ + blockSize)
{
}

HCBufferedOStream::~HCBufferedOStream()
{
  try {
    drain_();
  } catch (...) {
    // A destructor does not throw: the stream's state tells of the failure.
  }
}

void HCBufferedOStream::Flush()
{
  drain_();
  out_.flush();
}

void HCBufferedOStream::drain_()
{
  if (next_ != block_.get())
    out_.write(block_.get(), next_ - block_.get());
  next_ = block_.get();
}
