# Cross-compiles for Windows. MARLO_WINDOWS_HOST is the compiler's prefix, and MARLO_WINDOWS_TOOLKIT
# the folder that packaging/windows/build-toolkit made for it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES MARLO_WINDOWS_HOST MARLO_WINDOWS_TOOLKIT)
if(MARLO_WINDOWS_HOST MATCHES "^x86_64")
  set(CMAKE_SYSTEM_PROCESSOR AMD64)
else()
  set(CMAKE_SYSTEM_PROCESSOR x86)
  # With the older way to calculate, numbers would have other last digits than everywhere else.
  set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
endif()

# The variant with the threads of the C++ library.
set(CMAKE_C_COMPILER "${MARLO_WINDOWS_HOST}-gcc-posix")
set(CMAKE_CXX_COMPILER "${MARLO_WINDOWS_HOST}-g++-posix")
set(CMAKE_RC_COMPILER "${MARLO_WINDOWS_HOST}-windres")

set(CMAKE_FIND_ROOT_PATH "/usr/${MARLO_WINDOWS_HOST}" "${MARLO_WINDOWS_TOOLKIT}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
# Libraries that are headers only are the same for all systems.
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE BOTH)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)

# Under Wine, which is there once the tests run; tests/windows/with-wine makes the machine for them.
set(CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE PRE_TEST)

set(wxWidgets_CONFIG_EXECUTABLE "${MARLO_WINDOWS_TOOLKIT}/bin/wx-config" CACHE FILEPATH "")
