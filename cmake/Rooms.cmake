# A room is one folder below src/ and one static library. Its DEPENDS are the only rooms whose
# headers it may include: the include paths travel with the link rules, so that a forbidden
# include does not compile.
function(rippenscheibe_room name)
    cmake_parse_arguments(ROOM "" "" "DEPENDS;EXCEPT" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    list(TRANSFORM ROOM_EXCEPT PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    list(REMOVE_ITEM sources ${ROOM_EXCEPT})
    string(REPLACE "/" "_" target "rs_${name}")
    add_library(${target} STATIC ${sources})
    set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
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
