#include "Definitions.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

namespace Defs = DevHrdIP::Definitions;

// "0 NPS, 1 NPS_2, ..." as the vocabulary is published, into (value, text) rows.
std::vector<std::pair<int, std::string>> rows(const std::string& listing)
{
  std::vector<std::pair<int, std::string>> parsed;
  std::istringstream in(listing);
  int value;
  std::string text;
  while (in >> value >> text) {
    if (text.back() == ',')
      text.pop_back();
    parsed.emplace_back(value, text);
  }
  return parsed;
}

// Every row of `listing` reads as its value and its value prints as its text.
template <typename Enum, typename ToEnum>
std::size_t expectBothWays(const std::string& listing, ToEnum toEnum)
{
  const auto table = rows(listing);
  for (const auto& [value, text] : table) {
    EXPECT_EQ(toEnum(text), value) << text;
    EXPECT_EQ(Defs::toStr(static_cast<Enum>(value)), text);
  }
  return table.size();
}

const char* const compTypes =
    "0 NPS, 1 NPS_2, 2 NPS_3, 3 NPB_3, 4 NPS_DDR, 5 NPS_RPTR, 6 NPS_4x4, 7 NPS_4x2, 8 NPS_4x2_3, "
    "9 NPS_2x4, 10 NPS_6, 11 NPS6X, 12 NCRB, 13 NCRB_3, 14 NIDB, 15 NIDB_3, 16 NICB_3, 17 C2CS_3, "
    "18 PS_NCI_NMU, 19 PS_NCI_NMU_2, 20 PS_NCI_NSU, 21 PS_NCI_NSU_2, 22 PS_CCI_NMU, "
    "23 PS_CCI_NSU, 24 PMC_NMU, 25 PMC_NSU, 26 PS_CCI_NMU_2, 27 PS_CCI_NSU_2, 28 PMC_NMU_2, "
    "29 PMC_NSU_2, 30 PMC_NMU_3, 31 PMC_NSU_3, 32 PS_NMU, 33 PS_NMU_2, 34 PS_NSU, 35 PS_RPU, "
    "36 PS_RPU_2, 37 PL_NMU, 38 PL_NSU, 39 PL_NMU_2, 40 PL_NSU_2, 41 PL_NMU_3, 42 HNOC_NMU_3, "
    "43 PL_NSU_3, 44 IDFI_NMU_3, 45 ACIF_NMU_3, 46 ACIF_NSU_3, 47 CFU_NMU_3, 48 CFU_NSU_3, "
    "49 ISOC_NMU, 50 ISOC_NMU_2, 51 DPU_NMU, 52 DPU_NSU, 53 LPD_NMU, 54 RPU_NMU, 55 RPU_NMU_2, "
    "56 CPM5_NMU, 57 ISP_NMU_2, 58 VCU_NMU_2, 59 VPP_NMU_2, 60 SVIP_NMU_2, 61 SVIP_NMU256_2, "
    "62 CPM5_XBAR_NMU, 63 HNIC_NMU, 64 HNIC_XBAR_NMU, 65 CPM5_NSU, 66 ISP_NSU_2, 67 VCU_NSU_2, "
    "68 VPP_NSU_2, 69 SVIP_NSU_2, 70 CPM5_XBAR_NSU, 71 HNIC_NSU, 72 HNIC_XBAR_NSU, 73 QPE_NMU, "
    "74 QPE_NMU_2, 75 QPE_NSU, 76 QPE_NSU_2, 77 DDRC, 78 DDRC_NSU, 79 DDR_0, 80 DDR_1, 81 DDR_2, "
    "82 DDR_3, 83 DDR5, 84 DDR5C, 85 DDR5E, 86 DDR5X, 87 DDR6, 88 DDR5_NSU, 89 DDR5C_NSU, "
    "90 DDR5E_NSU, 91 DDR5X_NSU, 92 DDR6_NSU, 93 DDR5_0, 94 DDR5_1, 95 DDR5C_0, 96 DDR5C_1, "
    "97 DDR5E_0, 98 DDR5E_1, 99 DDR5X_0, 100 DDR5X_1, 101 DDR6_0, 102 DDR6_1, 103 HBMMC, "
    "104 HBMMC_NSU, 105 HBMMC_0, 106 HBMMC_1, 107 HBMMC_2, 108 HBMMC_3, 109 PCIE_NMU, "
    "110 PCIE_NSU, 111 PCIE_NMU_2, 112 PCIE_NSU_2, 113 MMI_NMU_2, 114 HBM_NMU, 115 HBM_NSU, "
    "116 ZX_PL_SHIM, 117 ZX_PL_NOC_SHIM, 118 ZX_TO_NOC_AXIMM, 119 NOC_TO_ZX_AXIMM, "
    "120 ZX_TO_PL_STRM, 121 PL_TO_ZX_STRM, 122 QPE_PL_SHIM, 123 QPE_NOC_SHIM, "
    "124 QPE_TO_NOC_AXIMM, 125 NOC_TO_QPE_AXIMM, 126 QPE_TO_PL_STRM, 127 PL_TO_QPE_STRM, "
    "128 BLI, 129 ZX_CORE, 130 ZX_MEMGRP, 131 ZX_ARRAYSWITCH, 132 ZX_DMA, 133 ZX_TILECTRL, "
    "134 ZX_SHIMSWITCH";

