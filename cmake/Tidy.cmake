# The target `tidy` runs clang-tidy over our own sources only: through CMake's own integration it
# would also read what moc generates, and stop there.
find_program(RUN_CLANG_TIDY run-clang-tidy)
if(RUN_CLANG_TIDY)
    add_custom_target(tidy
        COMMAND "${RUN_CLANG_TIDY}" -quiet -p "${CMAKE_BINARY_DIR}"
            -extra-arg=-Wno-unknown-warning-option
            "^${CMAKE_SOURCE_DIR}/(src|tests)/"
        WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}"
        USES_TERMINAL
        VERBATIM)
endif()
