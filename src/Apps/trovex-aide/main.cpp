#include <iostream>

#include "Apps/trovex-aide/Compiler.h"

int main(int argc, char** argv) {
  return trovex::aide::Run({argv + 1, argv + argc}, std::cerr);
}
