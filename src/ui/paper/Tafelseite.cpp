#include "ui/paper/Tafelseite.h"

#include <QBuffer>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <optional>

#include "basis/Laengenmass.h"
#include "files/Positionsdatei.h"
#include "ui/basics/Programm.h"
#include "ui/drawings/Ausgabe.h"
#include "ui/drawings/Zeichner.h"
#include "ui/drawings/Zeichnungen.h"
#include "ui/paper/PdfAusgabe.h"

namespace rippenscheibe {

namespace {

constexpr double einheitenJeMm = pdfAufloesung / mmJeZoll;

// A4 and its margins, mm.
constexpr double breite = 210;
constexpr double hoehe = 297;
constexpr double rand = 18;
constexpr double satzbreite = breite - 2 * rand;

constexpr double skizzenhoehe = 58;
constexpr double kopfspalte = 26;
constexpr std::size_t hoechstensSpalten = 12;
constexpr std::size_t angabenspalten = 4;

const Textart klein{.faktor = 0.95};
const Textart lauftext{.faktor = 1.2};
const Textart fett{.faktor = 1.2, .fett = true};
const Textart ueberschrift{.faktor = 1.9, .fett = true};

// Writes downwards on pages of the paper.
class Blattschreiber {
  public:
    explicit Blattschreiber(QPagedPaintDevice& papier) : papier_(papier), painter_(&papier) {
        // All is placed from the corner of the paper, at the same dots on every device.
        const int punkte = papier.logicalDpiX();
        painter_.translate(-papier.pageLayout().paintRectPixels(punkte).topLeft());
        painter_.scale(static_cast<double>(punkte) / pdfAufloesung,
                       static_cast<double>(punkte) / pdfAufloesung);
        beginneSeite();
    }

    void abstand(double mm) { y_ += mm; }

    void absatz(const std::string& text, const Textart& art) {
        const QStringList zeilen = z_->umbrochen(qtext(text), satzbreite, art);
        platz(static_cast<double>(zeilen.size()) * z_->zeilenhoehe(art));
        y_ += z_->zeilen({rand, y_}, zeilen, art);
    }

    void skizze(const Wand& w) {
        platz(skizzenhoehe);
        z_.reset();  // a drawing sets the painter up for itself
        const QRectF flaeche(rand * einheitenJeMm, y_ * einheitenJeMm, satzbreite * einheitenJeMm,
                             skizzenhoehe * einheitenJeMm);
        zeichne(painter_, flaeche, Zeichnung::ansicht, w, stil());
        beginneZeichnen();
        y_ += skizzenhoehe;
    }

    // Rows under a head that stands again on each page; many columns go below each other in parts, each on
    // one page where it fits.
    void tabelle(const std::vector<std::vector<std::string>>& zeilen) {
        const std::size_t spalten = zeilen.front().size() - 1;
        const std::size_t teile = (spalten + hoechstensSpalten - 1) / hoechstensSpalten;
        for (std::size_t teil = 0; teil < teile; ++teil) {
            const std::size_t von = 1 + teil * spalten / teile;
            const std::size_t bis = 1 + (teil + 1) * spalten / teile;
            const double ganz = static_cast<double>(zeilen.size()) * zeilenhoehe();
            if (ganz <= hoehe - 2 * rand) platz(ganz);
            kopfzeile(zeilen.front(), von, bis);
            for (auto zeile = zeilen.begin() + 1; zeile != zeilen.end(); ++zeile) {
                if (platz(zeilenhoehe())) kopfzeile(zeilen.front(), von, bis);
                tabellenzeile(*zeile, von, bis, lauftext);
            }
            abstand(3);
        }
    }

