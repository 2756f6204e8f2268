#include "ui/input/Form4_Beplankung.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "basis/Zahlenformat.h"
#include "model/Kataloge.h"
#include "plausibility/Plausibilitaetslauf.h"
#include "ui/basics/Fensteroeffner.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"
#include "ui/drawings/Zeichnungsansicht.h"

namespace rippenscheibe {

namespace {

constexpr int freiesMaterial = 13;

// The names of a side's controls and the indices of its option buttons. Side 2 counts its service
// classes down: Option3(3) is NKL 1, Option3(2) is NKL 2.
struct Steuernamen {
    const char* material;
    const char* eigenes;
    int dicke;
    int breite;
    int nichtGestossen;
    int einmalGestossen;
    int nkl1;
    int nkl2;
};
// clang-format off
constexpr Paar<Steuernamen> steuernamen{{{
    {"MaterialBox",  "Combo1", 0, 1, 0, 1, 0, 1},
    {"Materialbox2", "Combo2", 2, 3, 2, 3, 3, 2},
}}};
// clang-format on

}  // namespace

Form4::Form4(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Eingabedialog(programm, meldungen, parent, QStringLiteral("Form4"),
                    QStringLiteral("  Eingabe der Beplankung")) {
    beplankt_ = optionen(QStringLiteral("Option1"), {{0, QStringLiteral("einseitig beplankt")},
                                                     {1, QStringLiteral("zweiseitig beplankt")}});
    binde(&Wand::Einseitig, beplankt_, {{0, 1}, {1, 0}});
    auto* wahl = new QHBoxLayout;
    wahl->setSpacing(2 * raster);
    wahl->addWidget(beplankt_->button(0));
    wahl->addWidget(beplankt_->button(1));
    wahl->addStretch(1);
    felder()->addLayout(wahl);

    auto* spalten = new QHBoxLayout;
    spalten->setSpacing(2 * raster);
    for (const Seite n : beideSeiten) {
        seiten_[n] = baueSeite(n);
        spalten->addWidget(seiten_[n].rahmen, 1);
    }
    felder()->addLayout(spalten);
    QPushButton* datenbank = knopf(QStringLiteral("ComProfile"), QStringLiteral("Datenbank bearbeiten"));
    felder()->addWidget(datenbank, 0, Qt::AlignLeft);
    felder()->addStretch(1);
    fuelleEigeneMaterialien();

    skizziere(new Zeichnungsansicht(Zeichnung::beplankung, this));

    connect(beplankt_->button(0), &QRadioButton::toggled, this,
            [this](bool einseitig) { seiten_[Seite::zwei].rahmen->setVisible(!einseitig); });
    connect(datenbank, &QPushButton::clicked, this, [this] {
        oeffne(Fensterart::eigeneMaterialien, programm_, meldungen_, this);
        fuelleEigeneMaterialien();
    });
    beginne();
}

Form4::Seitenfelder Form4::baueSeite(Seite n) {
    const Steuernamen& namen = steuernamen[n];
    const auto textbox = [](int index) { return QStringLiteral("Textbox1(%1)").arg(index); };
    Seitenfelder s{};
    s.rahmen = gruppe(QStringLiteral("Beplankung %1").arg(nummer(n)));
    s.rahmen->setObjectName(QStringLiteral("Frame%1").arg(nummer(n)));
    s.material = liste(QLatin1String(namen.material), QStringLiteral("Material"), Plattenmaterialien());
    s.eigenes = liste(QLatin1String(namen.eigenes), QStringLiteral("eigenes Material"));
    binde(seite(&Wand::Material, n), s.material);
    binde(seite(&Wand::EigenesMaterial, n), s.eigenes);
    const Wertschild dicke{textbox(namen.dicke), QStringLiteral("Plattendicke t ="), QStringLiteral("mm")};
    s.dicke = n == Seite::eins ? binde(&Wand::Plattendicke1, dicke) : binde(&Wand::Plattendicke2, dicke);
    constexpr double mmJeM = 1000;
    s.breite =
        binde(seite(&Wand::Plattenbreite, n),
              {textbox(namen.breite), QStringLiteral("Plattenbreite lp ="), QStringLiteral("m"), mmJeM});
    s.gestossen =
        optionen(QStringLiteral("Option2"),
                 {{namen.nichtGestossen, QStringLiteral("Beplankung ist horizontal nicht gestoßen")},
                  {namen.einmalGestossen, QStringLiteral("Beplankung ist horizontal einmal gestoßen")}});
    binde(seite(&Wand::Gestossen, n), s.gestossen, {{namen.nichtGestossen, 0}, {namen.einmalGestossen, 1}});
    s.nkl = optionen(QStringLiteral("Option3"),
                     {{namen.nkl1, QStringLiteral("NKL 1")}, {namen.nkl2, QStringLiteral("NKL 2")}});
    binde(seite(&Wand::NKLBeplankung, n), s.nkl, {{namen.nkl1, 1}, {namen.nkl2, 2}}, namen.nkl2);

    ordneAn(s, n);
    baueDicken(s, n);
    connect(s.material, &QComboBox::currentIndexChanged, this, [this, n] {
        zeigeEigene(n);
        bieteDickenAn(n);
    });
    return s;
}

// The button beside the thickness; the list is filled when a board is chosen.
void Form4::baueDicken(Seitenfelder& s, Seite n) {
    s.dicken = new QToolButton(this);
    s.dicken->setObjectName(QStringLiteral("Dicken%1").arg(nummer(n)));
    s.dicken->setText(QStringLiteral("Dicken"));
    s.dicken->setAccessibleName(QStringLiteral("Lieferbare Dicken, Beplankung %1").arg(nummer(n)));
    s.dicken->setToolTip(QStringLiteral("Die Dicken, in denen es diese Platte gibt"));
    s.dicken->setFocusPolicy(Qt::StrongFocus);
    s.dickenliste = new QMenu(s.dicken);
    connect(s.dicken, &QToolButton::clicked, s.dickenliste, [knopf = s.dicken, liste = s.dickenliste] {
        liste->popup(knopf->mapToGlobal(knopf->rect().bottomLeft()));
    });
    s.dicke->setzeDaneben(s.dicken);
    QWidget::setTabOrder(s.dicke, s.dicken);
}

void Form4::ordneAn(const Seitenfelder& s, Seite n) {
    const Steuernamen& namen = steuernamen[n];
    QGridLayout* felder = grid(s.rahmen);
    felder->addWidget(beschriftung(QStringLiteral("Material:"), s.material), 0, 0);
    felder->addWidget(s.material, 0, 1, 1, 2);
    felder->addWidget(beschriftung(QStringLiteral("eigenes Material:"), s.eigenes), 1, 0);
    felder->addWidget(s.eigenes, 1, 1, 1, 2);
    s.dicke->setzeInZeile(felder, 2);
    s.breite->setzeInZeile(felder, 3);
    felder->addWidget(s.gestossen->button(namen.nichtGestossen), 4, 0, 1, 3);
    felder->addWidget(s.gestossen->button(namen.einmalGestossen), 5, 0, 1, 3);
    auto* klassen = new QHBoxLayout;
    klassen->setSpacing(2 * raster);
    klassen->addWidget(s.nkl->button(namen.nkl1));
    klassen->addWidget(s.nkl->button(namen.nkl2));
    klassen->addStretch(1);
    felder->addLayout(klassen, 6, 0, 1, 3);
    felder->setRowStretch(7, 1);
}

// The names of the own materials, the selected rows kept; a row that is not there leaves none selected.
void Form4::fuelleEigeneMaterialien() {
    for (const Seite n : beideSeiten) {
        QComboBox* namen = seiten_[n].eigenes;
        const int gewaehlt = namen->currentIndex();
        namen->clear();
        for (const auto& zeile : programm_.w.eigeneMaterialien.zeilen) namen->addItem(qtext(zeile.name));
        namen->setCurrentIndex(gewaehlt < namen->count() ? gewaehlt : -1);
    }
}

void Form4::zeigeEigene(Seite n) {
    seiten_[n].eigenes->setEnabled(seiten_[n].material->currentIndex() + 1 == freiesMaterial);
}

void Form4::lade(const Wand& w) {
    Eingabedialog::lade(w);
    for (const Seite n : beideSeiten) {
        zeigeEigene(n);
        bieteDickenAn(n);
    }
}

void Form4::bieteDickenAn(Seite n) {
    const Seitenfelder& s = seiten_[n];
    Wand w;
    w.Material[n] = s.material->currentIndex() + 1;
    const std::vector<double> dicken = festePlattendicken(w, n);
    s.dickenliste->clear();
    for (const double dicke : dicken) {
        const std::string text = formatiere("0.0", dicke, dezimalzeichen()) + " mm";
        const auto setze = [feld = s.dicke, dicke] { feld->setzeWert(dicke); };
        connect(s.dickenliste->addAction(qtext(text)), &QAction::triggered, this, setze);
    }
    s.dicken->setEnabled(!dicken.empty());
}

std::optional<Eingabedialog::Ablehnung> Form4::ablehnung(const Wand& w) const {
    const std::optional<std::string> text = beplankungPruefung(w);
    if (!text) return std::nullopt;
    const Ablehnungsort orte[] = {{"t1<12mm", seiten_[Seite::eins].dicke},
                                  {"für Beplankung 1", seiten_[Seite::eins].material},
                                  {"für Beplankung 2", seiten_[Seite::zwei].material}};
    QWidget* feld = ortDerAblehnung(*text, orte);
    // What is refused for the hidden side 2 can be mended once it is shown.
    if (!feld->isVisibleTo(this)) feld = beplankt_->checkedButton();
    return Ablehnung{QStringLiteral(" Fehler"), qtext(*text), feld};
}

}  // namespace rippenscheibe
