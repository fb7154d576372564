#include "platform/code_page.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

TEST(CodePage, EveryByteSurvivesThereAndBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_EQ(to_code_page(from_code_page(bytes)), bytes);
}

TEST(CodePage, HasTheCharactersOfWindows1252) {
    EXPECT_EQ(
        from_code_page("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92\x93\x94\x95\x96\x97\x98"
                       "\x99\x9A\x9B\x9C\x9E\x9F\xA0\xD7\xFF"),
        "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ\u00A0×ÿ");
    EXPECT_EQ(from_code_page("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}

TEST(CodePage, WritesAQuestionMarkForWhatItLacks) {
    for (const auto& [utf8, bytes] :
         {std::pair{"citt\u00E0 \u0410 \u4E2D \U0001F600", "citt\xE0 ? ? ?"},
          // Characters whose number ends in the byte of another one, and a control.
          std::pair{"\u0141\u0180\xC2\x80\uFFFD", "????"},
          // Bytes that are no UTF-8, "/" in more bytes than it needs and half of a surrogate pair.
          std::pair{"\xE0 a\x80\xBF", "? a??"}, std::pair{"\xE2\x82z\xC3", "??z?"},
          std::pair{"\xC0\xAF", "??"}, std::pair{"\xE0\x80\xAF", "???"},
          std::pair{"\xF0\x80\x80\xAF", "????"}, std::pair{"\xED\xA0\x80", "???"},
          std::pair{"\xF4\x90\x80\x80\xFF", "?????"}})
        EXPECT_EQ(to_code_page(utf8), bytes);
}

}  // namespace
}  // namespace coltre
