# The headers of Debian's libcli11-dev, which serve every system.
include(${CMAKE_CURRENT_LIST_DIR}/host_headers.cmake)
host_headers(CLI11_INCLUDE_DIR CLI)
if(NOT TARGET CLI11::CLI11)
    add_library(CLI11::CLI11 INTERFACE IMPORTED GLOBAL)
    target_include_directories(CLI11::CLI11 SYSTEM INTERFACE ${CLI11_INCLUDE_DIR})
endif()
set(CLI11_FOUND ON)
