#pragma once

#include "ipconfig_host_export.h"

class IPCONFIG_HOST_EXPORT HSTStrUtils {
public:
  // Whether `part` occurs in `text`; a null pointer occurs nowhere and holds nothing.
  static bool contains(const char* text, const char* part);
};
