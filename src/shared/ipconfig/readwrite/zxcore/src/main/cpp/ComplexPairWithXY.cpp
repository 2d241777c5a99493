#include "ComplexPairWithXY.h"

#include "DefaultXYValues.h"
#include "JsonValueUtils.h"

namespace qpe::constraints::json {

namespace {

// `part` with the axis letter: its number behind a "=", if any, into `value`.
void readAxis(std::string part, char axis, int& value)
{
  const std::size_t at = part.find(axis);
  if (at == std::string::npos)
    return;
  const std::size_t equals = part.find('=', at);
  if (equals != std::string::npos)
    part.erase(0, equals + 1);
  if (!part.empty())
    value = toInt(part);
}

}  // namespace

ComplexPairWithXY::ComplexPairWithXY()
{
  x = DefaultXYValues::XCoordinateNotSetValue;
  y = DefaultXYValues::YCoordinateNotSetValue;
}

ComplexPairWithXY::ComplexPairWithXY(const std::string& pairText) : ComplexPairWithXY()
{
  text = pairText;
  splitIntoXY(text);
}

void ComplexPairWithXY::splitIntoXY(std::string pairText)
{
  if (pairText.empty())
    return;
  stripParens(pairText);
  std::string left;
  std::string right;
  if (pairText.find(',') != std::string::npos) {
    split(pairText, left, right, ',');
  } else {
    if (pairText.find('X') != std::string::npos)
      left = pairText;
    if (pairText.find('Y') != std::string::npos)
      right = pairText;
  }
  readAxis(left, 'X', x);
  readAxis(right, 'Y', y);
}

}  // namespace qpe::constraints::json
