# Language, warnings and floating-point rules that hold for every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# -O3 costs build time and gains nothing measurable here.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

# Several branches of the calculation compare doubles for exact equality: no contraction
# into fused operations, no fast-math, the same digits on every machine.
add_compile_options(-ffp-contract=off)
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
                    -Woverloaded-virtual -Wimplicit-fallthrough)
# On in `./test`, and so for whoever works on the program; whoever only builds a release, with a compiler that
# did not exist yet, is not stopped by a new warning.
option(RIPPENSCHEIBE_WERROR "Warnings are errors" OFF)
if(RIPPENSCHEIBE_WERROR)
    add_compile_options(-Werror)
endif()

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Optimising, gcc (12 and 14 seen) reports faults inside std::string where there are none.
    add_compile_options(-Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread -Wno-maybe-uninitialized
                        -Wno-array-bounds)
endif()

set(RIPPENSCHEIBE_SANITIZE "" CACHE STRING "Sanitizers, for instance address,undefined")
if(RIPPENSCHEIBE_SANITIZE)
    add_compile_options(-fsanitize=${RIPPENSCHEIBE_SANITIZE} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${RIPPENSCHEIBE_SANITIZE})
endif()

if(RIPPENSCHEIBE_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Libraries that are headers only are those of the building machine; alone, so that nothing else of it comes in.
if(CMAKE_CROSSCOMPILING)
    foreach(kopf CLI nlohmann)
        file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/kopfdateien")
        file(CREATE_LINK "/usr/include/${kopf}" "${CMAKE_BINARY_DIR}/kopfdateien/${kopf}" SYMBOLIC)
    endforeach()
    include_directories(SYSTEM "${CMAKE_BINARY_DIR}/kopfdateien")
endif()
