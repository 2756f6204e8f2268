#include "ui/main/Eingabetext.h"

#include <QLocale>
#include <algorithm>
#include <array>
#include <type_traits>

#include "model/Kataloge.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

using Worte = std::span<const std::string_view>;

constexpr std::string_view lastfaelle[] = {"horizontal", "vertikal", "horizontal und vertikal"};
constexpr std::string_view ausnagelungen[] = {"voll ausgenagelt", "teilweise ausgenagelt"};
constexpr std::string_view verfahren[] = {"vereinfacht", "genau"};
constexpr std::string_view winkel[] = {"mindestens 30°", "kleiner als 30°"};
constexpr std::string_view verteilungen[] = {"nur Rippen", "Rippen und Beplankung"};
constexpr std::string_view lagesicherungen[] = {"Druckkraft über der Randrippe", "Summe der Momente"};

template <const auto& worte>
std::string_view wort(int index) {
    return eintrag(worte, index);
}
template <Worte (*katalog)()>
std::string_view ausKatalog(int index) {
    return eintrag(katalog(), index);
}
std::string_view kammnagelname(int index) {
    const auto naegel = Kammnaegel();
    const bool vorhanden = index >= 1 && index <= static_cast<int>(naegel.size());
    return vorhanden ? naegel[static_cast<std::size_t>(index) - 1].name : std::string_view();
}

// A choice: what it is called in short, and its words by their number.
struct Wahl {
    std::string_view feld;
    std::string_view name;
    std::string_view (*wort)(int);
};
constexpr Wahl wahlen[] = {
    {"Holzart", "Festigkeitsklasse der Rippen", ausKatalog<Holzarten>},
    {"Material", "Plattenmaterial", ausKatalog<Plattenmaterialien>},
    {"VMArt", "Art des Verbindungsmittels", ausKatalog<VMArten>},
    {"VMKlasse", "Tragfähigkeitsklasse", ausKatalog<VMKlassen>},
    {"VMTyp", "Zeile der Nageltabelle", nagelname},
    {"Ankertyp", "Anker", ausKatalog<Ankernamen>},
    {"Teilausnagelung", "Nägel im Anker", wort<ausnagelungen>},
    {"Kammnagel", "CNA-Kammnagel", kammnagelname},
    {"Lastfall", "Scheibenbeanspruchung", wort<lastfaelle>},
    {"KLED", "Lasteinwirkungsdauer", ausKatalog<KLEDNamen>},
    {"GenauesVerfahren", "Berechnungsverfahren", wort<verfahren>},
    {"KlammerWinkelOption", "Winkel der Klammern", wort<winkel>},
    {"VertikallastVerteilung", "Verteilung der Vertikallasten", wort<verteilungen>},
    {"LagesicherungVerfahren", "Lagesicherung", wort<lagesicherungen>},
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

bool istSeitenfeld(const Feldangabe& angabe) {
    return angabe.name.back() == '1' || angabe.name.back() == '2';
}

// The name of the field without its side.
std::string_view stamm(const Feldangabe& angabe) {
    return angabe.name.substr(0, angabe.name.size() - (istSeitenfeld(angabe) ? 1 : 0));
}

template <class Tabelle>
const auto* gesucht(const Tabelle& tabelle, std::string_view feld) {
    const auto* const stelle = std::find_if(std::begin(tabelle), std::end(tabelle),
                                            [feld](const auto& zeile) { return zeile.feld == feld; });
    return stelle == std::end(tabelle) ? nullptr : stelle;
}

QString name(const Feldangabe& angabe) {
    const Wahl* wahl = gesucht(wahlen, stamm(angabe));
    // Behind a colon or semicolon stands what a value means.
    QString text = wahl != nullptr ? qtext(wahl->name)
                                   : qtext(angabe.bedeutung.substr(0, angabe.bedeutung.find_first_of(":;")));
    if (istSeitenfeld(angabe) && !text.endsWith(QLatin1Char(angabe.name.back())))
        text += QStringLiteral(", Seite %1").arg(QLatin1Char(angabe.name.back()));
    return text;
}

QString zahl(const Feldangabe& angabe, double wert) {
    if (const Wahl* wahl = gesucht(wahlen, stamm(angabe))) {
        const std::string_view inWorten = wahl->wort(static_cast<int>(wert));
        return inWorten.empty() ? QString::number(wert) : qtext(inWorten);
    }
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
