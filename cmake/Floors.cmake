# The logic's targets, from the ground up: one folder each. A target sees the headers of its own folder
# and of those that it stands on, and no others: an include that goes up or across does not compile.
#
# Where sources are compiled many at a time, all of them make one target, which reads the headers of the
# floors once. The headers that a floor may see are told by the other builds then.
#
# A floor that stands on a LIBRARY names where its HEADERS are. One that is APART is a target of its own in
# all builds: its unnamed namespaces have names that others have, too.
if(CMAKE_UNITY_BUILD)
  add_library(tracewell_logic STATIC)
  set_target_properties(tracewell_logic PROPERTIES UNITY_BUILD_BATCH_SIZE 32)
  target_link_libraries(tracewell_logic PRIVATE tracewell_warnings)
endif()
function(tracewell_floor NAME)
  cmake_parse_arguments(PARSE_ARGV 1 FLOOR "APART" "" "SOURCES;SEES;DEFINES;LIBRARY;HEADERS")
  if(CMAKE_UNITY_BUILD AND NOT FLOOR_APART)
    add_library(tracewell_${NAME} INTERFACE)
    list(TRANSFORM FLOOR_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    target_sources(tracewell_logic PRIVATE ${FLOOR_SOURCES})
    target_include_directories(tracewell_logic PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_compile_definitions(tracewell_logic PUBLIC ${FLOOR_DEFINES})
    target_link_libraries(tracewell_${NAME} INTERFACE tracewell_logic)
    return()
  endif()
  add_library(tracewell_${NAME} STATIC ${FLOOR_SOURCES})
  target_include_directories(tracewell_${NAME} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_compile_definitions(tracewell_${NAME} PUBLIC ${FLOOR_DEFINES})
  target_include_directories(tracewell_${NAME} SYSTEM PRIVATE ${FLOOR_HEADERS})
  target_link_libraries(tracewell_${NAME} PUBLIC ${FLOOR_SEES}
                        PRIVATE ${FLOOR_LIBRARY} tracewell_warnings)
endfunction()

add_subdirectory(platform/base)
add_subdirectory(platform/services)
add_subdirectory(platform/controls)
add_subdirectory(link/line)
add_subdirectory(panel/scales)
add_subdirectory(files/setup)
add_subdirectory(known)
add_subdirectory(app/window)
add_subdirectory(files/kept)
add_subdirectory(files/sets)
add_subdirectory(support/texts)
add_subdirectory(support/log)
add_subdirectory(view/marks)
if(TRACEWELL_RECORDER)
  add_subdirectory(records)
endif()
add_subdirectory(link)
add_subdirectory(panel)
add_subdirectory(view)
add_subdirectory(files)
add_subdirectory(support)
add_subdirectory(app)
