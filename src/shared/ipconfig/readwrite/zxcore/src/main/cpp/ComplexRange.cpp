#include "ComplexRange.h"

#include "IPConfigMessages.h"
#include "JsonValueUtils.h"

namespace qpe::constraints::json {

ComplexRange::ComplexRange(const std::string& rangeText) : text(rangeText)
{
  if (!text.empty())
    splitRange(text);
}

void ComplexRange::splitRange(const std::string& rangeText)
{
  std::string left;
  std::string right;
  split(rangeText, left, right, ':');
  if (left.empty() && !right.empty()) {
    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, "@75-647@%s", rangeText);
    second = ComplexPair(right);
    return;
  }
  first = ComplexPair(left.empty() ? rangeText : left);
  if (!right.empty())
    second = ComplexPair(right);
}

}  // namespace qpe::constraints::json
