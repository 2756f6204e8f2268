#include "ui/derivation/Rechenwegdruck.h"

#include <QFileInfo>
#include <QFontInfo>
#include <QPainter>
#include <QPalette>
#include <string>
#include <utility>
#include <vector>

#include "basis/Laengenmass.h"
#include "files/Dateischreiber.h"
#include "report/Rtfausgabe.h"
#include "trace/Herleitung.h"
#include "ui/basics/Programm.h"
#include "ui/derivation/Formelbild.h"
#include "ui/paper/Papierschrift.h"

namespace rippenscheibe {

namespace {

// Formulas are laid out finely and drawn to scale, so that pages break at the same lines on every device.
constexpr double feinheit = 1200;  // to the inch
constexpr double einheitenJeMm = feinheit / mmJeZoll;
constexpr double einheitenJePunkt = feinheit / punkteJeZoll;
constexpr double satzbreite = 170;  // mm
constexpr double luftDavor = 4;     // mm, least gap before a source

// Sets the formulas, their sources at the right edge, and keeps them until they are drawn.
class Papierformeln final : public Formelsatz {
  public:
    Papierformeln()
        : mass_{.familie = QFontInfo(papierschrift({})).family(),
                .groesse = 10 * einheitenJePunkt,
                .kleinste = 7 * einheitenJePunkt,
                .strich = 0.18 * einheitenJeMm,
                .zeilenluft = 0.8 * einheitenJeMm,
                .breite = satzbreite * einheitenJeMm,
                .einzeilig = true} {}

    Formelzeile schritt(const Darstellung& d, const herleitung::Schritt& s) override {
        return neu(Formelbild::gleichung(d, s, mass_), std::string(d.quelle(s)), d.zeile(s));
    }
    Formelzeile ausdruck(const Darstellung& d, herleitung::Ort ort) override {
        return neu(Formelbild::ausdruck(d, ort, mass_), {}, d.symbolisch(ort));
    }
    Formelzeile stand(const Darstellung& d, const herleitung::Stand& s) override {
        return neu(Formelbild::stand(d, s, mass_), {}, d.zeichen(s) + " = " + d.wertMitEinheit(s));
    }

    void male(QPainter& maler, double mm, int nummer, QPointF ort) const {
        const Formel& formel = formeln_[static_cast<std::size_t>(nummer)];
        QPalette schwarz;
        for (const QPalette::ColorRole rolle : {QPalette::Text, QPalette::Link})
            schwarz.setColor(rolle, Qt::black);
        maler.save();
        maler.scale(mm / einheitenJeMm, mm / einheitenJeMm);
        ort *= einheitenJeMm;
        formel.bild.male(maler, ort, schwarz);
        if (!formel.quelle.isEmpty()) {
            maler.setFont(klein());
            maler.setPen(QColor::fromRgb(static_cast<QRgb>(Farbe::dunkelgrau)));
            maler.drawText(QRectF(ort.x(), ort.y() + formel.quelleOben, mass_.breite, mass_.groesse * 1.3),
                           Qt::AlignRight | Qt::AlignTop, formel.quelle);
        }
        maler.restore();
    }

  private:
    struct Formel {
        Formelbild bild;
        QString quelle;
        double quelleOben;
    };

    QFont klein() const {
        QFont font(mass_.familie);
        font.setPixelSize(qRound(8 * einheitenJePunkt));
        font.setHintingPreference(QFont::PreferNoHinting);
        return font;
    }

    // The source stands beside the first row, or under the formula when that is too long.
    Formelzeile neu(Formelbild bild, const std::string& quelle, std::string worte) {
        const QSizeF groesse = bild.groesse();
        const double zeile = schriftmass({.groesse = 8}).hoehe * einheitenJeMm;
        const double platz = mass_.breite - bild.breiteErsteZeile() - luftDavor * einheitenJeMm;
        const bool darunter = !quelle.empty() && papierbreite({.groesse = 8}, quelle) * einheitenJeMm > platz;
        const double hoehe = groesse.height() + (darunter ? zeile : 0);
        const double oben = darunter ? groesse.height() : bild.grundlinie() - 0.75 * zeile;
        formeln_.push_back({std::move(bild), qtext(quelle), oben});
        return {.nummer = static_cast<int>(formeln_.size()) - 1,
                .hoehe = hoehe / einheitenJeMm,
                .text = std::move(worte)};
    }

    const Formelmass mass_;
    std::vector<Formel> formeln_;
};

std::unique_ptr<herleitung::Graph> graph(const Rechenweglauf& lauf) {
    return leiteLaufHer(lauf.vorher, lauf.felder, lauf.nachher, lauf.dezimalzeichen);
}

}  // namespace

Rechenweglauf letzterLauf(const Programm& programm) {
    const QString datei = qtext(programm.Dateiname);
    std::string name = utf8(QFileInfo(datei).fileName());
    std::string bytes;
    if (!name.empty() && programm.Gesichert()) {
        bytes = liesDatei(pfad(datei)).bytes;
    } else if (!name.empty()) {
        name += " (seit dem Sichern geändert)";
    }
    return {programm.vorDemLauf, programm.felder, programm.w,
            pruefblatt(programm.vorDemLauf, std::move(name), bytes), dezimalzeichen()};
}

std::shared_ptr<const Dokument> rechenwegdokument(const Rechenweglauf& lauf) {
    const auto g = graph(lauf);
    if (g == nullptr) return nullptr;
    const auto formeln = std::make_shared<Papierformeln>();
    Bericht zeilen = rechenweg(*g, lauf.nachher, lauf.blatt, formeln.get());
    return std::make_shared<Dokument>(
        Dokument{std::move(zeilen), [formeln](QPainter& maler, double mm, int nummer, QPointF ort) {
                     formeln->male(maler, mm, nummer, ort);
                 }});
}

std::string rechenwegRtf(const Rechenweglauf& lauf) {
    const auto g = graph(lauf);
    return g == nullptr ? "" : alsRtf(fliesstext(rechenweg(*g, lauf.nachher, lauf.blatt)));
}

}  // namespace rippenscheibe
