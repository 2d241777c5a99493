#include "JSrcInfoValue.h"

namespace qpe::constraints::json {

namespace {

void readNumber(const JValue& value, std::uint32_t& number)
{
  if (value.IsUint())
    number = value.GetUint();
}

}  // namespace

bool JSrcInfoValue::isValid() const
{
  return !file.empty();
}

void JSrcInfoValue::parse()
{
  const JValue& fileValue = getMember("file");
  if (fileValue.IsString())
    file.assign(fileValue.GetString(), fileValue.GetStringLength());
  readNumber(getMember("line"), line);
  readNumber(getMember("column"), column);
}

}  // namespace qpe::constraints::json
