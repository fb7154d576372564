# The headers of Debian's rapidjson-dev, which serve every system.
include(${CMAKE_CURRENT_LIST_DIR}/host_headers.cmake)
host_headers(RAPIDJSON_INCLUDE_DIRS rapidjson)
set(RapidJSON_FOUND ON)
