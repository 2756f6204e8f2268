#include "ui/output/PdfBefehl.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "files/EigeneMaterialienDatei.h"
#include "files/Einstellungsdatei.h"
#include "files/Pfad.h"
#include "files/Positionsdatei.h"
#include "run/Positionslauf.h"
#include "study/Lastfaelle.h"
#include "study/Projekt.h"
#include "study/Tafelblatt.h"
#include "ui/basics/Programm.h"
#include "ui/derivation/Rechenwegdruck.h"
#include "ui/paper/PdfAusgabe.h"
#include "ui/paper/Sammelpdf.h"
#include "ui/paper/Tafelseite.h"

namespace rippenscheibe {

namespace {

const QString optionPdf = QStringLiteral("pdf");
const QString optionForm = QStringLiteral("form");
constexpr const char* hilfeverweis = "\nHilfe: rippenscheibe --help\n";

// The options of a design table: words of the tool's `tafel`.
struct Tafeloption {
    const char* name;
    const char* wert;
    const char* erklaerung;
    std::string Tafelwunsch::*ziel;
};
constexpr std::array<Tafeloption, 6> tafeloptionen{{
    {"groesste", "FELD",
     "Statt des Ausdrucks eine Bemessungstafel: die Größe, deren größter Wert gesucht ist.",
     &Tafelwunsch::groesste},
    {"zeilen", "FELD=WERTE", "Zeilen der Tafel, etwa Wandlaenge=0.625:10:0.625.", &Tafelwunsch::zeilen},
    {"spalten", "FELD=WERTE", "Spalten der Tafel, etwa av1,av2=50:150:25.", &Tafelwunsch::spalten},
    {"von", "WERT", "Anfang der Suche (sonst 0).", &Tafelwunsch::von},
    {"bis", "WERT", "Ende der Suche (sonst, was der Dialog erlaubt).", &Tafelwunsch::bis},
    {"stufe", "WERT", "Schritt der Suche (sonst 0.1).", &Tafelwunsch::stufe},
}};
const QString optionLastfaelle = QStringLiteral("lastfaelle");
const QString optionRichtung = QStringLiteral("richtung");
const QString optionMitLuecken = QStringLiteral("mit-luecken");
const QString optionTrotzdem = QStringLiteral("trotzdem");

struct Pdfauftrag {
    std::filesystem::path ziel;
    std::filesystem::path position;
    QString form;
    std::optional<Tafelwunsch> tafel{};  // a design table in place of the report
    Bewertungsregel regel{};             // of the table
    std::optional<std::filesystem::path> lastfaelle{};
};

std::optional<Tafelwunsch> tafelwunsch(const QCommandLineParser& befehlszeile) {
    Tafelwunsch wunsch;
    bool gewuenscht = false;
    for (const Tafeloption& option : tafeloptionen) {
        const QString name = QString::fromLatin1(option.name);
        if (!befehlszeile.isSet(name)) continue;
        wunsch.*option.ziel = utf8(befehlszeile.value(name));
        gewuenscht = true;
    }
    wunsch.trotzdem = befehlszeile.isSet(optionTrotzdem);
    return gewuenscht ? std::optional(std::move(wunsch)) : std::nullopt;
}

const QStringList formen{QStringLiteral("lang"), QStringLiteral("kurz"), QStringLiteral("rechenweg")};

// One position from its file to its PDF.
class Pdflauf {
  public:
    Pdflauf(const Pdfauftrag& auftrag, const std::filesystem::path& ordner, const Pdfausgaben& ausgaben)
        : auftrag_(auftrag), ordner_(ordner), ausgaben_(ausgaben), w_(std::make_unique<Wand>()) {}

    Rueckgabe laufe() {
        if (!lade()) return Rueckgabe::dateifehler;
        if (auftrag_.tafel) return tafel();
        vorher_ = std::make_unique<Wand>(*w_);
        felder_ = grundmasse(*w_);
        const Positionslauf lauf = laufePosition(*w_, felder_);
        if (lauf.gerechnet() && !schreibe()) return Rueckgabe::dateifehler;
        for (const std::string& meldung : lauf.meldungen) melde(meldung);
        return lauf.rueckgabe;
    }

