# One set of flags for everything that is ours. Sanitizers go to every target, or their reports would have holes.
add_library(barquell_flags INTERFACE)
target_compile_options(barquell_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
                                                -Wold-style-cast -Woverloaded-virtual)
if(NOT APPLE OR CMAKE_CROSSCOMPILING)
  # Not on a Mac itself, whose compilers have not read these sources yet.
  target_compile_options(barquell_flags INTERFACE -Werror)
endif()
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  # Within a group gcc takes a source for a header, and what is anonymous in it for a mistake.
  target_compile_options(barquell_flags INTERFACE -Wno-subobject-linkage)
endif()
target_compile_definitions(barquell_flags INTERFACE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)

if(BARQUELL_SANITIZE)
  set(sanitize -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_compile_options(${sanitize})
  add_link_options(${sanitize})
  if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
    # The rooms' objects serve the fuzz targets as well; only those link the fuzzer's main.
    set(BARQUELL_COVERAGE -fsanitize=fuzzer-no-link)
    add_link_options(${BARQUELL_COVERAGE})
  endif()
endif()

if(NOT APPLE) # what nobody calls stays out of a release
  add_compile_options($<$<CONFIG:Release>:-ffunction-sections> $<$<CONFIG:Release>:-fdata-sections>)
  add_link_options($<$<CONFIG:Release>:-Wl,--gc-sections>)
endif()

find_program(LLD ld.lld)
if(LLD AND NOT APPLE)
  add_link_options(-fuse-ld=lld) # several times faster, which the many tests notice
endif()

if(NOT BARQUELL_SANITIZE)
  add_link_options(-Wl,-z,relro,-z,now) # no table of functions stays writable in a program that runs
endif()
