#include "tools/sonda/picture_view.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

#include "core/literal.h"
#include "forms/form_view.h"
#include "forms/normas_view.h"
#include "forms/personal_view.h"
#include "platform/qt/picture_platform.h"
#include "reports/estadis_view.h"
#include "reports/historic_view.h"
#include "reports/marcador_view.h"
#include "session/state_blocks.h"
#include "table/whole_table.h"
#include "tools/common/program_files.h"

namespace {

// Letters need it; a console that paints nothing does without.
void ArrancaLetras() {
    static int argc = 1;
    static char nombre[] = "sonda";
    static char* argv[] = {nombre, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QApplication kAplicacion(argc, argv);
}

// Another platform and a state of its own, until the painting is done.
class Prestamo {
public:
    explicit Prestamo(Plataforma& otra) : antes_(plataforma()) { UsaPlataforma(otra); }
    ~Prestamo() {
        estado_.Repon();
        UsaPlataforma(antes_);
    }
    Prestamo(const Prestamo&) = delete;
    Prestamo& operator=(const Prestamo&) = delete;

private:
    Plataforma& antes_;
    Instantanea estado_ = Instantanea::Toma();
};

QImage FotoDe(Forma forma) {
    switch (forma) {
    case Forma::Personal:
        return HazVistaPersonal()->Foto();
    case Forma::Normas:
        return HazVistaNormas()->Foto();
    case Forma::Marcador:
        return HazVistaMarcador()->Foto();
    case Forma::Historic:
        return HazVistaHistoric()->Foto();
    case Forma::Estadis:
        return HazVistaEstadis()->Foto();
    }
    return {};
}

// In the middle of the table, as the window shows it; both in device pixels.
void PonEncima(QImage& cuadro, QImage forma) {
    forma.setDevicePixelRatio(1);
    QPainter(&cuadro).drawImage((cuadro.width() - forma.width()) / 2,
                                (cuadro.height() - forma.height()) / 2, forma);
}

std::string RutaDeBaraja() {
    const char* nombre = estado.TipoBaraja == kBarajaEspanola ? "Baraja02.bmp" : "Baraja01.bmp";
    return CarpetaDeDatos() + "/" + nombre;
}

void PintaPantalla(const PlataformaSinPantalla& mesa, std::optional<Forma> abierta,
                   const std::string& fichero) {
    ArrancaLetras();
    const QImage forma = abierta ? FotoDe(*abierta) : QImage();
    PlataformaCuadro cuadro(qApp->devicePixelRatio());
    cuadro.Mide(estado.AnchoPantalla, estado.AltoPantalla);
    cuadro.CargaBaraja(RutaDeBaraja(), estado.ColumnasBaraja);
    mesa.Tablero().CopiaEn(cuadro);
    const Prestamo prestamo(cuadro);
    // A script that ended in the middle of a hand has left the match; its cards still lie on the table.
    const bool hay_cartas = std::any_of(estado.NumCartas.begin(), estado.NumCartas.end(),
                                        [](Integer cartas) { return cartas > 0; });
    estado.PartidaEnCurso = estado.PartidaEnCurso || hay_cartas;
    PrepararImagenes();
    RedibujarMesa();
    QImage pantalla = cuadro.Cuadro();
    PonEncima(pantalla, forma);
    if (!pantalla.save(QString::fromStdString(fichero)))
        throw ErrorConsola("no se puede escribir " + fichero);
}

} // namespace

Consola::Pintor PintorDe(const PlataformaSinPantalla& mesa) {
    return [&mesa](const std::string& fichero, std::optional<Forma> abierta) {
        PintaPantalla(mesa, abierta, fichero);
    };
}
