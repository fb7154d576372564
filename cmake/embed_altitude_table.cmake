# Writes the municipality table as C++ source: cmake -DTABLE=<txt> -DSOURCE=<cpp> -P embed_altitude_table.cmake
# One literal a line; the compiler joins them.
file(READ "${TABLE}" text)
string(REPLACE "\\" "\\\\" text "${text}")
string(REPLACE "\"" "\\\"" text "${text}")
string(REPLACE "\n" "\\n\"\n    \"" text "${text}")
file(WRITE "${SOURCE}" "#include \"site/built_in_altitudes.h\"

namespace coltre {

std::string_view built_in_table() {
    return
    \"${text}\";
}

}  // namespace coltre
")
