#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include <unistd.h>

namespace ipconfig_rw_fuzz {

// The fuzzer's bytes as a file of this process, so that a reader opens them
// through its own path form; removed again when the input is done.
class FuzzInput {
public:
  FuzzInput(const std::uint8_t* data, std::size_t size, const char* format)
      : path_(directory() + "/ipconfig_rw_fuzz_" + format + "_" + std::to_string(getpid()) +
              ".json")
  {
    std::ofstream(path_, std::ios_base::binary | std::ios_base::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
  ~FuzzInput() { std::remove(path_.c_str()); }
  FuzzInput(const FuzzInput&) = delete;
  FuzzInput& operator=(const FuzzInput&) = delete;

  const std::string& path() const { return path_; }

private:
  static std::string directory()
  {
    const char* tmp = std::getenv("TMPDIR");
    return tmp && *tmp ? tmp : "/tmp";
  }

  std::string path_;
};

// A model the library wrote must read back: anything else is a fault.
[[noreturn]] inline void writtenFileRefused(const char* format, const std::string& text)
{
  std::fprintf(stderr, "%s: the written file does not read back:\n%s\n", format, text.c_str());
  std::abort();
}

}  // namespace ipconfig_rw_fuzz
