#include "games/poker/combinations.h"

#include <algorithm>

#include "core/numeric.h"

Integer Combinaciones(Integer n, Integer k) {
    if (k < 0 || k > n)
        return 0;
    const long long menor = std::min<long long>(k, n - k);
    long long combinaciones = 1;
    for (long long i = 1; i <= menor; ++i)
        combinaciones = EnteroDe(combinaciones * (n - menor + i) / i);
    return EnteroDe(combinaciones);
}
