#include "ZXLogicalArchVocabulary.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace IPConfig::Frameworks {

namespace {

// Texts indexed by value; the unset value is the table's size.
template <std::size_t N>
using Texts = std::array<const char*, N>;

const Texts<3> portTypes{"stream", "mem", "event"};
const Texts<2> portDirections{"master", "slave"};
const Texts<8> connectionDirections{"qpe_to_pl",  "pl_to_qpe", "qpe_to_noc", "noc_to_qpe",
                                    "noc_to_pl",  "pl_to_noc", "noc_to_noc", "pl_to_pl"};
const Texts<4> oldConnectionDirections{"zx_to_pl", "pl_to_zx", "zx_to_noc", "noc_to_zx"};
const Texts<3> memModes{"read-only", "write-only", "read-write"};
const Texts<2> addrTypes{"virtual", "physical"};
const Texts<2> nocTypes{"mem", "stream"};

template <std::size_t N>
const char* textOf(const Texts<N>& texts, std::uint32_t value)
{
  return value < N ? texts[value] : "unknown";
}

// The index of `text` in `texts`, or N.
template <std::size_t N>
std::uint32_t indexOf(const Texts<N>& texts, const std::string& text)
{
  return static_cast<std::uint32_t>(
      std::find(texts.begin(), texts.end(), text) - texts.begin());
}

}  // namespace

const char* ZXLogicalArchVocabulary::portTypeText(ZXLogicalPort::PortType type)
{
  return textOf(portTypes, type);
}

ZXLogicalPort::PortType ZXLogicalArchVocabulary::toPortType(const std::string& text)
{
  return ZXLogicalPort::PortType(indexOf(portTypes, text));
}

const char* ZXLogicalArchVocabulary::portDirectionText(ZXLogicalPort::Direction direction)
{
  return textOf(portDirections, direction);
}

ZXLogicalPort::Direction ZXLogicalArchVocabulary::toPortDirection(const std::string& text)
{
  return ZXLogicalPort::Direction(indexOf(portDirections, text));
}

const char* ZXLogicalArchVocabulary::connectionDirectionText(
    ZXLogicalConnection::Direction direction)
{
  return textOf(connectionDirections, direction);
}

ZXLogicalConnection::Direction ZXLogicalArchVocabulary::toConnectionDirection(
    const std::string& text)
{
  const std::uint32_t old = indexOf(oldConnectionDirections, text);
  return ZXLogicalConnection::Direction(old < oldConnectionDirections.size()
                                            ? old
                                            : indexOf(connectionDirections, text));
}

const char* ZXLogicalArchVocabulary::memModeText(ZXLogicalConnection::MemMode mode)
{
  return textOf(memModes, mode);
}

ZXLogicalConnection::MemMode ZXLogicalArchVocabulary::toMemMode(const std::string& text)
{
  return ZXLogicalConnection::MemMode(indexOf(memModes, text));
}

const char* ZXLogicalArchVocabulary::addrTypeText(ZXLogicalConnection::AddrType type)
{
  return textOf(addrTypes, type);
}

ZXLogicalConnection::AddrType ZXLogicalArchVocabulary::toAddrType(const std::string& text)
{
  return ZXLogicalConnection::AddrType(indexOf(addrTypes, text));
}

const char* ZXLogicalArchVocabulary::nocTypeText(ZXLogicalNOCIPInstance::NOCType type)
{
  return textOf(nocTypes, type);
}

ZXLogicalNOCIPInstance::NOCType ZXLogicalArchVocabulary::toNOCType(const std::string& text)
{
  return ZXLogicalNOCIPInstance::NOCType(indexOf(nocTypes, text));
}

}  // namespace IPConfig::Frameworks
