#include "fasteners/Einhaengeeffekt.h"

namespace rippenscheibe {

namespace {

constexpr double anteilAusziehen = 0.25;

}  // namespace

Zahl ausziehtragfaehigkeit(const Wand& w, Seite n) {
    return Min(w.f1k[n] * w.d[n] * w.lef[n], w.f2k[n] * pow(w.dk[n], 2));
}

void setzeRxkNachDicke(Wand& w, Seite n, Zahl kopf) {
    const Dickenband band = dickenband(w, n);
    if (band == Dickenband::unter12) {
        w.Rxk[n] = RxkDuennePlatte;
        return;
    }
    w.f2k[n] = band == Dickenband::bis20 ? Zahl(f2kBis20) : kopfdurchziehparameter(kopf);
    w.Rxk[n] = ausziehtragfaehigkeit(w, n);
}

void setzeDeltaRk(Wand& w, Seite n, double anteil) {
    w.deltaRk[n] = Min(anteilAusziehen * w.Rxk[n], anteil * w.Rk[n]);
}

void setzeDeltaRd(Wand& w, Seite n, double anteil) {
    w.deltaRd[n] = Min(anteilAusziehen * w.Rxd[n], anteil * w.Rd[n]);
}

void setzeZuwachsVereinfacht(Wand& w, Seite n, const Einhaengeregel& regel) {
    if (!w.DeltaRd || istGipskarton(w, n) || istGipsfaser(w, n)) {
        w.deltaRk[n] = 0;
    } else if (istOsb(w, n) || istSpanplatteOderWeiter(w, n)) {
        regel.setzeRxk(w, n, Verfahren::vereinfacht);
        setzeDeltaRk(w, n, regel.anteil);
    }
}

void setzeZuwachsGenau(Wand& w, Seite n, const Einhaengeregel& regel) {
    if (!w.DeltaRd) {
        w.deltaRd[n] = 0;
        return;
    }
    regel.setzeRxk(w, n, Verfahren::genau);
    if (!regel.laesstRxdStehen(w, n)) setzeRxd(w, n);
    setzeDeltaRd(w, n, regel.anteil);
}

void addiereDeltaRd(Wand& w, Seite n) {
    if (w.Rd[n] == w.RdD[n]) {
        w.Rd[n] = w.deltaRd[n] + w.RdD[n];
    } else if (w.Rd[n] == w.RdE[n]) {
        w.Rd[n] = w.deltaRd[n] + w.RdE[n];
    } else if (w.Rd[n] == w.RdF[n]) {
        w.Rd[n] = w.deltaRd[n] + w.RdF[n];
    }
}

}  // namespace rippenscheibe
