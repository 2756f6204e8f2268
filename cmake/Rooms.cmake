# A room is one folder below src/ and one static library. Its DEPENDS are the only rooms whose
# headers it may include: the include paths travel with the link rules, so that a forbidden
# include does not compile.
function(rippenscheibe_room name)
    cmake_parse_arguments(ROOM "" "" "DEPENDS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    add_library(rs_${name} STATIC ${sources})
    set_target_properties(rs_${name} PROPERTIES LINKER_LANGUAGE CXX)
    # Headers are included as "room/Header.h": each room publishes a folder that holds only itself.
    set(published "${CMAKE_BINARY_DIR}/rooms/${name}")
    file(MAKE_DIRECTORY "${published}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${published}/${name}" SYMBOLIC)
    target_include_directories(rs_${name} PUBLIC "${published}")
    foreach(other IN LISTS ROOM_DEPENDS)
        target_link_libraries(rs_${name} PUBLIC rs_${other})
    endforeach()
endfunction()
