#pragma once

namespace DevHrdIP {

// A destination identifier of three fields of the given widths, held in one
// word. Bits beyond the fields are dropped when it is built.
template <unsigned firstBits, unsigned secondBits, unsigned thirdBits, typename Word>
class DestIdRepr {
public:
  static constexpr unsigned bitCount = firstBits + secondBits + thirdBits;
  static_assert(bitCount <= sizeof(Word) * 8, "the fields must fit in the word");

  constexpr explicit DestIdRepr(unsigned long value = 0)
    : word(static_cast<Word>(value & ((1ul << bitCount) - 1)))
  {
  }

  constexpr Word getValue() const { return word; }
  constexpr bool operator==(const DestIdRepr& other) const { return word == other.word; }

private:
  Word word;
};

}  // namespace DevHrdIP
