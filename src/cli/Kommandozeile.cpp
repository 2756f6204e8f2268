#include "cli/Kommandozeile.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <numeric>
#include <sstream>
#include <string_view>
#include <utility>
#include <vector>

#include "basis/Version.h"
#include "cli/Hilfeform.h"
#include "cli/Optionen.h"
#include "files/Pfad.h"

namespace rippenscheibe {

namespace {

constexpr std::string_view rueckgabewerte =
    "Rückgabewert: 0 alle Nachweise erfüllt, 1 ein Nachweis nicht erfüllt, 2 Hinweise, 3 Datei fehlt oder\n"
    "ist nicht lesbar oder nicht schreibbar, 64 falscher Aufruf; bei mehreren Dateien der höchste.";

constexpr std::array<Wort<Ausgabeart>, 3> ausgabearten{
    {{"text", Ausgabeart::text}, {"rtf", Ausgabeart::rtf}, {"json", Ausgabeart::json}}};
constexpr std::array<Wort<Ausgabeart>, 2> feldausgabearten{
    {{"text", Ausgabeart::text}, {"json", Ausgabeart::json}}};
constexpr std::array<Wort<Form>, 3> formen{
    {{"ansicht", Form::ansicht}, {"lang", Form::lang}, {"kurz", Form::kurz}}};

void fuegeLaeufeHinzu(CLI::App& befehl, int& laeufe) {
    fuegeZahlHinzu<int>(
        befehl, "--laeufe", {1, std::numeric_limits<int>::max(), "eine ganze Zahl ab 1"},
        [&laeufe](int zahl) { laeufe = zahl; },
        "so viele Läufe im selben Zustand, als würde so oft gestartet (sonst 1)");
}

void fuegeDateienHinzu(CLI::App& befehl, std::vector<std::filesystem::path>& dateien, bool mehrere) {
    CLI::Option* const option = befehl.add_option_function<std::vector<std::string>>(
        "DATEI",
        [&dateien](const std::vector<std::string>& werte) {
            for (const std::string& wert : werte) dateien.push_back(pfadAus(wert));
        },
        mehrere ? "Positionsdateien (.rsw)" : "Positionsdatei (.rsw)");
    option->required()->option_text(mehrere ? "..." : " ");
    if (!mehrere) option->expected(1);
}

// How many characters are to be typed, removed or exchanged to make one word of the other.
std::size_t abstand(std::string_view a, std::string_view b) {
    std::vector<std::size_t> zeile(b.size() + 1);
    std::iota(zeile.begin(), zeile.end(), 0U);
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t schraeg = std::exchange(zeile[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t getauscht = schraeg + (a[i] == b[j] ? 0 : 1);
            schraeg = zeile[j + 1];
            zeile[j + 1] = std::min({getauscht, zeile[j] + 1, zeile[j + 1] + 1});
        }
    }
    return zeile.back();
}

// What may have been meant in place of an unknown command, or "".
std::string vorschlag(const std::string& wort, const CLI::App& app) {
    if (wort.ends_with(".rsw")) return " Meinten Sie rechne " + wort + "?";
    constexpr std::size_t nah = 2;
    std::string bester;
    std::size_t kleinster = nah + 1;
    for (const CLI::App* befehl : app.get_subcommands([](const CLI::App*) { return true; })) {
        const std::size_t weg = abstand(wort, befehl->get_name());
        if (weg >= kleinster) continue;
        kleinster = weg;
        bester = befehl->get_name();
    }
    return bester.empty() ? bester : " Meinten Sie " + bester + "?";
}

// "Die Option -o DATEI fehlt."; what stands without an option is called by its name.
std::string fehlt(const std::string& option, const CLI::App& befehl) {
    if (!option.starts_with("-")) return "Es fehlt eine Angabe: " + option + ".";
    const std::string wert = befehl.get_option(option)->get_option_text();
    return "Die Option " + option + " " + wert.substr(0, wert.find(' ')) + " fehlt.";
}

// What CLI11 complains about, in German. Its texts begin with the name of the option.
std::string aufDeutsch(const CLI::ParseError& fehler, const CLI::App& app,
                       std::span<const std::string> angaben) {
    std::string text = fehler.what();
    const std::string option = text.substr(0, text.find_first_of(": "));
    std::string unbekannt;
    for (const std::string& angabe : app.remaining(true)) unbekannt += " " + angabe;
    if (dynamic_cast<const CLI::RequiredError*>(&fehler) != nullptr) {
        if (!app.get_subcommands().empty()) return fehlt(option, *app.get_subcommands().front());
        if (unbekannt.empty()) return "Es fehlt ein Befehl.";
        const std::string wort = app.remaining(true).front();
        const std::string meinung = vorschlag(wort, app);
        return "Unbekannter Befehl:" + (meinung.empty() ? unbekannt : " " + wort + "." + meinung);
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&fehler) != nullptr) {
        const auto genannt = std::count_if(angaben.begin(), angaben.end(), [&](const std::string& angabe) {
            return angabe == option || angabe.starts_with(option + "=");
        });
        const bool datei = !option.starts_with("-");  // stands without its name
        return genannt > 1 || datei ? option + " darf nur einmal stehen."
                                    : "Nach " + option + " fehlt der Wert.";
    }
    if (dynamic_cast<const CLI::ExtrasError*>(&fehler) != nullptr) return "Unbekannte Angabe:" + unbekannt;
    return text;
}

// Commands and options, bound to what they ask for.
class Befehlszeile {
  public:
    Befehlszeile() {
        richteEin();
        rechne();
        pruefe();
        neu();
        uebertrage();
        felder();
        herleite();
        studien();
    }
    // The options hold on to the members.
    Befehlszeile(const Befehlszeile&) = delete;
    Befehlszeile& operator=(const Befehlszeile&) = delete;

