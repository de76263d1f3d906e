# What every target of our own is compiled with.
add_library(lumora_options INTERFACE)
target_compile_features(lumora_options INTERFACE cxx_std_20)
target_compile_options(lumora_options INTERFACE
  # A contracted a*b+c rounds once instead of twice: results would depend on the machine.
  -ffp-contract=off
  # Square roots in vectors: nobody asks errno, and no result changes.
  -fno-math-errno
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  # Vectors never cross a call that is not inlined, so how they are passed does not matter.
  -Wno-psabi
  # g++ 12 sees both of these in its own inlined std::string, at some lengths of a literal: whether
  # a test builds would hang on the name of the folder. clang++ and the sanitizers look for them.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-array-bounds$<SEMICOLON>-Wno-restrict$<SEMICOLON>-Wno-stringop-overread>
  $<$<BOOL:${LUMORA_WERROR}>:-Werror>)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release)
endif()

# lumora_compile_lightly(TARGET)   for a target in which nothing is computed: an optimised build takes
# half as long to compile with fewer passes.
function(lumora_compile_lightly target)
  target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O1>)
endfunction()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

if(LUMORA_CLANG_TIDY)
  find_program(CLANG_TIDY clang-tidy REQUIRED)
  # The digest makes a changed .clang-tidy a changed command, so that every file is looked at again.
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/.clang-tidy)
  file(MD5 ${PROJECT_SOURCE_DIR}/.clang-tidy TIDY_DIGEST)
  # Told where its file is: the one that several sources are compiled as lies elsewhere.
  set(CMAKE_CXX_CLANG_TIDY
    ${CLANG_TIDY} --quiet --config-file=${PROJECT_SOURCE_DIR}/.clang-tidy
    --warnings-as-errors=* --extra-arg=-DTIDY_DIGEST_${TIDY_DIGEST})
endif()

if(LUMORA_BUILD_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES Clang)
    message(FATAL_ERROR "LUMORA_BUILD_FUZZ needs clang++: libFuzzer is a part of it")
  endif()
  # The library tells the fuzzer which of its branches a seed has reached.
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
