#include "games/poker/deck_counts.h"

#include <array>

namespace {

constexpr int kBarajas = 6, kComodines = 3;
constexpr int kAnchoCampo = 7;
constexpr int kPrimeraCategoria = 7;
constexpr int kColumnaTotal = 4, kColumnaCategorias = 11;

// TablaCombinaciones. With two jokers the rows take three different figures for Figuras and three suited cards for
// Color, which a reading of the hand does not. They only size the steps of the order number, and stay.
constexpr std::array<CuentasBaraja, kBarajas * kComodines> kTablaCombinaciones{
    CuentasBaraja{
        "520259896013025401096704012182400541440004032001020000051080003744000062400000400000000"},
    CuentasBaraja{
        "480171230407986600758784009331200414720004032000918000031320003168000052800000360000000"},
    CuentasBaraja{
        "440108600804630800505344006955200309120004032000816000018160002640000044000000320000000"},
    CuentasBaraja{
        "400065800802499000321024005011200032640023040000714000021600000980000036000000280000000"},
    CuentasBaraja{
        "360037699201224000192000003456000032640016128000612000017280000480000028800000240000000"},
    CuentasBaraja{
        "320020137600520200105984002246400032640010752000510000013440000204000022400000200000000"},
    CuentasBaraja{
        "521286968513025401266552012182401353600005184002053200078040006552000312000002040000013"},
    CuentasBaraja{
        "481190688407986600874200009331201036800005184001850400049640005544000264000001840000012"},
    CuentasBaraja{
        "441122175904630800580188006955200772800005184001647600030040004620000220000001640000011"},
    CuentasBaraja{
        "401074939802499000366636005011200032640057600001444800037800001704000180000001440000010"},
    CuentasBaraja{
        "361043589701224000217452003456000032640040320001242000030240000884000144000001240000009"},
    CuentasBaraja{
        "321023733600520200118332002246400032640026880001039200023520000400000112000001040000008"},
    CuentasBaraja{
        "522316251013025401453320012182402200320006864003086400116440009360000566800003680000026"},
    CuentasBaraja{
        "482211876007986601002576009331201687680006864002782800076760007920000480000003320000024"},
    CuentasBaraja{
        "442137075404630800664692006955201260000006864002479200048520006600000400400002960000022"},
    CuentasBaraja{
        "402085066802499000419208005011200035040094320002175600054000002908000328000002600000020"},
    CuentasBaraja{
        "362050194201224000247704003456000035040066240001872000043200001624000262800002240000018"},
    CuentasBaraja{
        "322027825600520200133800002246400035040044352001568400033600000820000204800001880000016"},
};

bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

Long Cifras(std::string_view texto, int desde, int n) {
    if (desde < 1 || texto.size() < static_cast<std::size_t>(desde - 1 + n))
        return -1;
    Long numero = 0;
    for (const char c :
         texto.substr(static_cast<std::size_t>(desde - 1), static_cast<std::size_t>(n))) {
        if (!EsCifra(c))
            return -1;
        numero = numero * 10 + (c - '0');
    }
    return numero;
}

Long CuentasBaraja::Cartas() const {
    return Cifras(cifras_, 1, 2);
}

Long CuentasBaraja::Comodines() const {
    return Cifras(cifras_, 3, 1);
}

Long CuentasBaraja::Total() const {
    return Cifras(cifras_, kColumnaTotal, kAnchoCampo);
}

Long CuentasBaraja::De(int categoria) const {
    if (categoria < kPrimeraCategoria)
        return 0;
    return Cifras(cifras_, kColumnaCategorias + kAnchoCampo * (categoria - kPrimeraCategoria),
                  kAnchoCampo);
}

const CuentasBaraja& CuentasDe(Integer cartas_baraja, Integer comodines_juego) {
    if (cartas_baraja < 1 || cartas_baraja > kBarajas)
        LanzaIndiceFuera(1, cartas_baraja, kBarajas);
    if (comodines_juego < 1 || comodines_juego > kComodines)
        LanzaIndiceFuera(2, comodines_juego, kComodines);
    return kTablaCombinaciones[static_cast<std::size_t>(kBarajas * (comodines_juego - 1) +
                                                        cartas_baraja - 1)];
}
