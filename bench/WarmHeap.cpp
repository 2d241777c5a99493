#include <malloc.h>

#include <limits>

// Every benchmark runs on a heap that keeps what it frees, large blocks
// included. glibc would otherwise map each block above 32 MB afresh and unmap
// it on free: a run over a large file would then pay a page fault for every
// page it writes, some microseconds each on a virtual machine, where a run
// over a small file reuses its pages, and the times per item of two sizes
// would not compare. PeakMemory still hands the free pages back before it
// measures.
namespace {

const bool heapKeepsFreedBlocks = [] {
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
  return true;
}();

}  // namespace
