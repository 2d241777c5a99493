#include "JLocationValue.h"

#include "ComplexRange.h"
#include "JIntPair.h"

namespace qpe::constraints::json {

template <typename Spec>
JLocationValue<Spec>::JLocationValue(const JValue& value) : JBaseValue(value)
{
}

template <typename Spec>
bool JLocationValue<Spec>::isValid() const
{
  return first.isNameSet() || first.isColumnSet();
}

template <typename Spec>
void JLocationValue<Spec>::parse()
{
  const JValue& value = getValue();
  if (isIntPair()) {
    const JIntPair pair(value);
    initSpec(numbers_(pair.getFirst(), pair.getSecond()), first);
  } else if (isPair()) {
    first = parseRangeValueOldWay(value[0]);
    second = parseRangeValueOldWay(value[1]);
  } else if (value.IsInt()) {
    initSpec(numbers_(value.GetInt(), -1), first);
  } else if (value.IsString()) {
    text.assign(value.GetString(), value.GetStringLength());
    const ComplexRange range(text);
    initSpec(range.first, first);
    initSpec(range.second, second);
  }
}

template <typename Spec>
Spec JLocationValue<Spec>::parseRangeValueOldWay(const JValue& element) const
{
  Spec spec;
  if (element.IsString()) {
    spec.setName(element.GetString());
  } else if (element.IsInt() && !spec.isTile()) {
    initSpec(numbers_(element.GetInt(), -1), spec);
  } else if (JBaseValue(element).isIntPair()) {
    const JIntPair pair(element);
    initSpec(numbers_(pair.getFirst(), pair.getSecond()), spec);
  }
  return spec;
}

template <typename Spec>
void JLocationValue<Spec>::initSpec(const ComplexPair& pair, Spec& spec)
{
  Spec made;
  if (!pair.name.empty()) {
    made.setName(pair.name);
  } else if (pair.x != -1) {
    if (made.isShim()) {
      made.setXY(pair.x, made.getRow());
      if (pair.y != -1)
        made.setIndex(pair.y);
    } else {
      made.setXY(pair.x, pair.y);
    }
  } else {
    return;
  }
  spec = made;
}

template <typename Spec>
ComplexPair JLocationValue<Spec>::numbers_(int x, int y)
{
  ComplexPair pair;
  pair.x = x;
  pair.y = y;
  return pair;
}

template class JLocationValue<TileSpec>;
template class JLocationValue<MemSpec>;
template class JLocationValue<ShimSpec>;

}  // namespace qpe::constraints::json
