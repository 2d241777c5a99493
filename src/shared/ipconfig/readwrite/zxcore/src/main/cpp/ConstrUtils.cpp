#include "ConstrUtils.h"

#include <boost/algorithm/string/join.hpp>

#include <strings.h>

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

bool iequals(const std::string& a, const std::string& b)
{
  return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

bool istartsWith(const std::string& text, const std::string& prefix)
{
  return text.size() >= prefix.size() &&
         strncasecmp(text.data(), prefix.data(), prefix.size()) == 0;
}

void toLower(std::string& text)
{
  for (char& c : text)
    if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c - 'A' + 'a');
}

void toUpper(std::string& text)
{
  for (char& c : text)
    if (c >= 'a' && c <= 'z')
      c = static_cast<char>(c - 'a' + 'A');
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
