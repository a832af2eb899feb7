# How everything of this project is compiled.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# Texts in the program are EUC-JP, its sources are UTF-8. The toolkit's drawing calls are marked as
# deprecated there; they are the ones this project is built on.
add_library(tessary_flags INTERFACE)
target_compile_options(tessary_flags INTERFACE
  -finput-charset=UTF-8 -fexec-charset=EUC-JP
  -Wall -Wextra -Wconversion -Wshadow -Wold-style-cast -Werror -Wno-deprecated-declarations)
if(TESSARY_SANITIZE)
  target_compile_options(tessary_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(tessary_flags INTERFACE -fsanitize=address,undefined)
endif()
if(TESSARY_COVERAGE)
  target_compile_options(tessary_flags INTERFACE --coverage)
  target_link_options(tessary_flags INTERFACE --coverage)
endif()
