#pragma once
// One number over everything that was decided in a match: each card that moved, and each record.

#include <cstdint>
#include <string_view>

// FNV-1a with 64 bits.
class Firma {
public:
    void Anade(std::string_view bytes) {
        for (char c : bytes) {
            valor_ ^= static_cast<unsigned char>(c);
            valor_ *= 0x100000001B3u;
        }
    }
    void Anade(std::int64_t numero) {
        for (int byte = 0; byte < 8; ++byte) {
            valor_ ^= static_cast<std::uint64_t>(numero >> (8 * byte)) & 0xFF;
            valor_ *= 0x100000001B3u;
        }
    }
    std::uint64_t Valor() const { return valor_; }

private:
    std::uint64_t valor_ = 0xCBF29CE484222325u;
};