const char* const slvCompTypes =
    "0 PS_NCI_NSU 1 PS_NCI_NSU_2 2 PS_CCI_NSU 3 PMC_NSU 4 PS_CCI_NSU_2 5 PMC_NSU_2 6 PMC_NSU_3 "
    "7 PS_NSU 8 PL_NSU 9 PL_NSU_2 10 PL_NSU_3 11 ACIF_NSU_3 12 CFU_NSU_3 13 QPE_NSU 14 QPE_NSU_2 "
    "15 DDRC 16 DDR5 17 DDR5C 18 DDR5E 19 DDR5X 20 DDR6 21 HBMMC 22 PCIE_NSU 23 PCIE_NSU_2 "
    "24 DPU_NSU 25 HBM_NSU 26 CPM5_NSU 27 ISP_NSU_2 28 VCU_NSU_2 29 VPP_NSU_2 30 SVIP_NSU_2 "
    "31 CPM5_XBAR_NSU 32 HNIC_NSU 33 HNIC_XBAR_NSU";

TEST(DefinitionsTest, EveryComponentTypeConvertsBothWays)
{
  EXPECT_EQ(expectBothWays<Defs::COMP_TYPE>(compTypes, Defs::toCompTypeEnum), 135u);
  EXPECT_EQ(Defs::toCompTypeEnum("nps"), Defs::COMP_TYPE_UNKNOWN);
  EXPECT_EQ(Defs::toCompTypeEnum(" NPS"), 135);
  EXPECT_EQ(Defs::toStr(Defs::COMP_TYPE_UNKNOWN), "COMPERR");
  EXPECT_EQ(Defs::toStr(static_cast<Defs::COMP_TYPE>(500)), "COMPERR");
}

TEST(DefinitionsTest, EverySlaveTypeReadsAndNoOtherTextDoes)
{
  std::set<std::string> slaveTexts;
  for (const auto& [value, text] : rows(slvCompTypes)) {
    EXPECT_EQ(Defs::toSlvCompTypeEnum(text), value) << text;
    slaveTexts.insert(text);
  }
  ASSERT_EQ(slaveTexts.size(), 34u);
  for (const auto& row : rows(compTypes)) {
    const bool isSlaveText = slaveTexts.count(row.second) != 0;
    EXPECT_EQ(Defs::toSlvCompTypeEnum(row.second) == Defs::SLV_COMP_TYPE_NONE, !isSlaveText)
        << row.second;
  }
}

TEST(DefinitionsTest, SmallEnumerationsConvertBothWays)
{
  expectBothWays<Defs::TrafficClass>("0 BE, 1 LL, 2 ISOC, 3 BW", Defs::toTCEnum);
  expectBothWays<Defs::PORT_TYPE>("1 PORT0, 2 PORT1, 4 PORT2, 8 PORT3", Defs::toPtEnum);
  expectBothWays<Defs::AxiProt>("0 AXI_STRM, 1 AXI_MM", Defs::toAxiProtEnum);
  expectBothWays<Defs::Write_Order>("0 strict, 1 relaxed, 2 doorbell", Defs::toWriteOrderEnum);
}

