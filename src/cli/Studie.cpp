#include "cli/Studie.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <thread>
#include <utility>
#include <variant>

#include "cli/Befehle.h"
#include "cli/Projektausgabe.h"
#include "files/Dateischreiber.h"
#include "files/Pfad.h"
#include "study/Lastfaelle.h"
#include "study/Projekt.h"
#include "study/Tafelblatt.h"
#include "study/Variation.h"
#include "study/WasHilft.h"

namespace rippenscheibe {

namespace {

// Why a verb ends early: what is told, and the code.
struct Abbruch {
    std::string satz;
    Rueckgabe rueckgabe = Rueckgabe::aufruf;
};

// Asks whether the user wants an end, as long as a computation runs.
class Wache {
  public:
    explicit Wache(const std::function<bool()>& abgebrochen) {
        if (!abgebrochen) return;
        faden_ = std::jthread([this, abgebrochen](const std::stop_token& schluss) {
            while (!schluss.stop_requested()) {
                if (abgebrochen()) halt_.request_stop();
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
            }
        });
    }
    std::stop_token halt() const { return halt_.get_token(); }

  private:
    std::stop_source halt_;
    std::jthread faden_;
};

// Carries one verb out.
class Studie {
  public:
    explicit Studie(const Studienumgebung& umgebung)
        : u_(umgebung),
          auftrag_(umgebung.auftrag.studie),
          wache_(umgebung.auftrag.befehl == Befehl::stapel ? std::function<bool()>{}
                                                           : umgebung.ausgaben.abgebrochen) {}

    Studienende fuehreAus() {
        try {
            return {verb(), true};
        } catch (const Abbruch& abbruch) {
            melde(abbruch.satz);
            return {abbruch.rueckgabe, false};
        }
    }

  private:
    Rueckgabe verb() {
        switch (u_.auftrag.befehl) {
            case Befehl::stapel:
                return stapel();
            case Befehl::variiere:
                return variiere();
            case Befehl::legeAus:
                return legeAus();
            case Befehl::hilft:
                return hilft();
            case Befehl::tafel:
                return tafel();
            case Befehl::stueckliste:
                return stueckliste();
            case Befehl::projekt:
                return projekt();
            default:
                return lastfaelle();
        }
    }

    // Rows and messages take the place of the line of progress.
    void schreibe(std::string_view text) {
        loescheFortschritt();
        u_.gibAus(text);
    }
    void melde(const std::string& satz) {
        loescheFortschritt();
        u_.ausgaben.meldungen(satz + "\n");
    }

