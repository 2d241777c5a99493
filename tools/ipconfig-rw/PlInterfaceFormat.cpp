#include "Format.h"

#include "HandOffDesign.h"
#include "QPEPLIntfWriter.h"

#include <ostream>

namespace ipconfig_rw {

namespace {

// A column number or count as the writer takes it; -1 stands for unset.
bool parseColumn(const std::string& text, int& value)
{
  try {
    std::size_t used = 0;
    value = std::stoi(text, &used);
    return used == text.size() && value >= -1;
  } catch (const std::exception&) {
    return false;
  }
}

int writeColumns(const std::vector<std::string>& args, int partitionStart, int partitionSize,
                 const std::string& path, std::ostream& out)
{
  HandOffDesign design(args[0], args[1], args[2]);
  design.readSolution(args[3]);
  const std::vector<int> columns = design.part->getQpeOracle().getZXShimColumns();
  const int arrayStart = columns.empty() ? 0 : columns.front();
  const int arraySize = static_cast<int>(columns.size());
  if (!IPConfig::Frameworks::QPEPLIntfWriter().writeToJsonFile(
          path, design.spec, *design.solution, design.model, *design.part, partitionStart,
          partitionSize, arrayStart, arraySize)) {
    out << "plinterface: cannot write " << path << '\n';
    return exitBadInput;
  }
  out << "plinterface " << args[3] << " -> " << path << ": " << design.countPlacedPorts()
      << " of " << design.countPorts() << " shim ports placed\n";
  return exitOk;
}

int write(const std::vector<std::string>& args, std::ostream& out)
{
  return writeColumns(args, -1, -1, args[4], out);
}

int writePartition(const std::vector<std::string>& args, std::ostream& out)
{
  int start = 0;
  int count = 0;
  if (!parseColumn(args[4], start) || !parseColumn(args[5], count)) {
    out << "plinterface: START and NUM must be column numbers, or -1\n";
    return exitUsage;
  }
  return writeColumns(args, start, count, args[6], out);
}

}  // namespace

Format plInterfaceFormat()
{
  return {"plinterface",
          "PL interface file (write; no schema): the columns of a partition and the channels "
          "and settings of every array port; inputs as for compilersolution",
          {
              {"write", {"DEVICE", "LOGICAL_ARCH", "TRAFFIC", "SOLUTION", "OUT"},
               "write the interface of the whole array to OUT", write},
              {"writepartition",
               {"DEVICE", "LOGICAL_ARCH", "TRAFFIC", "SOLUTION", "START", "NUM", "OUT"},
               "the same for the partition of NUM columns from START (-1 -1: the whole array)",
               writePartition},
          }};
}

}  // namespace ipconfig_rw
