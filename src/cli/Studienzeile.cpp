#include <CLI/CLI.hpp>
#include <array>
#include <utility>

#include "cli/Befehle.h"
#include "cli/Optionen.h"
#include "cli/Studie.h"

namespace rippenscheibe {

namespace {

// Names between commas; empty ones do not count.
void fuegeNamenHinzu(CLI::App& befehl, const std::string& option, std::vector<std::string>& ziel,
                     const std::string& erklaerung) {
    befehl
        .add_option_function<std::string>(
            option,
            [&ziel](const std::string& wert) {
                ziel = CLI::detail::split(wert, ',');
                std::erase(ziel, "");
            },
            erklaerung)
        ->option_text("NAME,...");
}

constexpr std::array<Wort<Grenzen>, 2> grenzwahl{{{"an", Grenzen::beachten}, {"aus", Grenzen::uebergehen}}};
constexpr std::array<Wort<Zeilenform>, 2> zeilenformen{
    {{"json", Zeilenform::json}, {"csv", Zeilenform::csv}}};
constexpr std::array<Wort<char>, 3> trenner{{{"semikolon", ';'}, {"komma", ','}, {"tab", '\t'}}};
constexpr std::array<Wort<Studienausgabe>, 2> stapelausgaben{
    {{"json", Studienausgabe::json}, {"csv", Studienausgabe::csv}}};

void fuegeCsvHinzu(CLI::App& befehl, Studienauftrag& auftrag) {
    fuegeWahlHinzu(befehl, "--trenner", trenner, auftrag.csv.trenner,
                   "Trennzeichen der CSV-Zeilen (sonst semikolon)");
    fuegeWahlHinzu(befehl, "--dezimal", dezimalzeichen, auftrag.csv.dezimal,
                   "Dezimalzeichen der CSV-Zeilen (sonst punkt)");
}

void fuegeFaedenHinzu(CLI::App& befehl, Studienauftrag& auftrag) {
    fuegeZahlHinzu<int>(
        befehl, "--faeden", {1, 1024, "eine ganze Zahl von 1 bis 1024"},
        [&](int zahl) { auftrag.faeden = zahl; },
        "so viele Kerne nutzen (sonst alle); das Ergebnis hängt nicht davon ab");
}

constexpr std::array<Wort<Studienausgabe>, 3> ausgaben{
    {{"text", Studienausgabe::text}, {"csv", Studienausgabe::csv}, {"json", Studienausgabe::json}}};
constexpr std::array<Wort<Studienausgabe>, 4> tafelausgaben{{{"text", Studienausgabe::text},
                                                             {"csv", Studienausgabe::csv},
                                                             {"json", Studienausgabe::json},
                                                             {"rtf", Studienausgabe::rtf}}};
constexpr std::array<Wort<bool>, 2> richtungen{{{"beide", true}, {"plus", false}}};
constexpr std::array<Wort<Auslegungsziel>, 3> ziele{{{"kosten", Auslegungsziel::kosten},
                                                     {"verbindungsmittel", Auslegungsziel::verbindungsmittel},
                                                     {"gewicht", Auslegungsziel::gewicht}}};

void fuegeTextHinzu(CLI::App& befehl, const std::string& option, std::string& ziel, const std::string& muster,
                    const std::string& erklaerung) {
    befehl.add_option(option, ziel, erklaerung)->option_text(muster);
}

// Axes of a grid; the option may stand several times.
void fuegeAchsenHinzu(CLI::App& befehl, Studienauftrag& auftrag) {
    befehl
        .add_option_function<std::vector<std::string>>(
            "--feld", [&](const std::vector<std::string>& achsen) { auftrag.achsen = achsen; },
            "was sich ändert, mehrmals: av1,av2=50:150:5 oder Material1=1,OSB/4")
        ->expected(1, 1000)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->option_text("FELD=WERTE");
}

// When a wall passes.
void fuegeRegelnHinzu(CLI::App& verb, Studienauftrag& auftrag) {
    fuegeDateiHinzu(verb, "--lastfaelle", auftrag.lastfaelle,
                    "Tabelle der Lastfälle (CSV); bestehen heißt, alle bestehen");
    fuegeWahlHinzu(verb, "--richtung", richtungen, auftrag.beideRichtungen,
                   "beide Vorzeichen von Fvk oder nur das eingegebene (sonst beide)");
    verb.add_flag("--mit-luecken", auftrag.mitLuecken,
                  "auch Wände, bei denen etwas Gefordertes nicht nachgewiesen ist");
    fuegeWahlHinzu(verb, "--grenzen", grenzwahl, auftrag.grenzen, "aus: auch Werte, die kein Dialog annimmt");
    fuegeCsvHinzu(verb, auftrag);
    fuegeFaedenHinzu(verb, auftrag);
}

// What all verbs share that judge walls.
CLI::App& fuegeVerbHinzu(const Studienverben& verben, Studienauftrag& auftrag, const std::string& name,
                         const std::string& erklaerung, Befehl befehl) {
    CLI::App& verb = verben.befehl(name, erklaerung, static_cast<int>(befehl));
    verben.dateien(verb, false);
    verben.material(verb);
    fuegeRegelnHinzu(verb, auftrag);
    fuegeWahlHinzu(verb, "--ausgabe", ausgaben, auftrag.ausgabe, "Art der Ausgabe (sonst text)");
    verben.nach(verb);
    return verb;
}

void fuegeZwischenrippenHinzu(CLI::App& befehl, Studienauftrag& auftrag) {
    fuegeZahlHinzu<double>(
        befehl, "--zwischenrippen", {1, 10, "eine Zahl von 1 bis 10"},
        [&](double zahl) { auftrag.zwischenrippen = zahl; },
        "Abstand der Verbindungsmittel an Innenrippen ohne Stoß als Vielfaches von av (sonst 1)");
}

void fuegeRasterverbenHinzu(const Studienverben& verben, Studienauftrag& auftrag) {
    CLI::App& variiere =
        fuegeVerbHinzu(verben, auftrag, "variiere", "rechnet alle Wände eines Rasters", Befehl::variiere);
    fuegeAchsenHinzu(variiere, auftrag);
    fuegeNamenHinzu(variiere, "--felder", auftrag.felder, "Eingaben und Ergebnisse, die jede Zeile enthält");
    variiere.add_flag("--trotzdem", auftrag.trotzdem, "auch Lasten, die bei diesem Lastfall nicht wirken");

    CLI::App& legeAus = fuegeVerbHinzu(verben, auftrag, "lege-aus",
                                       "sucht die günstigsten Wände, die bestehen", Befehl::legeAus);
    fuegeAchsenHinzu(legeAus, auftrag);
    fuegeNamenHinzu(
        legeAus, "--variiere", auftrag.gebiete,
        "statt --feld: abstand, verbindungsmittel, platte, rippenbreite, rippenhoehe, holz, anker (sonst "
        "abstand,verbindungsmittel)");
    fuegeZahlHinzu<std::size_t>(
        legeAus, "--zahl", {1, 1'000'000, "eine ganze Zahl von 1 bis 1000000"},
        [&](std::size_t zahl) { auftrag.zahl = zahl; }, "so viele Entwürfe (sonst 5)");
    fuegeWahlHinzu(legeAus, "--ziel", ziele, auftrag.ziel, "was klein sein soll (sonst kosten)");
    fuegeZahlHinzu<double>(
        legeAus, "--hoechstens", {0.01, 1, "eine Zahl von 0.01 bis 1"},
        [&](double zahl) { auftrag.hoechstens = zahl; }, "größte Ausnutzung (sonst 1)");
    fuegeDateiHinzu(legeAus, "--preise", auftrag.preise,
                    "Preise (sonst Preise.csv im Ordner des Programms, ohne sie die mitgelieferten)");
    legeAus.add_flag("--eigengewicht", auftrag.eigengewicht, "das Eigengewicht gkWand folgt der Wand");
    fuegeZwischenrippenHinzu(legeAus, auftrag);

    fuegeVerbHinzu(verben, auftrag, "hilft", "zeigt, welcher nächste Schritt einer Wand hilft",
                   Befehl::hilft);

    CLI::App& tafel =
        verben.befehl("tafel", "schreibt eine Bemessungstafel", static_cast<int>(Befehl::tafel));
    verben.dateien(tafel, false);
    verben.material(tafel);
    fuegeTextHinzu(tafel, "--groesste", auftrag.wunsch.groesste, "FELD",
                   "die Größe, deren größter Wert gesucht ist");
    fuegeTextHinzu(tafel, "--zeilen", auftrag.wunsch.zeilen, "FELD=WERTE",
                   "Zeilen, etwa Wandlaenge=0.625:10:0.625");
    fuegeTextHinzu(tafel, "--spalten", auftrag.wunsch.spalten, "FELD=WERTE",
                   "Spalten, etwa av1,av2=50:150:25");
    fuegeTextHinzu(tafel, "--von", auftrag.wunsch.von, "WERT", "Anfang der Suche (sonst 0)");
    fuegeTextHinzu(tafel, "--bis", auftrag.wunsch.bis, "WERT",
                   "Ende der Suche (sonst, was der Dialog erlaubt)");
    fuegeTextHinzu(tafel, "--stufe", auftrag.wunsch.stufe, "WERT", "Schritt der Suche (sonst 0.1)");
    tafel.add_flag("--trotzdem", auftrag.trotzdem, "auch Lasten, die bei diesem Lastfall nicht wirken");
    fuegeRegelnHinzu(tafel, auftrag);
    fuegeWahlHinzu(tafel, "--ausgabe", tafelausgaben, auftrag.ausgabe, "Art der Ausgabe (sonst text)");
    verben.nach(tafel);
}

void fuegeListenverbenHinzu(const Studienverben& verben, Studienauftrag& auftrag) {
    CLI::App& stueckliste = verben.befehl("stueckliste", "zählt Holz, Platten, Verbindungsmittel und Anker",
                                          static_cast<int>(Befehl::stueckliste));
    verben.dateien(stueckliste, true);
    verben.material(stueckliste);
    fuegeZwischenrippenHinzu(stueckliste, auftrag);
    fuegeWahlHinzu(stueckliste, "--ausgabe", ausgaben, auftrag.ausgabe, "Art der Ausgabe (sonst text)");
    fuegeCsvHinzu(stueckliste, auftrag);
    verben.nach(stueckliste);

    CLI::App& projekt = verben.befehl("projekt", "gibt die Übersicht aller Positionen eines Ordners aus",
                                      static_cast<int>(Befehl::projekt));
    projekt
        .add_option_function<std::string>(
            "ORDNER", [&](const std::string& wert) { auftrag.ordner = pfadAus(wert); },
            "Ordner mit Positionsdateien (.rsw)")
        ->required()
        ->option_text(" ");
    verben.material(projekt);
    fuegeWahlHinzu(projekt, "--ausgabe", ausgaben, auftrag.ausgabe, "Art der Ausgabe (sonst text)");
    fuegeCsvHinzu(projekt, auftrag);
    fuegeFaedenHinzu(projekt, auftrag);
    verben.nach(projekt);

    CLI::App& lastfaelle =
        verben.befehl("lastfaelle", "schlägt Lastfälle einer Wand vor: lastfaelle neu DATEI",
                      static_cast<int>(Befehl::lastfaelle));
    lastfaelle
        .add_option_function<std::string>(
            "neu",
            [](const std::string& wort) {
                if (wort != "neu") throw CLI::ValidationError("lastfaelle", nichtZulaessig(wort, "neu"));
            },
            "was getan wird: Lastfälle vorschlagen")
        ->required()
        ->option_text(" ");
    verben.dateien(lastfaelle, false);
    fuegeCsvHinzu(lastfaelle, auftrag);
    verben.nach(lastfaelle);
}

void fuegeStapelHinzu(const Studienverben& verben, Studienauftrag& auftrag) {
    CLI::App& stapel = verben.befehl("stapel", "rechnet JSON-Zeilen von der Standardeingabe",
                                     static_cast<int>(Befehl::stapel));
    verben.vorlage(stapel);
    fuegeNamenHinzu(stapel, "--felder", auftrag.felder, "Eingaben und Ergebnisse, die jede Antwort enthält");
    verben.material(stapel);
    verben.laeufe(stapel);
    fuegeWahlHinzu(stapel, "--grenzen", grenzwahl, auftrag.grenzen,
                   "aus: auch Werte, die kein Dialog annimmt");
    fuegeWahlHinzu(stapel, "--eingabe", zeilenformen, auftrag.eingabe, "Form der Zeilen (sonst json)");
    fuegeWahlHinzu(stapel, "--ausgabe", stapelausgaben, auftrag.ausgabe, "Form der Antworten (sonst json)");
    fuegeCsvHinzu(stapel, auftrag);
    fuegeFaedenHinzu(stapel, auftrag);
    stapel.add_flag("--streng", auftrag.streng, "Rückgabewert 1 und 2 wie bei rechne");
    stapel.add_flag("--schema", auftrag.schema, "gibt das JSON-Schema einer Zeile aus");
}

}  // namespace

void fuegeStudienHinzu(const Studienverben& verben, Studienauftrag& auftrag) {
    fuegeStapelHinzu(verben, auftrag);
    fuegeRasterverbenHinzu(verben, auftrag);
    fuegeListenverbenHinzu(verben, auftrag);
}

}  // namespace rippenscheibe
