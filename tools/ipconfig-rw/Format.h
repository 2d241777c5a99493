#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace ipconfig_rw {

// Exit codes of the tool.
enum ExitCode { exitOk = 0, exitBadInput = 1, exitUsage = 2 };

// A command line the tool cannot make sense of, such as an option value that
// is not a number: reported with the usage, exit code 2.
class UsageError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

// An option "--name VALUE" (or "--name=VALUE") of a command.
struct Option {
  std::string name;
  std::string valueName;
  std::string help;
  // Without a default the option must be given.
  std::optional<std::string> defaultValue;
};

// One subcommand of a format, such as "check FILE".
struct Command {
  std::string name;
  std::vector<std::string> argNames;
  std::string help;
  // Takes exactly argNames.size() arguments followed by the value of each
  // option in the order of `options`; reports on `out`, returns an ExitCode.
  std::function<int(const std::vector<std::string>& args, std::ostream& out)> run;
  std::vector<Option> options = {};
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
Format solutionFormat();
Format constraintsFormat();
Format nocConstraintsFormat();
Format partitionFormat();
Format compilerSolutionFormat();
Format shimConstraintsFormat();
Format plInterfaceFormat();

}  // namespace ipconfig_rw
