// The sound plugin: the thirteen sounds from its own resources, through Qt Multimedia.

#include <QAudioDevice>
#include <QFile>
#include <QMediaDevices>
#include <QObject>
#include <QSoundEffect>
#include <QTimer>
#include <QWaveDecoder>
#include <map>
#include <memory>

#include "platform/qt/sound_backend.h"

namespace {

QString RutaDe(int id) {
    return QStringLiteral(":/sonidos/sonido_%1.wav").arg(id, 2, 10, QChar(u'0'));
}

// Milliseconds of a WAVE file, from the byte rate in its head; 0 for anything else.
int DuracionDe(const QString& ruta) {
    QFile fichero(ruta);
    QWaveDecoder cabecera(&fichero);
    if (!fichero.open(QIODevice::ReadOnly) || !cabecera.open(QIODevice::ReadOnly))
        return 0;
    return cabecera.duration();
}

// A sound that has been heard keeps its stream open and wakes the program a hundred times a second until it is
// stopped; the sound server may still be playing its end for a while.
constexpr int kColaDelServidor = 500;

struct Efecto {
    std::unique_ptr<QSoundEffect> sonido;
    std::unique_ptr<QTimer> calla;
    int duracion = 0;
};

} // namespace

class ReproductorQt : public QObject, public Reproductor {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID Reproductor_iid)
    Q_INTERFACES(Reproductor)
public:
    int Toca(int id) override {
        if (QMediaDevices::defaultAudioOutput().isNull())
            return 0;
        Efecto& efecto = EfectoDe(id);
        if (efecto.duracion > 0) {
            efecto.sonido->play();
            efecto.calla->start(efecto.duracion + kColaDelServidor);
        }
        return efecto.duracion;
    }

private:
    Efecto& EfectoDe(int id) {
        Efecto& efecto = efectos_[id];
        if (efecto.sonido)
            return efecto;
        efecto.sonido = std::make_unique<QSoundEffect>();
        efecto.duracion = DuracionDe(RutaDe(id));
        efecto.calla = std::make_unique<QTimer>();
        efecto.calla->setSingleShot(true);
        QObject::connect(efecto.calla.get(), &QTimer::timeout, efecto.sonido.get(),
                         &QSoundEffect::stop);
        if (efecto.duracion > 0)
            efecto.sonido->setSource(QUrl(QStringLiteral("qrc") + RutaDe(id)));
        return efecto;
    }

    std::map<int, Efecto> efectos_;
};

#include "sound_player.moc"
