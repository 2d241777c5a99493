#include "HSTStrUtils.h"

#include <cstring>

bool HSTStrUtils::contains(const char* text, const char* part)
{
  return text && part && std::strstr(text, part) != nullptr;
}
