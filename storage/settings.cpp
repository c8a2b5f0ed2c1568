#include "storage/settings.h"

#include <algorithm>
#include <functional>

#include "core/default_settings.h"
#include "core/game_state.h"
#include "core/session_state.h"
#include "core/text.h"
#include "platform/platform.h"
#include "storage/between_hands.h"
#include "storage/settings_layout.h"
#include "storage/settings_repair.h"
#include "table/messages.h"

namespace {

constexpr const char* kFinDeLinea = "\r\n";
constexpr Integer kMaximoJuegos = 999; // what the three columns of the number hold

// Numbers of the errors that a file has inside.
constexpr int kSinError = 0, kDesborda = 6, kNoEsUnNumero = 13, kFaltanLineas = 62;

struct FaltanLineas {};

// The lines of a file one after the other, without their ends. Nothing behind the last one asked for is read.
class Lineas {
public:
    explicit Lineas(std::string_view texto) : resto_(texto) {}

    std::string_view Siguiente() {
        if (resto_.empty())
            throw FaltanLineas();
        const std::size_t fin = std::min(resto_.find('\n'), resto_.size());
        std::string_view linea = resto_.substr(0, fin);
        resto_.remove_prefix(std::min(fin + 1, resto_.size()));
        if (linea.ends_with('\r'))
            linea.remove_suffix(1);
        return linea;
    }

private:
    std::string_view resto_;
};

std::string EnCarpeta(const std::string& carpeta, const std::string& nombre) {
    return carpeta.empty() ? nombre : carpeta + "/" + nombre;
}

std::string RutaDeLectura(const std::string& nombre) {
    return EnCarpeta(estado.CarpetaTrabajo, nombre);
}

ErrorArchivo Graba(const std::string& nombre, std::string_view contenido) {
    return plataforma().LosArchivos().Escribe(EnCarpeta(estado.CarpetaPrograma, nombre), contenido);
}

// Gives the lines of a file to whoever takes them, and tells whether all numbers fitted; the answer is the number of the
// error.
int Lee(const std::string& nombre, const std::function<bool(Lineas&)>& toma) {
    const Lectura lectura = plataforma().LosArchivos().Lee(RutaDeLectura(nombre));
    if (lectura.error != ErrorArchivo::Ninguno)
        return static_cast<int>(lectura.error);
    Lineas lineas(lectura.contenido);
    try {
        return toma(lineas) ? kSinError : kDesborda;
    } catch (const NoEsNumero&) {
        return kNoEsUnNumero;
    } catch (const FaltanLineas&) {
        return kFaltanLineas;
    }
}

// A number that does not fit costs its own field and nothing else.
bool SeHaLeido(int error) {
    return error == kSinError || error == kDesborda;
}

bool Falta(int error) {
    return error == static_cast<int>(ErrorArchivo::NoEncontrado);
}

void Avisa(const std::string& nombre, const std::string& rotulo, int error) {
    const std::string texto =
        Falta(error) ? "No se encuentra el fichero de inicialización " + nombre +
                           ". Se ha  procedido  a  crearlo automáticamente  con  los  valores "
                           "establecidos por defecto."
                     : rotulo + Numero(error);
    Mensaje("Error en la carga de datos iniciales", texto, LineasDe(texto), 1);
}

// A file that is there but cannot be used is kept for whoever wants to look into it.
void ApartaDanado(const std::string& nombre, int error) {
    if (Falta(error))
        return;
    const std::string ruta = RutaDeLectura(nombre);
    plataforma().LosArchivos().Renombra(ruta, ruta.substr(0, ruta.rfind('.')) + ".MAL");
}

void Rehaz(const std::string& nombre, const std::string& rotulo, int error,
           ErrorArchivo (*graba)()) {
    estado.FicheroNuevo = true;
    if (!SeHaLeido(error))
        Avisa(nombre, rotulo, error);
    if (!plataforma().GuardaPartidas())
        return;
    ApartaDanado(nombre, error);
    // Where nothing can be written the next save says so; here one message is enough.
    static_cast<void>(graba());
}

bool LeeRegistros(Lineas& lineas, int cuantos) {
    estado.Juegos.Borra();
    bool caben = true;
    for (int juego = 1; juego <= cuantos; ++juego) {
        RegistroJuego& registro = estado.Juegos(juego);
        caben = LeeCampos(lineas.Siguiente(), ini::Registro(registro)) && caben;
        registro.Inicio = Recorta(registro.Inicio);
    }
    return caben;
}

bool LeeJuego(Lineas& lineas) {
    EntreManos entre_manos = ComoEsta();
    bool caben = LeeCampos(lineas.Siguiente(), ini::Ajustes(entre_manos));
    const bool con_juegos = estado.PartidaEnCurso && entre_manos.juegos > 0;
    entre_manos.juegos = con_juegos ? std::min(entre_manos.juegos, kMaximoJuegos) : Integer{0};
    caben = LeeCampos(lineas.Siguiente(), ini::Dinero(entre_manos)) && caben;
    caben = LeeCampos(lineas.Siguiente(), ini::Apuestas(entre_manos)) && caben;
    caben = LeeRegistros(lineas, entre_manos.juegos) && caben;
    Repon(entre_manos);
    return caben;
}

void PonJuegoNuevo() {
    PonValoresPorDefecto();
    Repon(EntreManos{});
    estado.JuegosGanados.Borra();
    estado.Juegos.Borra();
}

} // namespace

std::string NombreIniJuego(int juego) {
    return "ZOV" + Formato(static_cast<double>(juego), "00") + "31.INI";
}

void LeerIniGeneral() {
    estado.FicheroNuevo = false;
    const int error = Lee(
        kIniGeneral, [](Lineas& lineas) { return LeeCampos(lineas.Siguiente(), ini::General()); });
    ReparaGeneral();
    if (error != kSinError)
        Rehaz(kIniGeneral, "IDC ERROR ", error, GrabarIniGeneral);
}

void LeerIniJuego() {
    estado.FicheroNuevo = false;
    const std::string nombre = NombreIniJuego(estado.JuegoActivo);
    const int error = Lee(nombre, LeeJuego);
    if (!SeHaLeido(error))
        PonJuegoNuevo();
    estado.ManoEnCurso = false;
    ReparaJuego();
    AnotaDineroPrevio();
    sesion.mano_apuntada = estado.JuegosJugados > 0;
    if (error != kSinError)
        Rehaz(nombre, "IDCS ERROR ", error, GrabarIniJuego);
}

ErrorArchivo GrabarIniGeneral() {
    return Graba(kIniGeneral, EscribeCampos(ini::General(), ini::kAnchoGeneral) + kFinDeLinea);
}

ErrorArchivo GrabarIniJuego() {
    EntreManos entre_manos = LoQueSeGuarda();
    const int ultimo = entre_manos.juegos;
    const int primero = std::max(ultimo - kMaximoJuegos, 0) + 1;
    entre_manos.juegos = static_cast<Integer>(ultimo - primero + 1);

    std::string texto;
    const auto pon = [&texto](const Campos& campos, int ancho) {
        texto += EscribeCampos(campos, ancho) + kFinDeLinea;
    };
    pon(ini::Ajustes(entre_manos), ini::kAnchoAjustes);
    pon(ini::Dinero(entre_manos), ini::kAnchoFichas);
    pon(ini::Apuestas(entre_manos), ini::kAnchoApuestas);
    for (int juego = primero; juego <= ultimo; ++juego)
        pon(ini::Registro(estado.Juegos(juego)), ini::kAnchoRegistro);
    return Graba(NombreIniJuego(estado.JuegoActivo), texto);
}
