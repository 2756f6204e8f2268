#include "ui/studyparts/Groessenwahl.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

#include "model/VMArten.h"
#include "study/Auslegung.h"
#include "ui/basics/Fenster.h"
#include "ui/basics/Kuerzel.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"
#include "ui/studyparts/Feldworte.h"

namespace rippenscheibe {

namespace {

struct Zahlengroesse {
    std::string_view felder;
    double von;
    double bis;
    double schritt;
};
// Usual ranges, in the unit of the field. Values of today lie within; the range grows with them.
// clang-format off
constexpr std::array<Zahlengroesse, 16> zahlengroessen{{
    {"av1,av2",                   40,    150,  5},
    {"av1",                       40,    150,  5},
    {"av2",                       40,    150,  5},
    {"Wandlaenge",                 0.625, 10,  0.125},
    {"Wandhoehe",                  2,      4,  0.05},
    {"Rippenabstand",            300,   1250, 25},
    {"Fvk",                        0,     20,  0.25},
    {"gk",                         0,     30,  0.5},
    {"qk",                         0,     30,  0.5},
    {"Fcgk",                       0,     50,  1},
    {"Fcqk",                       0,     50,  1},
    {"wk",                        -2,      2,  0.1},
    {"bRandrippe,bInnenrippe",    60,    160, 10},
    {"bRandrippe",                60,    160, 10},
    {"hRandrippe,hInnenrippe",   100,    240, 10},
    {"gkWand",                     0,      2,  0.05},
}};
// Axes of the search that are lists, and lists of the record with their last entry.
constexpr std::array<std::string_view, 2> suchlisten{"verbindungsmittel", "platte"};
struct Katalogliste {
    std::string_view felder;
    int letzter;
};
constexpr std::array<Katalogliste, 5> kataloge{{
    {"Material1,Material2", 7}, {"Holzart", 13}, {"Ankertyp", 12}, {"KLED", 5}, {"VMKlasse1,VMKlasse2", 9}}};
// clang-format on

// "av1,av2" is "av1" where only side 1 is sheathed.
std::string ohneFehlendeSeite(std::string_view felder, const Wand& w) {
    const bool paar = felder.ends_with('2') && felder.find(',') != std::string_view::npos;
    return std::string(w.Einseitig && paar ? felder.substr(0, felder.find(',')) : felder);
}

bool fehlt(std::string_view felder, const Wand& w) {
    return w.Einseitig && felder.ends_with('2') && felder.find(',') == std::string_view::npos;
}

void mitHeute(Groesse& g, const Wand& w) {
    Wand kopie = w;
    const double heute = Feldzugriff(kopie).zahl(g.indizes.front());
    while (heute > g.bis) g.bis += std::ceil((heute - g.bis) / g.schritt) * g.schritt;
    while (heute < g.von) g.von -= std::ceil((g.von - heute) / g.schritt) * g.schritt;
    const Wertebereich& b = eingabefeld(g.indizes.front()).angabe.bereich;
    g.von = std::max(g.von, b.min);
    g.bis = std::min(g.bis, b.max);
}

Groesse listengroesse(Achse achse) {
    Groesse g{achse.name, achse.felder, std::move(achse)};
    return g;
}

// Numbers have a unit, and a place behind the comma for each zero of their mask.
QString maske(double schritt) {
    for (const char* versuch : {"0", "0.0", "0.00"}) {
        const double stellen = std::pow(
            10.0, static_cast<double>(std::max<std::size_t>(std::string_view(versuch).size(), 2) - 2));
        if (std::fabs(schritt * stellen - std::round(schritt * stellen)) < 1e-9)
            return QString::fromLatin1(versuch);
    }
    return QStringLiteral("0.000");
}

}  // namespace

std::vector<Groesse> groessen(const Wand& w, bool nurZahlen) {
    std::vector<Groesse> alle;
    for (const Zahlengroesse& z : zahlengroessen) {
        if (fehlt(z.felder, w)) continue;
        Groesse g{ohneFehlendeSeite(z.felder, w), {}, {}, z.von, z.bis, z.schritt};
        const bool doppelt =
            std::any_of(alle.begin(), alle.end(), [&](const Groesse& a) { return a.felder == g.felder; });
        const auto achse = achseAus(g.felder + "=" + zahltext(g.bis), Grenzen::uebergehen);
        if (doppelt || geloeschteLast(Raster({std::get<Achse>(achse)}), w)) continue;
        g.indizes = std::get<Achse>(achse).felder;
        mitHeute(g, w);
        alle.push_back(std::move(g));
    }
    if (nurZahlen) return alle;
    for (const Standardachse& s : standardachsen(w))
        if (std::find(suchlisten.begin(), suchlisten.end(), s.name) != suchlisten.end() &&
            s.achse.werte.size() > 1)
            alle.push_back(listengroesse(s.achse));
    for (const Katalogliste& k : kataloge) {
        std::string text = ohneFehlendeSeite(k.felder, w) + "=1";
        for (int i = 2; i <= k.letzter; ++i) text += "," + std::to_string(i);
        alle.push_back(listengroesse(std::get<Achse>(achseAus(text, Grenzen::uebergehen))));
    }
    return alle;
}

std::string abstandsgroesse(const Wand& w) {
    return w.Einseitig || w.av[Seite::eins] != w.av[Seite::zwei] ? "av1" : "av1,av2";
}

Groessenwahl::Groessenwahl(const QString& name, const QString& beschriftung, std::vector<Groesse> groessen,
                           const std::string& zuerst, QWidget* parent)
    : QWidget(parent),
      groessen_(std::move(groessen)),
      wahl_(new QComboBox(this)),
      schild_(new QLabel(beschriftung, this)) {
    wahl_->setObjectName(name);
    wahl_->setAccessibleName(QString(beschriftung).remove(QLatin1Char(':')).remove(QLatin1Char('&')));
    wahl_->setToolTip(QStringLiteral("Diese Eingabe ändert sich; alle anderen bleiben, wie sie sind"));
    wahl_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    wahl_->setMinimumContentsLength(38);
    wahl_->setMinimumWidth(18 * wahl_->fontMetrics().averageCharWidth());
    int erste = 0;
    for (const Groesse& g : groessen_) {
        if (g.felder == zuerst) erste = wahl_->count();
        wahl_->addItem(feldname(g.indizes));
    }
    wahl_->setCurrentIndex(erste);
    schild_->setBuddy(wahl_);
    schild_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* zeile = new QHBoxLayout(this);
    zeile->setContentsMargins(0, 0, 0, 0);
    zeile->setSpacing(Fenster::raster);
    zeile->addWidget(schild_);
    zeile->addWidget(wahl_);
    zeile->addStretch(1);
    baueFelder();
    connect(wahl_, &QComboBox::currentIndexChanged, this, [this] {
        baueFelder();
        Q_EMIT geaendert();
    });
}

int Groessenwahl::schildbreite() const { return schild_->sizeHint().width(); }

void Groessenwahl::setzeSchildbreite(int breite) { schild_->setMinimumWidth(breite); }

const Groesse& Groessenwahl::groesse() const {
    return groessen_[static_cast<std::size_t>(wahl_->currentIndex())];
}

void Groessenwahl::baueFelder() {
    delete felder_;
    von_ = bis_ = schritt_ = nullptr;
    felder_ = new QWidget(this);
    auto* zeile = new QHBoxLayout(felder_);
    zeile->setContentsMargins(0, 0, 0, 0);
    zeile->setSpacing(Fenster::raster);
    static_cast<QHBoxLayout*>(layout())->insertWidget(2, felder_);
    const Groesse& g = groesse();
    if (g.istListe()) {
        zeile->addWidget(new QLabel(QStringLiteral("%1 Werte").arg(g.liste.werte.size()), felder_));
        return;
    }
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Fenster::raster);
    zeile->addLayout(grid);
    von_ = baueFeld(*grid, "Von", "von", g.von);
    bis_ = baueFeld(*grid, "Bis", "bis", g.bis);
    schritt_ = baueFeld(*grid, "Schritt", "Schritt", g.schritt);
    QWidget* vorher = wahl_;
    for (Werteingabe* feld : {von_, bis_, schritt_}) {
        setTabOrder(vorher, feld);
        vorher = feld;
    }
    if (isVisible()) vergibKuerzel(*window());
}

