# One set of flags for everything of the project's own: strict warnings as errors, hardening, sanitizers on request.
add_library(sonaro_flags INTERFACE)
target_compile_options(sonaro_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
  -Wdouble-promotion -Wformat=2 -Wno-missing-field-initializers -Werror
  -fstack-protector-strong -ffunction-sections -fdata-sections)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees an overlap in "literal" + std::string&& that is not there (its bug 105651).
  target_compile_options(sonaro_flags INTERFACE -Wno-restrict)
endif()
if(SONARO_SANITIZE)
  target_compile_options(sonaro_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_compile_definitions(sonaro_flags INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(sonaro_flags INTERFACE -fsanitize=address,undefined)
else()
  target_compile_options(sonaro_flags INTERFACE $<$<CONFIG:Release>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)
endif()
if(SONARO_FUZZ)
  # Without "function": the marks that it puts before functions do not go with clang 14's coroutines.
  target_compile_options(sonaro_flags INTERFACE -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize=function)
  target_link_options(sonaro_flags INTERFACE -fsanitize=address,undefined)
endif()
if(WIN32)
  # Texts are in the process's ANSI code page, so the narrow functions are the default: UNICODE stays undefined.
  target_compile_definitions(sonaro_flags INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN STRICT
    WINVER=0x0A00 _WIN32_WINNT=0x0A00 _WIN32_IE=0x0A00)
  target_link_options(sonaro_flags INTERFACE -static -fstack-protector-strong -Wl,--gc-sections
    -Wl,--dynamicbase,--nxcompat,--high-entropy-va $<$<CONFIG:Release>:-s>)
endif()
