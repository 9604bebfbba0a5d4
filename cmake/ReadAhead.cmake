# Headers of the standard library and the toolkit take most of the time of a source. Where
# TRACEWELL_PRECOMPILED is on, targets read them once. Headers of the program itself are never among them,
# so that a source that does not include one of these fails there, too. A source that does not include a
# library's header fails in every other build.
function(read_ahead TARGET)
  if(TRACEWELL_PRECOMPILED)
    target_precompile_headers(${TARGET} PRIVATE ${ARGN})
  endif()
endfunction()
# For targets that are compiled with the same options.
function(read_ahead_by OTHER)
  if(TRACEWELL_PRECOMPILED)
    foreach(TARGET IN LISTS ARGN)
      target_precompile_headers(${TARGET} REUSE_FROM ${OTHER})
    endforeach()
  endif()
endfunction()
# Those that most sources include, not all: what is read ahead is loaded for each source.
set(STANDARD_HEADERS <algorithm> <array> <cmath> <cstdint> <filesystem> <functional> <memory> <optional>
    <string> <string_view> <utility> <vector>)
