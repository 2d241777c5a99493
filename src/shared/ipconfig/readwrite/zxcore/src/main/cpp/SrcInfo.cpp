#include "SrcInfo.h"

#include <utility>

namespace qpe::constraints {

SrcInfo::~SrcInfo() = default;

const std::string& SrcInfo::getFile() const
{
  static const std::string none;
  return file ? *file : none;
}

void SrcInfo::set(SrcKind newKind, const std::string& newFile, std::uint32_t newLine,
                  std::uint32_t newColumn)
{
  set(newKind, newFile.empty() ? nullptr : std::make_shared<const std::string>(newFile), newLine,
      newColumn);
}

void SrcInfo::set(SrcKind newKind, std::shared_ptr<const std::string> newFile,
                  std::uint32_t newLine, std::uint32_t newColumn)
{
  kind = newKind;
  file = std::move(newFile);
  line = newLine;
  column = newColumn;
}

}  // namespace qpe::constraints
