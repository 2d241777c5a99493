// ipconfig-rw: reads, checks and rewrites the library's JSON files from a shell.

#include "Format.h"

#include "HEXAll.h"
#include "InitLib.h"

#include <algorithm>
#include <iostream>
#include <optional>
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
      for (const Option& option : command.options)
        out << (option.defaultValue ? " [--" : " --") << option.name << ' ' << option.valueName
            << (option.defaultValue ? "]" : "");
      out << "\n        " << command.help << '\n';
      for (const Option& option : command.options) {
        out << "        --" << option.name << ' ' << option.valueName << ": " << option.help;
        if (option.defaultValue)
          out << (option.defaultValue->empty() ? " (optional)"
                                               : " (default " + *option.defaultValue + ")");
        out << '\n';
      }
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

// The positional arguments of `command` followed by the value of each of its
// options, in the order the command declares them.
std::vector<std::string> commandArguments(const Command& command,
                                          std::vector<std::string>::const_iterator arg,
                                          std::vector<std::string>::const_iterator end)
{
  std::vector<std::string> positional;
  std::vector<std::optional<std::string>> values(command.options.size());
  for (; arg != end; ++arg) {
    if (arg->rfind("--", 0) != 0) {
      positional.push_back(*arg);
      continue;
    }
    const std::size_t equals = arg->find('=');
    const std::string name = arg->substr(2, equals == std::string::npos ? equals : equals - 2);
    const auto option = std::find_if(command.options.begin(), command.options.end(),
                                     [&name](const Option& o) { return o.name == name; });
    if (option == command.options.end())
      throw UsageError("unknown option '--" + name + "' for " + command.name);
    std::optional<std::string>& value = values[option - command.options.begin()];
    if (equals != std::string::npos)
      value = arg->substr(equals + 1);
    else if (arg + 1 != end)
      value = *++arg;
    else
      throw UsageError("option '--" + name + "' needs a value");
  }
  if (positional.size() != command.argNames.size())
    throw UsageError(command.name + " takes " + std::to_string(command.argNames.size()) +
                     " argument(s)");
  for (std::size_t i = 0; i < values.size(); ++i) {
    const Option& option = command.options[i];
    if (!values[i] && !option.defaultValue)
      throw UsageError(command.name + " needs the option '--" + option.name + "'");
    positional.push_back(values[i] ? *values[i] : *option.defaultValue);
  }
  return positional;
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
  try {
    return command->run(commandArguments(*command, args.begin() + 2, args.end()), std::cout);
  } catch (const UsageError& problem) {
    return usageError(format->name + " " + problem.what());
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
