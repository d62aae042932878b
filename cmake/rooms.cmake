# One room of the house is one static library: what a room may use is what it links, nothing else.
add_library(orvane_flags INTERFACE)
target_include_directories(orvane_flags INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_definitions(orvane_flags INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
target_compile_options(orvane_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast -Wunused)
if(ORVANE_WERROR)
  target_compile_options(orvane_flags INTERFACE -Werror)
endif()
if(ORVANE_SANITIZE)
  target_compile_options(orvane_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(orvane_flags INTERFACE -fsanitize=address,undefined)
endif()

# add_room(NAME SOURCES a.cpp a.ui ... LINKS target ... PRIVATE_LINKS target ...): target names read orvane_<room>.
# A .ui that is no source is not built anew in the same run in which it changes.
function(add_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_link_libraries(${name} PUBLIC orvane_flags ${ROOM_LINKS} PRIVATE ${ROOM_PRIVATE_LINKS})
endfunction()
