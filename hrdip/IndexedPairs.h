#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace HrdIPToolCntr {

// Pairs kept in the order added and walked by index from 0 until hasValid
// is false; a read past the end gives 0.
template <typename Value>
class IndexedPairs {
public:
  void add(std::pair<Value, Value> entry) { entries.push_back(entry); }
  bool hasValid(int index) const
  {
    return index >= 0 && static_cast<std::size_t>(index) < entries.size();
  }
  Value first(int index) const { return hasValid(index) ? entries[index].first : Value(); }
  Value second(int index) const { return hasValid(index) ? entries[index].second : Value(); }

private:
  std::vector<std::pair<Value, Value>> entries;
};

}  // namespace HrdIPToolCntr
