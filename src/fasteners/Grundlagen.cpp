#include "fasteners/Grundlagen.h"

#include <algorithm>

namespace rippenscheibe {

namespace {

// Partial safety factors: the simplified method as a whole, and the exact one by the number of plastic
// hinges of the failure mode.
constexpr Konstante gammaVereinfacht{"γ_{M}", 1.1};
constexpr Konstante gammaOhneGelenk{"γ_{M}", 1.3};
constexpr Konstante gammaEinGelenk{"γ_{M}", 1.2};
constexpr Konstante gammaZweiGelenke{"γ_{M}", 1.1};

// Stands for an embedment ratio without bound.
constexpr double verhaeltnisUnbegrenzt = 1e28;

Zahl einbindung(const Wand& w, Seite n) { return w.ln[n] - w.t[n]; }

// Choices of column 7 of the own material.
constexpr int wieSperrholz = 1;
constexpr int wieOsb = 2;
constexpr int wieFaserplatte = 3;
constexpr int wieGipskarton = 4;

Zahl lochleibungEigen(const Wand& w, Seite n) {
    const Zahl formel = w.eigeneMaterialien(7, w.EigenesMaterial[n]);
    const Zahl d = w.d[n];
    const Zahl t = w.t[n];
    const Zahl rhok = w.rhokBeplankung[n];
    if (formel == wieSperrholz) {
        return w.Vorgebohrt[n] ? 0.11 * (1 - 0.01 * d) * rhok : 0.11 * rhok * pow(d, -0.3);
    }
    if (formel == wieOsb) return lochleibung(w, n, Lochleibung::holzwerkstoff);
    if (formel == wieFaserplatte) return 30 * pow(d, -0.3) * pow(t, 0.6);
    // Unlike the gypsum boards themselves, the own material keeps this value when predrilled.
    if (formel == wieGipskarton) return lochleibung(w, n, Lochleibung::gipskarton);
    return w.eigeneMaterialien(20, w.EigenesMaterial[n]);
}

void setzeVerhaeltnis(Wand& w, Seite n) {
    w.betaFh[n] = w.fhkPlatte[n] != 0 ? w.fhkRippe[n] / w.fhkPlatte[n] : Zahl(verhaeltnisUnbegrenzt);
    // Fails with fhkPlatte = 0, and the ratio then stays unbounded.
    w.betaFh[n] = w.fhkRippe[n] == 0 ? Zahl(verhaeltnisUnbegrenzt) : w.fhkRippe[n] / w.fhkPlatte[n];
}

}  // namespace

Zahl fliessmoment(double c, Zahl fuk, Zahl d) { return c * fuk * pow(d, 2.6); }

Zahl lochleibung(const Wand& w, Seite n, Lochleibung formel) {
    const Zahl d = w.d[n];
    const Zahl t = w.t[n];
    switch (formel) {
        case Lochleibung::holzwerkstoff:
            return w.Vorgebohrt[n] ? 50 * pow(d, -0.6) * pow(t, 0.2) : 65 * pow(d, -0.7) * pow(t, 0.1);
        case Lochleibung::gipskarton:
            return 3.9 * pow(d, -0.6) * pow(t, 0.7);
        case Lochleibung::gipsfaser:
            return 7 * pow(d, -0.7) * pow(t, 0.9);
    }
    return Zahl::fehlgeschlagen();
}

bool hatFormel(const Wand& w, Seite n, Lochleibung formel) {
    return formel == Lochleibung::holzwerkstoff || !w.Vorgebohrt[n];
}

void setzeLochleibung(Wand& w, Seite n, Lochleibung formel) {
    if (hatFormel(w, n, formel)) w.fhkPlatte[n] = lochleibung(w, n, formel);
}

void setzeLochleibungNachGruppe(Wand& w, Seite n) {
    if (istOsb(w, n) || istSpanplatteOderWeiter(w, n)) {
        setzeLochleibung(w, n, Lochleibung::holzwerkstoff);
    } else if (istGipskarton(w, n)) {
        setzeLochleibung(w, n, Lochleibung::gipskarton);
    }
    if (istEigenesMaterial(w, n)) setzeLochleibungEigen(w, n);
}

void setzeLochleibungEigen(Wand& w, Seite n) { w.fhkPlatte[n] = lochleibungEigen(w, n); }

void setzeBeiwerte(Wand& w, Seite n, const Beiwerte& beiwerte) {
    w.AFaktor[n] = beiwerte.AFaktor;
    w.treqPlatte[n] = beiwerte.treqPlatte;
    w.treqRippe[n] = beiwerte.treqRippe;
}

void setzeGruppe(Wand& w, Seite n, Lochleibung formel, const Beiwerte& beiwerte) {
    if (!hatFormel(w, n, formel)) return;
    setzeLochleibung(w, n, formel);
    setzeBeiwerte(w, n, beiwerte);
}

void setzeEigenesMaterial(Wand& w, Seite n, double AFaktor) {
    setzeLochleibungEigen(w, n);
    const Zahl vielfaches = w.eigeneMaterialien(6, w.EigenesMaterial[n]);
    setzeBeiwerte(w, n, {AFaktor, vielfaches * w.d[n], 9 * w.d[n]});
}

void setzeAbminderung(Wand& w, Seite n) {
    if (w.Versenkt[n]) w.treqPlatte[n] += 2;
    w.tvorh[n] = w.t[n] > w.treqPlatte[n] ? Zahl(1) : w.t[n] / w.treqPlatte[n];
    w.treq[n] = einbindung(w, n) > w.treqRippe[n] ? Zahl(1) : einbindung(w, n) / w.treqRippe[n];
}

Zahl vereinfachteTragfaehigkeit(const Wand& w, Seite n) {
    return w.AFaktor[n] * sqrt(2 * w.Myk[n] * w.fhkPlatte[n] * w.d[n]) * w.tvorh[n] * w.treq[n];
}

void setzeRk(Wand& w, Seite n) {
    setzeAbminderung(w, n);
    w.Rk[n] = vereinfachteTragfaehigkeit(w, n);
}

Zahl bemessungswert(const Wand& w, Seite n, Zahl Rk) { return w.kmodVM[n] * Rk / gammaVereinfacht; }

void versenke(Wand& w, Seite n) {
    if (w.Versenkt[n]) w.t[n] = Plattendicke(w, n) - 2;
}

void setzeVersagensarten(Wand& w, Seite n, Schaefte schaefte) {
    const Zahl d = w.d[n];
    w.fhkRippe[n] = w.Vorgebohrt[n] ? 0.082 * (1 - 0.01 * d) * w.rhok : 0.082 * w.rhok * pow(d, -0.3);
    setzeVerhaeltnis(w, n);

    const Zahl fh = w.fhkPlatte[n];
    const Zahl My = w.Myk[n];
    const Zahl b = w.betaFh[n];
    const Zahl t = w.t[n];
    const Zahl t2 = einbindung(w, n);
    const Zahl r = t2 / t;
    const Zahl bb = pow(b, 2) + pow(b, 2);
    w.RkA[n] = fh * t * d;
    w.RkB[n] = fh * d * b * t2;
    w.RkC[n] =
        fh * t * d / (1 + b) * (sqrt(b + bb * (1 + r + pow(r, 2)) + pow(b, 3) * pow(r, 2)) - b * (1 + r));
    w.RkD[n] =
        fh * t * d / (2 + b) * (sqrt(2 * b * (1 + b) + 4 * b * (2 + b) * My / (fh * d * pow(t, 2))) - b);
    w.RkE[n] = fh * t2 * d / (2 * b + 1) *
               (sqrt(bb * (1 + b) + 4 * b * (2 * b + 1) * My / (fh * d * pow(t2, 2))) - b);
    w.RkF[n] = sqrt(2 * b / (1 + b)) * sqrt(2 * My * fh * d);

    const Zahl kmod = static_cast<int>(schaefte) * w.kmodVM[n];
    w.RdA[n] = kmod * w.RkA[n] / gammaOhneGelenk;
    w.RdB[n] = kmod * w.RkB[n] / gammaOhneGelenk;
    w.RdC[n] = kmod * w.RkC[n] / gammaOhneGelenk;
    w.RdD[n] = kmod * w.RkD[n] / gammaEinGelenk;
    w.RdE[n] = kmod * w.RkE[n] / gammaEinGelenk;
    w.RdF[n] = kmod * w.RkF[n] / gammaZweiGelenke;
}

Zahl kleinsteVersagensart(const Wand& w, Seite n) {
    return Min(w.RdA[n], w.RdB[n], w.RdC[n], w.RdD[n], w.RdE[n], w.RdF[n]);
}

bool ausgeschlossen(const Wand& w, Seite n, std::span<const Ausschluss> regeln) {
    return std::ranges::any_of(regeln, [&](Ausschluss regel) { return regel(w, n); });
}

bool randrippeZuDuenn(const Wand& w, Seite n) { return w.hRandrippe < 14 * w.d[n] && !w.Vorgebohrt[n]; }
bool kuerzerAls10(const Wand& w, Seite n) { return w.ln[n] < 10; }
bool einbindungUnter4d(const Wand& w, Seite n) { return einbindung(w, n) < 4 * w.d[n]; }
bool einbindungUnter8d(const Wand& w, Seite n) { return einbindung(w, n) < 8 * w.d[n]; }
bool durchmesserUnter4(const Wand& w, Seite n) { return w.d[n] < 4; }
bool durchmesserAb8(const Wand& w, Seite n) { return w.d[n] >= 8; }

bool laengeUnzulaessig(const Wand& w, Seite n, std::span<const Laengengrenze> grenzen) {
    return std::ranges::any_of(grenzen, [&](const Laengengrenze& grenze) {
        return w.d[n] == grenze.d && (w.ln[n] < grenze.lnKleinste || w.ln[n] > grenze.lnGroesste);
    });
}

}  // namespace rippenscheibe
