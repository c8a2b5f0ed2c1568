#include "platform/qt/sound.h"

#include <QFileInfo>

#include "platform/qt/places.h"

Altavoz::Altavoz(const QString& carpeta) : enchufe_(FicheroSonido(carpeta)) {
    reproductor_ = qobject_cast<Reproductor*>(enchufe_.instance());
}

// The plugin goes while the application still stands: its libraries want that.
Altavoz::~Altavoz() {
    enchufe_.unload();
}

int Altavoz::Toca(int id) {
    return reproductor_ == nullptr ? 0 : reproductor_->Toca(id);
}
