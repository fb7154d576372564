#pragma once

#include <streambuf>
#include <string>
#include <utility>

namespace coltre {

/// Hands a text on byte by byte, as a slow pipe does.
class ByteByByte : public std::streambuf {
  public:
    explicit ByteByByte(std::string text) : m_text(std::move(text)) {}

  protected:
    int_type underflow() override {
        if (m_next == m_text.size()) return traits_type::eof();
        char* const byte = m_text.data() + m_next++;
        setg(byte, byte, byte + 1);
        return traits_type::to_int_type(*byte);
    }

  private:
    std::string m_text;
    std::size_t m_next = 0;
};

}  // namespace coltre
