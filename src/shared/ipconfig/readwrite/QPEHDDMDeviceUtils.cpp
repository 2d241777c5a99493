#include "QPEHDDMDeviceUtils.h"

#include "HDARPart.h"

#include <boost/algorithm/string/replace.hpp>

namespace IPConfig::Frameworks {

namespace {

// Column and channel of a shim bel as the oracle gives them; -1 where it
// gives nothing.
struct ShimCoords {
  int column = -1;
  int channel = -1;
};

ShimCoords shimCoords(const HDARPart& part, const HDDMBel& bel)
{
  ShimCoords coords;
  HDDMQpeOracle::ZXRegion region = HDDMQpeOracle::ZX_REGION_NONE;
  HDDMQpeOracle::ZXShimBelType type = HDDMQpeOracle::SHIM_BEL_NONE;
  if (bel.isValid())
    part.getQpeOracle().getZXShimArrayCoords(bel, region, coords.column, coords.channel, type);
  return coords;
}

}  // namespace

HDDMBel QPEHDDMDeviceUtils::getHDDMBel(const HDARPart& part, const std::string& name)
{
  if (name.empty())
    return {};
  const int siteUnderscores = name.rfind("QPE_ML", 0) == 0 ? 4 : 3;
  std::string hierarchicalName = name;
  std::string::size_type at = std::string::npos;
  for (int seen = 0; seen < siteUnderscores; ++seen) {
    at = name.find('_', at == std::string::npos ? 0 : at + 1);
    if (at == std::string::npos)
      break;
  }
  if (at != std::string::npos)
    hierarchicalName[at] = '/';
  return part.getOracle().getBelByName(hierarchicalName);
}

std::string QPEHDDMDeviceUtils::getHierName(const HDARPart&, const HDDMBel& bel)
{
  if (!bel.isValid())
    return {};
  return boost::algorithm::replace_all_copy(bel.getHierarchicalName1(), "/", "_");
}

std::uint32_t QPEHDDMDeviceUtils::getShimColumn(const HDARPart& part, const HDDMBel& bel)
{
  return static_cast<std::uint32_t>(shimCoords(part, bel).column);
}

std::uint32_t QPEHDDMDeviceUtils::getIndexOfChanInShim(const HDARPart& part, const HDDMBel& bel)
{
  return static_cast<std::uint32_t>(shimCoords(part, bel).channel);
}

}  // namespace IPConfig::Frameworks
