#include <unistd.h>

#include <iostream>
#include <string>
#include <vector>

#include "KovaApp.h"

int main(int argc, char** argv) {
  Console console{std::cout, std::cerr, isatty(STDERR_FILENO) != 0};
  return KovaApp::run(std::vector<std::string>(argv + 1, argv + argc), console);
}
