# Quelby.app: the program, quelbyctl beside it so that both have the same preferences, and in the resources the icon and
# the charge-limit helper, where they are to be had.

set(QUELBY_HELPER "" CACHE FILEPATH "The charge-limit helper, pwr_limiter, to go into the application")
find_program(RSVG_CONVERT rsvg-convert)
find_program(ICONUTIL iconutil)
find_program(PNG2ICNS png2icns)
find_package(Python3 COMPONENTS Interpreter) # which completes what png2icns makes

function(add_resource target file)
    target_sources(${target} PRIVATE ${file})
    set_source_files_properties(${file} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
endfunction()

function(add_icon target)
    if(NOT RSVG_CONVERT OR NOT (ICONUTIL OR PNG2ICNS))
        message(STATUS "Quelby.app gets no icon of its own, for want of rsvg-convert, or of iconutil and png2icns")
        return()
    endif()
    set(drawing ${PROJECT_SOURCE_DIR}/src/ui/symbols/quelby.svg)
    set(script ${PROJECT_SOURCE_DIR}/packaging/macos/icon.cmake)
    set(completion ${PROJECT_SOURCE_DIR}/packaging/macos/add_retina_sizes.py)
    set(icon ${CMAKE_CURRENT_BINARY_DIR}/Quelby.icns)
    add_custom_command(OUTPUT ${icon} DEPENDS ${drawing} ${script} ${completion} VERBATIM
        COMMAND ${CMAKE_COMMAND} -DDRAWING=${drawing} -DICON=${icon} -DRSVG_CONVERT=${RSVG_CONVERT}
            -DICONUTIL=${ICONUTIL} -DPNG2ICNS=${PNG2ICNS} -DPYTHON=${Python3_EXECUTABLE} -P ${script})
    add_resource(${target} ${icon})
endfunction()

# make_application(PROGRAM COMPANION) makes the bundle of PROGRAM.
function(make_application program companion)
    set(property_list ${CMAKE_CURRENT_BINARY_DIR}/Info.plist)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/macos/Info.plist.in ${property_list} @ONLY)
    set_target_properties(${program} PROPERTIES
        MACOSX_BUNDLE ON OUTPUT_NAME Quelby MACOSX_BUNDLE_INFO_PLIST ${property_list})
    set_target_properties(${companion} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY $<TARGET_BUNDLE_CONTENT_DIR:${program}>/MacOS)
    # Where macdeployqt puts libraries. The linker is told, so that building and installing leave it as it is.
    foreach(target ${program} ${companion})
        target_link_options(${target} PRIVATE LINKER:-rpath,@executable_path/../Frameworks)
    endforeach()
    add_icon(${program})
    add_resource(${program} ${PROJECT_SOURCE_DIR}/packaging/macos/put-quelbyctl-into-path)
    if(QUELBY_HELPER)
        add_resource(${program} ${QUELBY_HELPER})
    endif()
endfunction()
