# A room is one folder below src/ and one static library. Its DEPENDS are the only rooms whose
# headers it may include: the include paths travel with the link rules, so that a forbidden
# include does not compile. OWN_NAMES: its sources have names of their own alike, as the formulas do, and
# are never read together (tools/lint).
function(rippenscheibe_room name)
    cmake_parse_arguments(ROOM "OWN_NAMES" "" "DEPENDS;EXCEPT" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    list(TRANSFORM ROOM_EXCEPT PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    list(REMOVE_ITEM sources ${ROOM_EXCEPT})
    string(REPLACE "/" "_" target "rs_${name}")
    add_library(${target} STATIC ${sources})
    set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
    if(ROOM_OWN_NAMES)
        set_target_properties(${target} PROPERTIES UNITY_BUILD OFF)
    endif()
    # Headers are included as "room/Header.h": each room publishes a folder that holds only itself.
    set(published "${CMAKE_BINARY_DIR}/rooms/${target}")
    cmake_path(GET name PARENT_PATH parent)
    file(MAKE_DIRECTORY "${published}/${parent}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${published}/${name}" SYMBOLIC)
    target_include_directories(${target} PUBLIC "${published}")
    foreach(other IN LISTS ROOM_DEPENDS)
        string(REPLACE "/" "_" other "${other}")
        target_link_libraries(${target} PUBLIC rs_${other})
    endforeach()
endfunction()

# Builds a file into a room, byte for byte: `function` of `header` returns it as a text.
function(rippenscheibe_built_in room file header function)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
    file(READ "${file}" bytes HEX)
    string(REGEX REPLACE "(..)" "\\\\x\\1" bytes "${bytes}")
    set(source "${CMAKE_CURRENT_BINARY_DIR}/${function}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"@header@\"

namespace rippenscheibe {

std::string_view @function@() { return \"@bytes@\"; }

}  // namespace rippenscheibe
" @ONLY)
    target_sources(rs_${room} PRIVATE "${source}")
endfunction()
