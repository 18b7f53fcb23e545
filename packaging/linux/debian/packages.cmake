# The Debian packages that cpack makes of an installation: a package for each of its parts.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quelby)
set(CPACK_PACKAGE_VENDOR Quelby)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Quelby maintainers <maintainers@quelby.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "shows what the power of a computer is doing")
set(CPACK_COMPONENTS_ALL quelby quelbyctl limiter)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_STRIP_FILES ON)
# With a staging folder in front of the paths and not in them, because entries and services name programs by theirs.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/complete.cmake)
set(CPACK_QUELBY_DEBIAN_FILES ${CMAKE_CURRENT_LIST_DIR})
set(CPACK_QUELBY_CHANGES ${PROJECT_SOURCE_DIR}/CHANGELOG.md)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_QUELBY_PACKAGE_NAME quelby)
set(CPACK_DEBIAN_QUELBY_PACKAGE_SECTION utils)
set(CPACK_COMPONENT_QUELBY_DESCRIPTION "Quelby shows what the battery gives or takes, where the watts go, which
processes cost most, and how long it will last. It keeps a history of it.

This package holds the program for desktops, with tray and dashboard.")
# What the dashboard's files import is loaded when it is first shown, so that no tool finds it in the program.
set(CPACK_DEBIAN_QUELBY_PACKAGE_DEPENDS
    "qml6-module-qtqml, qml6-module-qtqml-models, qml6-module-qtqml-workerscript, qml6-module-qtquick, qml6-module-qtquick-layouts, qml6-module-qtquick-templates, qml6-module-qtquick-window")
set(CPACK_DEBIAN_QUELBY_PACKAGE_RECOMMENDS
    "quelbyctl (= ${PROJECT_VERSION}-1), quelby-limiter (= ${PROJECT_VERSION}-1), fonts-roboto-unhinted, fonts-dejavu-core, pkexec, qt6-wayland")

set(CPACK_DEBIAN_QUELBYCTL_PACKAGE_NAME quelbyctl)
set(CPACK_DEBIAN_QUELBYCTL_PACKAGE_SECTION utils)
set(CPACK_COMPONENT_QUELBYCTL_DESCRIPTION "Quelby shows what the battery gives or takes, where the watts go, which
processes cost most, and how long it will last.

This package holds the program for terminals, bars and scripts, which needs no
display.")

set(CPACK_DEBIAN_LIMITER_PACKAGE_NAME quelby-limiter)
set(CPACK_DEBIAN_LIMITER_PACKAGE_SECTION admin)
set(CPACK_COMPONENT_LIMITER_DESCRIPTION "Quelby shows what the power of a computer is doing, and lets its battery be
charged only as far as is good for it.

This package holds the service that keeps the limit.")
set(CPACK_DEBIAN_LIMITER_PACKAGE_DEPENDS "init-system-helpers (>= 1.52)")
set(CPACK_DEBIAN_LIMITER_PACKAGE_RECOMMENDS "quelby | quelbyctl")
set(CPACK_DEBIAN_LIMITER_PACKAGE_CONTROL_EXTRA
    "${CMAKE_CURRENT_LIST_DIR}/limiter/postinst;${CMAKE_CURRENT_LIST_DIR}/limiter/prerm;${CMAKE_CURRENT_LIST_DIR}/limiter/postrm")
include(CPack)
