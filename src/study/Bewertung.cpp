#include "study/Bewertung.h"

#include <algorithm>
#include <utility>

#include "study/Mengen.h"

namespace rippenscheibe {

std::string massgebendText(const Bewertung& bewertung, const Bewertungsregel& regel) {
    std::string text(bewertung.massgebend.value_or(""));
    if (text.empty() || bewertung.lastfall < 0) return text;
    return regel.lastfaelle[static_cast<std::size_t>(bewertung.lastfall)].name + ": " + text;
}

std::string scheitertAn(const Bewertung& bewertung, const Bewertungsregel& regel) {
    switch (bewertung.ausgang) {
        case Ausgang::hinweis:
            return "Hinweis: " + bewertung.hinweis;
        case Ausgang::luecke:
            return "Lücke: " + std::string(lueckenursache(bewertung.ausschluss.arten().front()));
        case Ausgang::ueberschritten:
            return massgebendText(bewertung, regel);
        case Ausgang::besteht:
            break;
    }
    return {};
}

Pruefstand::Pruefstand(const Eingaben& vorlage, const EigeneMaterialien& materialien, Bewertungsregel regel)
    : vorlage_(vorlage), stand_(vorlage), felder_(wand_), regel_(std::move(regel)) {
    static_cast<Eingaben&>(wand_) = vorlage;
    wand_.eigeneMaterialien = materialien;
}

void Pruefstand::beginne() { uebernimmBemessungseingaben(vorlage_, wand_); }

void Pruefstand::setzeFall(int lastfall, bool gewendet) {
    uebernimmBemessungseingaben(stand_, wand_);
    if (lastfall >= 0) {
        for (const auto& [feld, wert] : regel_.lastfaelle[static_cast<std::size_t>(lastfall)].werte)
            felder_.setze(feld, wert);
    }
    if (gewendet) wand_.Fvk = -Zahl(wand_.Fvk);
}

// Each case in the direction as stored, then turned; false from the visitor ends it.
template <class Besucher>
void Pruefstand::jederFall(Besucher besucher) {
    const int faelle = static_cast<int>(regel_.lastfaelle.size());
    for (int fall = faelle == 0 ? -1 : 0; fall < faelle; ++fall) {
        setzeFall(fall, false);
        const bool wenden = regel_.beideRichtungen && wand_.Fvk != 0;
        if (!besucher(fall)) return;
        if (!wenden) continue;
        setzeFall(fall, true);
        if (!besucher(fall)) return;
    }
}

// The first run is a fresh one; the second starts from what it left.
Laufergebnis Pruefstand::starteLauf(const Grundmasse& felder, int lauf) {
    if (lauf == 1) return rechneFrisch(wand_);
    zuweisen(wand_, felder);
    return starte(wand_);
}

bool Pruefstand::bewerteFall(Bewertung& bewertung, int lastfall) {
    const Grundmasse felder = grundmasse(wand_);
    const bool nachLinks = wand_.Fvk < 0;
    for (int lauf = 1; lauf <= 2; ++lauf) {
        if (starteLauf(felder, lauf) == Laufergebnis::hinweise) {
            bewertung.ausgang = Ausgang::hinweis;
            bewertung.hinweis = wand_.Hinweise.front().text;
            return false;
        }
        const Urteil u = urteil(wand_);
        if (*u.maxEta > bewertung.maxEta || (!bewertung.massgebend && u.massgebend)) {
            bewertung.maxEta = *u.maxEta;
            bewertung.massgebend = u.massgebend;
            bewertung.nachLinks = nachLinks;
            bewertung.lastfall = lastfall;
        }
        bewertung.luecken.vereinige(luecken(wand_));
        // The second run only tells something about walls that pass the first.
        if (*u.maxEta > regel_.hoechstens) return true;
    }
    return true;
}

bool Pruefstand::bestehtNachRechts(int lastfall) {
    setzeFall(lastfall, false);
    wand_.Fvk = abs(wand_.Fvk);
    Bewertung rechts;
    return bewerteFall(rechts, lastfall) && rechts.maxEta <= regel_.hoechstens;
}

Bewertung Pruefstand::bewerte() { return bewerteBis(true); }
bool Pruefstand::besteht() { return bewerteBis(false).ausgang == Ausgang::besteht; }

Bewertung Pruefstand::bewerteBis(bool zumEnde) {
    uebernimmBemessungseingaben(wand_, stand_);
    Bewertung bewertung;
    bool rechtsBesteht = true;
    jederFall([&](int fall) {
        if (!bewerteFall(bewertung, fall)) return false;
        if (!regel_.beideRichtungen && bewertung.luecken.enthaelt(Lueckenart::schwelleLinks))
            rechtsBesteht = rechtsBesteht && bestehtNachRechts(fall);
        return zumEnde || bewertung.maxEta <= regel_.hoechstens;
    });
    bewertung.ausschluss = bewertung.luecken;
    // The left edge rib is proved by the wall turned round, where it is the right one.
    if (rechtsBesteht) bewertung.ausschluss.nimmAus(Lueckenart::schwelleLinks);
    if (bewertung.ausgang != Ausgang::hinweis) {
        if (bewertung.maxEta > regel_.hoechstens) {
            bewertung.ausgang = Ausgang::ueberschritten;
        } else if (!bewertung.ausschluss.leer() && !regel_.mitLuecken) {
            bewertung.ausgang = Ausgang::luecke;
        }
    }
    uebernimmBemessungseingaben(stand_, wand_);
    return bewertung;
}

std::vector<std::string> Pruefstand::lueckensaetze(const Bewertung& bewertung) {
    if (bewertung.luecken.leer()) return {};
    uebernimmBemessungseingaben(wand_, stand_);
    std::vector<std::string> saetze;
    jederFall([&](int) {
        const Grundmasse felder = grundmasse(wand_);
        Lueckenmenge genannt;
        for (int lauf = 1; lauf <= 2; ++lauf) {
            if (starteLauf(felder, lauf) == Laufergebnis::hinweise) break;
            for (const Lueckenart art : luecken(wand_).arten()) {
                if (!bewertung.luecken.enthaelt(art) || genannt.enthaelt(art)) continue;
                genannt.nimmAuf(art);
                std::string satz = lueckensatz(wand_, art);
                if (std::find(saetze.begin(), saetze.end(), satz) == saetze.end())
                    saetze.push_back(std::move(satz));
            }
        }
        return true;
    });
    uebernimmBemessungseingaben(stand_, wand_);
    return saetze;
}

std::vector<Abschnittsurteil> Pruefstand::abschnitte() {
    uebernimmBemessungseingaben(wand_, stand_);
    std::vector<Abschnittsurteil> groesste;
    jederFall([&](int) {
        const bool gerechnet = rechneFrisch(wand_) == Laufergebnis::gerechnet;
        const auto neue = gerechnet ? abschnittsurteile(wand_) : std::vector<Abschnittsurteil>{};
        if (groesste.empty() || !gerechnet) groesste = neue;
        for (std::size_t i = 0; i < groesste.size(); ++i)
            if (groesste[i].stand == Nachweisstand::keineBeanspruchung ||
                groesste[i].groesster < neue[i].groesster)
                groesste[i] = neue[i];
        return gerechnet;
    });
    uebernimmBemessungseingaben(stand_, wand_);
    return groesste;
}

double Pruefstand::gewicht() { return wandgewicht(wand_); }

void Pruefstand::setzeEigengewicht() {
    const Zahl jeMeter = Zahl(gewicht()) / wand_.Wandlaenge;
    wand_.gkWand = jeMeter;
}

void Pruefstand::rechneMassgebend(const Bewertung& bewertung) {
    uebernimmBemessungseingaben(wand_, stand_);
    setzeFall(bewertung.lastfall, false);
    if ((wand_.Fvk < 0) != bewertung.nachLinks) wand_.Fvk = -Zahl(wand_.Fvk);
    rechneFrisch(wand_);
}

}  // namespace rippenscheibe
