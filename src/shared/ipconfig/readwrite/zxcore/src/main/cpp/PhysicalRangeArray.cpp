#include "PhysicalRangeArray.h"

#include "PhysicalRange.h"
#include "PhysicalSpecFormatter.h"

#include <stdexcept>
#include <string>

namespace qpe::constraints {

namespace {

std::string compactText(const PhysicalRange& range)
{
  if (!range.getFirst().isSet())
    return {};
  std::string text = PhysicalSpecFormatter(range.getFirst()).toString();
  if (range.getSecond().isSet())
    text += ":" + PhysicalSpecFormatter(range.getSecond()).toString();
  return text;
}

// The leading integer of `text` as std::stoi reads it, -1 when there is none.
// A name that starts with digits thus becomes that number: files depend on it.
int leadingInt(const std::string& text)
{
  try {
    return std::stoi(text);
  } catch (const std::logic_error&) {  // no digits, or out of range
    return -1;
  }
}

// A range "a:b" is a text whatever it holds, and so is a pair "(x,y)", on
// which std::stoi could only fail: neither needs to be asked about.
bool mayBeNumber(const std::string& text)
{
  return !text.empty() && text.front() != '(' && text.find(':') == std::string::npos;
}

}  // namespace

PhysicalRangeArray::PhysicalRangeArray(JAllocator& alloc)
    : array(rapidjson::kArrayType), allocator(alloc)
{
}

bool PhysicalRangeArray::empty() const
{
  return array.Empty();
}

JValue& PhysicalRangeArray::get()
{
  return array;
}

bool PhysicalRangeArray::storeVal(JValue& value, const PhysicalRange& range) const
{
  const std::string text = compactText(range);
  const int number = mayBeNumber(text) ? leadingInt(text) : -1;
  if (number != -1)
    value.SetInt(number);
  else
    value.SetString(text.data(), static_cast<rapidjson::SizeType>(text.size()), allocator);
  return true;
}

void PhysicalRangeArray::pushBack(const PhysicalRange& range)
{
  JValue value;
  if (storeVal(value, range))
    array.PushBack(value, allocator);
}

void PhysicalRangeArray::pushTileRangeBack(const PhysicalRange& range)
{
  if (range.getFirst().isTile())
    pushBack(range);
}

void PhysicalRangeArray::pushMemRangeBack(const PhysicalRange& range)
{
  if (range.getFirst().isMem())
    pushBack(range);
}

void PhysicalRangeArray::pushShimRangeBack(const PhysicalRange& range)
{
  const PhysicalSpec& second = range.getSecond();
  if ((second.isSet() && second.isShim()) || range.getFirst().isShim())
    pushBack(range);
}

}  // namespace qpe::constraints
