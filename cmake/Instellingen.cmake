# What every target of the house shares: warnings as errors and the one include root.
add_library(plexoran_instellingen INTERFACE)
target_include_directories(plexoran_instellingen INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(
  plexoran_instellingen
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wsign-conversion
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wold-style-cast
            -Werror)
# Texts with accents stand in the sources as UTF-8; where bytes of the code page are meant they are
# written as escapes.
target_compile_definitions(plexoran_instellingen INTERFACE QT_NO_CAST_FROM_BYTEARRAY
                                                           QT_USE_QSTRINGBUILDER)

if(PLEXORAN_FUZZ)
  target_compile_options(plexoran_instellingen INTERFACE -fsanitize=fuzzer-no-link)
endif()

# What is included again and again, compiled once per kind of target. Off outside the daily build, so
# that a missing include shows there.
set(PLEXORAN_PCH_STD
    <algorithm> <array> <cstdint> <filesystem> <functional> <map> <memory> <optional> <span> <string>
    <string_view> <unordered_map> <utility> <vector> <tl/expected.hpp>)
function(plexoran_pch doel)
  if(PLEXORAN_SNEL)
    target_precompile_headers(${doel} PRIVATE ${PLEXORAN_PCH_STD} ${ARGN})
  endif()
endfunction()

if(PLEXORAN_SNEL)
  find_program(PLEXORAN_LLD ld.lld)
  if(PLEXORAN_LLD)
    add_link_options(-fuse-ld=lld)
  endif()
endif()
