#include "design/Herausziehen.h"

#include "design/Rippen.h"
#include "fasteners/Ausziehen.h"

namespace rippenscheibe {

namespace {

constexpr Seite S1 = Seite::eins;
constexpr double kein = 0.000001;  // N: too little for any proof, but no division by zero

// What sets the withdrawal of one kind of fastener apart.
struct Ausziehart {
    int mindestens;            // least penetration as a multiple of d
    Zahl f1k;                  // N/mm²; failed: not assigned
    Zahl f2kUeber20;           // N/mm², sheathing above 20 mm; failed: not assigned
    Zahl kopfflaeche;          // dk², mm²
    bool duennOhne = false;    // no resistance at all below 8 mm of sheathing
    bool f1kErstAb12 = false;  // f1k is assigned only where the thickness asks for it
};

// The resistance of one shank by the thickness of the sheathing, N.
void widerstand(Wand& w, const Ausziehart& art) {
    if (!art.f1kErstAb12) w.f1k[S1] = art.f1k;
    const Einbindung einbindung = pruefeEinbindung(w, S1, art.mindestens);
    if (einbindung == Einbindung::zuKurz || (art.duennOhne && w.t[S1] < 8)) {
        w.Rxk[S1] = kein;
        return;
    }
    if (einbindung == Einbindung::grenze) return;
    const Dickenband band = dickenband(w, S1);
    if (band == Dickenband::unter12) {
        // Meant: screws with approval leave f1k1 as it was.
        if (art.f1kErstAb12) soVorgegeben("unter 12 mm Plattendicke bleibt f1,k, wie es war");
        w.Rxk[S1] = RxkDuennePlatte;
        return;
    }
    w.f1k[S1] = art.f1k;
    w.f2k[S1] = band == Dickenband::bis20 ? Zahl(f2kBis20) : art.f2kUeber20;
    w.Rxk[S1] = Min(w.f1k[S1] * w.d[S1] * w.lef[S1], w.f2k[S1] * art.kopfflaeche);
}

// f1k and f2k of a fastener by its class; failed when there is no such class.
Zahl f1kNachKlasse(const Wand& w, Tabellenwert Tragfaehigkeitsklasse::*c) {
    const Tragfaehigkeitsklasse* klasse = tragfaehigkeitsklasse(w, S1);
    return klasse != nullptr ? ausziehparameter(klasse->*c, w.rhok) : Zahl::fehlgeschlagen();
}
Zahl f2kNachKlasse(const Wand& w) {
    const Tragfaehigkeitsklasse* klasse = tragfaehigkeitsklasse(w, S1);
    return klasse != nullptr ? kopfdurchziehparameter(klasse->kopf) : Zahl::fehlgeschlagen();
}

Zahl kopfquadrat(const Wand& w) { return w.dk[S1] * w.dk[S1]; }

void widerstandNaegel(Wand& w) {
    w.lef[S1] = w.ln[S1] - w.t[S1];
    begrenzeEinbindelaenge(w, S1);
    const Zahl f1k = w.Vorgebohrt[S1] ? Zahl(0) : ausziehparameter(cNagel, w.rhok);
    widerstand(w, {mindesteinbindungNagel, f1k, kopfdurchziehparameter(cKopf), kopfquadrat(w)});
}

void widerstandSondernaegel(Wand& w) {
    setzeEinbindelaenge(w, S1);
    begrenzeEinbindelaenge(w, S1);
    const Zahl f1k = f1kNachKlasse(w, &Tragfaehigkeitsklasse::sondernaegel);
    widerstand(w, {mindesteinbindungNagel, w.Vorgebohrt[S1] ? beiwertVorgebohrt * f1k : f1k, f2kNachKlasse(w),
                   kopfquadrat(w)});
}

void widerstandKlammern(Wand& w) {
    w.lef[S1] = w.ln[S1] - w.t[S1];
    begrenzeEinbindelaenge(w, S1);
    widerstand(w, {.mindestens = mindesteinbindungKlammer,
                   .f1k = ausziehparameter(cKlammer, w.rhok),
                   .f2kUeber20 = kopfdurchziehparameter(cKopf),
                   .kopfflaeche = 5.8 * (w.d[S1] * w.d[S1]),
                   .duennOhne = true});
    // Two shanks.
    w.Rxk[S1] = w.beta >= 30 ? 2 * w.Rxk[S1] : 2 * 0.7 * w.Rxk[S1];
}

void widerstandSchrauben(Wand& w) {
    setzeEinbindelaenge(w, S1);
    widerstand(w, {mindesteinbindungSchraube, ausziehparameter(cSchraube, w.rhok),
                   kopfdurchziehparameter(cKopf), kopfquadrat(w)});
}

void widerstandSchraubenMitZulassung(Wand& w) {
    setzeEinbindelaenge(w, S1);
    widerstand(w, {.mindestens = mindesteinbindungSchraube,
                   .f1k = f1kNachKlasse(w, &Tragfaehigkeitsklasse::schrauben),
                   .f2kUeber20 = f2kNachKlasse(w),
                   .kopfflaeche = kopfquadrat(w),
                   .f1kErstAb12 = true});
}

void ausziehwiderstand(Wand& w) {
    switch (vmArt(w, S1)) {
        case Art::naegel:
            widerstandNaegel(w);
            break;
        case Art::sondernaegel:
            widerstandSondernaegel(w);
            break;
        case Art::klammern:
            widerstandKlammern(w);
            break;
        case Art::schrauben:
            widerstandSchrauben(w);
            break;
        case Art::schraubenMitZulassung:
            widerstandSchraubenMitZulassung(w);
            break;
        default:
            w.Rxk[S1] = kein;
    }
    setzeRxd(w, S1);
}

}  // namespace

void nachweisHerausziehen(Wand& w) {
    ausziehwiderstand(w);
    fuerJedeRippe(w, [&](int i) {
        if (w.wd == 0) {
            w.etaHerausziehenRippe(i) = 0;
        } else if (w.Rxd[S1] == 0) {
            w.etaHerausziehenRippe(i) = 100;
        } else {
            // Meant: one row halves the force in place, two rows do not.
            if (!w.Zweireihig[S1]) {
                soVorgegeben("bei einer Reihe wird die Kraft halbiert, bei zweien nicht");
                w.Faxd(i) = w.Faxd(i) / 2;
            }
            w.etaHerausziehenRippe(i) = Round(w.Faxd(i) / w.Rxd[S1], 4);
        }
    });
}

}  // namespace rippenscheibe
