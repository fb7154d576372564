# What every target of the project is compiled with.
add_library(coltre_compile_options INTERFACE)
target_compile_options(
    coltre_compile_options
    INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
              # Wrong alarms of GCC 12 about joined texts.
              $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
              # The built-in table is one long text, which both compilers take.
              $<$<CXX_COMPILER_ID:Clang>:-Wno-overlength-strings>
              # The square of a formula is the general power, to its last bit, not a product that stands for it.
              -fno-builtin-pow
              # A formula gives the same bits on every processor: no fused multiply-add.
              -ffp-contract=off)

# Sources that are compiled in groups see each other's own names: what these warnings say there is said of each source by
# itself where it is compiled alone, in the preset dev.
if(CMAKE_UNITY_BUILD)
    target_compile_options(coltre_compile_options INTERFACE -Wno-shadow $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()

set(COLTRE_SANITIZE "" CACHE STRING "Sanitizers to compile with, comma-separated (address,undefined); empty: none")
if(COLTRE_SANITIZE)
    target_compile_options(coltre_compile_options INTERFACE -fsanitize=${COLTRE_SANITIZE} -fno-sanitize-recover=all
                                                            -fno-omit-frame-pointer)
    target_link_options(coltre_compile_options INTERFACE -fsanitize=${COLTRE_SANITIZE})
endif()