  private:
    Rueckgabe tafel() {
        Bewertungsregel regel = auftrag_.regel;
        if (auftrag_.lastfaelle) {
            auto faelle = lastfaelleAusDatei(*auftrag_.lastfaelle);
            if (const auto* fehler = std::get_if<std::string>(&faelle)) {
                ausgaben_.meldungen(*fehler + "\n");
                return Rueckgabe::dateifehler;
            }
            regel.lastfaelle = std::get<0>(std::move(faelle));
        }
        const auto auftrag =
            tafelauftrag(*auftrag_.tafel, {*w_, w_->eigeneMaterialien, std::move(regel), {}, {}, {}});
        if (const auto* fehler = std::get_if<std::string>(&auftrag)) {
            ausgaben_.meldungen(*fehler + hilfeverweis);
            return Rueckgabe::aufruf;
        }
        const auto& gelesen = std::get<Tafelauftrag>(auftrag);
        const Tafelblatt blatt = tafelblatt(gelesen, bemessungstafel(gelesen, {.faeden = kernzahl()}));
        zuweisen(*w_, grundmasse(*w_));
        const auto fehler = schreibeDauerhaft(auftrag_.ziel, tafelPdf(blatt, *w_).toStdString());
        if (fehler) scheitere(*fehler);
        return fehler ? Rueckgabe::dateifehler : Rueckgabe::erfuellt;
    }

    bool lade() {
        // The table of the window, delivered rows included; a command leaves no file behind but the PDF.
        auto materialien = ladeEigeneMaterialien(ordner_);
        if (const auto stoerung = materialien.stoerung()) return scheitere(*stoerung);
        w_->eigeneMaterialien = std::move(materialien.wert);
        Oeffnung oeffnung = oeffnePosition(auftrag_.position, *w_, Einlass::nurPositionen);
        if (oeffnung.fehler) return scheitere({*oeffnung.fehler});
        for (const std::string& vorbehalt : oeffnung.vorbehalte) melde(vorbehalt);
        bytes_ = std::move(oeffnung.bytes);
        return true;
    }

    bool schreibe() {
        Einstellungen einstellungen;
        const auto gelesen = liesEinstellungen(ordner_ / einstellungsdatei, einstellungen);
        if (const auto stoerung = gelesen.stoerung()) return scheitere(*stoerung);
        Ausdruck ausdruck = standardausdruck(*w_, einstellungen, liesLogo(ordner_));
        if (auftrag_.form == formen[1]) ausdruck.form = Form::kurz;
        if (auftrag_.form == formen[2]) ausdruck.dokument = dokument();
        ausdruck.optionen.dezimalzeichen = ',';  // the same file in every locale
        const Pdf datei = pdf(*w_, ausdruck);
        if (!datei.abgeschnitten.isEmpty()) melde(utf8(abgeschnittenText(datei.abgeschnitten)));
        const auto fehler = schreibeDauerhaft(auftrag_.ziel, datei.bytes.toStdString());
        return fehler ? scheitere(*fehler) : true;
    }

    std::shared_ptr<const Dokument> dokument() const {
        const std::string name = pfadtext(auftrag_.position.filename());
        return rechenwegdokument({*vorher_, felder_, *w_, pruefblatt(*vorher_, name, bytes_)});
    }

    bool scheitere(const Dateifehler& fehler) const {
        ausgaben_.meldungen(fehler.text + "\n");
        return false;
    }

    void melde(const std::string& text) const {
        ausgaben_.meldungen(pfadtext(auftrag_.position) + ": " + text + "\n");
    }

    const Pdfauftrag& auftrag_;
    const std::filesystem::path& ordner_;
    const Pdfausgaben& ausgaben_;
    std::unique_ptr<Wand> w_;
    std::unique_ptr<Wand> vorher_;  // before the run
    Grundmasse felder_{};
    std::string bytes_;  // of the position
};

// All positions of a folder in one PDF.
class Ordnerlauf {
  public:
    Ordnerlauf(const Pdfauftrag& auftrag, const std::filesystem::path& ordner, const Pdfausgaben& ausgaben)
        : auftrag_(auftrag), ordner_(ordner), ausgaben_(ausgaben) {}

    Rueckgabe laufe() {
        Sammelauftrag sammlung;
        const auto dateien = projektdateien(auftrag_.position);
        if (const auto* fehler = std::get_if<std::string>(&dateien)) return scheitere(*fehler);
        sammlung.dateien = std::get<0>(dateien);
        const auto materialien = ladeEigeneMaterialien(ordner_);
        if (const auto stoerung = materialien.stoerung()) return scheitere(stoerung->text);
        const auto gelesen = liesEinstellungen(ordner_ / einstellungsdatei, sammlung.einstellungen);
        if (const auto stoerung = gelesen.stoerung()) return scheitere(stoerung->text);
        sammlung.materialien = materialien.wert;
        sammlung.logo = liesLogo(ordner_);
        sammlung.form = auftrag_.form == formen[1] ? Form::kurz : Form::lang;
        sammlung.titel = ordnername(auftrag_.position);
        const Sammelpdf pdf = sammelpdf(sammlung, {});
        for (const std::string& meldung : pdf.meldungen) ausgaben_.meldungen(meldung + "\n");
        if (pdf.gedruckt == 0)
            return scheitere("Im Ordner \"" + pfadtext(auftrag_.position) +
                             "\" liegt keine Position, die gedruckt werden kann.");
        if (const auto fehler = schreibeDauerhaft(auftrag_.ziel, pdf.bytes.toStdString()))
            return scheitere(fehler->text);
        return pdf.rueckgabe;
    }

