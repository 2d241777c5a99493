#pragma once

#include "ZXLogicalArchForward.h"
#include "ipconfig_readwrite_export.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace IPConfig::Frameworks {

// Eight lower-case hexadecimal digits, zero-padded, no prefix: 255 is "000000ff".
IPCONFIG_READWRITE_EXPORT std::string toHexString(unsigned int value);
// toHexString of each word in order, joined with nothing between; "" for none.
IPCONFIG_READWRITE_EXPORT std::string to_string(const std::vector<unsigned int>& words);

// Writes the partition file: under the root "QPE", for each compute-array
// instance of the model, the columns of the array and its one partition with
// the identifiers given. Every instance gets the same columns and identifiers.
// The partition's columns are partitionStart and partitionSize, unless both
// are -1, when the array's are taken. The file has no schema and nothing is
// checked.
class IPCONFIG_READWRITE_EXPORT QPEPartitionWriter {
public:
  // False, with nothing written, when the file cannot be opened.
  bool writeToJsonFile(const std::string& fileName, const ZXLogicalArchModel& model,
                       std::vector<unsigned int> uuidWords, unsigned int intfId,
                       int partitionStart, int partitionSize, int arrayStart, int arraySize,
                       std::string namespaceName);
  // Always true.
  bool writeToJsonFile(std::ostream& out, const ZXLogicalArchModel& model,
                       std::vector<unsigned int> uuidWords, unsigned int intfId,
                       int partitionStart, int partitionSize, int arrayStart, int arraySize,
                       std::string namespaceName);

private:
  static bool writeToJsonFile_(std::ostream& out, const ZXLogicalArchModel& model,
                               const std::vector<unsigned int>& uuidWords, unsigned int intfId,
                               int partitionStart, int partitionSize, int arrayStart,
                               int arraySize, const std::string& namespaceName);
};

}  // namespace IPConfig::Frameworks
