#include "QPEPrjStrEncoder.h"

#include <algorithm>
#include <cstdint>

namespace IPConfig::Frameworks {

namespace {

void appendSorted(std::string& text, std::vector<std::string> entries)
{
  std::sort(entries.begin(), entries.end());
  for (const std::string& entry : entries)
    text += entry;
}

}  // namespace

unsigned int QPEPrjStrEncoder::encodeAsInt(const std::string& text)
{
  std::uint32_t sum = 0;
  for (const char byte : text)
    sum += static_cast<std::uint32_t>(static_cast<std::int32_t>(static_cast<signed char>(byte)));
  return sum;
}

std::string QPEPrjStrEncoder::encodeAsString(const std::vector<std::string>& entries)
{
  std::string text;
  appendSorted(text, entries);
  return text;
}

std::string QPEPrjStrEncoder::encodeAsString(
    const std::map<std::string, std::vector<std::string>>& entries)
{
  std::string text;
  for (const auto& [key, list] : entries) {
    text += key;
    appendSorted(text, list);
  }
  return text;
}

}  // namespace IPConfig::Frameworks
