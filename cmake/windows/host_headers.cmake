# host_headers(<variable> <folder>): a directory to be searched for headers that has one folder of /usr/include alone.
# /usr/include itself would bring in the headers of another system's C library.
function(host_headers variable folder)
    if(NOT EXISTS /usr/include/${folder})
        message(FATAL_ERROR "/usr/include/${folder} is missing")
    endif()
    set(directory ${CMAKE_BINARY_DIR}/host_headers/${folder})
    file(MAKE_DIRECTORY ${directory})
    file(CREATE_LINK /usr/include/${folder} ${directory}/${folder} SYMBOLIC)
    set(${variable} ${directory} PARENT_SCOPE)
endfunction()
