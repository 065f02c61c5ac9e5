# Configures the project as a Mac build against an Apple SDK on a Linux machine, so that every
# file a Mac build compiles can be compiled (not linked) for arm64-apple-macos13 with libc++.
# Used by tools/check_macos_build.sh; the FERROW_MACOS_SDK environment variable names the SDK.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR arm64)
set(CMAKE_OSX_ARCHITECTURES arm64)
set(CMAKE_OSX_SYSROOT $ENV{FERROW_MACOS_SDK})

foreach(language C CXX OBJCXX)
    set(CMAKE_${language}_COMPILER_TARGET arm64-apple-macos13)
endforeach()
find_program(CMAKE_C_COMPILER clang REQUIRED)
find_program(CMAKE_CXX_COMPILER clang++ REQUIRED)
set(CMAKE_OBJCXX_COMPILER ${CMAKE_CXX_COMPILER})
# FERROW_MACOS_EXTRA_FLAGS: more flags, such as a folder of third-party headers.
set(CMAKE_CXX_FLAGS_INIT "-stdlib=libc++ $ENV{FERROW_MACOS_EXTRA_FLAGS}")
set(CMAKE_OBJCXX_FLAGS_INIT "-stdlib=libc++ $ENV{FERROW_MACOS_EXTRA_FLAGS}")

# Nothing is linked: Qt for macOS is not available here. A program's link only marks it done,
# so that what is built after it (a test that runs the command-line reader) still compiles.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
find_program(CMAKE_INSTALL_NAME_TOOL true REQUIRED)
foreach(language CXX OBJCXX)
    set(CMAKE_${language}_LINK_EXECUTABLE "<CMAKE_COMMAND> -E touch <TARGET>")
endforeach()

# The host's Qt supplies headers and tools (moc, rcc, lrelease); its headers work for the Apple
# target, as long as no Linux system folder (here, Vulkan's /usr/include) slips into the search path.
set(QT_HOST_PATH /usr)
set(CMAKE_DISABLE_FIND_PACKAGE_WrapVulkanHeaders TRUE)
set(OPENGL_INCLUDE_DIR ${CMAKE_OSX_SYSROOT}/System/Library/Frameworks/OpenGL.framework)
set(OPENGL_gl_LIBRARY ${CMAKE_OSX_SYSROOT}/System/Library/Frameworks/OpenGL.framework)
