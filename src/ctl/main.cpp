// The program of the command line.
#include "ctl/Program.h"

int main(int argc, char** argv) {
  return mortane::ctl::RunProcess(argc, argv);
}
