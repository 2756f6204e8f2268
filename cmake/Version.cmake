# Writes OUT, which defines the program's version: VERSION alone for a release (the commit carries the tag
# "v" VERSION, or there is no repository), else with the commit behind it, as "2.0.0+g1a2b3c4".
#     cmake -DSOURCE=FOLDER -DVERSION=2.0.0 -DOUT=FILE -P Version.cmake
# Included, it only sets RIPPENSCHEIBE_FASSUNG.
cmake_minimum_required(VERSION 3.25)
set(RIPPENSCHEIBE_FASSUNG "${VERSION}")
execute_process(COMMAND git -C "${SOURCE}" describe --exact-match --match "v${VERSION}" HEAD
                RESULT_VARIABLE no_release OUTPUT_QUIET ERROR_QUIET)
if(no_release)
    execute_process(COMMAND git -C "${SOURCE}" rev-parse --short=7 HEAD
                    OUTPUT_VARIABLE commit OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    if(commit)
        string(APPEND RIPPENSCHEIBE_FASSUNG "+g${commit}")
    endif()
endif()
if(OUT)
    file(CONFIGURE OUTPUT "${OUT}" CONTENT "#include \"basis/Version.h\"

namespace rippenscheibe {

std::string_view programmversion() { return \"@RIPPENSCHEIBE_FASSUNG@\"; }

}  // namespace rippenscheibe
" @ONLY)
endif()
