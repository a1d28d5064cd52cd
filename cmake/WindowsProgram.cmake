# windows_program(<target>): a program that a double click starts on Windows. It opens no console, and
# its file shows an icon, where the tools that make one are installed, and the version.

enable_language(RC)
find_program(CTS_RSVG_CONVERT rsvg-convert)
find_program(CTS_ICOTOOL icotool)

# program_icon(<file>): an icon in all sizes that Windows asks for, made of the picture that Linux
# shows as it is.
function(program_icon file)
    set(picture ${PROJECT_SOURCE_DIR}/packaging/canvas-workbench.svg)
    foreach(size 16 20 24 32 48 64 256)
        set(image ${CMAKE_CURRENT_BINARY_DIR}/icon-${size}.png)
        list(APPEND rendering
            COMMAND ${CTS_RSVG_CONVERT} -w ${size} -h ${size} ${picture} -o ${image})
        list(APPEND images ${image})
    endforeach()
    list(POP_BACK images largest)
    add_custom_command(OUTPUT ${file}
        ${rendering}
        COMMAND ${CTS_ICOTOOL} -c -o ${file} ${images} --raw=${largest}
        DEPENDS ${picture}
        VERBATIM)
endfunction()

function(windows_program target)
    set(icon "")
    if(CTS_RSVG_CONVERT AND CTS_ICOTOOL)
        set(file ${CMAKE_CURRENT_BINARY_DIR}/${target}.ico)
        program_icon(${file})
        set(icon "1 ICON \"${file}\"")
        set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${target}.rc
            PROPERTIES OBJECT_DEPENDS ${file})
    endif()
    string(REPLACE "." "," version ${PROJECT_VERSION})
    configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/canvas-workbench.rc.in ${target}.rc @ONLY)
    target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
endfunction()
