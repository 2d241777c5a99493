#pragma once

#include "TestSupport.h"

#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <string>

namespace tool_runner {

struct RunResult {
  int exitCode;
  std::string output;  // stdout and stderr together
};

// Runs ipconfig-rw with `args` through the shell.
inline RunResult runTool(const std::string& args)
{
  const std::string command = std::string(IPCONFIG_RW_TOOL) + " " + args + " 2>&1";
  RunResult result{-1, {}};
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe)
    return result;
  std::array<char, 4096> buffer;
  while (std::size_t got = std::fread(buffer.data(), 1, buffer.size(), pipe))
    result.output.append(buffer.data(), got);
  const int status = pclose(pipe);
  result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return result;
}

}  // namespace tool_runner
