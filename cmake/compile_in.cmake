# compile_in(<target> <library> <text> <function> <header>): a text of data/, compiled into the target as a function. A
# library of its own, because a source can only be generated in the directory of the target that it belongs to.
function(compile_in target library text function header)
    set(embed ${PROJECT_SOURCE_DIR}/cmake/embed_text.cmake)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${function}.cpp)
    add_custom_command(
        OUTPUT ${source}
        COMMAND ${CMAKE_COMMAND} -DTEXT=${text} -DSOURCE=${source} -DFUNCTION=${function} -DHEADER=${header} -P ${embed}
        DEPENDS ${text} ${embed}
        COMMENT "Compiling in ${text}"
        VERBATIM)
    add_library(${library} OBJECT ${source})
    target_include_directories(${library} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${library} PRIVATE coltre_compile_options)
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:${library}>)
endfunction()
