# Runs before the disk image is made, over what will be in it.
file(GLOB_RECURSE programs LIST_DIRECTORIES true "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*.app")
list(FILTER programs INCLUDE REGEX "/Quelby\\.app$")
list(LENGTH programs count)
if(NOT count EQUAL 1)
    message(FATAL_ERROR "There should be one Quelby.app to be signed, and there are ${count}")
endif()
execute_process(COMMAND ${CMAKE_CURRENT_LIST_DIR}/sign ${programs} ${CPACK_QUELBY_IDENTITY}
        ${CMAKE_CURRENT_LIST_DIR}/Quelby.entitlements
    COMMAND_ERROR_IS_FATAL ANY)
