#pragma once

#include "ipconfig_readwrite_export.h"

// The library's load entry: makes sure the host's parameter store exists.
extern "C" IPCONFIG_READWRITE_EXPORT void init_lib();
