# Reads rooms.txt, the one list of rooms.

set(LUMORA_ROOMS_FILE ${PROJECT_SOURCE_DIR}/rooms.txt)
set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
             ${LUMORA_ROOMS_FILE})

# lumora_rooms(OUT KIND...)   the folders of the rooms of these kinds, in the order of the list
function(lumora_rooms out)
  file(STRINGS ${LUMORA_ROOMS_FILE} lines REGEX "^[a-z]")
  set(rooms "")
  foreach(line ${lines})
    string(REGEX MATCH "^([^ ]+) +([a-z]+)" _ "${line}")
    if(CMAKE_MATCH_2 IN_LIST ARGN)
      list(APPEND rooms ${CMAKE_MATCH_1})
    endif()
  endforeach()
  set(${out} ${rooms} PARENT_SCOPE)
endfunction()

# lumora_room_sources(OUT KIND...)   all sources of these rooms
macro(lumora_room_sources out)
  lumora_rooms(_rooms ${ARGN})
  list(TRANSFORM _rooms PREPEND ${PROJECT_SOURCE_DIR}/)
  list(TRANSFORM _rooms APPEND /*.cpp)
  file(GLOB ${out} CONFIGURE_DEPENDS ${_rooms})
endmacro()

# lumora_compile_by_rooms(TARGET [APART REGEX])   in a unity build a room of the target is compiled as
# one source, which reads its headers once; files that match REGEX stay apart.
function(lumora_compile_by_rooms target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "APART" "")
  get_target_property(sources ${target} SOURCES)
  foreach(source ${sources})
    cmake_path(ABSOLUTE_PATH source NORMALIZE)
    if(arg_APART AND source MATCHES "${arg_APART}")
      continue()
    endif()
    cmake_path(GET source PARENT_PATH room)
    cmake_path(RELATIVE_PATH room BASE_DIRECTORY ${PROJECT_SOURCE_DIR})
    string(MAKE_C_IDENTIFIER ${room} room)
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${room})
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
endfunction()
