#include "report/sections/Abschnitte.h"
#include "report/sections/Katalogname.h"

// Section 1.4: the fasteners.

namespace rippenscheibe {

namespace {

void vmMasse(Berichtsbau& b, const Wand& w, Seite n) {
    const Art art = vmArt(w, n);
    b.zeile(4, {"Abstand av = ", {w.av[n], "0"}, " mm"});
    if (art != Art::naegel) {
        // Meant: the mask of the length differs between the sides.
        const std::string_view maskeLaenge = n == Seite::eins ? b.worte.maskeNennlaenge1 : "0.0";
        b.zeile(4, {"Nenndurchmesser d = ", {w.d[n], "0.00"}, " mm"});
        b.zeile(4, {"Nennlänge ln = ", {w.ln[n], maskeLaenge}, " mm"});
    }
    if (hatGewinde(art)) {
        b.zeile(4, {"Gewindelänge lg = ", {w.lg[n], "0.0"}, " mm"});
    }
    if (!istKlammer(art) && art != Art::schnellbauschrauben) {
        b.zeile(4, {"Kopfdurchmesser dk = ", {w.dk[n], "0.0"}, " mm"});
    }
    b.zeile(4, {"Zugfestigkeit fuk = ", {w.fuk[n], "0.0"}, " N/mm²"});
}

void vmEinbau(Berichtsbau& b, const Wand& w, Seite n) {
    const Art art = vmArt(w, n);
    if (w.Zweireihig[n]) b.zeile(4, {"VM werden zweireihig, versetzt angeordnet (doppelte Anzahl)"});
    if (art != Art::klammern && art < Art::schnellbauschrauben) {
        b.zeile(4, {w.Vorgebohrt[n] ? "VM wird vorgebohrt" : "VM wird nicht vorgebohrt"});
    }
    b.zeile(4, {w.Versenkt[n] ? "VM wird versenkt eingeschlagen / eingeschraubt"
                              : "VM wird bündig eingeschlagen / eingeschraubt und nicht versenkt"});
}

// The size of a nail, which only plain nails name.
std::optional<std::string_view> nagelzusatz(const Wand& w, Seite n) {
    if (vmArt(w, n) != Art::naegel) return "";
    const int typ = w.VMTyp[n].value();
    if (typ < 1 || typ > zeilenVMTypen) return std::nullopt;
    return nagelname(typ);
}

void verbindungsmittel(Berichtsbau& b, const Wand& w, Seite n) {
    const double ersterAbstand = n == Seite::eins ? 5 : 4;  // Meant: the sides differ here
    b.zeile(ersterAbstand,
            {"VM = ", katalogname(VMArten(), zeilenVMArten, w.VMArt[n].value()), nagelzusatz(w, n)});
    vmMasse(b, w, n);
    vmEinbau(b, w, n);
}

}  // namespace

void verbindungsmittelBeiderSeiten(Berichtsbau& b, const Wand& w) {
    b.h2("1.4 Verbindungsmittel VM", 7, 195);
    b.h3("1.4.1 für Beplankung 1", 6);
    verbindungsmittel(b, w, Seite::eins);
    if (w.Einseitig) return;
    b.h3("1.4.2 für Beplankung 2", 6, 200);
    verbindungsmittel(b, w, Seite::zwei);
}

}  // namespace rippenscheibe
