#pragma once

#include "HDDMBel.h"
#include "ipconfig_hdar_export.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

// The compute array's view of a device: where each bel of the interface row
// (the shim) stands, by column and channel. Filled by its HDDMOracle, which
// owns the records it points into.
class IPCONFIG_HDAR_EXPORT HDDMQpeOracle {
public:
  // The array a shim tile belongs to: the main compute array or its machine
  // learning variant.
  enum ZXRegion { ZX_REGION_QPE, ZX_REGION_QPE_ML, ZX_REGION_NONE };
  // What a shim channel carries, seen from the array.
  enum ZXShimBelType { SHIM_PL_IN, SHIM_PL_OUT, SHIM_NOC_IN, SHIM_NOC_OUT, SHIM_BEL_NONE };

  // For a valid shim bel of this device: fills the region, the column, the
  // index of the channel in its shim and the bel's type, and gives true.
  // Otherwise leaves the four untouched and gives false.
  bool getZXShimArrayCoords(const HDDMBel& bel, ZXRegion& region, int& column, int& channel,
                            ZXShimBelType& type) const;
  // The bel of a channel; the invalid handle if there is none.
  HDDMBel getZXShimBel(int column, int channel) const;
  // The shim columns, ascending.
  std::vector<int> getZXShimColumns() const;
  bool hasZXShimColumn(int column) const { return columns.count(column) != 0; }

private:
  friend class HDDMOracle;

  void addShimSite_(const HDDMSiteRecord& site);
  void addShimBel_(const HDDMBelRecord& bel);
  bool owns_(const HDDMBel& bel) const;

  static std::uint64_t key_(int column, int channel);

  std::unordered_map<int, const HDDMSiteRecord*> columns;
  std::unordered_map<std::uint64_t, const HDDMBelRecord*> channels;
};
