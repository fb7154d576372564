#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>

namespace coltre {

/// Memory for RapidJSON, under the names that it asks for. Its own does not look whether there is any: here a
/// lack of it is std::bad_alloc, as everywhere.
class JsonMemory {
  public:
    static constexpr bool kNeedFree = true;

    static void* Malloc(std::size_t size) { return size > 0 ? ::operator new(size) : nullptr; }
    static void* Realloc(void* old, std::size_t old_size, std::size_t size) {
        void* const moved = Malloc(size);
        if (old != nullptr && moved != nullptr) std::memcpy(moved, old, std::min(old_size, size));
        Free(old);
        return moved;
    }
    static void Free(void* memory) { ::operator delete(memory); }
};

}  // namespace coltre
