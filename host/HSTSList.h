#pragma once

#include <forward_list>

// The host's singly linked list, iterated from the front.
template <typename T>
using HSTSList = std::forward_list<T>;