    std::variant<Auftrag, Auskunft> lies(std::span<const std::string> angaben);

  private:
    void richteEin();
    CLI::App& befehl(const std::string& name, const std::string& erklaerung, Befehl welcher);

    // Options that several commands have.
    void dateien(CLI::App& verb, bool mehrere) { fuegeDateienHinzu(verb, auftrag_.dateien, mehrere); }
    void material(CLI::App& verb) {
        fuegeDateiHinzu(verb, "--material", auftrag_.material,
                        "die eigenen Materialien (sonst Plattenwerte.dat im Ordner des Programms)");
    }
    void laeufe(CLI::App& verb) { fuegeLaeufeHinzu(verb, auftrag_.laeufe); }
    template <std::size_t N>
    void ausgabe(CLI::App& verb, const std::array<Wort<Ausgabeart>, N>& arten) {
        fuegeWahlHinzu(verb, "--ausgabe", arten, auftrag_.ausgabe, "Art der Ausgabe (sonst text)");
    }
    void nach(CLI::App& verb) {
        fuegeDateiHinzu(verb, "-o", auftrag_.nach, "dorthin schreiben statt auf die Standardausgabe");
    }

    void rechne();
    void pruefe();
    void neu();
    void uebertrage();
    void felder();
    void herleite();
    void studien();

