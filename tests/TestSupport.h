#pragma once

#include "ComMsgLog.h"
#include "ComMsgMgr.h"
#include "HCRapidJsonReadWriteUtils.h"
#include "HEXAll.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace testing_support {

namespace fs = boost::filesystem;

// A fresh directory, removed with its contents at the end of the scope.
class TempDir {
public:
  TempDir() : path_(fs::temp_directory_path() / fs::unique_path("ipconfig-rw-test-%%%%-%%%%"))
  {
    fs::create_directories(path_);
  }
  ~TempDir()
  {
    boost::system::error_code ec;
    fs::remove_all(path_, ec);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  const fs::path& path() const { return path_; }
  std::string file(const std::string& relative) const { return (path_ / relative).string(); }

private:
  fs::path path_;
};

inline void writeFile(const std::string& path, const std::string& text)
{
  fs::create_directories(fs::path(path).parent_path());
  std::ofstream(path, std::ios::binary) << text;
}

struct RunResult {
  int exitCode;
  std::string output;  // stderr, then stdout: the tool's stdout is flushed at its end
};

// Runs ipconfig-rw with `args` through the shell; with a time limit, a run
// that passes it is killed and gives exit code 124.
inline RunResult runTool(const std::string& args, int timeLimitSeconds = 0)
{
  const std::string limit =
      timeLimitSeconds > 0 ? "timeout " + std::to_string(timeLimitSeconds) + " " : "";
  const std::string command = limit + IPCONFIG_RW_TOOL + " " + args + " 2>&1";
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

inline JDocument parseJson(const char* text)
{
  JDocument document;
  document.Parse(text);
  return document;
}

// Compact JSON text of a value, for comparing exact output.
inline std::string toText(const JValue& value)
{
  rapidjson::StringBuffer buffer;
  rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
  value.Accept(writer);
  return buffer.GetString();
}

inline std::string readFile(const std::string& path)
{
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

// Sets (or unsets, with nullopt) an environment variable for the scope.
class ScopedEnv {
public:
  ScopedEnv(const char* name, const std::optional<std::string>& value) : name_(name)
  {
    if (const char* old = std::getenv(name))
      old_ = old;
    apply(value);
  }
  ~ScopedEnv() { apply(old_); }
  ScopedEnv(const ScopedEnv&) = delete;
  ScopedEnv& operator=(const ScopedEnv&) = delete;

private:
  void apply(const std::optional<std::string>& value)
  {
    if (value)
      setenv(name_, value->c_str(), 1);
    else
      unsetenv(name_);
  }

  const char* name_;
  std::optional<std::string> old_;
};

// A schema of the test's own for the scope, in a data tree at $KVR_ROOT that
// is searched before the one the library ships. `relative` is its place
// under the data directory, such as "parts/tarnel/common/noc/schemas/
// solution.json".
class ScopedSchema {
public:
  ScopedSchema(const std::string& relative, const std::string& text)
    : kvrRoot_("KVR_ROOT", root_.path().string())
  {
    writeFile(root_.file("data/" + relative), text);
  }

private:
  TempDir root_;
  ScopedEnv kvrRoot_;
};

// What a test expects of one recorded message.
struct ExpectedMsg {
  std::string format;
  ComMsgMgr::MsgMask mask;
  std::vector<std::string> args;
};

inline std::ostream& operator<<(std::ostream& out, const ExpectedMsg& msg)
{
  out << msg.format << " mask 0x" << std::hex << msg.mask << std::dec;
  for (const std::string& arg : msg.args)
    out << " '" << arg << "'";
  return out;
}

// A text that a JSON file reader refuses with "@90-2@%s%s": the file's name,
// then `detail`.
struct BadText {
  const char* name;
  std::string text;
  std::string detail;
};

// Starts each test with an empty message log and keeps messages off the console.
class MessageLogTest : public ::testing::Test {
protected:
  void SetUp() override
  {
    ComMsgLog::clear();
    ComMsgMgr::setConsole(nullptr);
  }
  void TearDown() override { ComMsgMgr::setConsole(&std::cerr); }

  static std::vector<ComMsgLog::Record> records() { return ComMsgLog::records(); }

  // The log holds exactly `expected`, sent (not thrown), in that order.
  static void expectSent(const std::vector<ExpectedMsg>& expected)
  {
    const std::vector<ComMsgLog::Record> logged = ComMsgLog::records();
    ASSERT_EQ(logged.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
      SCOPED_TRACE(expected[i]);
      EXPECT_FALSE(logged[i].thrown);
      EXPECT_EQ(logged[i].message.getFormat(), expected[i].format);
      EXPECT_EQ(logged[i].message.getMask(), expected[i].mask);
      EXPECT_EQ(logged[i].message.getArgs(), expected[i].args);
    }
  }

  // `action` throws an HEXAll carrying `format` with `args`.
  static void expectThrows(const std::function<void()>& action, const std::string& format,
                           const std::vector<std::string>& args)
  {
    try {
      action();
      ADD_FAILURE() << "expected " << format << " to be thrown";
    } catch (const HEXAll& failure) {
      ASSERT_NE(failure.getMessage(), nullptr) << failure.what();
      EXPECT_EQ(failure.getMessage()->getFormat(), format);
      EXPECT_EQ(failure.getMessage()->getArgs(), args);
    }
  }
};

}  // namespace testing_support
