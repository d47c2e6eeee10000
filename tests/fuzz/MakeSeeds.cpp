// Writes the fuzz target's seed corpus: navmsg_fuzz_seeds BATCH_FILE OUTPUT_DIR.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>

#include "fuzz/FuzzInput.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: navmsg_fuzz_seeds BATCH_FILE OUTPUT_DIR\n");
        return 2;
    }
    try {
        std::ifstream batch(argv[1]);
        if (!batch) {
            std::fprintf(stderr, "navmsg_fuzz_seeds: cannot read %s\n", argv[1]);
            return 1;
        }
        const std::filesystem::path dir(argv[2]);
        std::filesystem::create_directories(dir);
        int n = 0;
        for (const auto& seed : ZeltNavMsg::Fuzz::makeSeeds(batch)) {
            std::ofstream out(dir / ("seed-" + std::to_string(++n)), std::ios::binary);
            out.write(reinterpret_cast<const char*>(seed.data()),
                      static_cast<std::streamsize>(seed.size()));
        }
    } catch (const std::exception& e) {
        std::fprintf(stderr, "navmsg_fuzz_seeds: %s\n", e.what());
        return 1;
    }
    return 0;
}
