#pragma once

#include "ipconfig_host_export.h"

#include <iosfwd>
#include <string>
#include <type_traits>

class ComMsgMgrInstance;

// The host's message service. A message is a catalogue identifier such as
// "@75-585@%s" with one C-string argument per "%s"; the service records it in
// ComMsgLog and echoes it to the host's console.
class IPCONFIG_HOST_EXPORT ComMsgMgr {
public:
  enum MsgMask : unsigned {
    Info = 0x4000000,
    Warning = 0x8000000,
    CriticalWarning = 0x10000000,
    Error = 0x20000000,
  };

  enum MetaType { FILE = 1 };

  struct IPCONFIG_HOST_EXPORT sendMsg {
    // Sends at once and never throws. `argCount` C strings follow `format`.
    static void eval(int argCount, const char* file, int line, const std::string& module,
                     MsgMask mask, const char* format, ...);
  };

  static void sendMessage(const ComMsgMgrInstance& instance);

  // Counts the arguments of a variadic call at compile time and insists that
  // each one is a C string, which is all the catalogue formats take.
  template <typename... Args>
  struct VariadicChecker {
    static_assert((std::is_convertible_v<Args, const char*> && ...),
                  "message arguments must be C strings");
    static constexpr int argCount = sizeof...(Args);
  };

  // "INFO", "WARNING", "CRITICAL WARNING" or "ERROR", by the highest bit set.
  static const char* severityName(MsgMask mask);

  // Where sent messages are echoed, std::cerr by default; null keeps them in
  // the log only.
  static void setConsole(std::ostream* console);
};
