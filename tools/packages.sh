# Debian packages that the scripts install where they are missing. Sourced, not run.

# To build and run the program.
program_packages=(g++ cmake ninja-build libcli11-dev rapidjson-dev qt6-base-dev qt6-translations-l10n
    cmark-gfm)

# To run all checks besides.
check_packages=(libgtest-dev libgmock-dev libbenchmark-dev nlohmann-json3-dev locales clang-format clang-tidy
    xvfb xdotool imagemagick git desktop-file-utils appstream mandoc poppler-utils unzip lintian dpkg-dev parallel)

# For tools/fuzz, besides those of the program.
fuzz_packages=(clang libclang-rt-14-dev nlohmann-json3-dev)

# For tools/benchmark, besides those of the program: speedcrunch is what the windows are compared with.
bench_packages=(libbenchmark-dev nlohmann-json3-dev python3 libx11-6 xvfb speedcrunch)

# For tools/package and tools/test_debian_package, besides those of the program.
debian_packages=(lintian dpkg-dev mmdebstrap)

# To build the core and the command for Windows and to test them under Wine, besides those of the program.
cross_packages=(g++-mingw-w64-x86-64-posix wine64 wine googletest nlohmann-json3-dev librsvg2-bin imagemagick)

# To build Qt and the windows for Windows and to make the packages, besides these.
windows_packages=("${cross_packages[@]}" dpkg-dev nsis zip unzip xvfb fonts-dejavu-core)
