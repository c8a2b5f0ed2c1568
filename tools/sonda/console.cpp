#include "tools/sonda/console.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <unordered_map>

#include "core/game_state.h"
#include "core/random.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "table/deck.h"
#include "table/game_row.h"
#include "table/trace.h"
#include "table/waiting.h"
#include "table/whole_table.h"
#include "tools/common/fresh_table.h"
#include "tools/sonda/field_access.h"
#include "tools/sonda/procedures.h"

namespace {

// One of a few words.
template <class T>
T Elige(Lector& lector, const std::unordered_map<std::string, T>& palabras) {
    const std::string palabra = lector.Palabra();
    const auto sitio = palabras.find(palabra);
    if (sitio == palabras.end())
        throw ErrorConsola(fmt::format("«{}» no se entiende aquí", palabra));
    return sitio->second;
}

bool SiONo(Lector& lector) {
    return Elige<bool>(lector, {{"si", true}, {"no", false}});
}

// How often a control comes; 0 for one that has no index.
int CuantosDe(Control control) {
    switch (control) {
    case Control::Pic_Boton:
        return 8;
    case Control::Pic_Tantos:
        return 4;
    case Control::Pic_BotSuperior:
    case Control::Pic_BotLateral:
        return 2;
    default:
        return 0;
    }
}

// The controls of the forms, by name.
void ExigeDeForma(const std::string& nombre) {
    constexpr std::array kNombres{
        "Pic_Selector",     "Pic_Buleano",       "Pic_Spin",      "Pic_SpinSube", "Pic_SpinBaja",
        "Tex_Spin",         "Pic_Potenciometro", "Txt_Nombre",    "Pic_BotAyuda", "Pic_BotSalir",
        "Pic_BotHistorico", "Pic_BotHisTt",      "Pic_BotAdeAtr", "Pic_Carpeta",  "Pic_Pestana"};
    if (std::ranges::find(kNombres, nombre) == kNombres.end())
        throw ErrorConsola(fmt::format("el control {} no existe", nombre));
}

void ExigeControl(bool hay, const std::string& nombre, int indice) {
    if (!hay)
        throw ErrorConsola(fmt::format("{}({}) no existe", nombre, indice));
}

} // namespace

Consola::Consola(PlataformaSinPantalla& mesa, std::ostream& salida, Pintor pinta)
    : mesa_(mesa), salida_(salida), pinta_(std::move(pinta)) {
    UsaPlataforma(mesa_);
    RegistraDespacho(&DespachaEvento);
    mesa_.al_abrir = [this](Forma forma) { forma_.AtiendeLoEncolado(forma); };
    Reinicia();
}

Consola::~Consola() {
    mesa_.al_abrir = {};
    EscuchaTraza({});
}

void Consola::Responde(std::string_view respuesta) {
    salida_ << respuesta << '\n' << std::flush;
}

Consola::Orden Consola::OrdenDe(const std::string& nombre) {
    static const std::unordered_map<std::string, Orden> kOrdenes{
        {"eco", &Consola::Eco},           {"limpia", &Consola::Limpia},
        {"mide", &Consola::Mide},         {"juego", &Consola::Juego},
        {"pon", &Consola::Pon},           {"di", &Consola::Di},
        {"vuelca", &Consola::Vuelca},     {"llama", &Consola::LlamaA},
        {"azar", &Consola::Azar},         {"semilla", &Consola::Semilla},
        {"raton", &Consola::Raton},       {"tecla", &Consola::Tecla},
        {"boton", &Consola::Boton},       {"contesta", &Consola::Contesta},
        {"siempre", &Consola::Siempre},   {"traviesa", &Consola::Traviesa},
        {"pasa", &Consola::Pasa},         {"traza", &Consola::Traza},
        {"pantalla", &Consola::Pantalla}, {"abre", &Consola::Abre},
        {"cierra", &Consola::Cierra},     {"escribe", &Consola::Escribe},
        {"desliza", &Consola::Desliza},   {"informe", &Consola::Informe},
    };
    const auto sitio = kOrdenes.find(nombre);
    if (sitio == kOrdenes.end())
        throw ErrorConsola(fmt::format("la orden {} no existe", nombre));
    return sitio->second;
}

