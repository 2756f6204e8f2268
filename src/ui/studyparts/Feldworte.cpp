#include "ui/studyparts/Feldworte.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "model/Feldangaben.h"
#include "model/Kataloge.h"
#include "study/Mengen.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

const Feldangabe& angabe(int feld) { return eingabefeld(feld).angabe; }

bool hatSeite(std::string_view name) { return ohneSeite(name) != name; }

// The entry of a list, "" for a field that is none.
QString listeneintrag(std::string_view name, int wert) { return qtext(katalogwort(name, wert)).simplified(); }

bool gehoertZumVerbindungsmittel(std::string_view name) {
    constexpr std::array<std::string_view, 4> masse{"VMTyp", "d", "ln", "dk"};
    return hatSeite(name) && std::find(masse.begin(), masse.end(), ohneSeite(name)) != masse.end();
}

// What a field means, without its side.
QString bedeutung(int feld) {
    if (gehoertZumVerbindungsmittel(angabe(feld).name)) return QStringLiteral("Verbindungsmittel");
    if (angabe(feld).name.starts_with("Plattendicke")) return QStringLiteral("Plattendicke");
    return qtext(angabe(feld).bedeutung).section(QStringLiteral(", gleich"), 0, 0);
}

// Names of fields that say the same of both sides become one.
QString benannt(const std::vector<int>& felder) {
    QStringList namen;
    for (const int feld : felder) {
        const std::string_view name = angabe(feld).name;
        const QString wort = bedeutung(feld);
        const QString mitSeite =
            hatSeite(name) ? QStringLiteral("%1, Beplankung %2").arg(wort, QChar::fromLatin1(name.back()))
                           : wort;
        const QString andere = QStringLiteral("%1, Beplankung 1").arg(wort);
        if (mitSeite != andere && namen.contains(andere))
            namen.replace(namen.indexOf(andere), QStringLiteral("%1, beide Seiten").arg(wort));
        else if (!namen.contains(mitSeite) && !namen.contains(wort + QStringLiteral(", beide Seiten")))
            namen << mitSeite;
    }
    return namen.join(QStringLiteral(" und "));
}

// The value of the wall; of a part of the fastener the whole fastener.
QString ganzerText(int feld, const Wand& w) {
    const std::string_view name = angabe(feld).name;
    return gehoertZumVerbindungsmittel(name) ? qtext(verbindungsmitteltext(w, seiteAus(name)))
                                             : werttext(feld, w);
}

struct Aenderung {
    QString wechsel;
    std::vector<int> felder;
};

}  // namespace

QString feldname(std::span<const int> felder) { return benannt({felder.begin(), felder.end()}); }

QString mitEinheit(std::span<const int> felder) {
    const QString einheit = qtext(angabe(felder.front()).einheit);
    return einheit.isEmpty() ? feldname(felder) : QStringLiteral("%1 [%2]").arg(feldname(felder), einheit);
}

QString spaltenname(std::span<const int> felder) {
    const Feldangabe& erstes = angabe(felder.front());
    if (gehoertZumVerbindungsmittel(erstes.name)) return QStringLiteral("Verbindungsmittel");
    QString name = erstes.symbol.empty() ? bedeutung(felder.front()).section(QLatin1Char(' '), 0, 0)
                                         : qtext(erstes.symbol);
    for (const char zeichen : {'_', '{', '}', ';', ','})
        if (zeichen != ',' || erstes.symbol.empty()) name.remove(QLatin1Char(zeichen));
    return name;
}

QString werttext(int feld, const Wand& w) {
    Wand kopie = w;
    const Feldzugriff felder(kopie);
    const Feldangabe& a = angabe(feld);
    QString eintrag = listeneintrag(a.name, static_cast<int>(felder.zahl(feld)));
    if (!eintrag.isEmpty()) return eintrag;
    std::string text;
    felder.anfuegeEingabe(text, feld);
    if (text == "true") return QStringLiteral("ja");
    if (text == "false") return QStringLiteral("nein");
    const QString zahl = qtext(text).replace(QLatin1Char('.'), QLatin1Char(dezimalzeichen()));
    return a.einheit.empty() ? zahl : zahl + QLatin1Char(' ') + qtext(a.einheit);
}

QString werttext(int feld, const Feldwert& wert) {
    Wand w;
    Feldzugriff(w).setze(feld, wert);
    return werttext(feld, w);
}

QString werttext(const Achsenwert& wert) {
    return wert.setzt.size() > 2 ? qtext(wert.text)
                                 : werttext(wert.setzt.front().first, wert.setzt.front().second);
}

QString achsentext(const Achse& achse, const Wand& w) {
    QStringList texte;
    for (const int feld : achse.felder) {
        const QString text = ganzerText(feld, w);
        if (!texte.contains(text)) texte << text;
    }
    return texte.join(QStringLiteral(" / "));
}

QString aenderungstext(const Wand& heute, const Zuweisungen& setzt) {
    const Wand neu = mitZuweisungen(heute, setzt);
    std::vector<Aenderung> aenderungen;
    for (const auto& [feld, wert] : setzt) {
        const QString vorher = ganzerText(feld, heute);
        const QString nachher = ganzerText(feld, neu);
        if (vorher == nachher) continue;
        const QString wechsel = QStringLiteral("%1 → %2").arg(vorher, nachher);
        const auto gleich = std::find_if(aenderungen.begin(), aenderungen.end(),
                                         [&](const Aenderung& a) { return a.wechsel == wechsel; });
        if (gleich == aenderungen.end())
            aenderungen.push_back({wechsel, {feld}});
        else
            gleich->felder.push_back(feld);
    }
    QStringList texte;
    for (const Aenderung& a : aenderungen) texte << benannt(a.felder) + QStringLiteral(": ") + a.wechsel;
    return texte.join(QStringLiteral("; "));
}

Wand studienwand(const Programm& programm) {
    Wand w = programm.w;
    zuweisen(w, programm.felder);
    return w;
}

Wand mitZuweisungen(const Wand& w, const Zuweisungen& setzt) {
    Wand neu = w;
    Feldzugriff felder(neu);
    for (const auto& [feld, wert] : setzt) felder.setze(feld, wert);
    zuweisen(neu, grundmasse(neu));
    return neu;
}

void uebernimm(Programm& programm, const QString& name, const Zuweisungen& setzt) {
    const Schritt schritt(programm, name);
    zuweisen(programm.w, programm.felder);
    Feldzugriff felder(programm.w);
    for (const auto& [feld, wert] : setzt) felder.setze(feld, wert);
    // What stands in the main window stays, unless it was set.
    const Grundmasse neu = grundmasse(programm.w);
    for (const auto& [laenge, mass] : {std::pair("Wandlaenge", &Grundmasse::Wandlaenge),
                                       {"Wandhoehe", &Grundmasse::Wandhoehe},
                                       {"Rippenabstand", &Grundmasse::Rippenabstand}})
        if (std::any_of(setzt.begin(), setzt.end(),
                        [feld = eingabeindex(laenge)](const auto& z) { return z.first == feld; }))
            programm.felder.*mass = neu.*mass;
    programm.setzeGesichert(false);
    Q_EMIT programm.ersetzt();
    programm.zuweisen();
}

}  // namespace rippenscheibe
