#include "ComMsgMgrInstance.h"

#include <utility>

ComMsgMgrInstance::ComMsgMgrInstance(const char* file, int line, std::string module,
                                     ComMsgMgr::MsgMask mask, std::string format,
                                     std::vector<std::string> args)
  : sourceFile_(file ? file : ""),
    sourceLine_(line),
    module_(std::move(module)),
    mask_(mask),
    format_(std::move(format)),
    args_(std::move(args))
{
}

ComMsgMgrInstance::~ComMsgMgrInstance() = default;

ComMsgMgrInstance ComMsgMgrInstance::fromArgList(int argCount, const char* file, int line,
                                                 const std::string& module,
                                                 ComMsgMgr::MsgMask mask, const char* format,
                                                 va_list args)
{
  std::vector<std::string> texts;
  texts.reserve(argCount > 0 ? argCount : 0);
  for (int i = 0; i < argCount; ++i) {
    const char* text = va_arg(args, const char*);
    texts.emplace_back(text ? text : "");
  }
  return ComMsgMgrInstance(file, line, module, mask, format ? format : "", std::move(texts));
}

ComMsgMgrInstance ComMsgMgrInstance::createInstance::eval(int argCount, const char* file,
                                                          int line, const std::string& module,
                                                          ComMsgMgr::MsgMask mask,
                                                          const char* format, ...)
{
  va_list args;
  va_start(args, format);
  ComMsgMgrInstance instance = fromArgList(argCount, file, line, module, mask, format, args);
  va_end(args);
  return instance;
}

void ComMsgMgrInstance::attachMetaType(int, ComMsgMgr::MetaType type, const std::string& value,
                                       const std::string&)
{
  if (type == ComMsgMgr::FILE)
    attachedFile_ = value;
}

std::string ComMsgMgrInstance::getId() const
{
  const std::size_t first = format_.find('@');
  if (first == std::string::npos)
    return format_;
  const std::size_t second = format_.find('@', first + 1);
  return second == std::string::npos ? format_ : format_.substr(0, second + 1);
}

std::string ComMsgMgrInstance::toString() const
{
  std::string line = ComMsgMgr::severityName(mask_);
  line += ": [";
  line += module_;
  line += ' ';
  line += getId();
  line += ']';
  for (const std::string& arg : args_) {
    line += ' ';
    line += arg;
  }
  return line;
}
