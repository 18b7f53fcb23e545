# What an installation on macOS is: Quelby.app with all that it needs within, in a disk image.

set(QUELBY_SIGNING_IDENTITY "-" CACHE STRING "Whose signature the application gets; - for none of anybody's (ad hoc)")

install(TARGETS quelby BUNDLE DESTINATION .) # and quelbyctl in it

# Qt's own tool takes Qt and every other library that does not come with the system into the application.
find_program(MACDEPLOYQT macdeployqt HINTS ${Qt6_DIR}/../../../bin)
if(MACDEPLOYQT)
    install(CODE "
        set(application \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/Quelby.app\")
        execute_process(COMMAND ${MACDEPLOYQT} \${application} -executable=\${application}/Contents/MacOS/quelbyctl
                -qmldir=${PROJECT_SOURCE_DIR}/src/ui/qml -always-overwrite -verbose=1
            COMMAND_ERROR_IS_FATAL ANY)")
else()
    message(STATUS "Quelby.app is installed without Qt, for want of macdeployqt")
endif()

set(CPACK_PACKAGE_NAME Quelby)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_FILE_NAME Quelby-${PROJECT_VERSION}-arm64)
set(CPACK_PACKAGE_VENDOR Quelby)
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/macos/sign.cmake)
set(CPACK_QUELBY_IDENTITY ${QUELBY_SIGNING_IDENTITY})
set(CPACK_VERBATIM_VARIABLES ON)
if(CMAKE_HOST_APPLE)
    set(CPACK_GENERATOR DragNDrop)
    set(CPACK_DMG_VOLUME_NAME Quelby)
    set(CPACK_DMG_FORMAT UDZO)
else()
    set(CPACK_GENERATOR TGZ) # to look at what would be in the image
endif()
include(CPack)
