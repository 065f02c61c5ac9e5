# Makes the bundle's .icns from the 1024-pixel brand artwork with the system's sips and iconutil.
# Usage: cmake -DSOURCE=ferrow-1024.png -DOUTPUT=ferrow.icns -P MakeIcns.cmake
get_filename_component(output_dir ${OUTPUT} DIRECTORY)
set(iconset ${output_dir}/ferrow.iconset)
file(REMOVE_RECURSE ${iconset})
file(MAKE_DIRECTORY ${iconset})
foreach(size 16 32 128 256 512)
    math(EXPR double "${size} * 2")
    execute_process(COMMAND sips -z ${size} ${size} ${SOURCE} --out ${iconset}/icon_${size}x${size}.png OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND sips -z ${double} ${double} ${SOURCE} --out ${iconset}/icon_${size}x${size}@2x.png OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
execute_process(COMMAND iconutil -c icns ${iconset} -o ${OUTPUT} COMMAND_ERROR_IS_FATAL ANY)