    // Names and values in columns under their heading, to be read downwards.
    void angaben(const std::string& titel, const Angaben& angaben) {
        const std::size_t je = (angaben.size() + angabenspalten - 1) / angabenspalten;
        const double h = z_->zeilenhoehe(klein);
        const double spalte = satzbreite / static_cast<double>(angabenspalten);
        platz(z_->zeilenhoehe(fett) + static_cast<double>(je) * h);
        absatz(titel, fett);
        for (std::size_t i = 0; i < angaben.size(); ++i) {
            const std::size_t nummer = i / je;
            const QPointF ort(rand + static_cast<double>(nummer) * spalte,
                              y_ + static_cast<double>(i - nummer * je) * h);
            const QString text = qtext(angaben[i].first + " = " + angaben[i].second);
            z_->textPassend(ort, text, Qt::AlignLeft | Qt::AlignTop, spalte - 2, klein);
        }
        y_ += static_cast<double>(je) * h;
    }

  private:
    static Zeichenstil stil() { return Zeichenstil::papier(einheitenJeMm); }

    void beginneZeichnen() {
        z_.emplace(painter_, QRectF(0, 0, breite * einheitenJeMm, hoehe * einheitenJeMm), stil());
    }
    void beginneSeite() {
        beginneZeichnen();
        y_ = rand;
    }

    // Goes to a new page when `mm` do not fit on this one; says so.
    bool platz(double mm) {
        if (y_ + mm <= hoehe - rand || y_ == rand) return false;
        z_.reset();
        papier_.newPage();
        beginneSeite();
        return true;
    }

    double zeilenhoehe() const { return 1.25 * z_->zeilenhoehe(lauftext); }

    void kopfzeile(const std::vector<std::string>& zellen, std::size_t von, std::size_t bis) {
        platz(3 * zeilenhoehe());
        tabellenzeile(zellen, von, bis, fett);
    }

    void tabellenzeile(const std::vector<std::string>& zellen, std::size_t von, std::size_t bis,
                       const Textart& art) {
        const double spalte = (satzbreite - kopfspalte) / static_cast<double>(bis - von);
        const double mitte = y_ + zeilenhoehe() / 2;
        z_->textPassend({rand, mitte}, qtext(zellen.front()), Qt::AlignLeft | Qt::AlignVCenter,
                        kopfspalte - 1, art);
        for (std::size_t i = von; i < bis; ++i)
            z_->textPassend({rand + kopfspalte + static_cast<double>(i + 1 - von) * spalte, mitte},
                            qtext(zellen[i]), Qt::AlignRight | Qt::AlignVCenter, spalte - 1, art);
        y_ += zeilenhoehe();
        z_->linie({rand, y_}, {breite - rand, y_}, Strich::mass, z_->stil().nebentinte);
    }

    QPagedPaintDevice& papier_;
    QPainter painter_;
    std::optional<Zeichner> z_;
    double y_ = rand;
};

void schreibe(Blattschreiber&& seite, const Tafelblatt& blatt, const Wand& wand) {
    seite.absatz(blatt.titel, ueberschrift);
    seite.abstand(1);
    for (const auto& [name, wert] : blatt.kopf)
        seite.absatz(std::string(name).append(": ").append(wert), lauftext);
    seite.abstand(2);
    seite.skizze(wand);
    seite.abstand(2);
    for (const std::string& satz : blatt.gegenstand) seite.absatz(satz, lauftext);
    seite.abstand(2);
    seite.tabelle(blatt.zellen);
    for (const std::string& zeile : blatt.legende) seite.absatz(zeile, lauftext);
    seite.abstand(3);
    seite.angaben("Feste Eingaben", blatt.feste);
    seite.abstand(3);
    seite.absatz(blatt.vorbehalt, lauftext);
}

}  // namespace

void druckeTafel(QPagedPaintDevice& drucker, const Tafelblatt& blatt, const Wand& wand) {
    schreibe(Blattschreiber(drucker), blatt, wand);
}

QByteArray tafelPdf(const Tafelblatt& blatt, const Wand& wand) {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    QPdfWriter papier(&puffer);
    richteEin(papier, QPageSize(QPageSize::A4), dokumenttitel(wand) + QStringLiteral(" - Bemessungstafel"),
              positionstext(wand));
    druckeTafel(papier, blatt, wand);
    return bytes;
}

}  // namespace rippenscheibe
