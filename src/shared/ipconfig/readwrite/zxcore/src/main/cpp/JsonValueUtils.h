#pragma once

#include "ConstrProperties.h"
#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace qpe::constraints::json {

// The text of the member if it is a string, else empty.
IPCONFIG_READWRITE_EXPORT std::string readStringValue(const JValue& object, const std::string& key);
// The non-empty strings of an array, in order; empty for anything else.
IPCONFIG_READWRITE_EXPORT std::vector<std::string> readStringArrayValue(const JValue& value);
IPCONFIG_READWRITE_EXPORT std::vector<std::string> readStringArrayValue(const JValue& object,
                                                                       const std::string& key);
// The named elements of a list with properties, in order; empty names are
// left out. Empty for anything but an array.
IPCONFIG_READWRITE_EXPORT std::vector<std::pair<std::string, ConstrProperties>>
readObjectArrayWithProperties(const JValue& value);
// A source location with a file: stored, and true. Otherwise the outputs stay.
IPCONFIG_READWRITE_EXPORT bool readSrcInfo(const JValue& value, std::string& file,
                                           std::uint32_t& line, std::uint32_t& column);

// At the first `separator`: what stands before and behind it. Without one,
// both stay as they were.
IPCONFIG_READWRITE_EXPORT void split(const std::string& text, std::string& left,
                                     std::string& right, char separator);
// Removes a "(" at the start and a ")" at the end of a text of two or more
// characters; one without the other is reported with "@75-646@%s", and
// removed all the same.
IPCONFIG_READWRITE_EXPORT void stripParens(std::string& text);
// The number that the text, blanks aside, is exactly in decimal; -1 for
// anything else ("+5", "007", "1.0", out of range).
IPCONFIG_READWRITE_EXPORT int toInt(std::string text);

}  // namespace qpe::constraints::json
