#pragma once
// What the games' deck set-ups share. Each writes the deck fields of the state and nothing else.

#include "core/tabla.h"

// The sizes of a deck and its deal, as the rules of each game give them.
struct MedidasBaraja {
    Integer tipo = 0; // kBarajaEspanola or kBarajaFrancesa
    Integer valores_por_palo = 0;
    Integer comodines = 0;
    Integer mazos = 1;
    Integer reparto = 0; // cards dealt to a seat
    Integer paso = 0;    // cards at a time
    Integer max_mano = 0;
};

// TipoBaraja, ValoresPorPalo, CartasNormales, ComodinesBaraja, TotalBaraja, MazosBaraja, CartasReparto,
// PasoReparto, MaxCartasMano, ColumnasBaraja, CartasImagen, AltoMiniCarta, the names of the ranks and, by
// type, ValorEnBaraja with every rank of that image (a Spanish deck without 8, 9 and 13). Clears ValorCarta,
// OrdenCarta and JuegoConBanca.
void PonMedidas(const MedidasBaraja& medidas);

// JuegoConBanca, CartasBaraja 1, LeyApertura 14.
void PonReglasDeBanca();
