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

struct CompressionCase {
  const char* name;
  std::function<std::string()> pack;
  std::string unpacked = text;
};

void PrintTo(const CompressionCase& c, std::ostream* out)
{
  *out << c.name;
}

class AutodetectTest : public ::testing::TestWithParam<CompressionCase> {};

TEST_P(AutodetectTest, DecompressesByMagicBytesWhileBasicFileReadsAsIs)
{
  const TempDir dir;
  const std::string packed = GetParam().pack();
  writeFile(dir.file("f"), packed);
  EXPECT_EQ(readAll(dir.file("f"), xp_autodetect()), GetParam().unpacked);
  EXPECT_EQ(readAll(dir.file("f"), basic_file()), packed);
}

INSTANTIATE_TEST_SUITE_P(
    Formats, AutodetectTest,
    ::testing::Values(CompressionCase{"plain", [] { return text; }},
                      CompressionCase{"gzip", [] { return compressed(bio::gzip_compressor()); }},
                      CompressionCase{"bzip2", [] { return compressed(bio::bzip2_compressor()); }},
                      CompressionCase{"xz", [] { return compressed(bio::lzma_compressor()); }},
                      CompressionCase{"shorterThanAnyMagic", [] { return std::string("1"); }, "1"}),
    [](const auto& info) { return info.param.name; });

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
