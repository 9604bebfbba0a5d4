# What tests, fuzz targets and benchmarks put in the place of the outside; they share one build of it.
find_package(GTest REQUIRED)
configure_file(${CMAKE_CURRENT_LIST_DIR}/Places.cpp.in ${PROJECT_BINARY_DIR}/Places.cpp @ONLY)
# The one source that differs from clone to clone.
set_source_files_properties(${PROJECT_BINARY_DIR}/Places.cpp PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
add_library(tracewell_doubles STATIC
  ${PROJECT_SOURCE_DIR}/tests/Doubles.cpp
  ${PROJECT_BINARY_DIR}/Places.cpp
)
target_include_directories(tracewell_doubles PUBLIC ${PROJECT_SOURCE_DIR}/tests)
target_link_libraries(tracewell_doubles PUBLIC tracewell_app tracewell_line GTest::gtest
                      PRIVATE tracewell_warnings)
read_ahead_by(tracewell_base tracewell_doubles)
