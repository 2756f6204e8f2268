#include "cli/Projektausgabe.h"

#include <cmath>
#include <utility>

#include "files/Pfad.h"

namespace rippenscheibe {

namespace {

constexpr std::array<std::string_view, 4> standworte{"erfüllt", "nicht erfüllt", "mit Hinweisen",
                                                     "nicht lesbar"};

std::string_view standwort(const Projektposition& p) {
    return standworte[static_cast<std::size_t>(p.stand())];
}

std::string dateiname(const Projektposition& p) { return pfadtext(p.datei.position.datei.filename()); }

// What stands in every form.
Glieder kern(const Projektposition& p) {
    const bool lesbar = p.fehler.empty();
    return {{"datei", jsonOderNull(dateiname(p))},
            {"position", jsonOderNull(lesbar ? p.eingaben.Position : "")},
            {"bemerkung", jsonOderNull(lesbar ? p.eingaben.PositionsBemerkung : "")},
            {"masse", jsonOderNull(p.masse)},
            {"beplankung", jsonOderNull(p.beplankung)},
            {"befestigung", jsonOderNull(p.befestigung)},
            {"verankerung", jsonOderNull(p.verankerung)},
            {"urteil", jsonOderNull(standwort(p))},
            {"maxEta", p.urteil.maxEta ? jsonWert(*p.urteil.maxEta) : "null"},
            {"massgebend", jsonOderNull(p.massgebend)}};
}

double gerundet(double menge) { return std::round(menge * 1e6) / 1e6; }

// What is to be counted and what a table for reading has no room for.
Glieder rest(const Projektposition& p) {
    double platten = 0;
    for (const Plattenposten& posten : p.mengen.platten) platten += posten.flaeche;
    const auto stueck = [](const std::vector<Stueckposten>& posten) {
        double summe = 0;
        for (const Stueckposten& eintrag : posten) summe += eintrag.stueck;
        return jsonWert(summe);
    };
    return {{"lastfaelle", std::to_string(p.lastfaelle)},
            {"hinweise", jsonListe(p.hinweise)},
            {"luecken", jsonListe(p.luecken)},
            {"sonst", jsonOderNull(p.sonst)},
            {"holz_m3", jsonWert(gerundet(holzvolumen(p.mengen)))},
            {"platten_m2", jsonWert(gerundet(platten))},
            {"verbindungsmittel", stueck(p.mengen.verbindungsmittel)},
            {"anker", stueck(p.mengen.anker)},
            {"uebersprungen", jsonListe(p.uebersprungen)},
            {"fehler", jsonOderNull(p.fehler.empty() ? p.lastfallfehler : p.fehler)}};
}

std::string bemerkungen(const Projektposition& p) {
    std::string text;
    const auto sage = [&](std::string_view vorwort, const std::string& satz) {
        if (!satz.empty()) text.append(dateiname(p)).append(": ").append(vorwort).append(satz).append("\n");
    };
    sage("", p.fehler);
    sage("", p.lastfallfehler);
    for (const std::string& satz : p.uebersprungen) sage("", satz);
    for (const std::string& satz : p.hinweise) sage("Hinweis: ", satz);
    for (const std::string& satz : p.luecken) sage("Lücke: ", satz);
    sage("besteht nicht ", p.sonst);
    return text;
}

}  // namespace

Projektausgabe::Projektausgabe(Studienausgabe form, const Csvform& csv,
                               std::function<void(std::string_view)> gibAus)
    : form_(form), zeilen_(form, csv), gibAus_(std::move(gibAus)) {}

void Projektausgabe::gib(const Projektposition& position) {
    Studienzeile zeile;
    zeile.vorn = kern(position);
    if (form_ != Studienausgabe::text) zeile.hinten = rest(position);
    gibAus_(zeilen_.zeile(zeile));
    bemerkungen_ += bemerkungen(position);
    ++staende_[static_cast<std::size_t>(position.stand())];
    addiere(summe_, position.mengen);
}

void Projektausgabe::schliesse() {
    gibAus_(zeilen_.schluss());
    if (form_ != Studienausgabe::text) return;
    std::string zahlen;
    for (std::size_t i = 0; i < standworte.size(); ++i) {
        if (staende_[i] == 0) continue;
        zahlen.append(zahlen.empty() ? "" : ", ").append(std::to_string(staende_[i])).append(" ");
        zahlen.append(standworte[i]);
    }
    gibAus_((bemerkungen_.empty() ? "" : "\n") + bemerkungen_ + "\n" + zahlen + "\n\n");
    Zeilenausgabe mengen(form_, {});
    for (const Mengenzeile& posten : mengenzeilen(summe_))
        mengen.zeile({.vorn = mengenglieder(posten), .gruppe = {}, .innen = {}, .hinten = {}});
    gibAus_(mengen.schluss());
}

}  // namespace rippenscheibe
