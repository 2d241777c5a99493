#pragma once

#include "ComMsgMgr.h"
#include "ipconfig_host_export.h"

#include <cstdarg>
#include <string>
#include <vector>

// A message built but not yet sent: what HEXAll carries to whoever catches it.
class IPCONFIG_HOST_EXPORT ComMsgMgrInstance {
public:
  struct IPCONFIG_HOST_EXPORT createInstance {
    static ComMsgMgrInstance eval(int argCount, const char* file, int line,
                                  const std::string& module, ComMsgMgr::MsgMask mask,
                                  const char* format, ...);
  };

  ComMsgMgrInstance(const char* file, int line, std::string module, ComMsgMgr::MsgMask mask,
                    std::string format, std::vector<std::string> args);
  // The body of both variadic `eval`s: takes `argCount` C strings off `args`.
  static ComMsgMgrInstance fromArgList(int argCount, const char* file, int line,
                                       const std::string& module, ComMsgMgr::MsgMask mask,
                                       const char* format, va_list args);
  ~ComMsgMgrInstance();
  ComMsgMgrInstance(const ComMsgMgrInstance&) = default;
  ComMsgMgrInstance& operator=(const ComMsgMgrInstance&) = default;

  // Only ComMsgMgr::FILE is known: `value` is the path the message is about.
  void attachMetaType(int argIndex, ComMsgMgr::MetaType type, const std::string& value,
                      const std::string& extra);

  const std::string& getFormat() const { return format_; }
  // The identifier without its argument slots: "@75-585@" for "@75-585@%s".
  std::string getId() const;
  ComMsgMgr::MsgMask getMask() const { return mask_; }
  const std::string& getModule() const { return module_; }
  const std::vector<std::string>& getArgs() const { return args_; }
  const std::string& getAttachedFile() const { return attachedFile_; }
  const std::string& getSourceFile() const { return sourceFile_; }
  int getSourceLine() const { return sourceLine_; }

  // "ERROR: [ipconfig @75-585@] arg1 arg2": the console form of the message.
  std::string toString() const;

private:
  std::string sourceFile_;
  int sourceLine_;
  std::string module_;
  ComMsgMgr::MsgMask mask_;
  std::string format_;
  std::vector<std::string> args_;
  std::string attachedFile_;
};
