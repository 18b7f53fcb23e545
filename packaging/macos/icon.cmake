# Draws the icon in every size and puts them into one file. A script: DRAWING, ICON, RSVG_CONVERT, and ICONUTIL or
# PNG2ICNS and PYTHON.

cmake_path(REPLACE_EXTENSION ICON iconset OUTPUT_VARIABLE pictures)
file(REMOVE_RECURSE ${pictures})
file(MAKE_DIRECTORY ${pictures})

function(draw size name)
    execute_process(COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${pictures}/${name}.png ${DRAWING}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(size 16 32 128 256 512)
    math(EXPR double "2 * ${size}")
    draw(${size} icon_${size}x${size})
    draw(${double} icon_${size}x${size}@2x)
endforeach()

if(ICONUTIL)
    execute_process(COMMAND ${ICONUTIL} --convert icns --output ${ICON} ${pictures} COMMAND_ERROR_IS_FATAL ANY)
else()
    file(GLOB drawn ${pictures}/icon_16x16.png ${pictures}/icon_32x32.png ${pictures}/icon_128x128.png
        ${pictures}/icon_256x256.png ${pictures}/icon_512x512.png ${pictures}/icon_512x512@2x.png)
    execute_process(COMMAND ${PNG2ICNS} ${ICON} ${drawn} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${PYTHON} ${CMAKE_CURRENT_LIST_DIR}/add_retina_sizes.py ${ICON} ${pictures}
        COMMAND_ERROR_IS_FATAL ANY)
endif()
