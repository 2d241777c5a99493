#pragma once

#include "ComMsgMgr.h"
#include "ComMsgMgrInstance.h"

#include <string>

// Every message of the library goes out under the module tag "ipconfig", with
// the calling source place; the argument count is taken from the call.
namespace IPConfig {

inline const std::string& msgModule()
{
  static const std::string module("ipconfig");
  return module;
}

inline const char* msgArg(const char* text)
{
  return text;
}

inline const char* msgArg(const std::string& text)
{
  return text.c_str();
}

template <typename... Args>
void sendMsg(const char* srcFile, int srcLine, ComMsgMgr::MsgMask mask, const char* format,
             const Args&... args)
{
  ComMsgMgr::sendMsg::eval(ComMsgMgr::VariadicChecker<decltype(msgArg(args))...>::argCount,
                           srcFile, srcLine, msgModule(), mask, format, msgArg(args)...);
}

// The same message built but not sent, for an exception to carry.
template <typename... Args>
ComMsgMgrInstance makeMsg(const char* srcFile, int srcLine, ComMsgMgr::MsgMask mask,
                          const char* format, const Args&... args)
{
  return ComMsgMgrInstance::createInstance::eval(
      ComMsgMgr::VariadicChecker<decltype(msgArg(args))...>::argCount, srcFile, srcLine,
      msgModule(), mask, format, msgArg(args)...);
}

}  // namespace IPConfig

#define IPCONFIG_SEND_MSG(mask, ...) ::IPConfig::sendMsg(__FILE__, __LINE__, (mask), __VA_ARGS__)
#define IPCONFIG_MAKE_MSG(mask, ...) ::IPConfig::makeMsg(__FILE__, __LINE__, (mask), __VA_ARGS__)
