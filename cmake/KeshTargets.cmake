# Targets of the project: one place for language level, warnings, sanitizers, linker and precompiled headers.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wold-style-cast)
if(KESH_WERROR)
  add_compile_options(-Werror)
endif()
# False alarms of g++ 12: overlap in "text" + std::string, the string of a variant that holds something else.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-Wno-restrict -Wno-maybe-uninitialized)
endif()
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
if(KESH_SANITIZE)
  add_compile_options(-fsanitize=${KESH_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KESH_SANITIZE})
  if(KESH_FUZZ)
    add_compile_options(-O1 -gline-tables-only) # half the time to compile; the fuzzers run as far
  elseif(CMAKE_BUILD_TYPE STREQUAL "Debug")
    add_compile_options(-O1 -g1) # lines are what a report needs; all of -g takes a quarter of the time
    set(KESH_UNTUNED -O0) # windows, tests, tools: what they call is optimised; half the time to compile
  endif()
endif()

find_program(MOLD mold)
if(MOLD)
  add_link_options(-fuse-ld=mold)
endif()

# kesh_library(NAME SOURCES ... LINK ...): a static library; its folder's parent is the include root.
function(kesh_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/src/libs)
  target_link_libraries(${name} PUBLIC ${arg_LINK})
endfunction()

# kesh_ui_library(NAME ...): the same for windows and panels; the only libraries that link Qt Widgets.
function(kesh_ui_library name)
  kesh_library(${name} ${ARGN})
  target_link_libraries(${name} PUBLIC Qt6::Widgets)
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
  target_compile_options(${name} PRIVATE ${KESH_UNTUNED})
  if(TARGET kesh_ui AND NOT name STREQUAL "kesh_ui")
    target_precompile_headers(${name} REUSE_FROM kesh_ui)
  else()
    target_precompile_headers(${name} PRIVATE <QtWidgets>)
  endif()
endfunction()

# kesh_test(FOLDER SOURCES ... LINK ...): one test program for a folder, under CTest as one test.
function(kesh_test folder)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
  set(target test_${folder})
  add_executable(${target} ${arg_SOURCES})
  target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${target} PRIVATE ${arg_LINK} GTest::gtest)
  target_compile_options(${target} PRIVATE ${KESH_UNTUNED})
  list(LENGTH arg_SOURCES count)
  if(count GREATER 6) # for fewer it takes longer than it saves
    set(headers <gtest/gtest.h>)
    if(Qt6::Test IN_LIST arg_LINK)
      list(PREPEND headers <QtWidgets> <QTest>)
    endif()
    target_precompile_headers(${target} PRIVATE ${headers})
  endif()
  add_test(NAME ${folder} COMMAND ${target} --gtest_brief=1 --gtest_output=xml:${CMAKE_BINARY_DIR}/results/${folder}.xml)
  set_tests_properties(${folder} PROPERTIES TIMEOUT 900
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.txt:print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()

# kesh_fuzzer(NAME LINK ...): fuzz_NAME from NAME_fuzz.cpp.
function(kesh_fuzzer name)
  cmake_parse_arguments(arg "" "" "LINK" ${ARGN})
  add_executable(fuzz_${name} ${name}_fuzz.cpp)
  target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
  target_link_libraries(fuzz_${name} PRIVATE ${arg_LINK})
endfunction()
