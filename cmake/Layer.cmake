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

function(gfc_settings target)
    target_compile_options(${target} PRIVATE ${GFC_WARNINGS})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    if(GFC_PCH AND NOT ARGV1 STREQUAL "NO_PCH")
        target_precompile_headers(${target} PRIVATE ${GFC_STD_HEADERS})
    endif()
endfunction()

# gfc_layer(name [layers it may use ...]): all sources of the folder, and those of the machine's own form.
function(gfc_layer name)
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
        list(TRANSFORM ARGN PREPEND gfc_)
        target_link_libraries(gfc_${name} INTERFACE ${ARGN})
        return()
    endif()
    add_library(gfc_${name} STATIC ${sources} ${machine})
    gfc_settings(gfc_${name})
    list(TRANSFORM ARGN PREPEND gfc_)
    target_link_libraries(gfc_${name} PUBLIC ${ARGN})
endfunction()
