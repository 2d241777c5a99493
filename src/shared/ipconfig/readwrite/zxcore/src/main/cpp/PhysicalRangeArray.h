#pragma once

#include "HCRapidJsonReadWriteUtils.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints {

class PhysicalRange;

// Builds the JSON array of a group of ranges in a constraints file, one
// element per range: an integer for a location given by column alone, else a
// text such as "(2,0)", "(2,0):(5,3)" or a name. The caller takes the array
// with get() and moves it into the document whose allocator it gave.
class IPCONFIG_READWRITE_EXPORT PhysicalRangeArray {
public:
  explicit PhysicalRangeArray(JAllocator& allocator);

  bool empty() const;
  JValue& get();

  // Writes the element of `range` into `value`; true when it did.
  bool storeVal(JValue& value, const PhysicalRange& range) const;
  void pushBack(const PhysicalRange& range);
  // pushBack only for a range whose first end is a core tile.
  void pushTileRangeBack(const PhysicalRange& range);
  // pushBack only for a range whose first end is a memory tile.
  void pushMemRangeBack(const PhysicalRange& range);
  // pushBack for a range whose second end is a set shim, or else whose first
  // end is a shim.
  void pushShimRangeBack(const PhysicalRange& range);

private:
  JValue array;
  JAllocator& allocator;
};

}  // namespace qpe::constraints