void Consola::Linea(std::string_view linea) {
    ++linea_;
    Lector lector(linea);
    if (lector.Fin() || linea.starts_with('#'))
        return;
    try {
        const Orden orden = OrdenDe(lector.Palabra());
        (this->*orden)(lector);
    } catch (const std::exception& fallo) {
        hubo_errores_ = true;
        Responde(fmt::format("error: línea {}: {}", linea_, fallo.what()));
    }
}

void Consola::Eco(Lector& lector) {
    Responde(lector.Resto());
}

void Consola::Reinicia() {
    EscuchaTraza({});
    mesa_.Limpia();
    forma_.Olvida();
    PonMesaNueva();
}

void Consola::Limpia(Lector& lector) {
    lector.ExigeFin();
    Reinicia();
    Responde("ok");
}

void Consola::Mide(Lector& lector) {
    const int ancho = lector.Entero();
    const int alto = lector.Entero();
    lector.ExigeFin();
    mesa_.Mide(ancho, alto);
    CalcularMesa();
    Responde("ok");
}

void Consola::Juego(Lector& lector) {
    const auto juego = Convierte<Integer>(lector.Numero());
    lector.ExigeFin();
    if (FilaDe(juego) == nullptr)
        throw ErrorConsola(fmt::format("el juego {} no existe", juego));
    estado.JuegoActivo = juego;
    ConstruirBaraja();
    Responde("ok");
}

void Consola::Pon(Lector& lector) {
    const Ruta ruta = lector.RutaDeCampo();
    lector.Exige('=');
    const Literal valor = lector.Valor();
    lector.ExigeFin();
    PonCampo(ruta, valor);
}

void Consola::Di(Lector& lector) {
    const Ruta ruta = lector.RutaDeCampo();
    lector.ExigeFin();
    std::string lineas;
    std::string sola;
    const bool unica = VisitaCampo(ruta, [&](const std::string& nombre, Hoja hoja) {
        sola = fmt::format("{} = {}", nombre, Escrito(hoja));
        lineas += sola + '\n';
    });
    Responde(unica ? sola : lineas + "fin");
}

void Consola::Vuelca(Lector& lector) {
    lector.ExigeFin();
    std::string lineas;
    VisitaEstado([&](const std::string& nombre, Hoja hoja) {
        lineas += fmt::format("{} = {}\n", nombre, Escrito(hoja));
    });
    Responde(lineas + "fin");
}

void Consola::LlamaA(Lector& lector) {
    const std::string nombre = lector.Identificador();
    const Argumentos argumentos = lector.Argumentos();
    lector.ExigeFin();
    const auto valor = Procedimiento(nombre)(argumentos);
    AtiendeLoPedido();
    Responde(valor ? fmt::format("{} = {}", nombre, *valor) : nombre);
}

// A script that came to its end in a wait has left the match behind.
void Consola::DiSiFaltaronEventos() {
    if (!sesion.sin_eventos)
        return;
    sesion.sin_eventos = false;
    estado.PartidaEnCurso = false;
    Responde("sin eventos");
}

void Consola::AtiendeLoPedido() {
    DiSiFaltaronEventos();
    while (sesion.peticion != Peticion::Ninguna) {
        if (!AtiendePeticiones())
            sesion = {}; // the exit: the console stays
        DiSiFaltaronEventos();
    }
}

void Consola::Azar(Lector& lector) {
    std::vector<double> numeros;
    while (!lector.Fin())
        numeros.push_back(lector.Numero());
    EncolaAzar(numeros);
    Responde("ok");
}

void Consola::Semilla(Lector& lector) {
    const double semilla = lector.Numero();
    lector.ExigeFin();
    if (semilla < 0 || semilla >= 0x1p63)
        throw ErrorConsola("la semilla es un número desde 0");
    FijaSemilla(static_cast<std::uint64_t>(semilla));
    Responde("ok");
}

