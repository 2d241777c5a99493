#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace ipconfig_rw {

// Exit codes of the tool.
enum ExitCode { exitOk = 0, exitBadInput = 1, exitUsage = 2 };

// One subcommand of a format, such as "check FILE".
struct Command {
  std::string name;
  std::vector<std::string> argNames;
  std::string help;
  // Takes exactly argNames.size() arguments; reports on `out`, returns an ExitCode.
  std::function<int(const std::vector<std::string>& args, std::ostream& out)> run;
};

struct Format {
  std::string name;
  std::string description;
  std::vector<Command> commands;
};

// Every format the tool handles, in the order --help lists them.
const std::vector<Format>& allFormats();

Format metadataFormat();
Format logicalArchFormat();
Format trafficFormat();
Format constraintsFormat();
Format nocConstraintsFormat();

}  // namespace ipconfig_rw
