#include "platform/qt/help_words.h"

#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <algorithm>

namespace ayuda {

namespace {

constexpr int kColumnasGlosario = 3; // the word, what else it is called, what it means
constexpr int kRaizMinima = 3;       // shorter words are compared as they are

bool EsLetra(const QString& texto, qsizetype sitio) {
    return sitio >= 0 && sitio < texto.size() && texto[sitio].isLetterOrNumber();
}

// The word without the ending of its plural, near enough to bring "acuses" to "acuse".
QString Raiz(const QString& palabra) {
    for (const QString& final : {QStringLiteral("es"), QStringLiteral("s"), QStringLiteral("e")}) {
        if (palabra.endsWith(final) && palabra.size() - final.size() >= kRaizMinima)
            return palabra.chopped(final.size());
    }
    return palabra;
}

// How long the word that begins there is, with the ending of its plural; 0 when it is part of another word.
int LargoDePalabra(const QString& texto, qsizetype desde, const QString& palabra) {
    if (EsLetra(texto, desde - 1))
        return 0;
    for (const QString& final : {QString(), QStringLiteral("s"), QStringLiteral("es")}) {
        const qsizetype tras = desde + palabra.size();
        if (QStringView(texto).mid(tras).startsWith(final) && !EsLetra(texto, tras + final.size()))
            return static_cast<int>(palabra.size() + final.size());
    }
    return 0;
}

template <typename Mide>
void Recoge(const TextoPlano& texto, const QString& busca, QList<Tramo>& tramos, const Mide& mide) {
    if (busca.isEmpty())
        return;
    for (qsizetype en = texto.letras.indexOf(busca); en >= 0;
         en = texto.letras.indexOf(busca, en + 1)) {
        const int largo = mide(en);
        if (largo == 0)
            continue;
        const int desde = texto.sitios[en];
        tramos.append({desde, texto.sitios[en + largo - 1] - desde + 1});
    }
}

QString TextoDeCelda(const QTextTableCell& celda) {
    QTextCursor todo = celda.firstCursorPosition();
    todo.setPosition(celda.lastCursorPosition().position(), QTextCursor::KeepAnchor);
    return todo.selectedText();
}

QStringList PalabrasDe(const QString& celda) {
    QStringList palabras;
    for (const QString& palabra : celda.split(u',', Qt::SkipEmptyParts)) {
        const QString plana = Plano(palabra).letras.simplified();
        if (!plana.isEmpty())
            palabras << plana;
    }
    return palabras;
}

} // namespace

TextoPlano Plano(const QString& texto) {
    TextoPlano plano;
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const QString partes = QString(texto[i]).normalized(QString::NormalizationForm_KD);
        for (const QChar letra : partes) {
            if (letra.category() == QChar::Mark_NonSpacing)
                continue;
            plano.letras += letra.isSpace() ? QChar(u' ') : letra.toCaseFolded();
            plano.sitios << static_cast<int>(i);
        }
    }
    return plano;
}

QList<Tramo> Apariciones(const TextoPlano& texto, const Clave& clave) {
    QList<Tramo> tramos;
    Recoge(texto, clave.escrita, tramos,
           [&](qsizetype) { return static_cast<int>(clave.escrita.size()); });
    for (const QString& palabra : clave.sinonimos) {
        Recoge(texto, palabra, tramos,
               [&](qsizetype en) { return LargoDePalabra(texto.letras, en, palabra); });
    }
    std::ranges::sort(tramos, {}, &Tramo::desde);
    return tramos;
}

bool Tiene(const TextoPlano& texto, const Clave& clave) {
    return !Apariciones(texto, clave).isEmpty();
}

Vocabulario::Vocabulario(const QString& html) {
    QTextDocument pagina;
    pagina.setHtml(html);
    for (const QTextFrame* marco : pagina.rootFrame()->childFrames()) {
        const auto* tabla = qobject_cast<const QTextTable*>(marco);
        if (tabla == nullptr || tabla->columns() != kColumnasGlosario)
            continue;
        for (int fila = 1; fila < tabla->rows(); ++fila) { // the first holds the headings
            QStringList grupo = PalabrasDe(TextoDeCelda(tabla->cellAt(fila, 0)));
            grupo << PalabrasDe(TextoDeCelda(tabla->cellAt(fila, 1)));
            if (grupo.size() > 1)
                grupos_ << grupo;
        }
    }
}

Clave Vocabulario::ClaveDe(const QString& plano) const {
    Clave clave{plano, {}};
    const QString raiz = Raiz(plano);
    for (const QStringList& grupo : grupos_) {
        const bool esta = std::ranges::any_of(
            grupo, [&](const QString& palabra) { return Raiz(palabra) == raiz; });
        if (esta)
            clave.sinonimos << grupo;
    }
    clave.sinonimos.removeAll(plano);
    return clave;
}

QList<Clave> Vocabulario::Claves(const QString& busca) const {
    const QString todo = Plano(busca).letras.simplified();
    if (todo.isEmpty())
        return {};
    const Clave entera = ClaveDe(todo);
    if (!entera.sinonimos.isEmpty())
        return {entera};
    QList<Clave> claves;
    for (const QString& palabra : todo.split(u' '))
        claves << ClaveDe(palabra);
    return claves;
}

} // namespace ayuda
