# Compiler settings shared by every Ferrow target, applied per target through
# an interface library rather than directory-wide flags.
add_library(ferrow_build_settings INTERFACE)
target_compile_options(ferrow_build_settings INTERFACE
    $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-Wall -Wextra -Wpedantic>
    $<$<AND:$<BOOL:${FERROW_WARNINGS_AS_ERRORS}>,$<CXX_COMPILER_ID:GNU,Clang,AppleClang>>:-Werror>)
target_compile_definitions(ferrow_build_settings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    # Debug builds (the sanitized suite among them) check the standard library's preconditions:
    # reading an empty optional or indexing past the end aborts instead of reading garbage.
    $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

if(FERROW_SANITIZE)
    set(_ferrow_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined
        -fno-omit-frame-pointer)
    target_compile_options(ferrow_build_settings INTERFACE ${_ferrow_sanitizers})
    target_link_options(ferrow_build_settings INTERFACE ${_ferrow_sanitizers})
endif()

if(FERROW_FUZZ)
    # Coverage for libFuzzer in everything the fuzz targets link.
    target_compile_options(ferrow_build_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Every test runs offscreen; sanitizer failures abort. Apple's AddressSanitizer has no leak
# checker and refuses to start when asked for one.
set(_ferrow_asan_options abort_on_error=1)
if(NOT APPLE)
    string(PREPEND _ferrow_asan_options detect_leaks=1:)
endif()
set(FERROW_TEST_ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;LANGUAGE=en;ASAN_OPTIONS=${_ferrow_asan_options};UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1")

# ferrow_add_test(<name> SOURCES <files...> LIBRARIES <targets...>)
# One Qt Test executable per unit, registered with CTest under its own name.
function(ferrow_add_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    qt_add_executable(${name} ${ARG_SOURCES})
    find_package(Qt6 REQUIRED COMPONENTS Test)
    target_link_libraries(${name} PRIVATE Qt6::Test ferrow_build_settings ${ARG_LIBRARIES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 120 ENVIRONMENT "${FERROW_TEST_ENVIRONMENT}")
endfunction()
