#include "ConstrUtils.h"

#include <boost/algorithm/string/join.hpp>

#include <algorithm>

namespace qpe::constraints {

bool contains(const std::vector<std::string>& values, const std::string& value)
{
  return std::find(values.begin(), values.end(), value) != values.end();
}

void addIfUnique(const std::string& value, std::vector<std::string>& values)
{
  if (!value.empty() && !contains(values, value))
    values.push_back(value);
}

std::string to_str(const std::vector<std::string>& values)
{
  return boost::algorithm::join(values, " ");
}

bool isValSet(int value)
{
  return value >= 0;
}

bool isValSet(double value)
{
  return value >= 0.0;
}

}  // namespace qpe::constraints
