# Sanitizers concern every object of the program, so they are set for the whole build.
if(BRISKLET_SANITIZE)
    add_compile_options(-fsanitize=${BRISKLET_SANITIZE} -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    # Of g++ 12 it finds the insides of std::regex, once they are instrumented.
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    add_link_options(-fsanitize=${BRISKLET_SANITIZE})
endif()
