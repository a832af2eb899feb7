# How everything of this project is compiled. None of it is handed on to those who use the libraries, in whichever
# way they do; what their own sources need stands at the library.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# Texts in the program are EUC-JP, its sources are UTF-8.
set(TEXT_OPTIONS -finput-charset=UTF-8 -fexec-charset=EUC-JP)
if(TESSARY_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "TESSARY_FUZZ needs clang, which has libFuzzer. Use the preset 'fuzz'.")
  endif()
  # clang has no EUC-JP. What a program says in Japanese is not what it reads; no panel is made of this build.
  set(TEXT_OPTIONS -finput-charset=UTF-8)
endif()

# Warnings are errors where they can be mended: not within somebody else's project.
if(PROJECT_IS_TOP_LEVEL AND NOT TESSARY_FUZZ AND NOT DEFINED CMAKE_COMPILE_WARNING_AS_ERROR)
  set(CMAKE_COMPILE_WARNING_AS_ERROR ON)
endif()

# The toolkit's drawing calls are marked as deprecated there; they are the ones this project is built on.
include_directories(${PROJECT_SOURCE_DIR})
add_compile_options(${TEXT_OPTIONS})
if(NOT TESSARY_FUZZ) # the compiler that panels are made with finds what there is to find
  add_compile_options(-Wall -Wextra -Wconversion -Wshadow -Wold-style-cast -Wno-deprecated-declarations)
endif()

# What the libraries are to be linked with besides.
set(INSTRUMENT_LINK_OPTIONS "")
if(TESSARY_FUZZ)
  add_compile_options(-w -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined
    -fno-omit-frame-pointer)
  set(INSTRUMENT_LINK_OPTIONS -fsanitize=address,undefined)
elseif(TESSARY_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  set(INSTRUMENT_LINK_OPTIONS -fsanitize=address,undefined)
elseif(TESSARY_SANITIZE_THREADS)
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  set(INSTRUMENT_LINK_OPTIONS -fsanitize=thread)
elseif(TESSARY_COVERAGE)
  add_compile_options(--coverage)
  set(INSTRUMENT_LINK_OPTIONS --coverage)
endif()
add_link_options(${INSTRUMENT_LINK_OPTIONS})
