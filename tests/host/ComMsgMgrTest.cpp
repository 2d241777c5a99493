#include "TestSupport.h"

#include "ComMsgMgrInstance.h"

#include <sstream>

namespace {

using testing_support::MessageLogTest;

class ComMsgMgrTest : public MessageLogTest {};

TEST_F(ComMsgMgrTest, SendRecordsEveryPartOfTheMessage)
{
  ComMsgMgr::sendMsg::eval(2, "reader.cpp", 42, "ipconfig", ComMsgMgr::CriticalWarning,
                           "@73-30@%s%s", "port_a", "inst_b");

  const auto logged = records();
  ASSERT_EQ(logged.size(), 1u);
  const ComMsgMgrInstance& message = logged[0].message;
  EXPECT_FALSE(logged[0].thrown);
  EXPECT_EQ(message.getFormat(), "@73-30@%s%s");
  EXPECT_EQ(message.getId(), "@73-30@");
  EXPECT_EQ(message.getMask(), ComMsgMgr::CriticalWarning);
  EXPECT_EQ(message.getModule(), "ipconfig");
  EXPECT_EQ(message.getArgs(), (std::vector<std::string>{"port_a", "inst_b"}));
  EXPECT_EQ(message.getSourceFile(), "reader.cpp");
  EXPECT_EQ(message.getSourceLine(), 42);
}

struct ConsoleCase {
  ComMsgMgr::MsgMask mask;
  const char* line;
};

void PrintTo(const ConsoleCase& c, std::ostream* out)
{
  *out << ComMsgMgr::severityName(c.mask);
}

class ConsoleLineTest : public MessageLogTest, public ::testing::WithParamInterface<ConsoleCase> {};

TEST_P(ConsoleLineTest, EchoesSeverityModuleIdAndArguments)
{
  std::ostringstream console;
  ComMsgMgr::setConsole(&console);
  ComMsgMgr::sendMsg::eval(2, __FILE__, __LINE__, "ipconfig", GetParam().mask, "@75-585@%s%s",
                           "NoC", "Traffic Spec");
  EXPECT_EQ(console.str(), std::string(GetParam().line) + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Masks, ConsoleLineTest,
    ::testing::Values(ConsoleCase{ComMsgMgr::Info, "INFO: [ipconfig @75-585@] NoC Traffic Spec"},
                      ConsoleCase{ComMsgMgr::Warning,
                                  "WARNING: [ipconfig @75-585@] NoC Traffic Spec"},
                      ConsoleCase{ComMsgMgr::CriticalWarning,
                                  "CRITICAL WARNING: [ipconfig @75-585@] NoC Traffic Spec"},
                      ConsoleCase{ComMsgMgr::Error,
                                  "ERROR: [ipconfig @75-585@] NoC Traffic Spec"}));

TEST_F(ComMsgMgrTest, ThrownInstanceIsRecordedAsThrownWithItsFile)
{
  ComMsgMgrInstance message = ComMsgMgrInstance::createInstance::eval(
      1, __FILE__, __LINE__, "ipconfig", ComMsgMgr::Error, "@75-391@%s", "x");
  message.attachMetaType(0, ComMsgMgr::FILE, "/tmp/c.json", "");
  EXPECT_TRUE(records().empty()) << "building a message does not send it";

  try {
    throw HEXAll(message);
  } catch (const HEXAll& failure) {
    EXPECT_STREQ(failure.what(), "ERROR: [ipconfig @75-391@] x");
    ASSERT_NE(failure.getMessage(), nullptr);
    EXPECT_EQ(failure.getMessage()->getAttachedFile(), "/tmp/c.json");
  }
  const auto logged = records();
  ASSERT_EQ(logged.size(), 1u);
  EXPECT_TRUE(logged[0].thrown);
  EXPECT_EQ(logged[0].message.getAttachedFile(), "/tmp/c.json");
}

TEST_F(ComMsgMgrTest, LogKeepsTheNewestRecordsUpToItsCapacity)
{
  const std::size_t oldCapacity = ComMsgLog::capacity();
  ComMsgLog::setCapacity(2);
  for (const char* arg : {"a", "b", "c"})
    ComMsgMgr::sendMsg::eval(1, __FILE__, __LINE__, "ipconfig", ComMsgMgr::Info, "@75-1@%s", arg);
  ComMsgLog::setCapacity(oldCapacity);

  const auto logged = records();
  ASSERT_EQ(logged.size(), 2u);
  EXPECT_EQ(logged[0].message.getArgs()[0], "b");
  EXPECT_EQ(logged[1].message.getArgs()[0], "c");
}

}  // namespace
