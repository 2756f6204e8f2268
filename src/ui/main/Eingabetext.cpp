#include "ui/main/Eingabetext.h"

#include <QLocale>
#include <algorithm>
#include <type_traits>

#include "model/Feldangaben.h"
#include "model/Kataloge.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

// A choice whose description lists its numbers.
struct Wahl {
    std::string_view feld;
    std::string_view name;
};
constexpr Wahl wahlen[] = {
    {"VMKlasse", "Tragfähigkeitsklasse"},
    {"Teilausnagelung", "Nägel im Anker"},
    {"Lastfall", "Scheibenbeanspruchung"},
    {"KLED", "Lasteinwirkungsdauer"},
    {"GenauesVerfahren", "Berechnungsverfahren"},
    {"KlammerWinkelOption", "Winkel der Klammern"},
    {"VertikallastVerteilung", "Verteilung der Vertikallasten"},
    {"LagesicherungVerfahren", "Lagesicherung"},
};

// Lengths that are entered in another unit than the record's mm.
struct Dialogeinheit {
    std::string_view feld;
    double teiler;
    const char* einheit;
};
constexpr Dialogeinheit dialogeinheiten[] = {
    {"Rippenabstand", 1000, "m"}, {"bRandrippe", 10, "cm"}, {"bInnenrippe", 10, "cm"},
    {"bKopfFussrippe", 10, "cm"}, {"hRandrippe", 10, "cm"},
};

// The height of the inner ribs is that of the others, the remarks count themselves.
constexpr std::string_view wiederholungen[] = {"hInnenrippe", "AnzahlZusatzbemerkungen"};

template <class Tabelle>
const auto* gesucht(const Tabelle& tabelle, std::string_view feld) {
    const auto* const stelle = std::find_if(std::begin(tabelle), std::end(tabelle),
                                            [feld](const auto& zeile) { return zeile.feld == feld; });
    return stelle == std::end(tabelle) ? nullptr : stelle;
}

QString name(const Feldangabe& angabe) {
    const std::string_view stamm = ohneSeite(angabe.name);
    const Wahl* wahl = gesucht(wahlen, stamm);
    // Behind a colon or semicolon stands what a value means.
    QString text = wahl != nullptr ? qtext(wahl->name)
                                   : qtext(angabe.bedeutung.substr(0, angabe.bedeutung.find_first_of(":;")));
    if (stamm != angabe.name && !text.endsWith(QLatin1Char(angabe.name.back())))
        text += QStringLiteral(", Seite %1").arg(QLatin1Char(angabe.name.back()));
    return text;
}

QString zahl(const Feldangabe& angabe, double wert) {
    if (!katalog(angabe.name).empty())
        if (const std::string_view wort = katalogwort(angabe.name, static_cast<int>(wert)); !wort.empty())
            return qtext(wort);
    const Dialogeinheit* dialog = gesucht(dialogeinheiten, angabe.name);
    const QString einheit = dialog != nullptr ? qtext(dialog->einheit) : qtext(angabe.einheit);
    QLocale sprache;
    sprache.setNumberOptions(QLocale::OmitGroupSeparator);
    return (sprache.toString(wert / (dialog != nullptr ? dialog->teiler : 1), 'g', 7) + QLatin1Char(' ') +
            einheit)
        .trimmed();
}

template <class T>
QString wert(const Feldangabe& angabe, const T& feld) {
    if constexpr (std::is_same_v<T, bool>) {
        return feld ? QStringLiteral("ja") : QStringLiteral("nein");
    } else if constexpr (std::is_convertible_v<const T&, std::string_view>) {
        return qtext(feld);
    } else if constexpr (requires { feld.value(); }) {
        return zahl(angabe, static_cast<double>(feld.value()));
    } else {
        QString text;
        for (const std::string& zeile : feld) text += qtext(zeile) + QLatin1Char('\n');
        return text.trimmed();
    }
}

}  // namespace

std::vector<Eingabetext> eingabetexte(const Wand& w) {
    std::vector<Eingabetext> texte;
    jedeEingabe(w, [&](const Feldangabe& angabe, const auto& feld) {
        if (std::find(std::begin(wiederholungen), std::end(wiederholungen), angabe.name) ==
            std::end(wiederholungen))
            texte.push_back({name(angabe), wert(angabe, feld)});
    });
    return texte;
}

}  // namespace rippenscheibe
