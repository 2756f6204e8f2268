#include "files/Kopie.h"

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

#include "files/Pfad.h"

namespace rippenscheibe {

namespace {

namespace fs = std::filesystem;

constexpr int hoechstePlaetze = 32;
constexpr std::string_view kennung = "Rippenscheibe-Kopie ";
constexpr std::string_view zeilenende = "\r\n";

fs::path platzdatei(const fs::path& ordner, Kopieart art, int nummer, std::string_view endung) {
    std::string name = art == Kopieart::sicherung ? "Sicherung-" : "Ueberschreiben-";
    return ordner / pfadAus(name.append(std::to_string(nummer)).append(endung));
}

// A name may hold anything but a zero byte; what would end the line is written as %0D and %0A.
std::string verschluesselt(std::string_view name) {
    std::string text;
    for (const char c : name) {
        if (c == '%')
            text += "%25";
        else if (c == '\r')
            text += "%0D";
        else if (c == '\n')
            text += "%0A";
        else
            text += c;
    }
    return text;
}

std::string entschluesselt(std::string_view text) {
    std::string name;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string_view folge = text.substr(i, 3);
        if (folge == "%25")
            name += '%';
        else if (folge == "%0D")
            name += '\r';
        else if (folge == "%0A")
            name += '\n';
        else {
            name += text[i];
            continue;
        }
        i += 2;
    }
    return name;
}

}  // namespace

std::string kopietext(const Kopie& kopie) {
    std::string text(kennung);
    text.append(std::to_string(kopie.bytes.size())).append(" ").append(verschluesselt(kopie.name));
    return text.append(zeilenende).append(kopie.bytes);
}

std::optional<Kopie> kopieAus(std::string_view text) {
    const std::size_t ende = text.find(zeilenende);
    if (!text.starts_with(kennung) || ende == std::string_view::npos) return std::nullopt;
    const std::string_view kopf = text.substr(kennung.size(), ende - kennung.size());
    const std::string_view bytes = text.substr(ende + zeilenende.size());
    std::size_t laenge = 0;
    const auto [stelle, fehler] = std::from_chars(kopf.data(), kopf.data() + kopf.size(), laenge);
    const auto ziffern = static_cast<std::size_t>(stelle - kopf.data());
    if (fehler != std::errc{} || laenge != bytes.size() || ziffern >= kopf.size() || kopf[ziffern] != ' ')
        return std::nullopt;
    return Kopie{entschluesselt(kopf.substr(ziffern + 1)), std::string(bytes)};
}

Kopieplatz::Kopieplatz(fs::path datei, plattform::Sperre sperre)
    : datei_(std::move(datei)), sperre_(std::move(sperre)) {}

std::vector<Kopieplatz> Kopieplatz::plaetze(const fs::path& ordner, Kopieart art, bool mitKopie,
                                            std::size_t hoechstens) {
    std::vector<Kopieplatz> gefunden;
    for (int nummer = 1; nummer <= hoechstePlaetze && gefunden.size() < hoechstens; ++nummer) {
        const fs::path datei = platzdatei(ordner, art, nummer, ".kopie");
        std::error_code fehler;
        const fs::file_type da = fs::symlink_status(datei, fehler).type();
        // A place of which nobody can say whether it holds a copy is neither free nor to be offered.
        if (da == fs::file_type::none || (da != fs::file_type::not_found) != mitKopie) continue;
        plattform::Sperrversuch versuch = plattform::sperreDatei(platzdatei(ordner, art, nummer, ".lock"));
        if (versuch.sperre)
            gefunden.push_back(Kopieplatz(datei, std::move(*versuch.sperre)));
        else if (!versuch.belegt)
            break;  // no locks in this folder
    }
    return gefunden;
}

std::optional<Kopieplatz> Kopieplatz::freier(const fs::path& ordner, Kopieart art) {
    std::vector<Kopieplatz> einer = plaetze(ordner, art, false, 1);
    if (einer.empty()) return std::nullopt;
    return std::move(einer.front());
}

std::vector<Kopieplatz> Kopieplatz::verwaiste(const fs::path& ordner, Kopieart art) {
    std::vector<Kopieplatz> alle = plaetze(ordner, art, true, hoechstePlaetze);
    std::sort(alle.begin(), alle.end(),
              [](const Kopieplatz& a, const Kopieplatz& b) { return a.zeit() > b.zeit(); });
    return alle;
}

std::optional<Dateifehler> Kopieplatz::schreibe(const Kopie& kopie) const {
    return schreibeDauerhaft(datei_, kopietext(kopie), datei_.parent_path());
}

Gelesen<Kopie> Kopieplatz::lies() const {
    const Dateiinhalt inhalt = liesDatei(datei_, std::string::npos);
    if (inhalt.fehler) return {inhalt.lage, inhalt.fehler, {}};
    if (std::optional<Kopie> kopie = kopieAus(inhalt.bytes))
        return {Dateilage::vorhanden, std::nullopt, std::move(*kopie)};
    return {Dateilage::unlesbar,
            Dateifehler{"Die Sicherheitskopie \"" + pfadtext(datei_) + "\" ist nicht vollständig."},
            {}};
}

void Kopieplatz::loesche() const {
    std::error_code egal;
    fs::remove(datei_, egal);
}

fs::file_time_type Kopieplatz::zeit() const {
    std::error_code fehler;
    const fs::file_time_type zeit = fs::last_write_time(datei_, fehler);
    return fehler ? fs::file_time_type::min() : zeit;
}

}  // namespace rippenscheibe