// Texts that read as a value without being its written form, and values
// that print as the fall-back text.
TEST(DefinitionsTest, AliasesAndFallbacksAreOneWay)
{
  EXPECT_EQ(Defs::toCompTypeEnum("ZX_NMU"), Defs::QPE_NMU);
  EXPECT_EQ(Defs::toCompTypeEnum("ZX_NSU"), Defs::QPE_NSU);
  EXPECT_EQ(Defs::toSlvCompTypeEnum("ZX_NSU"), Defs::SLV_QPE_NSU);
  EXPECT_EQ(Defs::toSlvCompTypeEnum("DDR5_NSU"), Defs::SLV_COMP_TYPE_NONE);
  EXPECT_EQ(Defs::toSlvCompTypeEnum("HBMMC_0"), Defs::SLV_COMP_TYPE_NONE);
  EXPECT_EQ(Defs::toPtEnum("PC0_PORT0"), Defs::PORT0);
  EXPECT_EQ(Defs::toPtEnum("PC0_PORT1"), Defs::PORT1);
  EXPECT_EQ(Defs::toPtEnum("PC1_PORT0"), Defs::PORT2);
  EXPECT_EQ(Defs::toPtEnum("PC1_PORT1"), Defs::PORT3);
  EXPECT_EQ(Defs::toPtEnum("port0"), Defs::PORT_NONE);
  EXPECT_EQ(Defs::toTCEnum("XX"), Defs::BE);
  EXPECT_EQ(Defs::toAxiProtEnum("AXI4"), Defs::AXI_MM);
  EXPECT_EQ(Defs::toWriteOrderEnum("Strict"), Defs::WO_INVALID);

  EXPECT_EQ(Defs::toStr(static_cast<Defs::TrafficClass>(7)), "BW");
  EXPECT_EQ(Defs::toStr(Defs::PORT_NONE), "PORTERR");
  EXPECT_EQ(Defs::toStr(static_cast<Defs::PORT_TYPE>(3)), "PORTERR");
  EXPECT_EQ(Defs::toStr(static_cast<Defs::AxiProt>(5)), "AXI_STRM");
  EXPECT_EQ(Defs::toStr(Defs::WO_INVALID), "invalid");
}

TEST(DefinitionsTest, ProcessingSideAndLogicListsKeepTheirGaps)
{
  const std::string ps =
      " PS_RPU PS_RPU_2 RPU_NMU RPU_NMU_2 PMC_NMU PMC_NMU_2 PMC_NMU_3 PMC_NSU PMC_NSU_2 PMC_NSU_3"
      " PCIE_NMU PCIE_NMU_2 MMI_NMU_2 PCIE_NSU ISOC_NMU ISOC_NMU_2 PCIE_NSU_2 PS_NMU_2 PS_CCI_NMU"
      " PS_CCI_NMU_2 PS_NCI_NMU PS_NCI_NMU_2 PS_CCI_NSU PS_CCI_NSU_2 PS_NCI_NSU PS_NCI_NSU_2 ";
  const std::string pl = " PL_NMU PL_NMU_2 PL_NMU_3 PL_NSU PL_NSU_2 PL_NSU_3 ";
  for (const auto& [value, text] : rows(compTypes)) {
    const auto type = static_cast<Defs::COMP_TYPE>(value);
    EXPECT_EQ(Defs::isPS(type), ps.find(" " + text + " ") != std::string::npos) << text;
    EXPECT_EQ(Defs::isPL(type), pl.find(" " + text + " ") != std::string::npos) << text;
  }
  EXPECT_FALSE(Defs::isPS(Defs::COMP_TYPE_UNKNOWN));
  EXPECT_FALSE(Defs::isPL(Defs::COMP_TYPE_UNKNOWN));
}

}  // namespace
