# Sanitizers concern every object of the program, so they are set for the whole build.
if(BRISKLET_SANITIZE)
    add_compile_options(-fsanitize=${BRISKLET_SANITIZE} -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${BRISKLET_SANITIZE})
endif()
