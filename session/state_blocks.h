#pragma once
// All blocks of the shared state together: walked, kept aside, put back, cleared. A new block is one line
// in LosBloques and its list of fields beside its header.

#include <memory>
#include <tuple>

#include "betting/bet_fields.h"
#include "core/state_fields.h"
#include "games/common/series_fields.h"
#include "games/common/trick_fields.h"
#include "games/poker/poker_fields.h"
#include "games/sieteymedia/sieteymedia_fields.h"
#include "games/trick/search_fields.h"
#include "reports/marcador_fields.h"

// The blocks, in the order in which they are walked. A field's name is its own in all of them.
inline auto LosBloques() {
    return std::tie(estado, apuestas, series, bazas, busqueda, poker, siete, informe);
}

// visita("Nombre", campo) for each field of every block.
template <class V>
void RecorreEstado(V&& visita) {
    std::apply([&](auto&... bloque) { (RecorreCampos(bloque, visita), ...); }, LosBloques());
}

template <class... B>
std::tuple<B...> SinReferencias(const std::tuple<B&...>&);
using CopiaDeBloques = decltype(SinReferencias(LosBloques()));

// A copy of the whole shared state. Copies of a snapshot share it; comparing compares the states.
class Instantanea {
public:
    static Instantanea Toma();
    void Repon() const;
    friend bool operator==(const Instantanea& a, const Instantanea& b) {
        return *a.copia_ == *b.copia_;
    }

private:
    std::shared_ptr<const CopiaDeBloques> copia_;
};

// Every field of every block empty.
void BorraEstado();
