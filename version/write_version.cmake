# Writes version.cpp, unless it says the same already:
# cmake -DVERSION=<number> -DTREE=<top of the sources> -DSOURCE=<version.cpp> -P write_version.cmake
# No clock goes in: the same tree gives the same bytes.
find_package(Git QUIET)

# ask_git(<variable> <argument>...): what git says of the tree; empty where it says nothing.
function(ask_git variable)
    set(output)
    if(Git_FOUND)
        # A build changes no file of the tree: without locks git leaves its index alone.
        execute_process(
            COMMAND ${CMAKE_COMMAND} -E env TZ=UTC0 ${GIT_EXECUTABLE} -C ${TREE} --no-optional-locks ${ARGN}
            OUTPUT_VARIABLE output OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    endif()
    set(${variable} "${output}" PARENT_SCOPE)
endfunction()

# Sources that were unpacked somewhere inside another tree of git's have no commit of their own.
ask_git(git_tree rev-parse --show-toplevel)
file(REAL_PATH ${TREE} tree)
if(git_tree STREQUAL tree)
    ask_git(commit rev-parse --short=8 HEAD)
    ask_git(date show --no-patch --format=%cd --date=format-local:%Y-%m-%d HEAD)
    ask_git(changes status --porcelain --untracked-files=no)
elseif(DEFINED ENV{SOURCE_DATE_EPOCH})
    string(TIMESTAMP date %Y-%m-%d UTC)  # of SOURCE_DATE_EPOCH, not of the clock
endif()

set(BUILD "build senza commit")
if(commit)
    set(BUILD "build ${commit}")
    if(changes)
        string(APPEND BUILD " con modifiche")
    endif()
endif()
if(date)
    string(APPEND BUILD ", ${date}")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/version.cpp.in ${SOURCE} @ONLY)
