# What every target is compiled with: language, warnings, arithmetic, sanitizers.

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(zof_compilation INTERFACE)
target_compile_features(zof_compilation INTERFACE cxx_std_20)

# One arithmetic on every machine and in every build: no fused multiply-add, no reassociation, no instructions of
# the local processor, so that debug, release and sanitizer builds print the same digits.
target_compile_options(zof_compilation INTERFACE -ffp-contract=off)

target_compile_options(zof_compilation INTERFACE
  -Werror -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wdouble-promotion -Wformat=2
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wimplicit-fallthrough)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(zof_compilation INTERFACE
    -Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wuseless-cast)
endif()

# Indices of the standard containers are checked in every build that is handed out.
target_compile_definitions(zof_compilation INTERFACE _GLIBCXX_ASSERTIONS)

if(ZOF_ASSAINISSEURS)
  target_compile_options(zof_compilation INTERFACE
    -fsanitize=${ZOF_ASSAINISSEURS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(zof_compilation INTERFACE -fsanitize=${ZOF_ASSAINISSEURS})
  # Instrumented, the regular expressions of g++ 12's library look uninitialised to it; the plain builds keep this warning.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(zof_compilation INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()
