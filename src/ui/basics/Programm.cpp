#include "ui/basics/Programm.h"

#include <QApplication>
#include <QLocale>
#include <QPrinter>
#include <QTranslator>
#include <system_error>
#include <utility>

#include "basis/Utf8.h"
#include "files/Pfad.h"
#include "run/FrischerLauf.h"
#include "ui/basics/Farben.h"
#include "ui/basics/Fensteroeffner.h"
#include "ui/basics/Klartext.h"
#include "ui/basics/Rahmenstil.h"

// Icons and translations lie in the library; naming them here links them in. The macro wants no namespace.
static void bindeRessourcenEin() { Q_INIT_RESOURCE(ressourcen); }

namespace rippenscheibe {

namespace {

constexpr char16_t fremdesByte = 0xDC00;

}  // namespace

void verbindeRessourcen() { bindeRessourcenEin(); }

void ladeDeutscheTexte() {
    verbindeRessourcen();
    auto* deutsch = new QTranslator(QCoreApplication::instance());
    if (deutsch->load(QStringLiteral(":/qtbase_de.qm"))) QCoreApplication::installTranslator(deutsch);
}

Programm::Programm(std::filesystem::path programmordner, QObject* parent)
    : QObject(parent), ordner(std::move(programmordner)) {
    verbindeRessourcen();
    new Klartext(this);
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) Rahmenstil::setzeEin();
    new Zweitfarbe(this);
    std::error_code fehler;  // a folder that cannot be made shows when something is saved
    std::filesystem::create_directories(ordner, fehler);
    setzeVorgaben(w);
    felder = grundmasse(w);
    leereSchritte();
}

Programm::~Programm() = default;

std::vector<Dateifehler> Programm::ladeEinstellungen() {
    std::vector<Dateifehler> faelle;
    einstellungsfehler_ = liesEinstellungen(datei(einstellungsdatei), einstellungen).stoerung();
    if (einstellungsfehler_) faelle.push_back(*einstellungsfehler_);
    Gelesen<Projektliste> liste = liesProjektliste(datei(projektlistendatei));
    if (const auto stoerung = liste.stoerung()) faelle.push_back(*stoerung);
    projekte = std::move(liste.wert);
    projekteGelesen_ = projekte;
    w.Projekt = projekte.Projekt;
    DialogOrdner = qtext(einstellungen.StandardPfad);
    return faelle;
}

std::optional<Dateifehler> Programm::sichereEinstellungen() const {
    if (einstellungsfehler_) return einstellungsfehler_;
    return schreibeEinstellungen(datei(einstellungsdatei), einstellungen);
}

std::optional<Dateifehler> Programm::sichereProjekte() {
    projekte.Projekt = w.Projekt;
    auto fehler = rippenscheibe::sichereProjektliste(datei(projektlistendatei), projekte, projekteGelesen_);
    if (!fehler) {  // the program may go on after this: both lists are now the one in the file
        projekteGelesen_ = liesProjektliste(datei(projektlistendatei)).wert;
        projekte = projekteGelesen_;
    }
    return fehler;
}

QPrinter& Programm::drucker() {
    if (drucker_ == nullptr) {
        drucker_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        drucker_->setPageSize(QPageSize(QPageSize::A4));  // the report is made for it
    }
    return *drucker_;
}

void Programm::setzeGesichert(bool gesichert) {
    if (gesichert_ == gesichert) return;
    gesichert_ = gesichert;
    Q_EMIT zustandGeaendert();
}

void Programm::setzeTitel(const QString& titel) {
    titel_ = titel;
    Q_EMIT zustandGeaendert();
}

void Programm::verwirfErgebnisse() {
    static_cast<Ergebnisse&>(w) = ergebnisseNachProgrammstart();
    zuweisen();
}

void Programm::zuweisen() {
    rippenscheibe::zuweisen(w, felder);
    Q_EMIT geaendert();
}

void Programm::beginneSchritt(const QString& name) {
    schritte_.beginne(eingabestand(), utf8(name));
    Q_EMIT schritteGeaendert();
}

void Programm::beendeSchritt() {
    schritte_.beende(eingabestand());
    Q_EMIT schritteGeaendert();
}

void Programm::rueckgaengig() {
    Eingabestand stand = eingabestand();
    if (schritte_.rueckgaengig(stand)) setze(stand);
}

void Programm::wiederhole() {
    Eingabestand stand = eingabestand();
    if (schritte_.wiederhole(stand)) setze(stand);
}

void Programm::uebernimm(const Eingabestand& stand, const QString& name) {
    const Schritt schritt(*this, name);
    setze(stand);
}

void Programm::leereSchritte() {
    schritte_.leere(eingabestand());
    Q_EMIT schritteGeaendert();
}

void Programm::setze(const Eingabestand& stand) {
    static_cast<Eingaben&>(w) = stand.eingaben;
    felder = stand.felder;
    setzeGesichert(false);
    Q_EMIT ersetzt();
    zuweisen();
    Q_EMIT schritteGeaendert();
}

QString qtext(std::string_view text) {
    QString ergebnis;
    while (true) {
        std::size_t gut = 0;
        std::optional<Zeichen> eines;
        while (gut < text.size() && (eines = erstesZeichen(text.substr(gut)))) gut += eines->laenge;
        ergebnis += QString::fromUtf8(text.data(), static_cast<qsizetype>(gut));
        if (gut == text.size()) return ergebnis;
        ergebnis += QChar(static_cast<char16_t>(fremdesByte + static_cast<unsigned char>(text[gut])));
        text.remove_prefix(gut + 1);
    }
}

std::string utf8(const QString& text) {
    if (text.isValidUtf16()) return text.toStdString();
    std::string ergebnis;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool paar = c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (!paar && c.unicode() >= fremdesByte && c.unicode() <= fremdesByte + 0xFF) {
            ergebnis += static_cast<char>(c.unicode() - fremdesByte);
        } else {
            ergebnis += text.mid(i, paar ? 2 : 1).toStdString();
            if (paar) ++i;
        }
    }
    return ergebnis;
}

std::filesystem::path pfad(const QString& text) { return pfadAus(utf8(text)); }

char dezimalzeichen() { return QLocale().decimalPoint() == QStringLiteral(".") ? '.' : ','; }

}  // namespace rippenscheibe
