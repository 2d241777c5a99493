#include "ComplexPair.h"

#include "JsonValueUtils.h"

namespace qpe::constraints::json {

ComplexPair::ComplexPair(const std::string& pairText) : text(pairText)
{
  if (!text.empty())
    splitIntoXY(text);
}

void ComplexPair::splitIntoXY(std::string pairText)
{
  stripParens(pairText);
  std::string left;
  std::string right;
  split(pairText, left, right, ',');
  if (!left.empty() && !right.empty()) {
    x = toInt(left);
    y = toInt(right);
    return;
  }
  const int only = toInt(pairText);
  if (only == -1)
    name = pairText;
  else
    x = only;
}

}  // namespace qpe::constraints::json
