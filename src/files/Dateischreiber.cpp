#include "files/Dateischreiber.h"

#include <cerrno>
#include <random>
#include <system_error>
#include <thread>
#include <utility>

#include "files/Kopie.h"
#include "files/Pfad.h"

namespace rippenscheibe {

namespace {

namespace fs = std::filesystem;

std::string ursache(int fehlernummer) {
    switch (fehlernummer) {
        case EACCES:
        case EPERM:
            return "keine Berechtigung";
        case EROFS:
            return "der Datenträger ist schreibgeschützt";
        case ENOSPC:
#ifdef EDQUOT
        case EDQUOT:
#endif
            return "kein freier Speicherplatz";
        case EFBIG:
            return "die Datei wird zu groß";
        case ENOENT:
            return "nicht vorhanden";
        case ENOTDIR:
            return "der Ordner ist keiner";
        case EISDIR:
            return "das ist ein Ordner";
        case ENAMETOOLONG:
            return "der Name ist zu lang";
        case ELOOP:
            return "die Verknüpfungen drehen sich im Kreis";
        case EIO:
            return "Fehler des Datenträgers";
        default:
            return "Systemfehler " + std::to_string(fehlernummer);
    }
}

Dateifehler nichtGeschrieben(const fs::path& datei, int fehlernummer) {
    const std::string grund =
        fehlernummer == ENOENT ? "der Ordner ist nicht vorhanden" : ursache(fehlernummer);
    return {"Die Datei \"" + pfadtext(datei) + "\" kann nicht geschrieben werden: " + grund + "."};
}

Dateifehler nichtGelesen(const fs::path& datei, int fehlernummer, std::size_t hoechstens) {
    const std::string grund = fehlernummer == EFBIG
                                  ? "sie ist größer als " + std::to_string(hoechstens >> 20U) + " MB"
                                  : ursache(fehlernummer);
    return {"Die Datei \"" + pfadtext(datei) + "\" kann nicht gelesen werden: " + grund + "."};
}

// Temporary files: hidden, and known again by their name.
constexpr std::string_view beianfang = ".rippenscheibe-";
constexpr std::size_t beiende = 6;

std::string beiname() {
    constexpr std::string_view zeichen = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device zufall;
    std::string name(beianfang);
    for (std::size_t i = 0; i < beiende; ++i) name += zeichen[zufall() % zeichen.size()];
    return name;
}

void raeumeAuf(const fs::path& ordner) {
    constexpr auto hoechstalter = std::chrono::hours(24);
    const auto jetzt = fs::file_time_type::clock::now();
    std::error_code fehler;
    for (fs::directory_iterator i(ordner, fehler), ende; !fehler && i != ende; i.increment(fehler)) {
        const std::string name = pfadtext(i->path().filename());
        if (!name.starts_with(beianfang) || name.size() != beianfang.size() + beiende) continue;
        std::error_code egal;
        const auto zeit = fs::last_write_time(i->path(), egal);
        if (!egal && jetzt - zeit > hoechstalter) fs::remove(i->path(), egal);
    }
}

plattform::Ersetzung ersetze(const fs::path& ziel, std::string_view bytes) {
    raeumeAuf(ziel.has_parent_path() ? ziel.parent_path() : fs::path("."));
    plattform::Ersetzung ersetzung = plattform::ersetze(ziel, beiname(), bytes);
    while (ersetzung.fehler == EEXIST) ersetzung = plattform::ersetze(ziel, beiname(), bytes);
    return ersetzung;
}

// Overwrites a file where it stands. The copy outlives a crash, and a fault after which the old content could
// not be put back either.
std::optional<Dateifehler> ueberschreibeMitKopie(const fs::path& datei, const fs::path& ziel,
                                                 std::string_view bytes, const fs::path& kopienordner) {
    Dateiinhalt alt = liesDatei(ziel, std::string::npos);
    if (alt.fehler) return alt.fehler;
    std::error_code fehler;
    fs::create_directories(kopienordner, fehler);  // if it cannot be made, the copy cannot be written
    const fs::path ganz = fs::absolute(ziel, fehler);
    std::optional<Kopieplatz> platz = Kopieplatz::freier(kopienordner, Kopieart::ueberschreiben);
    if (!platz)
        return Dateifehler{"Die Datei \"" + pfadtext(datei) +
                           "\" kann nicht geschrieben werden: der Ordner \"" + pfadtext(kopienordner) +
                           "\" nimmt keine Sicherheitskopie auf."};
    if (auto kopiefehler = platz->schreibe({pfadtext(ganz), alt.bytes})) {
        platz->loesche();  // the file was not touched
        return kopiefehler;
    }
    const int schreibfehler = plattform::ueberschreibe(ziel, bytes);
    if (schreibfehler == 0 || plattform::ueberschreibe(ziel, alt.bytes) == 0) {
        platz->loesche();
        if (schreibfehler == 0) return std::nullopt;
        return nichtGeschrieben(datei, schreibfehler);
    }
    Dateifehler meldung = nichtGeschrieben(datei, schreibfehler);
    meldung.text += " Ihr Stand davor liegt in \"" + pfadtext(platz->datei()) + "\".";
    return meldung;
}

}  // namespace

std::optional<Dateifehler> schreibeDauerhaft(const fs::path& datei, std::string_view bytes,
                                             const fs::path& kopienordner) {
    using plattform::Zielart;
    const plattform::Ziel ziel = plattform::schreibziel(datei);
    if (ziel.fehler != 0) return nichtGeschrieben(datei, ziel.fehler);
    int fehler = 0;
    if (ziel.art == Zielart::geraet || ziel.art == Zielart::griff) {
        fehler = plattform::schreibeDirekt(ziel, bytes);
    } else if (ziel.art == Zielart::mehrfach) {
        return ueberschreibeMitKopie(datei, ziel.pfad, bytes, kopienordner);
    } else {
        const plattform::Ersetzung ersetzung = ersetze(ziel.pfad, bytes);
        if (ersetzung.verweigert) return ueberschreibeMitKopie(datei, ziel.pfad, bytes, kopienordner);
        fehler = ersetzung.fehler;
    }
    if (fehler != 0) return nichtGeschrieben(datei, fehler);
    return std::nullopt;
}

Dateiinhalt liesDatei(const fs::path& datei, std::size_t hoechstens) {
    Dateiinhalt inhalt;
    const int fehler = plattform::lies(datei, hoechstens, inhalt.bytes);
    if (fehler == 0) return inhalt;
    const Dateilage lage = fehler == ENOENT ? Dateilage::fehlt : Dateilage::unlesbar;
    return {lage, {}, nichtGelesen(datei, fehler, hoechstens)};
}

Dateisperre::Dateisperre(const fs::path& ordner, std::chrono::milliseconds geduld) {
    constexpr auto pause = std::chrono::milliseconds(10);
    const auto ende = std::chrono::steady_clock::now() + geduld;
    while (true) {
        plattform::Sperrversuch versuch = plattform::sperreOrdner(ordner);
        sperre_ = std::move(versuch.sperre);
        if (sperre_ || !versuch.belegt || std::chrono::steady_clock::now() >= ende) return;
        std::this_thread::sleep_for(pause);
    }
}

}  // namespace rippenscheibe
