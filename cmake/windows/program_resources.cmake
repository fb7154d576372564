# program_resources(<program>): what Windows shows of a program, its icon and its version, and what the program asks of it.
enable_language(RC)
find_program(CONVERT convert REQUIRED)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
set(windows_resources ${PROJECT_BINARY_DIR}/windows_resources)
set(windows_icon ${windows_resources}/coltre.ico)
file(MAKE_DIRECTORY ${windows_resources})
add_custom_command(
    OUTPUT ${windows_icon}
    COMMAND ${RSVG_CONVERT} --width 256 --output ${windows_resources}/coltre.png ${PROJECT_SOURCE_DIR}/ui/images/coltre.svg
    COMMAND ${CONVERT} ${windows_resources}/coltre.png -define icon:auto-resize=256,96,64,48,32,24,16 ${windows_icon}
    DEPENDS ${PROJECT_SOURCE_DIR}/ui/images/coltre.svg
    VERBATIM)
add_custom_target(windows_icon DEPENDS ${windows_icon})
set(windows_directory ${CMAKE_CURRENT_LIST_DIR})
configure_file(${windows_directory}/coltre.manifest ${windows_resources}/coltre.manifest COPYONLY)

function(program_resources program)
    set(resources ${windows_resources}/${program}.rc)
    configure_file(${windows_directory}/program.rc.in ${resources} @ONLY)
    target_sources(${program} PRIVATE ${resources})
    set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS "${windows_icon};${windows_resources}/coltre.manifest"
                                                        INCLUDE_DIRECTORIES ${windows_resources})
    add_dependencies(${program} windows_icon)
endfunction()
