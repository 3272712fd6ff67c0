# brisklet_warnings: the warning set of our own code. Whether a warning stops the build is the
# caller's choice: the presets for development and continuous integration say yes, those for users
# and packagers no, whose compilers may be newer than ours and warn of more.
add_library(brisklet_warnings INTERFACE)
target_compile_options(brisklet_warnings INTERFACE
    -Wall -Wextra -Wpedantic
    -Wshadow
    -Wconversion -Wsign-conversion -Wdouble-promotion
    -Wold-style-cast -Wcast-qual
    -Wformat=2
    -Wimplicit-fallthrough
    -Wnon-virtual-dtor -Woverloaded-virtual -Wsuggest-override
    -Wextra-semi
    # Structs with defaults are filled with designated initialisers that leave fields out.
    -Wno-missing-field-initializers
    -Wundef
    # Of g++ it finds the insides of its own standard library, once the optimiser has inlined them.
    $<$<CXX_COMPILER_ID:Clang>:-Wnull-dereference>
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op -Wuseless-cast>
    $<$<BOOL:${BRISKLET_WARNINGS_AS_ERRORS}>:-Werror>)

# The hardening needs an optimised build: _FORTIFY_SOURCE does nothing, and warns, without one.
target_compile_options(brisklet_warnings INTERFACE
    $<$<CONFIG:Release,RelWithDebInfo>:-fstack-protector-strong>)
target_compile_definitions(brisklet_warnings INTERFACE
    $<$<CONFIG:Release,RelWithDebInfo>:_GLIBCXX_ASSERTIONS>)
if(NOT BRISKLET_SANITIZE)
    # Undefined first: some distributions' compilers define it themselves.
    target_compile_options(brisklet_warnings INTERFACE
        $<$<CONFIG:Release,RelWithDebInfo>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)
endif()
