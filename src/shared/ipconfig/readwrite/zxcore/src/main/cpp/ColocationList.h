#pragma once

#include "ConstrProperties.h"
#include "NameList.h"
#include "SrcInfo.h"

namespace qpe::constraints {

// A further list of a colocation kind, beside the one whose soft flags and
// source location the constraint itself keeps: the names, their soft flags
// and where the list came from.
struct ColocationList {
  NameList names;
  ConstrPropertiesMap properties;
  SrcInfo srcInfo;
};

}  // namespace qpe::constraints
