# One static library per layer folder. A layer links only what stands below it, so that a wrong include of a
# higher layer does not link, and a wrong arrow shows up in one line of src/CMakeLists.txt.

set(GFC_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
                 -Wimplicit-fallthrough -Wextra-semi)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # What the optimiser of GCC 12 believes to see in std::string is not there; the sanitizers look for the real thing.
    list(APPEND GFC_WARNINGS -Wno-stringop-overflow -Wno-stringop-overread -Wno-array-bounds -Wno-restrict)
endif()
if(GFC_WERROR)
    list(APPEND GFC_WARNINGS -Werror)
endif()

# The standard headers that nearly every file of the project takes in.
set(GFC_STD_HEADERS <algorithm> <array> <functional> <map> <memory> <optional> <string> <string_view> <utility>
                    <variant> <vector>)

# gfc_header_set(name OPTIONS options... LINK libraries... HEADERS headers...): headers that are precompiled once for
# all targets that take the set; precompiling them for each target cost a fifth of a clean build.
function(gfc_header_set name)
    if(NOT GFC_PCH)
        return()
    endif()
    cmake_parse_arguments(SET "" "" "OPTIONS;LINK;HEADERS" ${ARGN})
    set(source ${CMAKE_BINARY_DIR}/headers/${name}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "// Bears the precompiled headers of the set.\n")
    add_library(gfc_headers_${name} STATIC ${source})
    target_compile_options(gfc_headers_${name} PRIVATE ${GFC_WARNINGS} ${SET_OPTIONS})
    target_link_libraries(gfc_headers_${name} PRIVATE ${SET_LINK})
    target_precompile_headers(gfc_headers_${name} PRIVATE ${GFC_STD_HEADERS} ${SET_HEADERS})
endfunction()

# gfc_take_header_set(target name)
function(gfc_take_header_set target name)
    if(NOT GFC_PCH)
        return()
    endif()
    target_precompile_headers(${target} REUSE_FROM gfc_headers_${name})
    if(NOT MSVC)
        # A set serves only what is compiled as it was itself, as position-independent code of a library.
        target_compile_options(${target} PRIVATE -fPIC)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # Its hundred megabytes count as heap: without this the compiler collects garbage from the first line on.
        target_compile_options(${target} PRIVATE --param=ggc-min-heapsize=524288)
    endif()
endfunction()

gfc_header_set(std)

# gfc_settings(target [header set, "std" if none is named, or NO_PCH])
function(gfc_settings target)
    target_compile_options(${target} PRIVATE ${GFC_WARNINGS})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    if(NOT ARGN)
        gfc_take_header_set(${target} std)
    elseif(NOT ARGV1 STREQUAL "NO_PCH")
        gfc_take_header_set(${target} ${ARGV1})
    endif()
endfunction()

# gfc_layer(name [HEADERS header set] [layers it may use ...]): all sources of the folder, and those of the machine's
# own form.
function(gfc_layer name)
    cmake_parse_arguments(LAYER "" "HEADERS" "" ${ARGN})
    set(layers ${LAYER_UNPARSED_ARGUMENTS})
    list(TRANSFORM layers PREPEND gfc_)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
    list(FILTER sources EXCLUDE REGEX "/(posix|windows)/")
    if(WIN32)
        file(GLOB machine CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/windows/*.cpp)
    else()
        file(GLOB machine CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/posix/*.cpp)
    endif()
    if(NOT sources AND NOT machine)
        add_library(gfc_${name} INTERFACE)
        target_include_directories(gfc_${name} INTERFACE ${PROJECT_SOURCE_DIR}/src)
        target_link_libraries(gfc_${name} INTERFACE ${layers})
        return()
    endif()
    add_library(gfc_${name} STATIC ${sources} ${machine})
    gfc_settings(gfc_${name} ${LAYER_HEADERS})
    if(GFC_KEEP_INLINE)
        # Of the layers alone: with the toolkit's headers it would take minutes.
        target_compile_options(gfc_${name} PRIVATE -fkeep-inline-functions)
    endif()
    target_link_libraries(gfc_${name} PUBLIC ${layers})
endfunction()
