# Sanitizers concern every object of the program, so they are set for the whole build.
if(BRISKLET_SANITIZE)
    add_compile_options(-fsanitize=${BRISKLET_SANITIZE} -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    if(BRISKLET_SANITIZE MATCHES undefined)
        # It asks for the type information of classes that only the engine's module has.
        add_compile_options(-fno-sanitize=vptr)
    endif()
    add_link_options(-fsanitize=${BRISKLET_SANITIZE})
endif()
