#include "TestSupport.h"

#include "isl/iostreams.h"

#include <boost/iostreams/copy.hpp>
#include <boost/iostreams/filter/bzip2.hpp>
#include <boost/iostreams/filter/gzip.hpp>
#include <boost/iostreams/filter/lzma.hpp>

namespace {

namespace bio = boost::iostreams;
using namespace isl::iostreams;
using namespace testing_support;

const std::string text = "{\"MetaData\": []}\n";

template <typename Compressor>
std::string compressed(Compressor compressor)
{
  std::string packed;
  bio::filtering_ostream out;
  out.push(compressor);
  out.push(bio::back_inserter(packed));
  out << text;
  out.reset();
  return packed;
}

std::string readAll(const std::string& path, const filtering_stream<input>::Opener& opener)
{
  filtering_stream<input> in(path, std::ios_base::binary, opener);
  EXPECT_TRUE(in.good());
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

TEST(AutodetectTest, DecompressesByMagicBytesWhileBasicFileReadsAsIs)
{
  const struct {
    const char* name;
    std::string packed;
    std::string unpacked = text;
  } packings[] = {{"plain", text},
                  {"gzip", compressed(bio::gzip_compressor())},
                  {"bzip2", compressed(bio::bzip2_compressor())},
                  {"xz", compressed(bio::lzma_compressor())},
                  {"shorterThanAnyMagic", "1", "1"}};
  const TempDir dir;
  for (const auto& packing : packings) {
    writeFile(dir.file(packing.name), packing.packed);
    EXPECT_EQ(readAll(dir.file(packing.name), xp_autodetect()), packing.unpacked) << packing.name;
    EXPECT_EQ(readAll(dir.file(packing.name), basic_file()), packing.packed) << packing.name;
  }
}

TEST(AutodetectErrorTest, MissingFileLeavesTheStreamFailed)
{
  using Opener = filtering_stream<input>::Opener;
  for (const Opener& opener : {Opener(xp_autodetect()), Opener(basic_file())})
    EXPECT_FALSE(filtering_stream<input>("/no/such/file", std::ios_base::binary, opener).good());
}

TEST(AutodetectErrorTest, CorruptGzipMarksTheStreamBadInsteadOfThrowing)
{
  const TempDir dir;
  std::string packed = compressed(bio::gzip_compressor());
  packed.resize(12);
  packed += "garbage that is no deflate stream";
  writeFile(dir.file("f.gz"), packed);
  filtering_stream<input> in(dir.file("f.gz"), std::ios_base::binary, xp_autodetect());
  std::string read;
  EXPECT_NO_THROW(std::getline(in, read, '\0'));
  EXPECT_TRUE(in.bad());
}

}  // namespace
