# Files for macOS can have run paths. When cross-compiling, CMake does not know this.
set(CMAKE_SHARED_LIBRARY_RUNTIME_C_FLAG "-Wl,-rpath,")
