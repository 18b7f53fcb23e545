# This machine's Qt, by its headers and names: both are the same on macOS. Its code generators run here.

set(qt /usr/include/x86_64-linux-gnu/qt6)
set(qt_tools /usr/lib/qt6/libexec)

# qt_module(NAME [OTHER TARGET]...)
function(qt_module name)
    other_library(Qt6::${name} -lQt6${name} ${ARGN})
    target_include_directories(Qt6::${name} INTERFACE ${qt} ${qt}/Qt${name})
endfunction()

qt_module(Core)
target_link_libraries(Qt6::Core INTERFACE -lQt6CoreOfLibcxx)
qt_module(Gui Qt6::Core)
qt_module(Network Qt6::Core)
qt_module(Qml Qt6::Network)
target_include_directories(Qt6::Qml INTERFACE ${qt}/QtQmlIntegration)
qt_module(QmlModels Qt6::Qml)
qt_module(Quick Qt6::Gui Qt6::QmlModels)
qt_module(Svg Qt6::Gui)

add_executable(Qt6::moc IMPORTED GLOBAL)
set_target_properties(Qt6::moc PROPERTIES IMPORTED_LOCATION ${qt_tools}/moc)
set(Qt6Core_VERSION_MAJOR 6)
set(Qt6Core_VERSION_MINOR 4)

# The C++ of a module; its QML is compiled where the program is built to be run.
function(qt_add_library name type)
    add_library(${name} ${type})
endfunction()

function(qt_add_qml_module name)
    cmake_parse_arguments(MODULE "" "URI" "SOURCES" ${ARGN})
    string(REPLACE "." "_" class ${MODULE_URI})
    file(CONFIGURE OUTPUT ${name}_plugin.cpp @ONLY CONTENT "#include <QtPlugin>
extern const QStaticPlugin qt_static_plugin_@class@Plugin();
const QStaticPlugin qt_static_plugin_@class@Plugin() {
    return {nullptr, nullptr};
}
")
    target_sources(${name} PRIVATE ${MODULE_SOURCES} ${CMAKE_CURRENT_BINARY_DIR}/${name}_plugin.cpp)
    add_library(${name}plugin INTERFACE)
    target_link_libraries(${name}plugin INTERFACE ${name})
endfunction()

function(qt_add_resources)
endfunction()
