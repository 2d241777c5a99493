#include "PhysicalRange.h"

namespace qpe::constraints {

PhysicalRange::PhysicalRange(const PhysicalSpec& only) : first(only) {}

PhysicalRange::PhysicalRange(const PhysicalSpec& low, const PhysicalSpec& high)
    : first(low), second(high)
{
}

PhysicalRange::~PhysicalRange() = default;

const PhysicalSpec& PhysicalRange::getFirst() const
{
  return first;
}

const PhysicalSpec& PhysicalRange::getSecond() const
{
  return second;
}

HDPoint<int> PhysicalRange::getLow() const
{
  return first.getXY();
}

HDPoint<int> PhysicalRange::getHigh() const
{
  return second.getXY();
}

HDRectangle<int> PhysicalRange::getRect() const
{
  return {second.getColumn(), second.getRow(), first.getColumn(), first.getRow()};
}

void PhysicalRange::setFirst(const PhysicalSpec& spec)
{
  first = spec;
}

void PhysicalRange::setSecond(const PhysicalSpec& spec)
{
  second = spec;
}

void PhysicalRange::setLow(HDPoint<int> point)
{
  first.setXY(point);
}

void PhysicalRange::setHigh(HDPoint<int> point)
{
  second.setXY(point);
}

void PhysicalRange::setRect(const HDRectangle<int>& rect)
{
  setLow({rect.lowX, rect.lowY});
  setHigh({rect.highX, rect.highY});
}

void PhysicalRange::offsetColumn(int delta)
{
  first.offsetColumn(delta);
  second.offsetColumn(delta);
}

std::string PhysicalRange::str() const
{
  if (!first.isSet())
    return {};
  std::string text = "low=" + first.str();
  if (second.isSet())
    text += " high=" + second.str();
  return text;
}

bool PhysicalRange::isWithinBoundingBox(const HDRectangle<int>& rect) const
{
  return first.isWithinBoundingBox(rect) && second.isWithinBoundingBox(rect);
}

}  // namespace qpe::constraints
