#include "cli/Studie.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "cli/Befehle.h"

namespace rippenscheibe {

namespace {

template <class T>
struct Wort {
    std::string_view wort;
    T wert;
};

// An option of which one word is chosen.
template <class T, std::size_t N>
void fuegeWahlHinzu(CLI::App& befehl, const std::string& option, const std::array<Wort<T>, N>& woerter,
                    T& ziel, const std::string& erklaerung) {
    std::string erlaubt;
    for (const Wort<T>& wort : woerter) erlaubt.append(erlaubt.empty() ? "" : "|").append(wort.wort);
    befehl
        .add_option_function<std::string>(
            option,
            [woerter, &ziel, option, erlaubt](const std::string& wert) {
                const auto treffer = std::find_if(woerter.begin(), woerter.end(),
                                                  [&](const Wort<T>& w) { return w.wort == wert; });
                if (treffer == woerter.end())
                    throw CLI::ValidationError(option, "\"" + wert + "\" geht nicht, möglich: " + erlaubt);
                ziel = treffer->wert;
            },
            erklaerung)
        ->option_text(erlaubt);
}

// A number of at least `mindestens`.
template <class T>
void fuegeZahlHinzu(CLI::App& befehl, const std::string& option, T mindestens, const std::string& erlaubt,
                    std::function<void(T)> setze, const std::string& erklaerung) {
    befehl
        .add_option_function<std::string>(
            option,
            [=](const std::string& wert) {
                T zahl{};
                const char* const ende = wert.data() + wert.size();
                const auto [stelle, fehler] = std::from_chars(wert.data(), ende, zahl);
                if (fehler != std::errc{} || stelle != ende || !(zahl >= mindestens))
                    throw CLI::ValidationError(option, "\"" + wert + "\" geht nicht, möglich: " + erlaubt);
                setze(zahl);
            },
            erklaerung)
        ->option_text("N");
}

// Names between commas.
void fuegeNamenHinzu(CLI::App& befehl, const std::string& option, std::vector<std::string>& ziel,
                     const std::string& erklaerung) {
    befehl
        .add_option_function<std::string>(
            option, [&ziel](const std::string& wert) { ziel = CLI::detail::split(wert, ','); }, erklaerung)
        ->option_text("NAME,...");
}

constexpr std::array<Wort<Grenzen>, 2> grenzwahl{{{"an", Grenzen::beachten}, {"aus", Grenzen::uebergehen}}};
constexpr std::array<Wort<Zeilenform>, 2> zeilenformen{
    {{"json", Zeilenform::json}, {"csv", Zeilenform::csv}}};
constexpr std::array<Wort<char>, 3> trenner{{{"semikolon", ';'}, {"komma", ','}, {"tab", '\t'}}};
constexpr std::array<Wort<char>, 2> dezimalzeichen{{{"punkt", '.'}, {"komma", ','}}};
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
        befehl, "--faeden", 1, "eine ganze Zahl ab 1", [&](int zahl) { auftrag.faeden = zahl; },
        "so viele Kerne nutzen (sonst alle); das Ergebnis hängt nicht davon ab");
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
    auftrag.ausgabe = Studienausgabe::json;
    fuegeWahlHinzu(stapel, "--ausgabe", stapelausgaben, auftrag.ausgabe, "Form der Antworten (sonst json)");
    fuegeCsvHinzu(stapel, auftrag);
    fuegeFaedenHinzu(stapel, auftrag);
    stapel.add_flag("--streng", auftrag.streng, "Rückgabewert 1 und 2 wie bei rechne");
    stapel.add_flag("--schema", auftrag.schema, "gibt das JSON-Schema einer Zeile aus");
}

// Carries one verb out.
class Studie {
  public:
    explicit Studie(const Studienumgebung& umgebung) : u_(umgebung), auftrag_(umgebung.auftrag.studie) {}

    Rueckgabe stapel() {
        if (auftrag_.schema) {
            u_.gibAus(stapelschema());
            return Rueckgabe::erfuellt;
        }
        if (const std::string fremd = fremdesFeld(auftrag_.felder); !fremd.empty())
            return weiseZurueck("Unbekanntes Feld: " + fremd + "\nAlle Felder: rippenscheibe-cli felder");
        Stapelauftrag stapelauftrag;
        if (!u_.vorlagen.empty()) stapelauftrag.vorlage = u_.vorlagen.front().eingaben;
        stapelauftrag.materialien = u_.materialien;
        stapelauftrag.felder = auftrag_.felder;
        stapelauftrag.laeufe = u_.auftrag.laeufe;
        stapelauftrag.grenzen = auftrag_.grenzen;
        stapelauftrag.eingabe = auftrag_.eingabe;
        stapelauftrag.ausgabe = auftrag_.ausgabe == Studienausgabe::csv ? Zeilenform::csv : Zeilenform::json;
        stapelauftrag.csv = auftrag_.csv;
        const Stapelergebnis ergebnis =
            rippenscheibe::stapel(stapelauftrag, {u_.ausgaben.lies, u_.ausgaben.strom}, {.faeden = faeden()});
        if (ergebnis.fehlerhaft > 0) return Rueckgabe::dateifehler;
        if (!auftrag_.streng) return Rueckgabe::erfuellt;
        if (ergebnis.mitHinweisen > 0) return Rueckgabe::hinweise;
        return ergebnis.nichtErfuellt > 0 ? Rueckgabe::nichtErfuellt : Rueckgabe::erfuellt;
    }

  private:
    int faeden() const { return auftrag_.faeden.value_or(kernzahl()); }

    Rueckgabe weiseZurueck(const std::string& satz) const {
        u_.ausgaben.meldungen(satz + "\n");
        return Rueckgabe::aufruf;
    }

    const Studienumgebung& u_;
    const Studienauftrag& auftrag_;
};

}  // namespace

void fuegeStudienHinzu(const Studienverben& verben, Studienauftrag& auftrag) {
    fuegeStapelHinzu(verben, auftrag);
}

Rueckgabe fuehreStudieAus(const Studienumgebung& umgebung) {
    Studie studie(umgebung);
    return studie.stapel();
}

}  // namespace rippenscheibe