  private:
    Rueckgabe scheitere(const std::string& satz) const {
        ausgaben_.meldungen(satz + "\n");
        return Rueckgabe::dateifehler;
    }

    const Pdfauftrag& auftrag_;
    const std::filesystem::path& ordner_;
    const Pdfausgaben& ausgaben_;
};

// Whether the PDF would take the place of something that is read for it.
bool schriebeUeberEingabe(const Pdfauftrag& auftrag, const std::filesystem::path& ordner) {
    std::vector<std::filesystem::path> eingaben = projekteingaben(auftrag.position);
    for (const auto& name : {materialdatei, einstellungsdatei, logodatei}) eingaben.push_back(ordner / name);
    if (auftrag.lastfaelle) eingaben.push_back(*auftrag.lastfaelle);
    return std::any_of(eingaben.begin(), eingaben.end(),
                       [&](const auto& datei) { return sindDieselbeDatei(datei, auftrag.ziel); });
}

// Qt names the program by the path it was called with.
QString aufrufhilfe(const QCommandLineParser& befehlszeile) {
    const QString aufgerufen = QCoreApplication::arguments().value(0);
    QString text = befehlszeile.helpText();
    const qsizetype stelle = aufgerufen.isEmpty() ? -1 : text.indexOf(aufgerufen);
    return stelle < 0 ? text : text.replace(stelle, aufgerufen.size(), QCoreApplication::applicationName());
}

QString aufruffehler(const QCommandLineParser& befehlszeile) {
    const QStringList unbekannt = befehlszeile.unknownOptionNames();
    if (unbekannt.isEmpty()) return befehlszeile.errorText();
    const auto strich = [](const QString& name) {
        return name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--");
    };
    return QStringLiteral("Unbekannte Angabe: %1%2")
        .arg(strich(unbekannt.constFirst()), unbekannt.constFirst());
}

}  // namespace

void beschreibeAufruf(QCommandLineParser& befehlszeile) {
    befehlszeile.setApplicationDescription(
        QStringLiteral("Bemessung von Wandtafeln in Holzrahmenbauweise nach DIN 1052 (2008)"));
    befehlszeile.addHelpOption();
    befehlszeile.addVersionOption();
    befehlszeile.addOption({optionPdf,
                            QStringLiteral("Schreibt den Ausdruck der Position, oder aller Positionen eines "
                                           "Ordners, als PDF, ohne Fenster."),
                            QStringLiteral("AUS.pdf")});
    befehlszeile.addOption({optionForm,
                            QStringLiteral("Form des PDF: lang, kurz oder rechenweg (sonst lang)."),
                            formen.join(QLatin1Char('|')), QStringLiteral("lang")});
    for (const Tafeloption& option : tafeloptionen)
        befehlszeile.addOption({QString::fromLatin1(option.name), QString::fromUtf8(option.erklaerung),
                                QString::fromLatin1(option.wert)});
    befehlszeile.addOption(
        {optionLastfaelle,
         QStringLiteral("Tafel: Tabelle der Lastfälle (CSV); bestehen heißt, alle bestehen."),
         QStringLiteral("DATEI")});
    befehlszeile.addOption({optionRichtung,
                            QStringLiteral("Tafel: beide Vorzeichen von Fvk oder nur das eingegebene."),
                            QStringLiteral("beide|plus"), QStringLiteral("beide")});
    befehlszeile.addOption(
        {optionMitLuecken,
         QStringLiteral("Tafel: auch Wände, bei denen etwas Gefordertes nicht nachgewiesen ist.")});
    befehlszeile.addOption(
        {optionTrotzdem, QStringLiteral("Tafel: auch Lasten, die bei diesem Lastfall nicht wirken.")});
    befehlszeile.addPositionalArgument(QStringLiteral("DATEI"),
                                       QStringLiteral("Positionsdatei (*.rsw), mit --pdf auch ein Ordner"),
                                       QStringLiteral("[DATEI]"));
}

std::optional<Rueckgabe> beantworteAufruf(QCommandLineParser& befehlszeile, const QStringList& argumente,
                                          const Pdfausgaben& ausgaben) {
    if (!befehlszeile.parse(argumente)) {
        ausgaben.meldungen(utf8(aufruffehler(befehlszeile)) + hilfeverweis);
        return Rueckgabe::aufruf;
    }
    if (befehlszeile.isSet(QStringLiteral("help"))) {
        ausgaben.standard(utf8(aufrufhilfe(befehlszeile)));
        return Rueckgabe::erfuellt;
    }
    if (befehlszeile.isSet(QStringLiteral("version"))) {
        ausgaben.standard(utf8(QCoreApplication::applicationName() + QLatin1Char(' ') +
                               QCoreApplication::applicationVersion()) +
                          "\n");
        return Rueckgabe::erfuellt;
    }
    return std::nullopt;
}

bool istPdfBefehl(const QStringList& argumente) {
    return std::any_of(argumente.cbegin(), argumente.cend(), [](const QString& a) {
        return a == QStringLiteral("--pdf") || a.startsWith(QStringLiteral("--pdf="));
    });
}

Rueckgabe fuehrePdfBefehlAus(const QStringList& argumente, const std::filesystem::path& programmordner,
                             const Pdfausgaben& ausgaben) {
    QCommandLineParser befehlszeile;
    beschreibeAufruf(befehlszeile);
    const auto falscherAufruf = [&](const QString& grund) {
        ausgaben.meldungen(utf8(grund) + hilfeverweis);
        return Rueckgabe::aufruf;
    };
    if (const auto antwort = beantworteAufruf(befehlszeile, argumente, ausgaben)) return *antwort;
    const QString form = befehlszeile.value(optionForm);
    if (!formen.contains(form))
        return falscherAufruf(QStringLiteral("--form: „%1“ ist nicht zulässig; erlaubt: %2")
                                  .arg(form, formen.join(QStringLiteral(", "))));
    if (befehlszeile.value(optionPdf).isEmpty())
        return falscherAufruf(QStringLiteral("Nach --pdf fehlt der Name der Datei."));
    if (befehlszeile.positionalArguments().size() != 1)
        return falscherAufruf(QStringLiteral("Es wird genau eine Positionsdatei oder ein Ordner erwartet."));
    const QString richtung = befehlszeile.value(optionRichtung);
    if (richtung != QStringLiteral("beide") && richtung != QStringLiteral("plus"))
        return falscherAufruf(
            QStringLiteral("--richtung: \"%1\" geht nicht, möglich: beide|plus").arg(richtung));
    Pdfauftrag auftrag{pfad(befehlszeile.value(optionPdf)),
                       pfad(befehlszeile.positionalArguments().constFirst()), form,
                       tafelwunsch(befehlszeile)};
    for (const QString& option : {optionLastfaelle, optionRichtung, optionMitLuecken, optionTrotzdem})
        if (!auftrag.tafel && befehlszeile.isSet(option))
            return falscherAufruf(
                QStringLiteral("--%1 gehört zu einer Bemessungstafel: Es fehlt --groesste.").arg(option));
    if (auftrag.tafel && befehlszeile.isSet(optionForm))
        return falscherAufruf(QStringLiteral("--form gibt es nicht für eine Bemessungstafel."));
    auftrag.regel.beideRichtungen = richtung == QStringLiteral("beide");
    auftrag.regel.mitLuecken = befehlszeile.isSet(optionMitLuecken);
    if (befehlszeile.isSet(optionLastfaelle)) auftrag.lastfaelle = pfad(befehlszeile.value(optionLastfaelle));
    if (sindDieselbeDatei(auftrag.ziel, auftrag.position))
        return falscherAufruf(QStringLiteral("--pdf: \"%1\" ist die Positionsdatei selbst.")
                                  .arg(befehlszeile.value(optionPdf)));
    if (schriebeUeberEingabe(auftrag, programmordner))
        return falscherAufruf(
            QStringLiteral("--pdf: \"%1\" wird gelesen.").arg(befehlszeile.value(optionPdf)));
    std::error_code fehler;
    const bool ordner = std::filesystem::is_directory(auftrag.position, fehler);
    if (ordner && auftrag.tafel)
        return falscherAufruf(QStringLiteral("Eine Bemessungstafel geht nur mit einer Positionsdatei."));
    if (ordner && form == formen[2])
        return falscherAufruf(QStringLiteral("--form rechenweg geht nur mit einer Positionsdatei."));
    if (ordner) return Ordnerlauf(auftrag, programmordner, ausgaben).laufe();
    return Pdflauf(auftrag, programmordner, ausgaben).laufe();
}

}  // namespace rippenscheibe
