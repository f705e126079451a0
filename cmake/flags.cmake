# Compiler and linker flags of all targets.

if(WIN32)
  # Windows 10; the whole library inside each program, which so needs none of the compiler's own.
  add_compile_definitions(_WIN32_WINNT=0x0A00 NOMINMAX WIN32_LEAN_AND_MEAN)
  add_link_options(-static)
endif()

# Not with clang, whose objects hold no code that a target could be linked of that does without (see below).
if(CMAKE_BUILD_TYPE STREQUAL "Release" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND
   NOT DEFINED CMAKE_INTERPROCEDURAL_OPTIMIZATION)
  include(CheckIPOSupported)
  check_ipo_supported(RESULT can_generate_code_when_linking OUTPUT reason LANGUAGES CXX)
  set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ${can_generate_code_when_linking})
endif()

# Of a target that uses Qt: a linker that generates its code would copy Qt's data into the program, which Qt forbids.
function(generate_no_code_when_linking target)
  set_target_properties(${target} PROPERTIES INTERPROCEDURAL_OPTIMIZATION OFF)
endfunction()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC bug 105329: false alarms in std::string, also while linking.
  set(false_alarms -Wno-restrict -Wno-stringop-overflow)
  if(WIN32)
    list(APPEND false_alarms -Wno-stringop-overread)
  endif()
  add_compile_options(${false_alarms})
  add_link_options(${false_alarms})
endif()

# Hardening of release builds; tests/hardening.cmake and tests/windows_program.cmake check that the program has it.
if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT KELMAR_SANITIZE)
  add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -Wformat -Werror=format-security -fstack-protector-strong)
  if(WIN32)
    # Without -fstack-clash-protection, at which g++ 12 crashes there. Stack protection is a library of its own.
    add_link_options(-fstack-protector-strong -Wl,--dynamicbase,--high-entropy-va,--nxcompat)
    # One small file: nothing that is not called, and no symbols.
    add_compile_options(-ffunction-sections -fdata-sections)
    add_link_options(-Wl,--gc-sections -s)
  else()
    add_compile_options(-fstack-clash-protection)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
      add_compile_options(-fcf-protection)
    endif()
    include(CheckPIESupported)
    check_pie_supported()
    add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
  endif()
endif()

if(NOT CMAKE_BUILD_TYPE STREQUAL "Release")
  add_compile_options(-D_GLIBCXX_ASSERTIONS)
endif()
if(KELMAR_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
