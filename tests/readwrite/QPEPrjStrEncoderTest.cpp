#include "QPEPrjStrEncoder.h"

#include <gtest/gtest.h>

namespace {

using IPConfig::Frameworks::QPEPrjStrEncoder;

TEST(QPEPrjStrEncoderTest, IntIsTheSumOfSignedBytesWithWrapAround)
{
  const std::pair<std::string, unsigned int> rows[] = {
      {"", 0u}, {"a", 97u}, {"ab", 195u}, {"ba", 195u}, {"\x80", 4294967168u}, {"a\xff", 96u}};
  for (const auto& [text, sum] : rows)
    EXPECT_EQ(QPEPrjStrEncoder::encodeAsInt(text), sum) << ::testing::PrintToString(text);
}

TEST(QPEPrjStrEncoderTest, ListIsSortedByBytesAndJoined)
{
  EXPECT_EQ(QPEPrjStrEncoder::encodeAsString(std::vector<std::string>{"b", "a"}), "ab");
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
