# What is delivered says the day of this version (release_date, release_year), its maker (maker_name, maker_mail) and its
# terms (program_terms).

# The change log has the day. A version that is not released yet is of the day on which it is configured, or of
# SOURCE_DATE_EPOCH.
set(change_log ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${change_log})
file(STRINGS ${change_log} heading REGEX "^## ${PROJECT_VERSION} \\(.*\\)$")
if(heading MATCHES "\\(([0-9-]+)\\)")
    set(release_date ${CMAKE_MATCH_1})
elseif(heading MATCHES "\\(not released yet\\)")
    string(TIMESTAMP release_date %Y-%m-%d UTC)
else()
    message(FATAL_ERROR "CHANGELOG.md has no heading \"## ${PROJECT_VERSION} (year-month-day)\" or \"(not released yet)\"")
endif()
string(SUBSTRING ${release_date} 0 4 release_year)

# The maker and the terms stand in one place.
set(maker ${PROJECT_SOURCE_DIR}/version/maker.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${maker})
file(STRINGS ${maker} quoted REGEX "^    \".*\"[,;]$")
list(TRANSFORM quoted REPLACE "^    \"(.*)\"[,;]+$" "\\1")
list(GET quoted 0 maker_name)
list(GET quoted 6 maker_mail)
list(GET quoted 7 program_terms)
