# The headers of Debian's nlohmann-json3-dev, which serve every system.
include(${CMAKE_CURRENT_LIST_DIR}/host_headers.cmake)
host_headers(nlohmann_json_INCLUDE_DIR nlohmann)
if(NOT TARGET nlohmann_json::nlohmann_json)
    add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED GLOBAL)
    target_include_directories(nlohmann_json::nlohmann_json SYSTEM INTERFACE ${nlohmann_json_INCLUDE_DIR})
endif()
set(nlohmann_json_FOUND ON)
