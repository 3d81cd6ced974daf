// Writes every named bench into a folder, one file each.
#include <cstdio>
#include <string>

#include "common/Failure.h"
#include "controller/simulator/BenchFile.h"
#include "controller/simulator/Benches.h"

int main(int argc, char** argv) {
  using namespace mortane;
  if (argc != 2) {
    std::fputs("usage: write_benches <folder>\n", stderr);
    return 2;
  }
  try {
    for (const std::string& name : controller::benches::Names()) {
      controller::WriteBenchFile(std::string(argv[1]) + "/" + name + ".xml",
                                 controller::benches::Named(name));
    }
  } catch (const Failure& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
  return 0;
}
