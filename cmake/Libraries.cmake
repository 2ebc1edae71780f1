# The libraries of other people that are linked on every system.
if(CMAKE_CROSSCOMPILING)
  # The build machine's own packages would bring its C library's headers along.
  foreach(library IN ITEMS CLI11 nlohmann_json)
    add_library(${library}::${library} INTERFACE IMPORTED)
    target_include_directories(${library}::${library} SYSTEM INTERFACE
      "${MARLO_WINDOWS_TOOLKIT}/include")
  endforeach()
else()
  find_package(CLI11 REQUIRED)
  find_package(nlohmann_json REQUIRED)
endif()

find_path(UTF8PROC_INCLUDE_DIR utf8proc.h REQUIRED)
find_library(UTF8PROC_LIBRARY NAMES libutf8proc.a utf8proc REQUIRED)  # one file less to open at a start
add_library(marlo_utf8proc INTERFACE)
target_include_directories(marlo_utf8proc SYSTEM INTERFACE "${UTF8PROC_INCLUDE_DIR}")
target_link_libraries(marlo_utf8proc INTERFACE "${UTF8PROC_LIBRARY}")
if(WIN32)
  target_compile_definitions(marlo_utf8proc INTERFACE UTF8PROC_STATIC)
endif()
