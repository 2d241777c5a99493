#pragma once

#include "HDPoint.h"
#include "HDRectangle.h"
#include "ipconfig_readwrite_export.h"

#include <string>

namespace qpe::constraints {

class PhysicalSpec;

// Two locations: the corners of a rectangle of the array, or one location
// with the second end unset.
class IPCONFIG_READWRITE_EXPORT PhysicalRangeInterface {
public:
  virtual ~PhysicalRangeInterface();
  virtual const PhysicalSpec& getFirst() const = 0;
  virtual const PhysicalSpec& getSecond() const = 0;
  // Column and row of the first end, of the second end.
  virtual HDPoint<int> getLow() const = 0;
  virtual HDPoint<int> getHigh() const = 0;
  // The second end as the high corner, the first as the low one.
  virtual HDRectangle<int> getRect() const = 0;
  virtual void setFirst(const PhysicalSpec& spec) = 0;
  virtual void setSecond(const PhysicalSpec& spec) = 0;
  virtual void setLow(HDPoint<int> point) = 0;
  virtual void setHigh(HDPoint<int> point) = 0;
  virtual void setRect(const HDRectangle<int>& rect) = 0;
  // A single location is valid as that location is. A two-ended range is
  // valid between two shims or between two core tiles, and nothing else: a
  // range of memory tiles has never been one.
  virtual bool isValid() const;
  // Moves each coordinate-based end by `delta` columns.
  virtual void offsetColumn(int delta) = 0;
  // "low=tile=(0,1) high=tile=(3,4)".
  virtual std::string str() const = 0;
  virtual bool isWithinBoundingBox(const HDRectangle<int>& rect) const = 0;
};

}  // namespace qpe::constraints
