// Runs a fuzz entry point once on each saved input, without libFuzzer, so
// that every input that once failed is read again by the ordinary test run.
//   fuzz_FORMAT FILE_OR_DIRECTORY...

#include <boost/filesystem.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::vector<boost::filesystem::path> inputsOf(const boost::filesystem::path& argument)
{
  std::vector<boost::filesystem::path> inputs;
  if (!boost::filesystem::is_directory(argument)) {
    inputs.push_back(argument);
    return inputs;
  }
  for (const auto& entry : boost::filesystem::directory_iterator(argument))
    if (boost::filesystem::is_regular_file(entry.path()))
      inputs.push_back(entry.path());
  std::sort(inputs.begin(), inputs.end());
  return inputs;
}

}  // namespace

int main(int argc, char** argv)
{
  std::size_t count = 0;
  for (int i = 1; i < argc; ++i) {
    for (const auto& input : inputsOf(argv[i])) {
      std::ifstream stream(input.string(), std::ios_base::binary);
      if (!stream) {
        std::fprintf(stderr, "cannot open %s\n", input.string().c_str());
        return 2;
      }
      const std::string bytes((std::istreambuf_iterator<char>(stream)),
                              std::istreambuf_iterator<char>());
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
      ++count;
    }
  }
  std::printf("%zu inputs read\n", count);
  return 0;
}
