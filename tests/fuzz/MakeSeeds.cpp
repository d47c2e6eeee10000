// Writes the fuzz target's seed corpus: navmsg_fuzz_seeds BATCH_FILE OUTPUT_DIR.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "fuzz/FuzzInput.h"

int main(int argc, char** argv) {
    std::ifstream batch(argc == 3 ? argv[1] : "");
    if (!batch) {
        std::fprintf(stderr, "usage: navmsg_fuzz_seeds BATCH_FILE OUTPUT_DIR\n");
        return 2;
    }
    const std::filesystem::path dir(argv[2]);
    std::filesystem::create_directories(dir);
    int n = 0;
    for (const std::string& seed : ZeltNavMsg::Fuzz::makeSeeds(batch)) {
        std::ofstream(dir / ("seed-" + std::to_string(++n)), std::ios::binary) << seed;
    }
    return 0;
}
