#include "QPEPrjStrEncoder.h"

#include <gtest/gtest.h>

namespace {

using IPConfig::Frameworks::QPEPrjStrEncoder;

struct IntCase {
  std::string text;
  unsigned int sum;
};

void PrintTo(const IntCase& c, std::ostream* out)
{
  *out << ::testing::PrintToString(c.text);
}

class EncodeAsIntTest : public ::testing::TestWithParam<IntCase> {};

TEST_P(EncodeAsIntTest, SumsSignedBytesWithWrapAround)
{
  EXPECT_EQ(QPEPrjStrEncoder::encodeAsInt(GetParam().text), GetParam().sum);
}

INSTANTIATE_TEST_SUITE_P(Texts, EncodeAsIntTest,
                         ::testing::Values(IntCase{"", 0u}, IntCase{"a", 97u},
                                           IntCase{"ab", 195u}, IntCase{"ba", 195u},
                                           IntCase{"\x80", 4294967168u},
                                           IntCase{"a\xff", 96u}));

TEST(QPEPrjStrEncoderTest, ListIsSortedByBytesAndJoined)
{
  EXPECT_EQ(QPEPrjStrEncoder::encodeAsString(std::vector<std::string>{"b", "a"}), "ab");
  EXPECT_EQ(QPEPrjStrEncoder::encodeAsString(std::vector<std::string>{"a", "b"}), "ab");
  EXPECT_EQ(QPEPrjStrEncoder::encodeAsString(std::vector<std::string>{"b", "B", "\xe9", "a"}),
            "Bab\xe9");
  EXPECT_EQ(QPEPrjStrEncoder::encodeAsString(std::vector<std::string>{}), "");
}

TEST(QPEPrjStrEncoderTest, MapIsEachKeyThenItsSortedList)
{
  const std::map<std::string, std::vector<std::string>> ports{{"k2", {"z"}}, {"k1", {"y", "x"}}};
  EXPECT_EQ(QPEPrjStrEncoder::encodeAsString(ports), "k1xyk2z");
  EXPECT_EQ(QPEPrjStrEncoder::encodeAsString(std::map<std::string, std::vector<std::string>>{}),
            "");
}

}  // namespace
