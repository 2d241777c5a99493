#pragma once

#include "PhysicalRangeInterface.h"
#include "PhysicalSpec.h"
#include "ipconfig_readwrite_export.h"

namespace qpe::constraints {

// A range held by value. A single location leaves the second end
// default-constructed, which makes it a core location whatever the first is.
class IPCONFIG_READWRITE_EXPORT PhysicalRange : public PhysicalRangeInterface {
public:
  explicit PhysicalRange(const PhysicalSpec& only);
  PhysicalRange(const PhysicalSpec& low, const PhysicalSpec& high);

  ~PhysicalRange() override;
  const PhysicalSpec& getFirst() const override;
  const PhysicalSpec& getSecond() const override;
  HDPoint<int> getLow() const override;
  HDPoint<int> getHigh() const override;
  HDRectangle<int> getRect() const override;
  void setFirst(const PhysicalSpec& spec) override;
  void setSecond(const PhysicalSpec& spec) override;
  void setLow(HDPoint<int> point) override;
  void setHigh(HDPoint<int> point) override;
  void setRect(const HDRectangle<int>& rect) override;
  // A name-based or unset end stays; a moved end loses its bank and offset.
  void offsetColumn(int delta) override;
  std::string str() const override;
  // Every set coordinate of both ends within the inclusive limits.
  bool isWithinBoundingBox(const HDRectangle<int>& rect) const override;

private:
  PhysicalSpec first;
  PhysicalSpec second;
};

}  // namespace qpe::constraints
