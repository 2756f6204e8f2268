#include "report/Seiten.h"

#include <cctype>
#include <variant>

namespace rippenscheibe {

namespace {

constexpr double textrand = 20;      // x of all text
constexpr double seitenanfang = 30;  // y of the first line below the head

// The state of one print job and what each value of the report does to it.
class Seiten {
  public:
    Seiten(Zeichenflaeche& flaeche, const Druckauftrag& auftrag) : f_(flaeche), auftrag_(auftrag) {}

    void operator()(const Textzeile& z) {
        ZeileY_ += z.abstand;
        if (z.grenze) seitenwechsel(*z.grenze);
        if (!z.text) return;
        f_.setzeSchrift(schrift(z.stil));
        if (istUeberschrift(z.stil)) merkeUeberschrift(z);
        const std::size_t tab = z.spalte > 0 ? z.text->find('\t') : std::string::npos;
        f_.text(textrand, ZeileY_, z.text->substr(0, tab));
        if (tab != std::string::npos) f_.text(textrand + z.spalte, ZeileY_, z.text->substr(tab + 1));
    }
    void operator()(const Formelzeile& z) {
        f_.formel(z.nummer, textrand, ZeileY_ + z.abstand);
        ZeileY_ += z.abstand + z.hoehe;
    }
    void operator()(const Bildzeile& z) { f_.bild(z.bild, {z.x, ZeileY_ + z.versatz, z.breite, z.hoehe}); }
    void operator()(const Seitenpruefung& z) { seitenwechsel(z.grenze); }
    void operator()(const Zeilenpruefung& z) {
        if (ZeileY_ < z.grenze) return;
        umbruch();
        ZeileY_ = seitenanfang;
    }
    void operator()(const Vorschub& z) { ZeileY_ += z.mm; }
    void operator()(const Zeilenstand& z) { ZeileY_ = z.y; }
    void operator()(const AnkerMerken&) { AnkerY_ = ZeileY_; }
    void operator()(const AnkerPlus& z) { ZeileY_ = AnkerY_ + z.mm; }
    void operator()(const Seitenkopfdruck&) {
        ++Kopfzaehler_;
        kopf();
    }
    void operator()(const Schlussbemerkungen& z) { bemerkungen(z.zeilen); }
    void operator()(const Leerzeile&) {}
    void operator()(const Trennlinie&) {}

    Druckergebnis beende() {
        fuss();
        return {seite_, LetzteSeite_};
    }

  private:
    void kopf() {
        if (Kopfzaehler_ < 2 && auftrag_.anlauf) auftrag_.anlauf();
        druckeKopf(f_, auftrag_.einstellungen, seitenzahl(auftrag_, seite_));
    }

    // The number of the page is kept whether or not the foot line itself is switched on.
    void fuss() {
        druckeFuss(f_, auftrag_.einstellungen, auftrag_.Projekt, auftrag_.Position);
        const Seitenzaehlung& z = auftrag_.zaehlung;
        if (z.SeitenzahlDrucken && z.Suffix == 0) LetzteSeite_ = seite_ + z.Startseite - 1;
    }

    void umbruch() {
        fuss();
        f_.neueSeite();
        ++seite_;
        kopf();
    }

    void seitenwechsel(double grenze) {
        PruefY_ = ZeileY_;
        if (PruefY_ < grenze) return;
        umbruch();
        ZeileY_ = PruefY_ = seitenanfang;
        ++Kopfzaehler_;
    }

    void bemerkungen(const Texte& zeilen) {
        constexpr double grenze = 264;
        seitenwechsel(grenze);
        if (zeilen.empty()) return;
        f_.setzeSchrift({});
        const double zeilenhoehe = f_.texthoehe("lala") + 1;  // of Arial, though the lines are Courier
        int reihe = 0;
        for (std::size_t i = 0; i < zeilen.size(); ++i) {
            f_.setzeSchrift(schrift(Stil::bemerkung));
            f_.text(textrand, ZeileY_ + zeilenhoehe * reihe + 1, zeilen[i]);
            ++reihe;
            PruefY_ = ZeileY_ + zeilenhoehe * reihe + 1;
            if (PruefY_ < grenze || i + 1 == zeilen.size()) continue;
            umbruch();
            reihe = 0;
            ZeileY_ = seitenanfang;
        }
    }

    void merkeUeberschrift(const Textzeile& z) {
        const bool nummeriert = !z.text->empty() && std::isdigit(static_cast<unsigned char>(z.text->front()));
        if (!nummeriert) return;
        const int rang = z.stil == Stil::ueberschrift1 ? 1 : z.stil == Stil::ueberschrift2 ? 2 : 3;
        f_.lesezeichen(rang, ZeileY_, *z.text);
    }

    Zeichenflaeche& f_;
    const Druckauftrag& auftrag_;
    double ZeileY_ = seitenanfang;  // line cursor
    double PruefY_ = seitenanfang;  // copy of the cursor that the last page-break step compared
    double AnkerY_ = 0;
    int Kopfzaehler_ = 0;  // entries into the report routines, and page-break steps that broke
    int seite_ = 1;
    std::optional<int> LetzteSeite_;
};

}  // namespace

std::string seitenzahl(const Druckauftrag& auftrag, int seite) {
    const Seitenzaehlung& z = auftrag.zaehlung;
    if (!z.SeitenzahlDrucken) return {};
    const std::string wort = auftrag.einstellungen.BlattStattSeite ? "Blatt " : "Seite ";
    if (z.Suffix != 0) {
        return wort + std::to_string(z.Startseite) + "." + std::to_string(seite + z.Suffix - 1) + z.IndexText;
    }
    return wort + std::to_string(seite + z.Startseite - 1) + z.IndexText;
}

Druckergebnis druckeSeiten(Zeichenflaeche& f, const Bericht& bericht, const Druckauftrag& auftrag) {
    Seiten seiten(f, auftrag);
    for (const Zeile& zeile : bericht) std::visit(seiten, zeile);
    return seiten.beende();
}

}  // namespace rippenscheibe
