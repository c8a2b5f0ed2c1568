#include "forms/refresh.h"

#include <utility>

namespace {

std::function<void()> refresco_en_uso;

} // namespace

std::function<void()> PonRefresco(std::function<void()> refresco) {
    return std::exchange(refresco_en_uso, std::move(refresco));
}

void RefrescaForma() {
    if (refresco_en_uso)
        refresco_en_uso();
}
