#include "Format.h"
#include "OptionValues.h"

#include "QPEPartitionWriter.h"
#include "ZXLogicalArchModel.h"
#include "ZXLogicalArchReader.h"

#include <boost/algorithm/string/erase.hpp>
#include <boost/algorithm/string/predicate.hpp>

#include <algorithm>
#include <cctype>
#include <climits>
#include <ostream>

namespace ipconfig_rw {

namespace {

namespace fw = IPConfig::Frameworks;

// A uuid as hexadecimal digits, in words of eight: "0x" in front and "-"
// between groups are allowed, so the usual 8-4-4-4-12 form gives four words.
std::vector<unsigned int> parseUuid(const std::string& text)
{
  std::string digits = boost::algorithm::erase_all_copy(text, "-");
  if (boost::algorithm::istarts_with(digits, "0x"))
    digits.erase(0, 2);
  const bool allHex = std::all_of(digits.begin(), digits.end(),
                                  [](unsigned char c) { return std::isxdigit(c) != 0; });
  if (!allHex || digits.size() % 8 != 0)
    throw UsageError("option '--uuid': '" + text +
                     "' is not hexadecimal digits in words of eight");
  std::vector<unsigned int> words;
  for (std::size_t at = 0; at < digits.size(); at += 8)
    words.push_back(static_cast<unsigned int>(std::stoul(digits.substr(at, 8), nullptr, 16)));
  return words;
}

// Arguments: LOGICAL_ARCH OUT, then the options in declared order.
int write(const std::vector<std::string>& args, std::ostream& out)
{
  const int arrayStart = parseInt("array-start", args[2]);
  const int arraySize = parseInt("array-size", args[3]);
  const int partitionStart = parseInt("partition-start", args[4]);
  const int partitionSize = parseInt("partition-size", args[5]);
  const std::vector<unsigned int> uuid = parseUuid(args[6]);
  const auto intfId =
      static_cast<unsigned int>(parseNumber("intf-id", args[7], 0, UINT_MAX));
  const std::string& namespaceName = args[8];

  fw::ZXLogicalArchModel model;
  fw::ZXLogicalArchReader().readFromJsonFile(args[0], model);
  if (!fw::QPEPartitionWriter().writeToJsonFile(args[1], model, uuid, intfId, partitionStart,
                                                partitionSize, arrayStart, arraySize,
                                                namespaceName)) {
    out << "partition: cannot write " << args[1] << '\n';
    return exitBadInput;
  }
  std::vector<fw::ZXLogicalZXIPInstance*> arrays;
  out << "partition " << args[0] << " -> " << args[1] << ": "
      << model.getZXIPInstances(arrays) << " compute arrays\n";
  return exitOk;
}

}  // namespace

Format partitionFormat()
{
  return {"partition",
          "partition file (write; no schema)",
          {
              {"write",
               {"LOGICAL_ARCH", "OUT"},
               "read a logical architecture, write the columns and partition of each of its "
               "compute arrays to OUT",
               write,
               {
                   {"array-start", "N", "first column of the array", std::nullopt},
                   {"array-size", "N", "number of columns of the array", std::nullopt},
                   partitionStartOption(),
                   partitionSizeOption(),
                   {"uuid", "HEX", "partition uuid, hexadecimal in words of eight digits", ""},
                   {"intf-id", "N", "interface id, decimal or 0x-hexadecimal", "0"},
                   {"namespace", "NAME", "namespace of the partition", ""},
               }},
          }};
}

}  // namespace ipconfig_rw
