// default_settings: puts the settings files that a folder lacks into it. The build runs it, so that a first start
// finds what it reads.

#include <fmt/format.h>

#include <cstdio>

#include "tools/default_settings/default_settings.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        fmt::print(stderr, "uso: default_settings CARPETA\n");
        return 2;
    }
    try {
        PonAjustesQueFaltan(argv[1]);
    } catch (const std::exception& fallo) {
        fmt::print(stderr, "default_settings: {}\n", fallo.what());
        return 1;
    }
    return 0;
}
