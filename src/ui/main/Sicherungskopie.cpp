#include "ui/main/Sicherungskopie.h"

#include <QFileInfo>
#include <QLocale>
#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

#include "files/Dateischreiber.h"
#include "files/Positionsdatei.h"
#include "ui/basics/Meldungen.h"

namespace rippenscheibe {

namespace {

constexpr int hoechstePlaetze = 32;
constexpr const char* position = ".rsw";
constexpr const char* dateiname = ".txt";

QString qpfad(const std::filesystem::path& pfad) {
    const std::u8string text = pfad.u8string();
    return QString::fromUtf8(reinterpret_cast<const char*>(text.data()), static_cast<qsizetype>(text.size()));
}

}  // namespace

Sicherungskopie::Sicherungskopie(Programm& programm, QObject* parent) : QObject(parent), programm_(programm) {
    uhr_.setInterval(abstand);
    uhr_.setSingleShot(true);
    connect(&uhr_, &QTimer::timeout, this, [this] {
        sichere();
        folgeZustand();
    });
    connect(&programm_, &Programm::zustandGeaendert, this, &Sicherungskopie::folgeZustand);
    for (int nummer = 1; nummer <= hoechstePlaetze && !platz_; ++nummer)
        if (!std::filesystem::exists(datei(nummer, position))) platz_ = belege(nummer);
}

std::filesystem::path Sicherungskopie::datei(int nummer, const char* endung) const {
    return programm_.datei("Sicherung-" + std::to_string(nummer) + endung);
}

std::optional<Sicherungskopie::Platz> Sicherungskopie::belege(int nummer) const {
    auto sperre = std::make_unique<QLockFile>(qpfad(datei(nummer, ".lock")));
    sperre->setStaleLockTime(0);  // a lock is given up by the death of its owner only
    if (!sperre->tryLock(0)) return std::nullopt;
    return Platz{nummer, std::move(sperre)};
}

void Sicherungskopie::loesche(int nummer) const {
    std::error_code egal;
    std::filesystem::remove(datei(nummer, position), egal);
    std::filesystem::remove(datei(nummer, dateiname), egal);
}

void Sicherungskopie::folgeZustand() {
    if (!programm_.Gesichert()) {
        if (!uhr_.isActive()) uhr_.start();
        return;
    }
    uhr_.stop();
    gesichert_.clear();
    if (platz_) loesche(platz_->nummer);
}

bool Sicherungskopie::sichere() {
    if (programm_.Gesichert()) return true;
    if (!platz_) return false;
    const std::string text = positionstext(programm_.w);
    if (text == gesichert_) return true;
    // A copy that cannot be written is tried again a minute later; the user's work goes on.
    if (schreibeDauerhaft(datei(platz_->nummer, dateiname), programm_.Dateiname)) return false;
    if (schreibePosition(datei(platz_->nummer, position), programm_.w)) return false;
    gesichert_ = text;
    return true;
}

bool Sicherungskopie::stelleWiederHer(Meldungen& meldungen, QWidget* fenster) {
    std::vector<Platz> verwaist;
    for (int nummer = 1; nummer <= hoechstePlaetze; ++nummer) {
        if ((platz_ && platz_->nummer == nummer) || !std::filesystem::exists(datei(nummer, position)))
            continue;
        if (std::optional<Platz> platz = belege(nummer)) verwaist.push_back(std::move(*platz));
    }
    const auto zeit = [this](const Platz& platz) {
        return QFileInfo(qpfad(datei(platz.nummer, position))).lastModified();
    };
    std::sort(verwaist.begin(), verwaist.end(),
              [&](const Platz& a, const Platz& b) { return zeit(a) > zeit(b); });
    for (const Platz& platz : verwaist) {
        const std::string name = liesDatei(datei(platz.nummer, dateiname)).bytes;
        const QString text =
            QStringLiteral(
                "Das Programm wurde nicht ordnungsgemäß beendet.\n\nPosition: %1\nzuletzt selbsttätig "
                "gesichert: %2\n\nSoll dieser Stand wiederhergestellt werden ?")
                .arg(name.empty() ? QStringLiteral("<Neue Datei>") : qtext(name),
                     QLocale().toString(zeit(platz), QStringLiteral("dd.MM.yyyy, HH:mm 'Uhr'")));
        const Antwort antwort = meldungen.zeige(
            fenster, {Symbol::frage, QStringLiteral("Wiederherstellung"), text, Knoepfe::jaNeinAbbrechen});
        if (antwort == Antwort::nein) loesche(platz.nummer);
        if (antwort != Antwort::ja) continue;  // a cancel keeps the copy for the next start
        const auto w = std::make_unique<Wand>(programm_.w);
        if (const auto fehler = liesPosition(datei(platz.nummer, position), *w).fehler) {
            meldungen.kritisch(fenster, QStringLiteral(" Fehler"), qtext(fehler->text));
            continue;  // the copy stays for the next start
        }
        programm_.Sperre = true;
        programm_.w = *w;
        programm_.felder = grundmasse(programm_.w);
        programm_.Sperre = false;
        programm_.Dateiname = name;
        programm_.DialogDateiname = qtext(name);
        programm_.setzeTitel(name.empty() ? QStringLiteral(" <Neue Datei> ") : qtext(name));
        programm_.setzeGesichert(false);
        programm_.zuweisen();
        // The old copy is given up for a new one only.
        if (sichere()) loesche(platz.nummer);
        return true;
    }
    return false;
}

void Sicherungskopie::raeumeAuf() {
    uhr_.stop();
    if (platz_) loesche(platz_->nummer);
    platz_.reset();
}

}  // namespace rippenscheibe
