#include "HEXAll.h"

#include "ComMsgLog.h"

#include <iostream>

HEXAll::HEXAll(const ComMsgMgrInstance& message) : message_(message), text_(message.toString())
{
  ComMsgLog::add(message, true);
}

HEXAll::HEXAll(std::string text) : text_(std::move(text)) {}

HEXAll::~HEXAll() = default;

const char* HEXAll::what() const noexcept
{
  return text_.c_str();
}

void HEXAll::print() const
{
  std::cerr << text_ << '\n';
}
