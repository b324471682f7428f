# CMake asks the system that it runs on whether files for macOS can have run paths. They can.
set(CMAKE_SHARED_LIBRARY_RUNTIME_C_FLAG "-Wl,-rpath,")
