#pragma once
// The folder in which somebody plays: settings, matches, history, decks.

#include <QString>
#include <QTemporaryDir>
#include <optional>

// Where the decks and tables lie that the program comes with. orden is the word by which it was started.
QString CarpetaDeLoQueTrae(const QString& orden);

// Makes the folder, and copies into it what it lacks of datos: the settings only at its first start, for later a file
// that is lost is to be told; a deck that was taken away comes back. False when it cannot be played in afterwards, or
// nothing can be written there.
[[nodiscard]] bool LlenaCarpeta(const QString& datos, const QString& propia);

// A program that lies in one folder with its files is played there. One that is installed for all gives each player
// an own folder; where that cannot be filled, one is lent until the end.
class CarpetaDeJuego {
public:
    explicit CarpetaDeJuego(const QString& orden);

    QString Ruta() const { return EsPrestada() ? prestada_->path() : propia_; }
    // Nothing that is written in it lasts; Propia is the folder that should have been filled.
    bool EsPrestada() const { return prestada_.has_value(); }
    QString Propia() const { return propia_; }

private:
    QString propia_;
    std::optional<QTemporaryDir> prestada_;
};
