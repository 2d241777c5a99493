#include "ComMsgMgr.h"

#include "ComMsgLog.h"
#include "ComMsgMgrInstance.h"

#include <atomic>
#include <cstdarg>
#include <iostream>
#include <mutex>

namespace {

std::atomic<std::ostream*> console{&std::cerr};
std::mutex consoleMutex;

}  // namespace

void ComMsgMgr::sendMsg::eval(int argCount, const char* file, int line, const std::string& module,
                              MsgMask mask, const char* format, ...)
{
  va_list args;
  va_start(args, format);
  ComMsgMgrInstance instance =
      ComMsgMgrInstance::fromArgList(argCount, file, line, module, mask, format, args);
  va_end(args);
  sendMessage(instance);
}

void ComMsgMgr::sendMessage(const ComMsgMgrInstance& instance)
{
  ComMsgLog::add(instance, false);
  if (std::ostream* out = console.load()) {
    std::lock_guard<std::mutex> lock(consoleMutex);
    *out << instance.toString() << '\n';
  }
}

const char* ComMsgMgr::severityName(MsgMask mask)
{
  if (mask & Error)
    return "ERROR";
  if (mask & CriticalWarning)
    return "CRITICAL WARNING";
  if (mask & Warning)
    return "WARNING";
  return "INFO";
}

void ComMsgMgr::setConsole(std::ostream* newConsole)
{
  console.store(newConsole);
}
