#include "JsonValueUtils.h"

#include "IPConfigMessages.h"
#include "JObjectArrayWithProperties.h"
#include "JSrcInfoValue.h"
#include "JStringArray.h"

#include <boost/algorithm/string/trim.hpp>

#include <charconv>

namespace qpe::constraints::json {

std::string readStringValue(const JValue& object, const std::string& key)
{
  return HCRapidJsonReadWriteUtils::GetStringProperty(object, key);
}

std::vector<std::string> readStringArrayValue(const JValue& value)
{
  return JStringArray(value).getAsStringVec();
}

std::vector<std::string> readStringArrayValue(const JValue& object, const std::string& key)
{
  return JStringArray(object, key).getAsStringVec();
}

std::vector<std::pair<std::string, ConstrProperties>> readObjectArrayWithProperties(
    const JValue& value)
{
  std::vector<std::pair<std::string, ConstrProperties>> entries;
  for (JObjectArrayWithProperties list(value); !list.isEnd(); list.advance()) {
    auto entry = list.front();
    if (!entry.first.empty())
      entries.push_back(std::move(entry));
  }
  return entries;
}

bool readSrcInfo(const JValue& value, std::string& file, std::uint32_t& line,
                 std::uint32_t& column)
{
  JSrcInfoValue srcInfo(value);
  srcInfo.parse();
  if (!srcInfo.isValid())
    return false;
  file = srcInfo.getFile();
  line = srcInfo.getLine();
  column = srcInfo.getColumn();
  return true;
}

void split(const std::string& text, std::string& left, std::string& right, char separator)
{
  const std::size_t at = text.find(separator);
  if (at == std::string::npos)
    return;
  left = text.substr(0, at);
  right = text.substr(at + 1);
}

void stripParens(std::string& text)
{
  if (text.size() < 2)
    return;
  const bool opens = text.front() == '(';
  const bool closes = text.back() == ')';
  if (opens != closes)
    IPCONFIG_SEND_MSG(ComMsgMgr::CriticalWarning, "@75-646@%s", text);
  if (closes)
    text.pop_back();
  if (opens)
    text.erase(0, 1);
}

int toInt(std::string text)
{
  boost::algorithm::trim_if(text, boost::algorithm::is_any_of(" \t\n\r\f\v"));
  int value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (text.empty() || error != std::errc() || stop != end || std::to_string(value) != text)
    return -1;
  return value;
}

}  // namespace qpe::constraints::json
