#include "driver/quilvane.h"

int main(int argc, char* argv[]) { return quilvane::quilvane(argc, argv); }
