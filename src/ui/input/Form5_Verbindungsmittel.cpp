#include "ui/input/Form5_Verbindungsmittel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyleOptionButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "model/Kataloge.h"
#include "plausibility/Plausibilitaetslauf.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"
#include "ui/drawings/Zeichnungsansicht.h"
#include "ui/input/Form16_VMKatalog.h"

namespace rippenscheibe {

namespace {

struct Steuernamen {
    const char* art;
    const char* klasse;
    const char* nagel;
    int av, fuk, dk, lg, d, ln;
    const char* vorgebohrt;
    const char* versenkt;
    const char* zweireihig;
    const char* info;
};
// clang-format off
constexpr Paar<Steuernamen> steuernamen{{{
    {"Combo1", "Combo2", "Combo9",  0, 1, 2, 3, 8,  9,  "Check1", "Check2", "Check5", "ComInfo2"},
    {"Combo5", "Combo6", "Combo10", 4, 5, 6, 7, 10, 11, "Check3", "Check4", "Check6", "Command2"},
}}};
// clang-format on

// What a kind of fastener needs.
struct Artregel {
    bool nagelliste;
    bool klassenliste;
    bool kopf;
    bool gewinde;
    bool vorbohren;  // false: " vorgebohrt" is off and cleared
};
// clang-format off
constexpr std::array<Artregel, 8> artregeln{{
    // nail list, class list, dk, lg, predrilled
    {true,  false, true,  false, true},  // Nägel
    {false, true,  true,  true,  true},  // Sondernägel
    {false, false, false, false, false},  // Klammern
    {false, false, true,  true,  true},  // Schrauben DIN 7997
    {false, true,  true,  true,  true},    // Schrauben mit Zulassung
    {false, false, false, false, false},  // Schnellbauschrauben DIN 18182-2
    {false, false, true,  true,  false},  // Nägel DIN 18182-2
    {false, false, false, false, false},  // Klammern DIN 18182-2
}};
// clang-format on

// A check box whose caption is painted in two lines, parted at its gap.
class Umbruchfeld : public QCheckBox {
  public:
    using QCheckBox::QCheckBox;

