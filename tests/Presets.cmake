# cmake -D PRESETS=<file> -D PRESET=<name> -P Presets.cmake
#
# Fails where a preset, by itself or by what it inherits, lets a warning stop the build.
cmake_minimum_required(VERSION 3.25)
file(READ "${PRESETS}" presets)
string(JSON count LENGTH "${presets}" configurePresets)
math(EXPR last "${count} - 1")

# The first preset of a chain that says anything decides; one that none says for is the option's
# own default, OFF.
set(name "${PRESET}")
set(value "")
while(name AND value STREQUAL "")
    set(next "")
    foreach(i RANGE ${last})
        string(JSON each GET "${presets}" configurePresets ${i})
        string(JSON each_name GET "${each}" name)
        if(each_name STREQUAL name)
            string(JSON value ERROR_VARIABLE missing
                GET "${each}" cacheVariables BRISKLET_WARNINGS_AS_ERRORS)
            if(missing)
                set(value "")
            endif()
            string(JSON next ERROR_VARIABLE missing GET "${each}" inherits)
            if(missing)
                set(next "")
            endif()
        endif()
    endforeach()
    if(next MATCHES "^\\[")
        message(FATAL_ERROR "Presets with several parents are not followed here.")
    endif()
    set(name "${next}")
endwhile()
if(value)
    message(FATAL_ERROR "The preset ${PRESET} stops at warnings.")
endif()
