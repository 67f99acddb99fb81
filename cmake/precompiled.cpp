// Has the headers compiled that src/CMakeLists.txt names.
