# Warnings, sanitizers and the compiler cache, for every target.

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
                    -Wimplicit-fallthrough -Wunused)
if(GLOSARIA_WERROR)
  add_compile_options(-Werror)
endif()
add_compile_definitions(QT_NO_CAST_FROM_BYTEARRAY QT_NO_KEYWORDS
                        QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(GLOSARIA_SANITIZE)
  # Unwinding through Qt's own frames is cheap enough; leaks inside Qt and fontconfig are not ours to report.
  # With them g++ takes the members of a variant for uninitialized.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer
                      -Wno-maybe-uninitialized)
  add_link_options(-fsanitize=address,undefined)
endif()
if(GLOSARIA_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# The cache serves a second checkout too: paths are taken relative to the source folder.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
      CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
  add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()
