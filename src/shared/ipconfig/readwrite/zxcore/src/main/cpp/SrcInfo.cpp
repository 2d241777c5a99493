#include "SrcInfo.h"

namespace qpe::constraints {

SrcInfo::~SrcInfo() = default;

void SrcInfo::set(SrcKind newKind, const std::string& newFile, std::uint32_t newLine,
                  std::uint32_t newColumn)
{
  kind = newKind;
  file = newFile;
  line = newLine;
  column = newColumn;
}

}  // namespace qpe::constraints
