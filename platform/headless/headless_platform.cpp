#include "platform/headless/headless_platform.h"

#include <chrono>

#include "core/game_state.h"

namespace {

// What closes a box of each mode when no answer is waiting.
Boton PorDefecto(int modo) {
    return modo == 2 ? Boton::Si : Boton::Salir;
}

// The nearest button that a box of that mode has.
Boton AlAlcance(int modo, Boton boton) {
    if (modo == 2)
        return boton == Boton::Si ? Boton::Si : Boton::No;
    if (modo == 3)
        return boton == Boton::Ayuda ? Boton::Ayuda : Boton::Salir;
    return Boton::Salir;
}

} // namespace

void PlataformaSinPantalla::Mide(int ancho, int alto) {
    ancho_ = ancho;
    alto_ = alto;
}

void PlataformaSinPantalla::UsaLienzosRegistrados() {
    con_lienzos_ = true;
}

LienzoRegistrado& PlataformaSinPantalla::Dibujado(Control control, int indice) {
    return lienzos_[{control, indice}];
}

void PlataformaSinPantalla::UsaCarpeta(const std::string& carpeta) {
    carpeta_ = carpeta;
    disco_ = std::make_unique<ArchivosDisco>();
    archivos_ = disco_.get();
}

void PlataformaSinPantalla::Instala(const std::string& ruta, const std::string& contenido) {
    instalados_[ruta] = contenido;
    memoria_.contenidos[ruta] = contenido;
}

void PlataformaSinPantalla::Limpia() {
    guion.Olvida();
    respuestas.clear();
    siempre_continua = traviesa = false;
    mensajes.clear();
    anuncios.clear();
    sonidos.clear();
    temas_ayuda.clear();
    formas_abiertas.clear();
    minimizadas = 0;
    marcos.clear();
    reloj_ = 0;
    primer_dia = {};
    Mide(800, 600);
    tablero_ = {};
    lienzos_.clear();
    memoria_.contenidos = instalados_;
    memoria_.de_solo_lectura.clear();
}

void PlataformaSinPantalla::Bombea() {
    pase_servido_ = false;
}

bool PlataformaSinPantalla::ContinuaSola() const {
    return siempre_continua && estado.EsperandoJugada && !estado.RepartoEnCurso;
}

std::optional<Evento> PlataformaSinPantalla::SiguienteEvento(Pase pase) {
    if (pase_servido_ || (pase == Pase::DePaso && !traviesa))
        return std::nullopt;
    pase_servido_ = true;
    if (!guion.Vacio())
        return guion.Toma(tablero_);
    if (pase == Pase::DeEspera && ContinuaSola())
        return Evento{.tipo = TipoEvento::Clic, .control = Control::Pic_BotContinuar};
    return std::nullopt;
}

bool PlataformaSinPantalla::EsperaEvento() {
    return !guion.Vacio() || ContinuaSola();
}

FechaHora PlataformaSinPantalla::Ahora() {
    using namespace std::chrono;
    const auto dia = sys_days(year(primer_dia.anio) / primer_dia.mes / primer_dia.dia);
    const auto ahora = sys_seconds(dia) + hours(primer_dia.hora) + minutes(primer_dia.minuto) +
                       seconds(primer_dia.segundo + reloj_ / 1000);
    const year_month_day fecha(floor<days>(ahora));
    const hh_mm_ss hora(ahora - floor<days>(ahora));
    return {.anio = static_cast<int>(fecha.year()),
            .mes = static_cast<int>(static_cast<unsigned>(fecha.month())),
            .dia = static_cast<int>(static_cast<unsigned>(fecha.day())),
            .hora = static_cast<int>(hora.hours().count()),
            .minuto = static_cast<int>(hora.minutes().count()),
            .segundo = static_cast<int>(hora.seconds().count())};
}

Lienzo& PlataformaSinPantalla::LienzoDe(Control control, int indice) {
    return con_lienzos_ ? Dibujado(control, indice) : mudo_;
}

void PlataformaSinPantalla::Coloca(Control control, int indice, const Rectangulo& donde) {
    tablero_.Coloca({control, indice}, donde);
}

void PlataformaSinPantalla::Muestra(Control control, int indice, bool visible) {
    tablero_.Muestra({control, indice}, visible);
}

bool PlataformaSinPantalla::EstaVisible(Control control, int indice) const {
    return tablero_.EstaVisible({control, indice});
}

void PlataformaSinPantalla::PonPuntero(Control control, int indice, Puntero puntero) {
    tablero_.PonPuntero({control, indice}, puntero);
}

Puntero PlataformaSinPantalla::PunteroDe(Control control, int indice) const {
    return tablero_.PunteroDe({control, indice});
}

void PlataformaSinPantalla::Nombra(Control control, int indice, std::string_view nombre) {
    tablero_.Nombra({control, indice}, nombre);
}

Rectangulo PlataformaSinPantalla::LugarDe(Control control, int indice) const {
    return tablero_.LugarDe({control, indice});
}

std::string PlataformaSinPantalla::NombreDicho(Control control, int indice) const {
    return tablero_.NombreDe({control, indice});
}

void PlataformaSinPantalla::Enmarca(Marco cual, const std::optional<Rectangulo>& donde) {
    if (donde)
        marcos[cual] = *donde;
    else
        marcos.erase(cual);
}

void PlataformaSinPantalla::Anuncia(std::string_view texto) {
    if (registra)
        anuncios.emplace_back(texto);
}

Boton PlataformaSinPantalla::Pregunta(const CajaMensaje& caja) {
    if (registra)
        mensajes.push_back(caja);
    if (respuestas.empty())
        return PorDefecto(caja.modo);
    const Boton boton = respuestas.front();
    respuestas.pop_front();
    return AlAlcance(caja.modo, boton);
}

void PlataformaSinPantalla::Abre(Forma forma) {
    if (registra)
        formas_abiertas.push_back(forma);
    if (al_abrir)
        al_abrir(forma);
}

void PlataformaSinPantalla::Suena(int id, bool espera) {
    if (registra)
        sonidos.push_back({id, espera});
}

void PlataformaSinPantalla::Ayuda(int tema) {
    if (registra)
        temas_ayuda.push_back(tema);
}
