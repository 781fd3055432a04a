#include "attgetopt/attgetopt.h"

#include <cstdio>
#include <cstring>

namespace quilvane {

constinit int optind = 1;
constinit char* optarg = nullptr;
constinit int optopt = 0;
constinit int opterr = 1;

namespace {

/** Position in the word that is being read; 1 stands before its first option. */
constinit int position = 1;

void motSuivant() {
    ++optind;
    position = 1;
}

int faute(const char* programme, const char* message) {
    if (opterr != 0) std::fprintf(stderr, "%s%s%c\n", programme, message, optopt);
    return '?';
}

}  // namespace

int getopt(int argc, char* const argv[], const char* opts) {
    if (optind >= argc) return -1;
    const char* const mot = argv[optind];
    if (position == 1) {
        if (mot[0] != '-' || mot[1] == '\0') return -1;
        if (std::strcmp(mot, "--") == 0) {
            ++optind;
            return -1;
        }
    }
    optarg = nullptr;
    optopt = static_cast<unsigned char>(mot[position]);
    const bool dernier = mot[position + 1] == '\0';
    const char* const option = optopt == ':' ? nullptr : std::strchr(opts, optopt);

    if (option == nullptr || option[1] != ':') {
        if (dernier)
            motSuivant();
        else
            ++position;
        return option == nullptr ? faute(argv[0], ": illegal option -- ") : optopt;
    }
    if (!dernier) {
        optarg = argv[optind] + position + 1;
    } else if (optind + 1 < argc) {
        optarg = argv[++optind];
    } else {
        motSuivant();
        return faute(argv[0], ": option requires an argument -- ");
    }
    motSuivant();
    return optopt;
}

void recommencerOptions() {
    optind = 1;
    position = 1;
}

}  // namespace quilvane
