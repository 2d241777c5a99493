#include "Definitions.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace DevHrdIP::Definitions {

namespace {

#define IPCONFIG_HRDIP_TEXT(name) #name,

const std::array<std::string, COMP_TYPE_UNKNOWN> compTypeTexts{
    IPCONFIG_HRDIP_COMP_TYPES(IPCONFIG_HRDIP_TEXT)};
const std::array<std::string, SLV_COMP_TYPE_NONE> slvCompTypeTexts{
    IPCONFIG_HRDIP_SLV_COMP_TYPES(IPCONFIG_HRDIP_TEXT)};

#undef IPCONFIG_HRDIP_TEXT

// Text to value of an enumeration whose texts are listed in value order, plus
// the older spellings that read as one of them.
template <typename Enum, std::size_t count>
std::unordered_map<std::string, Enum> byText(
    const std::array<std::string, count>& texts,
    std::initializer_list<std::pair<const char*, Enum>> aliases)
{
  std::unordered_map<std::string, Enum> values;
  for (std::size_t value = 0; value < count; ++value)
    values.emplace(texts[value], static_cast<Enum>(value));
  for (const auto& [alias, value] : aliases)
    values.emplace(alias, value);
  return values;
}

template <typename Enum>
Enum lookUp(const std::unordered_map<std::string, Enum>& values, const std::string& text,
            Enum unknown)
{
  const auto found = values.find(text);
  return found == values.end() ? unknown : found->second;
}

bool isOneOf(COMP_TYPE type, const std::unordered_set<std::string>& texts)
{
  return texts.count(toStr(type)) != 0;
}

}  // namespace

COMP_TYPE toCompTypeEnum(const std::string& text)
{
  static const auto values =
      byText<COMP_TYPE>(compTypeTexts, {{"ZX_NMU", QPE_NMU}, {"ZX_NSU", QPE_NSU}});
  return lookUp(values, text, COMP_TYPE_UNKNOWN);
}

SLV_COMP_TYPE toSlvCompTypeEnum(const std::string& text)
{
  static const auto values = byText<SLV_COMP_TYPE>(slvCompTypeTexts, {{"ZX_NSU", SLV_QPE_NSU}});
  return lookUp(values, text, SLV_COMP_TYPE_NONE);
}

TrafficClass toTCEnum(const std::string& text)
{
  static const std::unordered_map<std::string, TrafficClass> values{
      {"BE", BE}, {"LL", LL}, {"ISOC", ISOC}, {"BW", BW}};
  return lookUp(values, text, BE);
}

PORT_TYPE toPtEnum(const std::string& text)
{
  static const std::unordered_map<std::string, PORT_TYPE> values{
      {"PORT0", PORT0},     {"PORT1", PORT1},     {"PORT2", PORT2},     {"PORT3", PORT3},
      {"PC0_PORT0", PORT0}, {"PC0_PORT1", PORT1}, {"PC1_PORT0", PORT2}, {"PC1_PORT1", PORT3}};
  return lookUp(values, text, PORT_NONE);
}

AxiProt toAxiProtEnum(const std::string& text)
{
  return text == toStr(AXI_STRM) ? AXI_STRM : AXI_MM;
}

Write_Order toWriteOrderEnum(const std::string& text)
{
  static const std::unordered_map<std::string, Write_Order> values{
      {"strict", WO_STRICT}, {"relaxed", WO_RELAXED}, {"doorbell", WO_DOORBELL}};
  return lookUp(values, text, WO_INVALID);
}

const std::string& toStr(COMP_TYPE type)
{
  static const std::string error("COMPERR");
  const auto index = static_cast<unsigned>(type);
  return index < compTypeTexts.size() ? compTypeTexts[index] : error;
}

const std::string& toStr(TrafficClass tc)
{
  static const std::array<std::string, 4> texts{"BE", "LL", "ISOC", "BW"};
  return texts[std::min(static_cast<unsigned>(tc), 3u)];
}

const std::string& toStr(PORT_TYPE port)
{
  static const std::array<std::string, 5> texts{"PORTERR", "PORT0", "PORT1", "PORT2", "PORT3"};
  switch (port) {
  case PORT0: return texts[1];
  case PORT1: return texts[2];
  case PORT2: return texts[3];
  case PORT3: return texts[4];
  default: return texts[0];
  }
}

const std::string& toStr(AxiProt protocol)
{
  static const std::array<std::string, 2> texts{"AXI_STRM", "AXI_MM"};
  return texts[protocol == AXI_MM ? 1 : 0];
}

const std::string& toStr(Write_Order order)
{
  static const std::array<std::string, 4> texts{"strict", "relaxed", "doorbell", "invalid"};
  return texts[std::min(static_cast<unsigned>(order), 3u)];
}

bool isPS(COMP_TYPE type)
{
  static const std::unordered_set<std::string> texts{
      "PS_RPU",       "PS_RPU_2",     "RPU_NMU",      "RPU_NMU_2",    "PMC_NMU",
      "PMC_NMU_2",    "PMC_NMU_3",    "PMC_NSU",      "PMC_NSU_2",    "PMC_NSU_3",
      "PCIE_NMU",     "PCIE_NMU_2",   "MMI_NMU_2",    "PCIE_NSU",     "ISOC_NMU",
      "ISOC_NMU_2",   "PCIE_NSU_2",   "PS_NMU_2",     "PS_CCI_NMU",   "PS_CCI_NMU_2",
      "PS_NCI_NMU",   "PS_NCI_NMU_2", "PS_CCI_NSU",   "PS_CCI_NSU_2", "PS_NCI_NSU",
      "PS_NCI_NSU_2"};
  return isOneOf(type, texts);
}

bool isPL(COMP_TYPE type)
{
  static const std::unordered_set<std::string> texts{"PL_NMU", "PL_NMU_2", "PL_NMU_3",
                                                     "PL_NSU", "PL_NSU_2", "PL_NSU_3"};
  return isOneOf(type, texts);
}

}  // namespace DevHrdIP::Definitions
