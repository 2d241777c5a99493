#include "Format.h"

namespace ipconfig_rw {

const std::vector<Format>& allFormats()
{
  static const std::vector<Format> formats{
      metadataFormat(),
      constraintsFormat(),
      trafficFormat(),
      solutionFormat(),
      nocConstraintsFormat(),
      logicalArchFormat(),
      partitionFormat(),
      compilerSolutionFormat(),
      shimConstraintsFormat(),
      plInterfaceFormat(),
  };
  return formats;
}

}  // namespace ipconfig_rw
