#include "study/Projekt.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <optional>
#include <system_error>
#include <utility>

#include "basis/Zahlenformat.h"
#include "files/Dateischreiber.h"
#include "files/Pfad.h"
#include "run/Positionslauf.h"
#include "study/Felder.h"
#include "study/Lastfaelle.h"

namespace rippenscheibe {

namespace fs = std::filesystem;

namespace {

char klein(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }
bool istZiffer(char c) { return c >= '0' && c <= '9'; }

// Cuts the digits at the start of a text off, without leading zeros.
std::string_view ziffern(std::string_view& text) {
    std::size_t ende = 0;
    while (ende < text.size() && istZiffer(text[ende])) ++ende;
    std::string_view zahl = text.substr(0, ende);
    text.remove_prefix(ende);
    zahl.remove_prefix(std::min(zahl.find_first_not_of('0'), zahl.size()));
    return zahl;
}

// Whether one file name stands before another: numbers by value, letters whatever their case.
bool stehtVor(const std::string& a, const std::string& b) {
    std::string_view x = a;
    std::string_view y = b;
    while (!x.empty() && !y.empty()) {
        if (istZiffer(x.front()) && istZiffer(y.front())) {
            const std::string_view zahlX = ziffern(x);
            const std::string_view zahlY = ziffern(y);
            if (zahlX.size() != zahlY.size()) return zahlX.size() < zahlY.size();
            if (zahlX != zahlY) return zahlX < zahlY;
            continue;
        }
        if (klein(x.front()) != klein(y.front())) return klein(x.front()) < klein(y.front());
        x.remove_prefix(1);
        y.remove_prefix(1);
    }
    if (x.empty() != y.empty()) return x.empty();
    return a < b;
}

bool hatPositionsendung(const fs::path& datei) {
    std::string endung = pfadtext(datei.extension());
    std::transform(endung.begin(), endung.end(), endung.begin(), klein);
    return endung == ".rsw";
}

// A reason without the name of its file, which stands beside it.
std::string ohneNamen(std::string grund, const fs::path& datei) {
    const std::string name = pfadtext(datei) + ": ";
    return grund.starts_with(name) ? grund.substr(name.size()) : std::move(grund);
}

std::string plattenangabe(const Wand& w, Seite n) {
    return std::string(beplankungsname(w, n)) + " " + kommatext(plattendicke(w, n)) + " mm";
}

std::string befestigungsangabe(const Wand& w, Seite n) {
    return verbindungsmitteltext(w, n) + ", av " + kommatext(w.av[n].value()) + " mm";
}

std::string beideOderEine(const Wand& w, std::string (*text)(const Wand&, Seite)) {
    std::string erste = text(w, Seite::eins);
    if (w.Einseitig) return erste;
    const std::string zweite = text(w, Seite::zwei);
    return erste == zweite ? erste : erste + " | " + zweite;
}

void beschreibe(Projektposition& p, const Wand& w) {
    p.masse = kommatext(w.Wandlaenge.value()) + " × " + kommatext(w.Wandhoehe.value()) + " m";
    p.beplankung = beideOderEine(w, plattenangabe) + (w.Einseitig ? ", einseitig" : "");
    p.befestigung = beideOderEine(w, befestigungsangabe);
    if (w.NachweisVerankerung)
        p.verankerung = kommatext(w.AnzahlAnker.value()).append(" × ").append(ankername(w));
}

// What the rules of every search say of a wall that passes its run.
std::string einwandDerSuche(const Projektposition& p, const EigeneMaterialien& materialien,
                            const std::vector<Lastfallzeile>& faelle) {
    if (!p.urteil.erfuellt()) return {};
    const Bewertungsregel regel{.mitLuecken = true, .lastfaelle = faelle};
    Pruefstand stand(p.eingaben, materialien, regel);
    const Bewertung bewertung = stand.bewerte();
    if (bewertung.ausgang == Ausgang::besteht) return {};
    std::string text = "mit Fv in der anderen Richtung oder beim zweiten Start: ";
    if (bewertung.ausgang == Ausgang::ueberschritten)
        text += formatiere("0.00", bewertung.maxEta, ',') + " · ";
    return text + scheitertAn(bewertung, regel);
}

void rechne(Projektposition& p, const EigeneMaterialien& materialien,
            const std::vector<Lastfallzeile>& faelle) {
    const bool mitTabelle = !faelle.empty();
    std::vector<Fallurteil> urteile =
        fallurteile(p.eingaben, materialien, mitTabelle ? faelle : std::vector<Lastfallzeile>(1));
    Fallurteil& fall = urteile[static_cast<std::size_t>(massgebenderFall(urteile))];
    p.massgebend = massgebendText(fall);
    p.urteil = fall.urteil;
    p.hinweise = std::move(fall.hinweise);
    p.sonst = einwandDerSuche(p, materialien, faelle);
    Lueckenmenge genannt;
    // The left edge rib is proved by the case turned round, where it is the right one.
    if (mitTabelle && p.urteil.erfuellt() && p.sonst.empty()) genannt.nimmAuf(Lueckenart::schwelleLinks);
    for (const Fallurteil& u : urteile) {
        for (const auto& [art, satz] : u.luecken) {
            if (genannt.enthaelt(art)) continue;
            genannt.nimmAuf(art);
            p.luecken.push_back(satz);
        }
    }
}

}  // namespace

std::vector<Fallurteil> fallurteile(const Eingaben& wand, const EigeneMaterialien& materialien,
                                    const std::vector<Lastfallzeile>& faelle) {
    std::vector<Fallurteil> urteile;
    Wand w;
    w.eigeneMaterialien = materialien;
    Feldzugriff felder(w);
    for (const Lastfallzeile& fall : faelle) {
        static_cast<Eingaben&>(w) = wand;
        for (const auto& [feld, wert] : fall.werte) felder.setze(feld, wert);
        const Laufergebnis lauf = rechneFrisch(w);
        urteile.push_back({fall.name, urteil(w, lauf), texte(w.Hinweise), {}});
        if (lauf == Laufergebnis::hinweise) continue;
        for (const Lueckenart art : luecken(w).arten())
            urteile.back().luecken.emplace_back(art, lueckensatz(w, art));
    }
    return urteile;
}

int massgebenderFall(const std::vector<Fallurteil>& urteile) {
    const auto rang = [](const Fallurteil& fall) { return fall.urteil.maxEta.value_or(HUGE_VAL); };
    const auto groesster = std::max_element(urteile.begin(), urteile.end(),
                                            [&](const auto& a, const auto& b) { return rang(a) < rang(b); });
    return urteile.empty() ? -1 : static_cast<int>(groesster - urteile.begin());
}

std::string massgebendText(const Fallurteil& fall) {
    const std::string nachweis(fall.urteil.massgebend.value_or(""));
    return fall.name + (fall.name.empty() || nachweis.empty() ? "" : ": ") + nachweis;
}

Dateistand dateistand(const fs::path& datei) {
    std::error_code fehler;
    Dateistand stand{datei, fs::last_write_time(datei, fehler), 0};
    if (fehler) return {datei, {}, 0};
    stand.groesse = fs::file_size(datei, fehler);
    return stand;
}

fs::path lastfalldatei(const fs::path& position) {
    fs::path datei = position;
    return datei.replace_extension("lastfaelle.csv");
}

std::variant<std::vector<Lastfallzeile>, std::string> liesLastfaelle(const fs::path& datei) {
    Dateiinhalt inhalt = liesDatei(datei);
    if (inhalt.lage == Dateilage::fehlt) return std::vector<Lastfallzeile>{};
    if (inhalt.fehler) return inhalt.fehler->text;
    auto faelle = lastfaelleAus(tabellentext(inhalt.bytes));
    if (auto* fehler = std::get_if<std::string>(&faelle)) return pfadtext(datei.filename()) + ", " + *fehler;
    return faelle;
}

std::variant<std::vector<Projektdatei>, std::string> projektdateien(const fs::path& ordner) {
    std::error_code fehler;
    std::vector<std::pair<std::string, fs::path>> gefunden;
    for (fs::directory_iterator eintrag(ordner, fehler), ende; !fehler && eintrag != ende;
         eintrag.increment(fehler)) {
        std::error_code unlesbar;
        if (hatPositionsendung(eintrag->path()) && !eintrag->is_directory(unlesbar))
            gefunden.emplace_back(pfadtext(eintrag->path().filename()), eintrag->path());
    }
    if (fehler) return "Der Ordner \"" + pfadtext(ordner) + "\" kann nicht gelesen werden.";
    std::sort(gefunden.begin(), gefunden.end(),
              [](const auto& a, const auto& b) { return stehtVor(a.first, b.first); });
    std::vector<Projektdatei> dateien;
    dateien.reserve(gefunden.size());
    for (const auto& [name, datei] : gefunden)
        dateien.push_back({dateistand(datei), dateistand(lastfalldatei(datei))});
    return dateien;
}

std::vector<fs::path> projekteingaben(const fs::path& ordner) {
    std::vector<fs::path> alle;
    const auto dateien = projektdateien(ordner);
    if (const auto* liste = std::get_if<std::vector<Projektdatei>>(&dateien))
        for (const Projektdatei& datei : *liste)
            alle.insert(alle.end(), {datei.position.datei, datei.lastfaelle.datei});
    return alle;
}

std::string ordnername(const fs::path& ordner) {
    std::error_code fehler;
    const fs::path ganz = fs::weakly_canonical(ordner, fehler);
    return pfadtext(ganz.has_filename() ? ganz.filename() : ganz.parent_path().filename());
}

Projekturteil Projektposition::stand() const {
    if (!fehler.empty()) return Projekturteil::unlesbar;
    if (!urteil.maxEta) return Projekturteil::hinweise;
    return urteil.erfuellt() ? Projekturteil::erfuellt : Projekturteil::nichtErfuellt;
}

Projektposition liesProjektposition(const Projektdatei& datei, const EigeneMaterialien& materialien) {
    Projektposition p;
    p.datei = datei;
    Wand w;
    w.eigeneMaterialien = materialien;
    zuweisen(w, grundmasse(w));
    Oeffnung oeffnung = oeffnePosition(datei.position.datei, w, Einlass::nurPositionen);
    if (oeffnung.fehler) {
        p.fehler = ohneNamen(*oeffnung.fehler, datei.position.datei);
        return p;
    }
    p.uebersprungen = std::move(oeffnung.vorbehalte);
    p.eingaben = w;
    beschreibe(p, w);
    p.mengen = mengen(w);

    auto gelesen = liesLastfaelle(datei.lastfaelle.datei);
    std::vector<Lastfallzeile> faelle;
    if (auto* fehler = std::get_if<std::string>(&gelesen))
        p.lastfallfehler = std::move(*fehler);
    else
        faelle = std::get<0>(std::move(gelesen));
    p.lastfaelle = static_cast<int>(faelle.size());
    rechne(p, materialien, faelle);
    return p;
}

void liesProjekt(const std::vector<Projektdatei>& dateien, const EigeneMaterialien& materialien,
                 const Ausfuehrung& ausfuehrung, const std::function<bool(Projektposition)>& schreibe) {
    std::size_t naechste = 0;
    std::size_t fertig = 0;
    fliessband(
        ausfuehrung,
        [&] { return naechste < dateien.size() ? std::optional(dateien[naechste++]) : std::nullopt; },
        [] { return 0; },
        [&](int&, const Projektdatei& datei) { return liesProjektposition(datei, materialien); },
        [&](Projektposition position) {
            if (ausfuehrung.fortschritt) ausfuehrung.fortschritt({++fertig, dateien.size(), fertig});
            return schreibe(std::move(position));
        });
}

}  // namespace rippenscheibe
