#pragma once

#include <string>

namespace ipconfig_rw {

// The whole of `text` as a decimal number, or a hexadecimal one after "0x",
// within [low, high]; otherwise a UsageError naming the option.
long long parseNumber(const std::string& option, const std::string& text, long long low,
                      long long high);
int parseInt(const std::string& option, const std::string& text);

}  // namespace ipconfig_rw
