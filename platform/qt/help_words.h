#pragma once
// The words of the help: how a text is searched without case and accents, and which words of the table's
// glossary stand for each other.

#include <QList>
#include <QString>
#include <QStringList>

namespace ayuda {

// A text as the search sees it: "Póker" is "poker". sitios(i) is where letter i of it stood in the text.
struct TextoPlano {
    QString letras;
    QList<int> sitios;
};
TextoPlano Plano(const QString& texto);

struct Tramo {
    int desde = 0; // in the text's own letters
    int largo = 0;
    friend bool operator==(const Tramo&, const Tramo&) = default;
};

// One thing that is looked for: the letters that were typed, wherever they stand, or a word that means the
// same, as a whole word in singular or plural.
struct Clave {
    QString escrita;
    QStringList sinonimos;
};

// Where the text has it, in order; places may overlap.
QList<Tramo> Apariciones(const TextoPlano& texto, const Clave& clave);
bool Tiene(const TextoPlano& texto, const Clave& clave);

class Vocabulario {
public:
    Vocabulario() = default;
    // From the page of the glossary: each row of its tables of three columns is a group, its words divided by
    // commas in the first column (the word) and the second (what else it is called).
    explicit Vocabulario(const QString& html);

    int Grupos() const { return static_cast<int>(grupos_.size()); }
    // What to look for: the whole text when the glossary has it as one word, else each of its words.
    QList<Clave> Claves(const QString& busca) const;

private:
    Clave ClaveDe(const QString& plano) const;

    QList<QStringList> grupos_;
};

} // namespace ayuda
