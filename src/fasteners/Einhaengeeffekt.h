#pragma once

#include "fasteners/Ausziehen.h"
#include "fasteners/Grundlagen.h"

// Rope effect: the share of the withdrawal capacity that raises the shear capacity of screws and special
// nails when DeltaRd is set (DIN 1052 (2008), 12.2 to 12.8). Only the gain is set to 0 when it is not.

namespace rippenscheibe {

// min(f1k * d * lef; f2k * dk²).
Zahl ausziehtragfaehigkeit(const Wand& w, Seite n);
// Rxk by the thickness band for a fastener that reaches deep enough, with f1k as it stands. Writes f2k in the
// bands from 12 mm on; kopf is the c of the head above 20 mm.
void setzeRxkNachDicke(Wand& w, Seite n, Zahl kopf);

// The gain, 0.25 times the withdrawal capacity and at most anteil * Rk or anteil * Rd.
void setzeDeltaRk(Wand& w, Seite n, double anteil);
void setzeDeltaRd(Wand& w, Seite n, double anteil);

// What sets the rope effect of a family apart: how it finds lef, f1k, f2k and Rxk, and which share of the
// shear capacity the gain may reach.
struct Einhaengeregel {
    void (*setzeRxk)(Wand& w, Seite n, Verfahren verfahren);
    double anteil;
    bool (*laesstRxdStehen)(const Wand& w, Seite n) = [](const Wand&, Seite) { return false; };
};
// The gain of the simplified method (deltaRk), 0 for materials 3 to 7 and unchanged for a number below 1,
// and of the exact one (Rxd, deltaRd), which does not ask for the material.
void setzeZuwachsVereinfacht(Wand& w, Seite n, const Einhaengeregel& regel);
void setzeZuwachsGenau(Wand& w, Seite n, const Einhaengeregel& regel);
// Adds deltaRd to Rd when the governing mode has a plastic hinge (D, E, F), told by exact equality.
void addiereDeltaRd(Wand& w, Seite n);

}  // namespace rippenscheibe
