# Files by which desktops and services know the programs. They name programs by their whole path, so they are written
# when the prefix is known, which is when they are installed.

# quelby_install_entry(NAME DESTINATION COMPONENT) installs linux/entries/NAME.in as NAME.
function(quelby_install_entry name destination component)
    set(template ${CMAKE_CURRENT_SOURCE_DIR}/linux/entries/${name}.in)
    set(written ${CMAKE_CURRENT_BINARY_DIR}/${name})
    install(CODE "
        set(programs \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
        set(version \"${PROJECT_VERSION}\")
        set(date \"${QUELBY_VERSION_DATE}\")
        configure_file(\"${template}\" \"${written}\" @ONLY)
        file(INSTALL \"${written}\" DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${destination}\")"
        COMPONENT ${component})
endfunction()
