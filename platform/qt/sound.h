#pragma once
// The way to the sound plugin. Without it there is silence.

#include <QPluginLoader>
#include <QString>

#include "platform/qt/sound_backend.h"

class Altavoz {
public:
    // carpeta: the program's folder, where the plugin is looked for first.
    explicit Altavoz(const QString& carpeta);
    ~Altavoz();
    Altavoz(const Altavoz&) = delete;
    Altavoz& operator=(const Altavoz&) = delete;

    // Begins sound id; its length in milliseconds, 0 when nothing can be heard.
    int Toca(int id);

private:
    QPluginLoader enchufe_;
    Reproductor* reproductor_ = nullptr;
};
