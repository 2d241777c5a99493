#include "OptionValues.h"

#include "Format.h"

#include <boost/algorithm/string/predicate.hpp>

#include <climits>

namespace ipconfig_rw {

long long parseNumber(const std::string& option, const std::string& text, long long low,
                      long long high)
{
  const bool hex = boost::algorithm::istarts_with(text, "0x");
  const std::string digits = hex ? text.substr(2) : text;
  std::size_t used = 0;
  long long value = 0;
  try {
    value = std::stoll(digits, &used, hex ? 16 : 10);
  } catch (const std::exception&) {
    used = 0;
  }
  if (digits.empty() || used != digits.size() || value < low || value > high)
    throw UsageError("option '--" + option + "': '" + text + "' is not a number from " +
                     std::to_string(low) + " to " + std::to_string(high));
  return value;
}

int parseInt(const std::string& option, const std::string& text)
{
  return static_cast<int>(parseNumber(option, text, INT_MIN, INT_MAX));
}

Option partitionStartOption()
{
  return {"partition-start", "N",
          "first column of the partition; with --partition-size -1 too, the array's", "-1"};
}

Option partitionSizeOption()
{
  return {"partition-size", "N",
          "number of columns of the partition; with --partition-start -1 too, the array's", "-1"};
}

}  // namespace ipconfig_rw
