#include <iostream>

#include "Apps/trovex-cli/Cli.h"
#include "Platform/Console.h"

int main(int argc, char** argv) {
  trovex::PrepareConsole();
  trovex::PrepareStack();
  trovex::RemoveUnfinishedFilesAtTheEnd();
  return trovex::cli::Run(trovex::CommandLineArguments(argc, argv), std::cout, std::cerr,
                          trovex::ErrorIsTerminal());
}
