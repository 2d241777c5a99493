#include "TestSupport.h"

#include "ComMsgMgrInstance.h"

namespace {

using testing_support::MessageLogTest;

class ComMsgMgrTest : public MessageLogTest {};

TEST_F(ComMsgMgrTest, SendEchoesTheSeverityLineAndRecordsEveryPartOfTheMessage)
{
  const std::pair<ComMsgMgr::MsgMask, const char*> lines[] = {
      {ComMsgMgr::Info, "INFO: [ipconfig @73-30@] port_a inst_b\n"},
      {ComMsgMgr::Warning, "WARNING: [ipconfig @73-30@] port_a inst_b\n"},
      {ComMsgMgr::CriticalWarning, "CRITICAL WARNING: [ipconfig @73-30@] port_a inst_b\n"},
      {ComMsgMgr::Error, "ERROR: [ipconfig @73-30@] port_a inst_b\n"}};
  std::ostringstream console;
  ComMsgMgr::setConsole(&console);
  for (const auto& [mask, line] : lines) {
    console.str("");
    ComMsgMgr::sendMsg::eval(2, "reader.cpp", 42, "ipconfig", mask, "@73-30@%s%s", "port_a",
                             "inst_b");
    EXPECT_EQ(console.str(), line);
  }

  const auto logged = records();
  ASSERT_EQ(logged.size(), 4u);
  const ComMsgMgrInstance& message = logged[2].message;
  EXPECT_FALSE(logged[2].thrown);
  EXPECT_EQ(message.getFormat(), "@73-30@%s%s");
  EXPECT_EQ(message.getId(), "@73-30@");
  EXPECT_EQ(message.getMask(), ComMsgMgr::CriticalWarning);
  EXPECT_EQ(message.getModule(), "ipconfig");
  EXPECT_EQ(message.getArgs(), (std::vector<std::string>{"port_a", "inst_b"}));
  EXPECT_EQ(message.getSourceFile(), "reader.cpp");
  EXPECT_EQ(message.getSourceLine(), 42);
}

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
