# Everything is built alike, tests too, so that one build serves the suite under the sanitizers and the fuzzers.
if(GFC_SANITIZE)
    string(REPLACE ";" "," watched "${GFC_SANITIZE}")
    add_compile_options(-fsanitize=${watched} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${watched})
endif()
if(GFC_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
