#pragma once
// What a deck image's bytes come to. The build keeps it of the two that it paints, and the program knows them by it.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

// Eight bytes at a time: there are twenty million of them to look at before the first card is seen.
inline std::uint64_t FirmaDe(std::span<const std::byte> bytes) {
    constexpr std::uint64_t kMezcla = 0x9E3779B97F4A7C15U;
    std::uint64_t firma = bytes.size();
    while (!bytes.empty()) {
        std::uint64_t palabra = 0;
        const std::size_t cuantos = std::min(bytes.size(), sizeof palabra);
        std::memcpy(&palabra, bytes.data(), cuantos);
        firma = (firma ^ palabra) * kMezcla;
        firma ^= firma >> 29U;
        bytes = bytes.subspan(cuantos);
    }
    return firma;
}
