#pragma once

#include "ipconfig_hrdip_export.h"

#include <string>

// The vocabulary of the hard blocks as the files spell it. Files store these
// values as text; the numbering is internal, but readers and writers test
// ranges of it, so it must stay as it stands.
namespace DevHrdIP::Definitions {

// Component types of the NoC and of the logical instances, numbered from 0
// in this order; each name is its text.
#define IPCONFIG_HRDIP_COMP_TYPES(X) \
  X(NPS) X(NPS_2) X(NPS_3) X(NPB_3) X(NPS_DDR) X(NPS_RPTR) X(NPS_4x4) X(NPS_4x2) X(NPS_4x2_3) \
  X(NPS_2x4) X(NPS_6) X(NPS6X) X(NCRB) X(NCRB_3) X(NIDB) X(NIDB_3) X(NICB_3) X(C2CS_3) \
  X(PS_NCI_NMU) X(PS_NCI_NMU_2) X(PS_NCI_NSU) X(PS_NCI_NSU_2) X(PS_CCI_NMU) X(PS_CCI_NSU) \
  X(PMC_NMU) X(PMC_NSU) X(PS_CCI_NMU_2) X(PS_CCI_NSU_2) X(PMC_NMU_2) X(PMC_NSU_2) X(PMC_NMU_3) \
  X(PMC_NSU_3) X(PS_NMU) X(PS_NMU_2) X(PS_NSU) X(PS_RPU) X(PS_RPU_2) X(PL_NMU) X(PL_NSU) \
  X(PL_NMU_2) X(PL_NSU_2) X(PL_NMU_3) X(HNOC_NMU_3) X(PL_NSU_3) X(IDFI_NMU_3) X(ACIF_NMU_3) \
  X(ACIF_NSU_3) X(CFU_NMU_3) X(CFU_NSU_3) X(ISOC_NMU) X(ISOC_NMU_2) X(DPU_NMU) X(DPU_NSU) \
  X(LPD_NMU) X(RPU_NMU) X(RPU_NMU_2) X(CPM5_NMU) X(ISP_NMU_2) X(VCU_NMU_2) X(VPP_NMU_2) \
  X(SVIP_NMU_2) X(SVIP_NMU256_2) X(CPM5_XBAR_NMU) X(HNIC_NMU) X(HNIC_XBAR_NMU) X(CPM5_NSU) \
  X(ISP_NSU_2) X(VCU_NSU_2) X(VPP_NSU_2) X(SVIP_NSU_2) X(CPM5_XBAR_NSU) X(HNIC_NSU) \
  X(HNIC_XBAR_NSU) X(QPE_NMU) X(QPE_NMU_2) X(QPE_NSU) X(QPE_NSU_2) X(DDRC) X(DDRC_NSU) X(DDR_0) \
  X(DDR_1) X(DDR_2) X(DDR_3) X(DDR5) X(DDR5C) X(DDR5E) X(DDR5X) X(DDR6) X(DDR5_NSU) \
  X(DDR5C_NSU) X(DDR5E_NSU) X(DDR5X_NSU) X(DDR6_NSU) X(DDR5_0) X(DDR5_1) X(DDR5C_0) X(DDR5C_1) \
  X(DDR5E_0) X(DDR5E_1) X(DDR5X_0) X(DDR5X_1) X(DDR6_0) X(DDR6_1) X(HBMMC) X(HBMMC_NSU) \
  X(HBMMC_0) X(HBMMC_1) X(HBMMC_2) X(HBMMC_3) X(PCIE_NMU) X(PCIE_NSU) X(PCIE_NMU_2) \
  X(PCIE_NSU_2) X(MMI_NMU_2) X(HBM_NMU) X(HBM_NSU) X(ZX_PL_SHIM) X(ZX_PL_NOC_SHIM) \
  X(ZX_TO_NOC_AXIMM) X(NOC_TO_ZX_AXIMM) X(ZX_TO_PL_STRM) X(PL_TO_ZX_STRM) X(QPE_PL_SHIM) \
  X(QPE_NOC_SHIM) X(QPE_TO_NOC_AXIMM) X(NOC_TO_QPE_AXIMM) X(QPE_TO_PL_STRM) X(PL_TO_QPE_STRM) \
  X(BLI) X(ZX_CORE) X(ZX_MEMGRP) X(ZX_ARRAYSWITCH) X(ZX_DMA) X(ZX_TILECTRL) X(ZX_SHIMSWITCH)

#define IPCONFIG_HRDIP_ENUMERATOR(name) name,
enum COMP_TYPE {
  IPCONFIG_HRDIP_COMP_TYPES(IPCONFIG_HRDIP_ENUMERATOR)
  COMP_TYPE_UNKNOWN  // 135: an unknown text; no type of the list
};
#undef IPCONFIG_HRDIP_ENUMERATOR

// The slave view, numbered from 0 in this order: one value per memory
// controller family, so that a range test picks the controllers out (DDRC to
// DDR6, and HBMMC). Each enumerator is SLV_ followed by its text.
#define IPCONFIG_HRDIP_SLV_COMP_TYPES(X) \
  X(PS_NCI_NSU) X(PS_NCI_NSU_2) X(PS_CCI_NSU) X(PMC_NSU) X(PS_CCI_NSU_2) X(PMC_NSU_2) \
  X(PMC_NSU_3) X(PS_NSU) X(PL_NSU) X(PL_NSU_2) X(PL_NSU_3) X(ACIF_NSU_3) X(CFU_NSU_3) \
  X(QPE_NSU) X(QPE_NSU_2) X(DDRC) X(DDR5) X(DDR5C) X(DDR5E) X(DDR5X) X(DDR6) X(HBMMC) \
  X(PCIE_NSU) X(PCIE_NSU_2) X(DPU_NSU) X(HBM_NSU) X(CPM5_NSU) X(ISP_NSU_2) X(VCU_NSU_2) \
  X(VPP_NSU_2) X(SVIP_NSU_2) X(CPM5_XBAR_NSU) X(HNIC_NSU) X(HNIC_XBAR_NSU)

#define IPCONFIG_HRDIP_SLV_ENUMERATOR(name) SLV_##name,
enum SLV_COMP_TYPE {
  IPCONFIG_HRDIP_SLV_COMP_TYPES(IPCONFIG_HRDIP_SLV_ENUMERATOR)
  SLV_COMP_TYPE_NONE  // 34: any other text
};
#undef IPCONFIG_HRDIP_SLV_ENUMERATOR

enum TrafficClass { BE, LL, ISOC, BW };

// A bit set of the ports of a memory controller, used one bit at a time.
enum PORT_TYPE { PORT_NONE = 0, PORT0 = 1, PORT1 = 2, PORT2 = 4, PORT3 = 8 };

enum AxiProt { AXI_STRM, AXI_MM };

enum Write_Order { WO_STRICT, WO_RELAXED, WO_DOORBELL, WO_INVALID };

// Text to value: exact, case-sensitive matches. "ZX_NMU" and "ZX_NSU" read as
// QPE_NMU and QPE_NSU, "PC0_PORT0" to "PC1_PORT1" as PORT0 to PORT3; these
// older spellings are never written.
IPCONFIG_HRDIP_EXPORT COMP_TYPE toCompTypeEnum(const std::string& text);       // unknown: 135
IPCONFIG_HRDIP_EXPORT SLV_COMP_TYPE toSlvCompTypeEnum(const std::string& text);  // unknown: 34
IPCONFIG_HRDIP_EXPORT TrafficClass toTCEnum(const std::string& text);          // unknown: BE
IPCONFIG_HRDIP_EXPORT PORT_TYPE toPtEnum(const std::string& text);             // unknown: 0
// Every text but "AXI_STRM" reads as AXI_MM.
IPCONFIG_HRDIP_EXPORT AxiProt toAxiProtEnum(const std::string& text);
IPCONFIG_HRDIP_EXPORT Write_Order toWriteOrderEnum(const std::string& text);  // unknown: WO_INVALID

// Value to text.
IPCONFIG_HRDIP_EXPORT const std::string& toStr(COMP_TYPE type);  // 135 and above: "COMPERR"
IPCONFIG_HRDIP_EXPORT const std::string& toStr(TrafficClass tc);  // 3 and above: "BW"
IPCONFIG_HRDIP_EXPORT const std::string& toStr(PORT_TYPE port);  // no single port: "PORTERR"
IPCONFIG_HRDIP_EXPORT const std::string& toStr(AxiProt protocol);  // all but AXI_MM: "AXI_STRM"
IPCONFIG_HRDIP_EXPORT const std::string& toStr(Write_Order order);  // 3 and above: "invalid"

// Processing-side and programmable-logic types, tested on the text of the
// type; a type that prints as "COMPERR" is neither.
IPCONFIG_HRDIP_EXPORT bool isPS(COMP_TYPE type);
IPCONFIG_HRDIP_EXPORT bool isPL(COMP_TYPE type);

}  // namespace DevHrdIP::Definitions