    Auftrag auftrag_;
    CLI::App app_{"Bemessung von Wandtafeln in Holzrahmenbauweise nach DIN 1052 (2008)", "rippenscheibe-cli"};
};

void Befehlszeile::richteEin() {
    app_.set_help_flag("-h,--help", "diese Hilfe");
    app_.set_version_flag("--version", "rippenscheibe-cli " + std::string(programmversion()), "Version");
    app_.footer("Hilfe zu einem Befehl: rippenscheibe-cli BEFEHL --help\n\n" + std::string(rueckgabewerte));
    app_.formatter(std::make_shared<Hilfeform>());  // of the commands too
    app_.allow_windows_style_options(false);        // a path may begin with a slash there too
    app_.require_subcommand(1);
}

CLI::App& Befehlszeile::befehl(const std::string& name, const std::string& erklaerung, Befehl welcher) {
    CLI::App* const verb = app_.add_subcommand(name, erklaerung);
    verb->footer("");
    verb->callback([this, welcher] { auftrag_.befehl = welcher; });
    return *verb;
}

void Befehlszeile::rechne() {
    CLI::App& verb = befehl("rechne", "bemisst Wände und gibt den Bericht aus", Befehl::rechne);
    dateien(verb, true);
    ausgabe(verb, ausgabearten);
    fuegeWahlHinzu(verb, "--form", formen, auftrag_.form, "Form von Text und RTF (sonst ansicht)");
    material(verb);
    laeufe(verb);
    fuegeDateiHinzu(verb, "--lastfaelle", auftrag_.studie.lastfaelle,
                    "Tabelle der Lastfälle (CSV): jeder von ihnen statt der Lasten der Position");
    verb.add_flag_callback(
        "--sitzung", [this] { auftrag_.zustand = Zustand::gemeinsam; },
        "alle Dateien nacheinander in einem Zustand, wie im Fensterprogramm");
    verb.add_flag_callback(
        "--trotz-hinweisen", [this] { auftrag_.hinweise = Hinweisbehandlung::uebergehen; },
        "trotz Hinweisen rechnen");
    fuegeWahlHinzu(verb, "--dezimal", dezimalzeichen, auftrag_.dezimalzeichen,
                   "Dezimalzeichen der Berichte (sonst komma)");
    nach(verb);
}

void Befehlszeile::pruefe() {
    CLI::App& verb = befehl("pruefe", "gibt nur die Hinweise aus", Befehl::pruefe);
    dateien(verb, true);
    material(verb);
}

void Befehlszeile::neu() { nach(befehl("neu", "schreibt eine Position mit allen Vorgaben", Befehl::neu)); }

void Befehlszeile::uebertrage() {
    CLI::App& verb = befehl("uebertrage", "liest eine Position und schreibt sie wieder", Befehl::uebertrage);
    dateien(verb, false);
    fuegeDateiHinzu(verb, "-o", auftrag_.nach, "dorthin schreiben")
        ->required()
        ->option_text("DATEI (muss stehen)");
}

void Befehlszeile::felder() {
    ausgabe(befehl("felder", "gibt das Verzeichnis aller Felder aus", Befehl::felder), feldausgabearten);
}

void Befehlszeile::herleite() {
    CLI::App& verb = befehl("herleite", "zeigt, woher jede Zahl eines Laufs kommt", Befehl::herleite);
    dateien(verb, false);
    verb.add_option_function<std::string>(
            "--felder",
            [this](const std::string& namen) {
                std::istringstream strom(namen);
                for (std::string name; std::getline(strom, name, ',');)
                    auftrag_.herleitung.felder.push_back(name);
            },
            "nur diese Felder, mit ihrem letzten Schritt (sonst alle Schritte)")
        ->option_text("NAME,...");
    verb.add_flag_callback(
        "--tief", [this] { auftrag_.herleitung.tief = true; }, "mit allen Schritten, auf denen sie beruhen");
    verb.parse_complete_callback([this] {
        const Herleitungswahl& wahl = auftrag_.herleitung;
        if (auftrag_.ausgabe == Ausgabeart::rtf && (wahl.tief || !wahl.felder.empty()))
            throw CLI::ValidationError("--felder, --tief", "nicht mit --ausgabe rtf, dem ganzen Rechenweg");
    });
    material(verb);
    laeufe(verb);
    ausgabe(verb, ausgabearten);
    nach(verb);
}

void Befehlszeile::studien() {
    fuegeStudienHinzu(
        {[this](const std::string& name, const std::string& erklaerung, int welcher) -> CLI::App& {
             return befehl(name, erklaerung, static_cast<Befehl>(welcher));
         },
         [this](CLI::App& verb, bool mehrere) { dateien(verb, mehrere); },
         [this](CLI::App& verb) {
             fuegeDateiHinzu(
                 verb, "--vorlage", auftrag_.vorlage,
                 "Position, deren Eingaben gelten, wo eine Zeile nichts sagt (sonst die Vorgaben)");
         },
         [this](CLI::App& verb) { material(verb); }, [this](CLI::App& verb) { laeufe(verb); },
         [this](CLI::App& verb) { nach(verb); }},
        auftrag_.studie);
}

std::variant<Auftrag, Auskunft> Befehlszeile::lies(std::span<const std::string> angaben) {
    try {
        app_.parse(std::vector<std::string>(angaben.rbegin(), angaben.rend()));
    } catch (const CLI::CallForHelp&) {
        return Auskunft{app_.help(), Rueckgabe::erfuellt};
    } catch (const CLI::CallForVersion& version) {
        return Auskunft{version.what() + std::string("\n"), Rueckgabe::erfuellt};
    } catch (const CLI::ParseError& fehler) {
        return Auskunft{aufDeutsch(fehler, app_, angaben) + "\nHilfe: rippenscheibe-cli --help\n",
                        Rueckgabe::aufruf};
    }
    return auftrag_;
}

}  // namespace

std::string nichtZulaessig(const std::string& wert, const std::string& erlaubt) {
    std::string liste;
    for (const char zeichen : erlaubt) liste += zeichen == '|' ? std::string(", ") : std::string(1, zeichen);
    return "„" + wert + "“ ist nicht zulässig; erlaubt: " + liste;
}

std::variant<Auftrag, Auskunft> liesKommandozeile(std::span<const std::string> angaben) {
    return Befehlszeile().lies(angaben);
}

}  // namespace rippenscheibe
