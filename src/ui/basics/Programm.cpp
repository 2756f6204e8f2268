#include "ui/basics/Programm.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPrinter>
#include <system_error>
#include <utility>

#include "run/FrischerLauf.h"
#include "ui/basics/Fensteroeffner.h"
#include "ui/basics/Klartext.h"

// Icons and translations lie in the library; naming them here links them in. The macro wants no namespace.
static void bindeRessourcenEin() { Q_INIT_RESOURCE(ressourcen); }

namespace rippenscheibe {

void verbindeRessourcen() { bindeRessourcenEin(); }

Programm::Programm(std::filesystem::path programmordner, QObject* parent)
    : QObject(parent), ordner(std::move(programmordner)) {
    verbindeRessourcen();
    new Klartext(this);
    std::error_code fehler;  // a folder that cannot be made shows when something is saved
    std::filesystem::create_directories(ordner, fehler);
    setzeVorgaben(w);
    felder = grundmasse(w);
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

std::filesystem::path pfad(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return std::filesystem::path(std::u8string(reinterpret_cast<const char8_t*>(bytes.constData()),
                                               static_cast<std::size_t>(bytes.size())));
}

char dezimalzeichen() { return QLocale().decimalPoint() == QStringLiteral(".") ? '.' : ','; }

}  // namespace rippenscheibe
