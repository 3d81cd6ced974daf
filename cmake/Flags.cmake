# Flags that the targets of the project share.

# Of all targets: warnings, language level, include root.
add_library(mortane_flags INTERFACE)
target_compile_features(mortane_flags INTERFACE cxx_std_20)
target_include_directories(mortane_flags INTERFACE "${PROJECT_SOURCE_DIR}/src")
target_compile_options(mortane_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
  -Woverloaded-virtual -Wold-style-cast)
# GCC's optimiser imagines paths through members chosen at run time and through texts that
# overlap themselves, and warns of them; the sanitized build looks at the real ones.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(mortane_flags INTERFACE
    "$<$<NOT:$<CONFIG:Debug>>:-Wno-array-bounds;-Wno-maybe-uninitialized;-Wno-restrict;-Wno-stringop-overflow>")
endif()
if(MORTANE_WERROR)
  target_compile_options(mortane_flags INTERFACE -Werror)
endif()

# Of the product's own code: instrumented where the build has sanitizers. What links it needs
# their run-time libraries.
add_library(mortane_product_flags INTERFACE)
if(MORTANE_SANITIZE)
  target_compile_options(mortane_product_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # At a fixed address the addresses in the sanitizers' tables, some 400 000 a program, are known when
  # it is linked, and no start has to write them.
  target_link_options(mortane_flags INTERFACE -fsanitize=address,undefined
    $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-no-pie>)
endif()

# Of code that uses the toolkit: no silent conversion between texts and bytes, no keywords that are
# macros, nothing that was deprecated when the oldest supported release came out.
add_library(mortane_qt_flags INTERFACE)
target_compile_definitions(mortane_qt_flags INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# Of the tests' code, which is built far more often than it runs: neither instrumented nor
# optimised. Programs and the objects that they share need the same kind of code to share
# precompiled headers.
add_library(mortane_test_flags INTERFACE)
target_link_libraries(mortane_test_flags INTERFACE mortane_flags)
if(NOT WIN32)
  target_compile_options(mortane_test_flags INTERFACE -O0 -fPIC)
endif()
