// The program with its chance prepared, for the tests that must know the cards before they are dealt. The numbers of
// chance that the file named by ZOVIN_AZAR lists come first, in their order; a fixed seed follows.

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <vector>

#include "core/random.h"

namespace {

struct AzarPreparado {
    AzarPreparado() {
        FijaSemilla(1);
        const char* fichero = std::getenv("ZOVIN_AZAR");
        if (fichero == nullptr)
            return;
        std::ifstream numeros(fichero);
        EncolaAzar({std::istream_iterator<double>(numeros), {}});
    }
};

const AzarPreparado kPreparado;

} // namespace