Werteingabe* Groessenwahl::baueFeld(QGridLayout& zeile, const char* zusatz, const char* text, double wert) {
    const Groesse& g = groesse();
    const Feldangabe& angabe = eingabefeld(g.indizes.front()).angabe;
    const bool istSchritt = std::string_view(zusatz) == "Schritt";
    Wertvorgabe v;
    v.beschriftung = QString::fromUtf8(text);
    v.einheit = istSchritt ? qtext(angabe.einheit) : QString();  // once behind the three
    v.bereichseinheit = qtext(angabe.einheit);
    v.bezeichnung = feldname(g.indizes) + QLatin1Char(' ') + v.beschriftung;
    v.bedeutung = v.bezeichnung;
    v.min = istSchritt ? 0.001 : angabe.bereich.min;
    v.max = angabe.bereich.max;
    v.maske = maske(istSchritt ? g.schritt : wert);
    auto* feld = new Werteingabe(wahl_->objectName() + QString::fromUtf8(zusatz), v, felder_);
    feld->setzeWert(wert);
    feld->setMinimumWidth(48);
    feld->setMaximumWidth(64);
    feld->setzeInZeile(&zeile, 0, 3 * (zeile.count() / 2));
    connect(feld, &Werteingabe::geaendert, this, &Groessenwahl::geaendert);
    return feld;
}

std::variant<Achse, std::string> Groessenwahl::achse() const {
    const Groesse& g = groesse();
    if (g.istListe()) return g.liste;
    return achseAus(g.felder + "=" + zahltext(von_->wert()) + ":" + zahltext(bis_->wert()) + ":" +
                        zahltext(schritt_->wert()),
                    Grenzen::beachten);
}

}  // namespace rippenscheibe