void Consola::Raton(Lector& lector) {
    enum class Gesto { Mueve, Pulsa, Suelta, Clic };
    const auto gesto = Elige<Gesto>(lector, {{"mueve", Gesto::Mueve},
                                             {"pulsa", Gesto::Pulsa},
                                             {"suelta", Gesto::Suelta},
                                             {"clic", Gesto::Clic}});
    const int x = lector.Entero();
    const int y = lector.Entero();
    int boton = 1;
    if (gesto != Gesto::Mueve && !lector.Fin())
        boton = Elige<int>(lector, {{"derecho", 2}});
    lector.ExigeFin();
    switch (gesto) {
    case Gesto::Mueve:
        return mesa_.guion.RatonMueve(x, y);
    case Gesto::Pulsa:
        return mesa_.guion.RatonPulsa(x, y, boton);
    case Gesto::Suelta:
        return mesa_.guion.RatonSuelta(x, y, boton);
    case Gesto::Clic:
        return mesa_.guion.RatonClic(x, y, boton);
    }
}

void Consola::Tecla(Lector& lector) {
    const int tecla = lector.Entero();
    lector.ExigeFin();
    mesa_.guion.Tecla(tecla);
}

void Consola::Boton(Lector& lector) {
    const std::string nombre = lector.Palabra();
    const int indice = lector.Fin() ? 0 : lector.Entero();
    lector.ExigeFin();
    const auto control = ControlDe(nombre);
    if (!control || *control == Control::Mesa) {
        ExigeDeForma(nombre);
        ExigeControl(forma_.Pulsa(nombre, indice), nombre, indice);
        AtiendeLoPedido();
        return;
    }
    const int cuantos = CuantosDe(*control);
    if (indice > cuantos || indice < (cuantos > 0 ? 1 : 0))
        throw ErrorConsola(fmt::format("{}({}) no existe", nombre, indice));
    mesa_.guion.PulsaControl({*control, indice});
}

void Consola::Abre(Lector& lector) {
    const std::string nombre = lector.Palabra();
    lector.ExigeFin();
    forma_.Abre(nombre);
}

void Consola::Cierra(Lector& lector) {
    lector.ExigeFin();
    forma_.Cierra();
    AtiendeLoPedido();
}

void Consola::Escribe(Lector& lector) {
    const std::string nombre = lector.Palabra();
    const int indice = lector.Entero();
    const auto texto = Convierte<std::string>(lector.Valor());
    lector.ExigeFin();
    ExigeDeForma(nombre);
    ExigeControl(forma_.Escribe(nombre, indice, texto), nombre, indice);
}

void Consola::Desliza(Lector& lector) {
    const std::string nombre = lector.Palabra();
    const int indice = lector.Entero();
    const int valor = lector.Entero();
    lector.ExigeFin();
    ExigeDeForma(nombre);
    ExigeControl(forma_.Desliza(nombre, indice, valor), nombre, indice);
}

void Consola::Informe(Lector& lector) {
    const std::string nombre = lector.Palabra();
    const bool con_pagina = !lector.Fin();
    const int pagina = con_pagina ? lector.Entero() : 0;
    lector.ExigeFin();
    if (con_pagina && pagina < 1)
        throw ErrorConsola("las páginas se cuentan desde 1");
    for (const std::string& linea : LineasDe(PaginaDeForma(nombre, pagina)))
        Responde(linea);
}

void Consola::Contesta(Lector& lector) {
    const auto boton = Elige<::Boton>(lector, {{"si", ::Boton::Si},
                                               {"no", ::Boton::No},
                                               {"salir", ::Boton::Salir},
                                               {"ayuda", ::Boton::Ayuda}});
    lector.ExigeFin();
    mesa_.respuestas.push_back(boton);
}

void Consola::Siempre(Lector& lector) {
    Elige<bool>(lector, {{"continua", true}});
    lector.ExigeFin();
    mesa_.siempre_continua = true;
}

void Consola::Traviesa(Lector& lector) {
    const bool traviesa = SiONo(lector);
    lector.ExigeFin();
    mesa_.traviesa = traviesa;
}

void Consola::Pasa(Lector& lector) {
    lector.ExigeFin();
    while (!mesa_.guion.Vacio()) {
        PaseDeEventos(Pase::DeEspera);
        AtiendeLoPedido();
    }
}

void Consola::Traza(Lector& lector) {
    const bool si = SiONo(lector);
    lector.ExigeFin();
    if (si)
        EscuchaTraza([this](const std::string& linea) { Responde(linea); });
    else
        EscuchaTraza({});
}

void Consola::Pantalla(Lector& lector) {
    const std::string fichero = lector.Resto();
    if (!pinta_)
        throw ErrorConsola("esta consola no pinta");
    pinta_(fichero, forma_.Encima());
}
