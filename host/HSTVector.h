#pragma once

#include <vector>

template <typename T>
using HSTVector = std::vector<T>;
