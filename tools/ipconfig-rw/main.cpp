// ipconfig-rw: reads, checks and rewrites the library's JSON files from a shell.

#include "Format.h"

#include "HEXAll.h"
#include "InitLib.h"

#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

namespace ipconfig_rw {

namespace {

void printUsage(std::ostream& out)
{
  out << "usage: ipconfig-rw <format> <command> ARGS...\n"
         "       ipconfig-rw --help\n\n"
         "Formats and commands:\n";
  for (const Format& format : allFormats()) {
    out << "  " << format.name << ": " << format.description << '\n';
    for (const Command& command : format.commands) {
      out << "    ipconfig-rw " << format.name << ' ' << command.name;
      for (const std::string& arg : command.argNames)
        out << ' ' << arg;
      out << "\n        " << command.help << '\n';
    }
  }
  out << "\nExit codes: 0 ok, 1 bad input or failed write, 2 usage.\n";
}

int usageError(const std::string& problem)
{
  std::cerr << "ipconfig-rw: " << problem << "\n\n";
  printUsage(std::cerr);
  return exitUsage;
}

template <typename Item>
const Item* findByName(const std::vector<Item>& items, const std::string& name)
{
  const auto found = std::find_if(items.begin(), items.end(),
                                  [&name](const Item& item) { return item.name == name; });
  return found == items.end() ? nullptr : &*found;
}

int run(const std::vector<std::string>& args)
{
  if (args.size() == 1 && (args[0] == "--help" || args[0] == "-h")) {
    printUsage(std::cout);
    return exitOk;
  }
  if (args.size() < 2)
    return usageError("expected a format and a command");
  const Format* format = findByName(allFormats(), args[0]);
  if (!format)
    return usageError("unknown format '" + args[0] + "'");
  const Command* command = findByName(format->commands, args[1]);
  if (!command)
    return usageError("unknown command '" + args[1] + "' for format " + format->name);
  const std::vector<std::string> commandArgs(args.begin() + 2, args.end());
  if (commandArgs.size() != command->argNames.size())
    return usageError(format->name + " " + command->name + " takes " +
                      std::to_string(command->argNames.size()) + " argument(s)");
  try {
    return command->run(commandArgs, std::cout);
  } catch (const HEXAll& failure) {
    std::cerr << failure.what() << '\n';
  } catch (const std::exception& failure) {
    std::cerr << "ERROR: " << failure.what() << '\n';
  }
  return exitBadInput;
}

}  // namespace

}  // namespace ipconfig_rw

int main(int argc, char** argv)
{
  init_lib();
  return ipconfig_rw::run(std::vector<std::string>(argv + 1, argv + argc));
}
