/**
 * rejouer - runs a fuzz target over the files of a folder, without a fuzzer:
 * the corpus as an ordinary test.
 */
#include <algorithm>
#include <filesystem>
#include <vector>

#include "cible.h"

int main(int argc, char* argv[]) {
    std::vector<std::filesystem::path> fichiers;
    for (int i = 1; i < argc; ++i)
        for (const auto& e : std::filesystem::directory_iterator(argv[i]))
            fichiers.push_back(std::filesystem::absolute(e.path()));
    std::sort(fichiers.begin(), fichiers.end());
    for (const auto& f : fichiers) {
        const std::string octets = cible::lire(f.string());
        std::fprintf(stderr, "%s\n", f.filename().c_str());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(octets.data()), octets.size());
    }
    std::fprintf(stderr, "%zu files\n", fichiers.size());
    return fichiers.empty() ? 1 : 0;
}