    QSize sizeHint() const override {
        QStyleOptionButton option;
        initStyleOption(&option);
        const QSize text = fontMetrics().size(Qt::TextShowMnemonic, option.text);
        return style()->sizeFromContents(QStyle::CT_CheckBox, &option, text, this);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void initStyleOption(QStyleOptionButton* option) const override {
        QCheckBox::initStyleOption(option);
        static const QRegularExpression luecke(QStringLiteral(" {3,}"));
        option->text.replace(luecke, QStringLiteral("\n "));
    }
};

bool gipsplatte(const Wand& w, Seite n) { return istGips(plattenmaterial(w, n)); }

}  // namespace

Form5::Form5(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Eingabedialog(programm, meldungen, parent, QStringLiteral("Form5"),
                    QStringLiteral("  Eingabe der Verbindungsmittel")) {
    auto* spalten = new QHBoxLayout;
    spalten->setSpacing(2 * raster);
    for (const Seite n : beideSeiten) {
        seiten_[n] = baueSeite(n);
        spalten->addWidget(seiten_[n].rahmen, 1);
    }
    felder()->addLayout(spalten);
    felder()->addStretch(1);

    skizziere(new Zeichnungsansicht(Zeichnung::verbindungsmittel1, this));
    auto* skizze2 = new Zeichnungsansicht(Zeichnung::verbindungsmittel2, this);
    skizziere(skizze2);
    skizze2->setVisible(!programm.w.Einseitig);
    seiten_[Seite::zwei].rahmen->setVisible(!programm.w.Einseitig);
    beginne();
}

Form5::Seitenfelder Form5::baueSeite(Seite n) {
    const Steuernamen& namen = steuernamen[n];
    const auto feld = [&](auto glied, int index, const QString& text, const QString& einheit) {
        return binde(seite(glied, n), {QStringLiteral("Textbox1(%1)").arg(index), text, einheit});
    };
    const QString mm = QStringLiteral("mm");

    Seitenfelder s{};
    s.rahmen = gruppe(QStringLiteral("Verbindungsmittel Beplankung %1 (%2)")
                          .arg(nummer(n))
                          .arg(qtext(eintrag(Plattenmaterialien(), programm_.w.Material[n].value()))));
    s.rahmen->setObjectName(QStringLiteral("Frame%1").arg(nummer(n)));
    s.art = liste(QLatin1String(namen.art), QStringLiteral("VM"), VMArten());
    s.klasse = liste(QLatin1String(namen.klasse), QStringLiteral("Tragfähigkeitsklasse"));
    for (const std::string_view klasse : VMKlassen())
        s.klasse->addItem(QStringLiteral("Tragfähigkeitsklasse ") + qtext(klasse));
    s.nagel = liste(QLatin1String(namen.nagel), QStringLiteral("Nagel"));
    for (const Nageltyp& nagel : VMTypen()) s.nagel->addItem(qtext(nagel.name));
    s.d = feld(&Wand::d, namen.d, QStringLiteral("d ="), mm);
    s.ln = feld(&Wand::ln, namen.ln, QStringLiteral("l ="), mm);
    s.dk = feld(&Wand::dk, namen.dk, QStringLiteral("d - Kopf ="), mm);
    s.lg = feld(&Wand::lg, namen.lg, QStringLiteral("Länge Gewinde/Rillen lg ="), mm);
    s.fuk = feld(&Wand::fuk, namen.fuk, QStringLiteral("fuk ="), QStringLiteral("N/mm²"));
    s.av = feld(&Wand::av, namen.av, QStringLiteral("Abstand av ="), mm);
    s.vorgebohrt = ankreuzfeld(QLatin1String(namen.vorgebohrt), QStringLiteral(" vorgebohrt"));
    s.versenkt = ankreuzfeld(QLatin1String(namen.versenkt), QStringLiteral(" versenkt"));
    s.zweireihig = new Umbruchfeld(QStringLiteral(" zweireihig, versetzt           angeordnet"), this);
    s.zweireihig->setObjectName(QLatin1String(namen.zweireihig));
    s.zweireihig->setAccessibleName(s.zweireihig->text().simplified());
    binde(seite(&Wand::VMArt, n), s.art);
    binde(seite(&Wand::VMKlasse, n), s.klasse);
    binde(seite(&Wand::VMTyp, n), s.nagel);
    binde(seite(&Wand::Vorgebohrt, n), s.vorgebohrt);
    binde(seite(&Wand::Versenkt, n), s.versenkt);
    binde(seite(&Wand::Zweireihig, n), s.zweireihig);
    s.info = knopf(QLatin1String(namen.info), QStringLiteral("Info / Werte zu Verbindungsmitteln"));
    s.abweichung = warnung(QStringLiteral("Abweichung%1").arg(nummer(n)));
    ordneAn(s);
    folge(s, n);
    return s;
}

void Form5::ordneAn(const Seitenfelder& s) {
    QGridLayout* felder = grid(s.rahmen);
    felder->addWidget(beschriftung(QStringLiteral("VM:"), s.art), 0, 0);
    felder->addWidget(s.art, 0, 1, 1, 2);
    felder->addWidget(s.klasse, 1, 1, 1, 2);
    felder->addWidget(beschriftung(QStringLiteral("Nagel = "), s.nagel), 2, 0);
    felder->addWidget(s.nagel, 2, 1, 1, 2);
    felder->addWidget(s.abweichung, 3, 1, 1, 2);
    int zeile = 4;
    for (Werteingabe* wert : {s.d, s.ln, s.dk, s.lg, s.fuk, s.av}) wert->setzeInZeile(felder, zeile++);
    for (QCheckBox* haken : {s.vorgebohrt, s.versenkt, s.zweireihig})
        felder->addWidget(haken, zeile++, 0, 1, 3);
    felder->addWidget(s.info, zeile, 0, 1, 3, Qt::AlignLeft);
}

void Form5::folge(const Seitenfelder& s, Seite n) {
    for (const Werteingabe* wert : {s.d, s.ln, s.dk})
        connect(wert, &Werteingabe::geaendert, this, [this, n] { zeigeAbweichung(n); });
    connect(s.art, &QComboBox::currentIndexChanged, this, [this] { richteNachArt(Anlass::wechsel); });
    connect(s.nagel, &QComboBox::currentIndexChanged, this, [this] { richteNachArt(Anlass::wechsel); });
    connect(s.info, &QPushButton::clicked, this,
            [this, n] { Form16(programm_, meldungen_, this, n).exec(); });
}

// Meant: one routine serves both sides, so a change on one side also sets the strength and the nail's sizes
// of the other.
void Form5::richteNachArt(Anlass anlass) {
    if (laedt() && anlass == Anlass::wechsel) return;
    for (const Seite n : beideSeiten) richteSeite(n, anlass);
}

void Form5::richteSeite(Seite n, Anlass anlass) {
    const Seitenfelder& s = seiten_[n];
    s.dk->setzeAktiv(true);
    s.lg->setzeAktiv(true);
    s.vorgebohrt->setEnabled(true);
    s.versenkt->setEnabled(true);
    const int art = s.art->currentIndex();
    if (art < 0) return;

    const Artregel& regel = artregeln[static_cast<std::size_t>(art)];
    s.nagel->setEnabled(regel.nagelliste);
    s.klasse->setEnabled(regel.klassenliste);
    s.dk->setzeAktiv(regel.kopf);
    s.lg->setzeAktiv(regel.gewinde);
    s.vorgebohrt->setEnabled(regel.vorbohren);
    if (anlass == Anlass::laden) return zeigeAbweichung(n);

    if (!regel.vorbohren) s.vorgebohrt->setChecked(false);
    if (const double fuk = fukDerArt(static_cast<Art>(art + 1)); fuk > 0) s.fuk->setzeWert(fuk);
    if (regel.nagelliste) uebernimmNagel(n);
    zeigeAbweichung(n);
}

// Whether the sizes are others than those of the nail that was chosen.
bool Form5::weichtAb(const Seitenfelder& s) {
    if (!s.nagel->isEnabled() || s.nagel->currentIndex() < 0) return false;
    const Nageltyp& nagel = VMTypen()[static_cast<std::size_t>(s.nagel->currentIndex())];
    return s.d->wert() != nagel.d || s.ln->wert() != nagel.ln || s.dk->wert() != nagel.dk;
}

// The report prints the name of the nail that was chosen, whatever its sizes became. While one side says so,
// the other keeps the room for it: the rows of the two stay in line.
void Form5::zeigeAbweichung(Seite n) {
    // Short, so that both sides and the sketch fit a small screen.
    seiten_[n].abweichung->setText(QStringLiteral("⚠ d, l oder dk nicht wie bei %1;\n"
                                                  "der Ausdruck nennt nur %1.")
                                       .arg(seiten_[n].nagel->currentText()));
    seiten_[n].abweichung->setVisible(weichtAb(seiten_[n]));
    const bool platz = std::ranges::any_of(beideSeiten, [this](Seite m) { return weichtAb(seiten_[m]); });
    for (const Seite m : beideSeiten) {
        QSizePolicy groesse = seiten_[m].abweichung->sizePolicy();
        groesse.setRetainSizeWhenHidden(platz);
        seiten_[m].abweichung->setSizePolicy(groesse);
    }
}

void Form5::uebernimmNagel(Seite n) {
    const Seitenfelder& s = seiten_[n];
    if (s.nagel->currentIndex() < 0) return;
    const Nageltyp& nagel = VMTypen()[static_cast<std::size_t>(s.nagel->currentIndex())];
    s.d->setzeWert(nagel.d);
    s.ln->setzeWert(nagel.ln);
    s.dk->setzeWert(nagel.dk);
}

void Form5::lade(const Wand& w) {
    Eingabedialog::lade(w);
    richteNachArt(Anlass::laden);
    // Gypsum and gypsum-fibre boards are not predrilled. Meant: a later change of the kind frees the box
    // again.
    for (const Seite n : beideSeiten) {
        if (!gipsplatte(w, n)) continue;
        seiten_[n].vorgebohrt->setChecked(false);
        seiten_[n].vorgebohrt->setEnabled(false);
    }
}

std::optional<Eingabedialog::Ablehnung> Form5::ablehnung(const Wand& w) const {
    const std::vector<Hinweis> funde = allgemeinePruefung(w);
    if (funde.empty()) return std::nullopt;
    const std::string& text = funde.front().text;
    const Seitenfelder& s = seiten_[funde.front().seite.value_or(Seite::eins)];
    const Ablehnungsort orte[] = {{"Gewinde-/Rillenlänge lg", s.lg},
                                  {"Kopfdurchmesser dk", s.dk},
                                  {"Die Länge l des VM", s.ln},
                                  {"nicht zulässig", s.art},
                                  {"Durchmesser der", s.d}};
    return Ablehnung{QStringLiteral("Fehler"), qtext(text), ortDerAblehnung(text, orte)};
}

}  // namespace rippenscheibe
