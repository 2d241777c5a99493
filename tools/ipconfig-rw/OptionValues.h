#pragma once

#include "Format.h"

#include <string>

namespace ipconfig_rw {

// The whole of `text` as a decimal number, or a hexadecimal one after "0x",
// within [low, high]; otherwise a UsageError naming the option.
long long parseNumber(const std::string& option, const std::string& text, long long low,
                      long long high);
int parseInt(const std::string& option, const std::string& text);

// The partition's columns, shared by the commands that write for a partition;
// both -1 stand for the whole array.
Option partitionStartOption();
Option partitionSizeOption();

}  // namespace ipconfig_rw
