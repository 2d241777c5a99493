#pragma once

#include "ComplexPair.h"
#include "JBaseValue.h"
#include "MemSpec.h"
#include "ShimSpec.h"
#include "TileSpec.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints::json {

// One location or range of a group in the constraints file, as one JSON
// value. parse() takes, in this order: two integers [3, 4] (one location);
// any other array of two elements (a range, the old way, element by
// element); an integer (a column); a string in the compact syntax, kept as
// the text. Anything else gives nothing.
//
// The location class decides what the two numbers mean: column and row, or for a shim
// column and channel. A lone integer in an old-way range is a column, except
// on a tile.
template <typename Spec>
class IPCONFIG_READWRITE_EXPORT JLocationValue : public JBaseValue {
public:
  // The first location has a name or a column.
  bool isValid() const override;
  void parse();
  // One element of an old-way range: a name, a column, or two numbers;
  // otherwise a default location.
  Spec parseRangeValueOldWay(const JValue& element) const;
  // A name, or the numbers that are given, into a new location that replaces
  // the given location; without either it stays.
  static void initSpec(const ComplexPair& pair, Spec& spec);

  // The text of a string value; empty otherwise.
  const std::string& getText() const { return text; }
  const Spec& getFirst() const { return first; }
  const Spec& getSecond() const { return second; }

protected:
  explicit JLocationValue(const JValue& value);

private:
  static ComplexPair numbers_(int x, int y);

  std::string text;
  Spec first;
  Spec second;
};

extern template class JLocationValue<TileSpec>;
extern template class JLocationValue<MemSpec>;
extern template class JLocationValue<ShimSpec>;

}  // namespace qpe::constraints::json
