#pragma once

#include <array>
#include <cstddef>

namespace coltre {

/// A list of a few items in place: a calculation allocates nothing.
template <typename T, std::size_t most>
class ShortList {
  public:
    ShortList() {}  // leaves the items as they are
    ShortList(const ShortList& other) { *this = other; }
    ShortList& operator=(const ShortList& other) {
        m_size = other.m_size;
        for (std::size_t i = 0; i < m_size; ++i)
            m_items[i] = other.m_items[i];
        return *this;
    }
    void push_back(const T& item) { m_items[m_size++] = item; }
    T* begin() { return m_items; }
    T* end() { return m_items + m_size; }
    const T* begin() const { return m_items; }
    const T* end() const { return m_items + m_size; }
    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }

  private:
    union {
        T m_items[most];
    };
    std::size_t m_size = 0;
};

}  // namespace coltre
