# Writes a text file as C++ source, a function that returns it:
#   cmake -DTEXT=<file> -DSOURCE=<cpp> -DFUNCTION=<name> -DHEADER=<its header> -P embed_text.cmake
# One literal a line; the compiler joins them.
file(READ "${TEXT}" text)
string(REPLACE "\\" "\\\\" text "${text}")
string(REPLACE "\"" "\\\"" text "${text}")
string(REPLACE "\n" "\\n\"\n    \"" text "${text}")
file(WRITE "${SOURCE}" "#include \"${HEADER}\"

namespace coltre {

std::string_view ${FUNCTION}() {
    return
    \"${text}\";
}

}  // namespace coltre
")