    Rueckgabe stapel() {
        if (auftrag_.schema) {
            schreibe(stapelschema());
            return Rueckgabe::erfuellt;
        }
        pruefeFelder();
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

    Rueckgabe variiere() {
        pruefeFelder();
        Variationsauftrag v{eingaben(), u_.materialien, regel(), raster(auftrag_.achsen), auftrag_.felder};
        if (v.raster.achsen().empty()) throw Abbruch{"Es fehlt --feld FELD=WERTE."};
        pruefeLastfaelle(v.raster, v.regel);
        pruefeLasten(v.raster);
        Zeilenausgabe ausgabe(auftrag_.ausgabe, auftrag_.csv);
        Pruefstand stelle(v.vorlage, v.materialien);
        rippenscheibe::variiere(v, ausfuehrung(), [&](const Variationspunkt& punkt) {
            Studienzeile zeile{.vorn = {}, .gruppe = "felder", .innen = {}, .hinten = {}};
            stelle.beginne();
            v.raster.setze(punkt.nummer, stelle.felder());
            anfuegeAchsenfelder(zeile.innen, v.raster, stelle.felder());
            const bool besteht = punkt.bewertung.ausgang == Ausgang::besteht;
            zeile.hinten.emplace_back("besteht", besteht ? "true" : "false");
            anfuegeUrteil(zeile.hinten, punkt.bewertung, v.regel);
            anfuegeRichtung(zeile.hinten, punkt.bewertung);
            zeile.hinten.emplace_back("hinweis", jsonOderNull(punkt.bewertung.hinweis));
            zeile.hinten.emplace_back("luecken", jsonListe(punkt.luecken));
            for (std::size_t i = 0; i < punkt.felder.size(); ++i)
                zeile.hinten.emplace_back(auftrag_.felder[i], punkt.felder[i]);
            schreibe(ausgabe.zeile(zeile));
            return true;
        });
        schreibe(ausgabe.schluss());
        pruefeAbbruch();
        return Rueckgabe::erfuellt;
    }

    Rueckgabe legeAus() {
        Auslegungsauftrag a{};
        a.vorlage = eingaben();
        a.materialien = u_.materialien;
        a.regel = regel();
        if (!auftrag_.achsen.empty() && !auftrag_.gebiete.empty())
            throw Abbruch{"Entweder --feld oder --variiere."};
        a.raster = auftrag_.achsen.empty() ? standardraster() : raster(auftrag_.achsen);
        a.ziel = auftrag_.ziel;
        a.reihen.zwischenrippen = auftrag_.zwischenrippen;
        a.eigengewicht = auftrag_.eigengewicht;
        a.zahl = auftrag_.zahl;
        if (const std::string fest = festesFeld(a.raster); !fest.empty())
            throw Abbruch{fest + " wird beim Auslegen nicht verändert"};
        if (a.ziel == Auslegungsziel::kosten) a.preise = preise();
        auto ergebnis = rippenscheibe::legeAus(a, ausfuehrung());
        if (const auto* fehler = std::get_if<std::string>(&ergebnis))
            throw Abbruch{*fehler, a.raster.anzahl() > hoechstensKandidaten ? Rueckgabe::aufruf
                                                                            : Rueckgabe::dateifehler};
        return gibAus(a, std::get<0>(ergebnis));
    }

    Rueckgabe gibAus(const Auslegungsauftrag& a, const Auslegungsergebnis& ergebnis) {
        const bool gefunden = !ergebnis.entwuerfe.empty();
        const bool text = auftrag_.ausgabe == Studienausgabe::text;
        const auto sage = [&](const std::string& satz) { text ? schreibe(satz + "\n") : melde(satz); };
        sage(auswertung(ergebnis));
        if (a.ziel == Auslegungsziel::kosten && !a.preise.herkunft().empty()) sage(a.preise.herkunft());
        if (!gefunden)
            sage((ergebnis.vollstaendig ? "Keine Wand besteht" : "Bis dahin besteht keine Wand") +
                 std::string(ergebnis.knappVerfehlt.empty() ? "." : "; am nächsten kommen:"));
        Pruefstand stand(a.vorlage, a.materialien, a.regel);
        Zeilenausgabe ausgabe(auftrag_.ausgabe, auftrag_.csv);
        int rang = 0;
        for (const Entwurf& entwurf : gefunden ? ergebnis.entwuerfe : ergebnis.knappVerfehlt)
            schreibe(ausgabe.zeile(entwurfszeile(a, entwurf, gefunden ? ++rang : 0, stand)));
        schreibe(ausgabe.schluss());
        if (text) schreibe("Fest: " + festeAngaben(stand) + "\n");
        return gefunden ? Rueckgabe::erfuellt : Rueckgabe::nichtErfuellt;
    }

    Studienzeile entwurfszeile(const Auslegungsauftrag& a, const Entwurf& entwurf, int rang,
                               Pruefstand& stand) const {
        constexpr std::array<std::string_view, 3> namen{"kosten", "verbindungsmittel", "gewicht"};
        Studienzeile zeile{.vorn = {}, .gruppe = "felder", .innen = {}, .hinten = {}};
        zeile.vorn.emplace_back("rang", rang > 0 ? std::to_string(rang) : "null");
        zeile.vorn.emplace_back(namen[static_cast<std::size_t>(a.ziel)], jsonWert(entwurf.wert));
        anfuegeUrteil(zeile.vorn, entwurf.bewertung, a.regel);
        setzeEntwurf(a, entwurf.nummer, stand);
        anfuegeAchsenfelder(zeile.innen, a.raster, stand.felder());
        if (a.eigengewicht) {
            std::string gkWand;
            stand.felder().anfuegeEingabe(gkWand, eingabeindex("gkWand"));
            zeile.innen.emplace_back("gkWand", gkWand);
        }
        anfuegeRichtung(zeile.hinten, entwurf.bewertung);
        zeile.hinten.emplace_back("luecken", jsonListe(stand.lueckensaetze(entwurf.bewertung)));
        if (auftrag_.ausgabe == Studienausgabe::json) zeile.hinten.emplace_back("fest", festesObjekt(stand));
        return zeile;
    }

    static std::string festesObjekt(const Pruefstand& stand) {
        Glieder glieder;
        for (const int feld : festeFelder()) {
            std::string wert;
            stand.felder().anfuegeEingabe(wert, feld);
            glieder.emplace_back(eingabefeld(feld).angabe.name, std::move(wert));
        }
        return jsonObjekt(glieder);
    }

    static std::string festeAngaben(const Pruefstand& stand) {
        std::string text;
        for (const int feld : festeFelder()) {
            if (!text.empty()) text += ", ";
            text.append(eingabefeld(feld).angabe.name).append(" = ");
            text += eingabetext(stand.felder(), feld);
        }
        return text;
    }

    static std::string auswertung(const Auslegungsergebnis& e) {
        const std::string gruende = ausscheidegruende(e);
        std::string text = std::to_string(e.geprueft) + " von " + std::to_string(e.kandidaten) +
                           " Kandidaten geprüft, " + std::to_string(e.geprueft - e.bestanden) +
                           " scheiden aus" + (gruende.empty() ? "" : ": " + gruende);
        if (!e.vollstaendig) text += " (abgebrochen; bis dahin sind die Ergebnisse bewiesen)";
        return text;
    }

    Rueckgabe hilft() {
        const Bewertungsregel r = regel();
        const Hilfe hilfe = wasHilft(eingaben(), u_.materialien, r, ausfuehrung());
        pruefeAbbruch();
        Zeilenausgabe ausgabe(auftrag_.ausgabe, auftrag_.csv);
        const auto gib = [&](const std::string& schritt, const Bewertung& bewertung,
                             const std::vector<std::pair<int, Feldwert>>& setzt) {
            Studienzeile zeile;
            zeile.vorn.emplace_back("schritt", jsonOderNull(schritt));
            anfuegeUrteil(zeile.vorn, bewertung, r);
            anfuegeRichtung(zeile.vorn, bewertung);
            zeile.vorn.emplace_back("besteht", bewertung.ausgang == Ausgang::besteht ? "true" : "false");
            zeile.vorn.emplace_back("scheitertAn", jsonOderNull(scheitertAn(bewertung, r)));
            if (auftrag_.ausgabe == Studienausgabe::json) {
                zeile.gruppe = "felder";
                anfuegeZuweisungen(zeile.innen, setzt);
            }
            schreibe(ausgabe.zeile(zeile));
        };
        gib("heute", hilfe.heute, {});
        for (const Hilfeschritt& schritt : hilfe.schritte)
            gib(schritt.text, schritt.bewertung, schritt.setzt);
        schreibe(ausgabe.schluss());
        return Rueckgabe::erfuellt;
    }

    Rueckgabe tafel() {
        Tafelwunsch wunsch = auftrag_.wunsch;
        wunsch.grenzen = auftrag_.grenzen;
        wunsch.trotzdem = auftrag_.trotzdem;
        const auto gelesen = tafelauftrag(wunsch, {eingaben(), u_.materialien, regel(), {}, {}, {}});
        if (const auto* fehler = std::get_if<std::string>(&gelesen)) throw Abbruch{*fehler};
        const auto& t = std::get<Tafelauftrag>(gelesen);
        const Tafel ergebnis = bemessungstafel(t, ausfuehrung());
        pruefeAbbruch();
        switch (auftrag_.ausgabe) {
            case Studienausgabe::json:
                gibZellenAus(t, ergebnis);
                break;
            case Studienausgabe::rtf:
                schreibe(tafelRtf(tafelblatt(t, ergebnis)));
                break;
            default:
                gibTafelAus(t, ergebnis);
        }
        return Rueckgabe::erfuellt;
    }

    void gibZellenAus(const Tafelauftrag& t, const Tafel& tafel) {
        Zeilenausgabe ausgabe(Studienausgabe::json, auftrag_.csv);
        const auto objekt = [](const Achsenwert& wert) {
            Glieder glieder;
            anfuegeZuweisungen(glieder, wert.setzt);
            return jsonObjekt(glieder);
        };
        const auto zahl = [](const std::string& text) { return zahltext(zahlAus(text)); };
        for (std::size_t i = 0; i < tafel.zellen.size(); ++i) {
            for (std::size_t j = 0; j < tafel.zellen[i].size(); ++j) {
                const Tafelzelle& z = tafel.zellen[i][j];
                Studienzeile zeile;
                zeile.vorn = {{"zeile", objekt(t.zeilen.werte[i])},
                              {"spalte", objekt(t.spalten.werte[j])},
                              {"groesste", z.besteht() ? zahl(z.groesste) : "null"},
                              {"massgebend", jsonOderNull(z.massgebend)}};
                if (z.hatLoecher()) {
                    std::string intervalle = "[";
                    for (const auto& [von, bis] : z.intervalle)
                        intervalle +=
                            (intervalle.size() > 1 ? ",[" : "[") + zahl(von) + "," + zahl(bis) + "]";
                    zeile.vorn.emplace_back("intervalle", intervalle + "]");
                }
                schreibe(ausgabe.zeile(zeile));
            }
        }
    }

    static std::string inEinheit(const Achse& achse) {
        const std::string_view einheit = eingabefeld(achse.felder.front()).angabe.einheit;
        return einheit.empty() || einheit == "-" ? "" : " in " + std::string(einheit);
    }

    // The table itself, then what its signs mean.
    void gibTafelAus(const Tafelauftrag& t, const Tafel& tafel) {
        const bool csv = auftrag_.ausgabe == Studienausgabe::csv;
        std::vector<std::vector<std::string>> zeilen =
            tafelzeilen(t, tafel, csv ? auftrag_.csv.dezimal : ',');
        if (!csv) {
            schreibe(t.groesste.name + ", größter Wert" + inEinheit(t.groesste) + "\n" +
                     alsTabelle(zeilen, Buendigkeit::rechts) + tafellegende(tafel));
            return;
        }
        for (const auto& zeile : zeilen) schreibe(csvZeile(zeile, auftrag_.csv));
    }

    Rueckgabe stueckliste() {
        Mengen summe;
        Zeilenausgabe ausgabe(auftrag_.ausgabe, auftrag_.csv);
        for (const Vorlage& vorlage : u_.vorlagen) {
            Wand w;
            static_cast<Eingaben&>(w) = vorlage.eingaben;
            w.eigeneMaterialien = u_.materialien;
            const Mengen m = mengen(w, {auftrag_.zwischenrippen});
            addiere(summe, m);
            gibMengenAus(ausgabe, vorlage.datei, m);
        }
        if (u_.vorlagen.size() > 1) gibMengenAus(ausgabe, "Summe", summe);
        schreibe(ausgabe.schluss());
        return Rueckgabe::erfuellt;
    }

    void gibMengenAus(Zeilenausgabe& ausgabe, const std::string& wand, const Mengen& m) {
        for (const Mengenzeile& posten : mengenzeilen(m)) {
            Studienzeile zeile{.vorn = mengenglieder(posten), .gruppe = {}, .innen = {}, .hinten = {}};
            zeile.vorn.insert(zeile.vorn.begin(), {"wand", jsonOderNull(wand)});
            schreibe(ausgabe.zeile(zeile));
        }
    }

    Rueckgabe projekt() {
        Projektausgabe ausgabe(auftrag_.ausgabe, auftrag_.csv, u_.gibAus);
        auto dateien = projektdateien(auftrag_.ordner);
        if (auto* fehler = std::get_if<std::string>(&dateien)) throw Abbruch{*fehler, Rueckgabe::dateifehler};
        const auto& liste = std::get<0>(dateien);
        if (liste.empty())
            throw Abbruch{"Im Ordner \"" + pfadtext(auftrag_.ordner) + "\" liegt keine Position.",
                          Rueckgabe::dateifehler};
        int hoechster = 0;
        liesProjekt(liste, u_.materialien, ausfuehrung(), [&](const Projektposition& position) {
            hoechster = std::max(hoechster, static_cast<int>(position.stand()));
            ausgabe.gib(position);
            return true;
        });
        pruefeAbbruch();
        loescheFortschritt();
        ausgabe.schliesse();
        return static_cast<Rueckgabe>(hoechster);
    }

    Rueckgabe lastfaelle() {
        const auto faelle = vorgeschlageneLastfaelle(eingaben());
        if (faelle.empty()) throw Abbruch{"Die Wand hat keine Lasten.", Rueckgabe::nichtErfuellt};
        schreibe(lastfaelletext(faelle, auftrag_.csv));
        return Rueckgabe::erfuellt;
    }

    const Eingaben& eingaben() const { return u_.vorlagen.front().eingaben; }
    int faeden() const { return auftrag_.faeden.value_or(kernzahl()); }

    Ausfuehrung ausfuehrung() {
        return {faeden(), wache_.halt(), [this](const Fortschritt& f) {
                    const auto jetzt = std::chrono::steady_clock::now();
                    if (jetzt - gezeigt_ < std::chrono::milliseconds(100)) return;
                    gezeigt_ = jetzt;
                    if (!u_.ausgaben.fortschritt) return;
                    u_.ausgaben.fortschritt(std::to_string(f.geprueft) + " von " + std::to_string(f.gesamt) +
                                            ", gefunden " + std::to_string(f.gefunden));
                    fortschrittSteht_ = true;
                }};
    }

    void loescheFortschritt() {
        if (!std::exchange(fortschrittSteht_, false)) return;
        u_.ausgaben.fortschritt("");
    }

    void pruefeAbbruch() const {
        if (wache_.halt().stop_requested()) throw Abbruch{"abgebrochen", Rueckgabe::nichtErfuellt};
    }

    void pruefeFelder() const {
        if (const auto satz = einwandGegenFelder(auftrag_.felder))
            throw Abbruch{*satz + "\nAlle Felder: rippenscheibe-cli felder"};
    }

    static void pruefeLastfaelle(const Raster& r, const Bewertungsregel& regel) {
        if (const auto satz = ueberschriebenesFeld(r, regel.lastfaelle)) throw Abbruch{*satz};
    }

    void pruefeLasten(const Raster& r) const {
        if (const auto satz = geloeschteLast(r, eingaben()); satz && !auftrag_.trotzdem) throw Abbruch{*satz};
    }

    Bewertungsregel regel() const {
        Bewertungsregel r{auftrag_.beideRichtungen, auftrag_.mitLuecken, auftrag_.hoechstens, {}};
        if (!auftrag_.lastfaelle) return r;
        auto faelle = lastfaelleAusDatei(*auftrag_.lastfaelle, auftrag_.csv);
        if (const auto* fehler = std::get_if<std::string>(&faelle))
            throw Abbruch{*fehler, Rueckgabe::dateifehler};
        r.lastfaelle = std::get<0>(std::move(faelle));
        return r;
    }

    Preise preise() const {
        auto gelesen = auftrag_.preise ? Preise::ausDatei(*auftrag_.preise, auftrag_.csv)
                                       : Preise::lade(u_.programmordner, auftrag_.csv);
        if (const auto* fehler = std::get_if<std::string>(&gelesen))
            throw Abbruch{*fehler, Rueckgabe::dateifehler};
        return std::get<0>(std::move(gelesen));
    }

    Achse achse(const std::string& text) const {
        auto gelesen = achseAus(text, auftrag_.grenzen);
        if (const auto* fehler = std::get_if<std::string>(&gelesen)) throw Abbruch{*fehler};
        return std::get<Achse>(std::move(gelesen));
    }

    Raster raster(const std::vector<std::string>& texte) const {
        std::vector<Achse> achsen(texte.size());
        std::transform(texte.begin(), texte.end(), achsen.begin(),
                       [&](const std::string& text) { return achse(text); });
        Raster raster(std::move(achsen));
        if (const auto satz = doppeltesFeld(raster)) throw Abbruch{*satz};
        return raster;
    }

    Raster standardraster() const {
        std::vector<std::string> gebiete = auftrag_.gebiete;
        if (gebiete.empty()) gebiete = {"abstand", "verbindungsmittel"};
        std::vector<Achse> achsen;
        auto alle = standardachsen(eingaben());
        for (const std::string& gebiet : gebiete) {
            const auto treffer = std::find_if(alle.begin(), alle.end(),
                                              [&](const Standardachse& a) { return a.name == gebiet; });
            if (treffer == alle.end()) throw Abbruch{"--variiere: \"" + gebiet + "\" gibt es nicht"};
            achsen.push_back(treffer->achse);
        }
        return Raster(std::move(achsen));
    }

    // The fields of all axes as they stand in a record.
    static void anfuegeAchsenfelder(Glieder& glieder, const Raster& raster, const Feldzugriff& felder) {
        for (const Achse& achse : raster.achsen())
            for (const int feld : achse.felder) {
                std::string wert;
                felder.anfuegeEingabe(wert, feld);
                glieder.emplace_back(eingabefeld(feld).angabe.name, std::move(wert));
            }
    }

    // The direction of Fv that governs; nothing without horizontal load or run.
    void anfuegeRichtung(Glieder& glieder, const Bewertung& bewertung) const {
        const bool gerechnet = bewertung.ausgang != Ausgang::hinweis && bewertung.massgebend;
        glieder.emplace_back("richtung", !gerechnet            ? "null"
                                         : bewertung.nachLinks ? "\"minus\""
                                                               : "\"plus\"");
    }

    const Studienumgebung& u_;
    const Studienauftrag& auftrag_;
    Wache wache_;
    std::chrono::steady_clock::time_point gezeigt_{};
    bool fortschrittSteht_ = false;
};

}  // namespace

Studienende fuehreStudieAus(const Studienumgebung& umgebung) { return Studie(umgebung).fuehreAus(); }

}  // namespace rippenscheibe
