#include "files/Dateischreiber.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <system_error>
#include <utility>

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
        case EDQUOT:
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
    return {"Die Datei \"" + datei.string() + "\" kann nicht geschrieben werden: " + grund + "."};
}

Dateifehler nichtGelesen(const fs::path& datei, int fehlernummer) {
    return {"Die Datei \"" + datei.string() + "\" kann nicht gelesen werden: " + ursache(fehlernummer) + "."};
}

// An open file, closed at the end of its scope.
class Griff {
  public:
    explicit Griff(int nummer) : nummer_(nummer) {}
    ~Griff() { schliesse(); }
    Griff(const Griff&) = delete;
    Griff& operator=(const Griff&) = delete;

    int nummer() const { return nummer_; }
    bool offen() const { return nummer_ >= 0; }
    // 0, or the number of the fault: a full network disk may tell only now.
    int schliesse() {
        if (nummer_ < 0) return 0;
        const int ergebnis = ::close(std::exchange(nummer_, -1));
        return ergebnis == 0 ? 0 : errno;
    }

  private:
    int nummer_;
};

// The temporary file beside the target, removed unless it took the target's place.
struct Beidatei {
    fs::path pfad;
    bool umbenannt = false;

    explicit Beidatei(fs::path p) : pfad(std::move(p)) {}
    ~Beidatei() {
        if (!umbenannt) ::unlink(pfad.c_str());
    }
    Beidatei(const Beidatei&) = delete;
    Beidatei& operator=(const Beidatei&) = delete;
};

int schreibeAlles(int griff, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t geschrieben = ::write(griff, bytes.data(), bytes.size());
        if (geschrieben < 0) {
            if (errno == EINTR) continue;
            return errno;
        }
        bytes.remove_prefix(static_cast<std::size_t>(geschrieben));
    }
    return 0;
}

int schreibeDirekt(const fs::path& ziel, std::string_view bytes) {
    Griff griff(::open(ziel.c_str(), O_WRONLY | O_CLOEXEC));
    if (!griff.offen()) return errno;
    if (const int fehler = schreibeAlles(griff.nummer(), bytes)) return fehler;
    return griff.schliesse();
}

// The file behind a chain of symbolic links, whether it exists or not.
fs::path hinterVerknuepfungen(fs::path datei, int& fehler) {
    constexpr int laengsteKette = 40;
    std::error_code ec;
    for (int i = 0; i < laengsteKette; ++i) {
        if (!fs::is_symlink(fs::symlink_status(datei, ec))) return datei;
        const fs::path ziel = fs::read_symlink(datei, ec);
        datei = ziel.is_absolute() ? ziel : datei.parent_path() / ziel;
    }
    fehler = ELOOP;
    return datei;
}

mode_t rechteNeuerDateien() {
    // The mask can only be read by setting it.
    const mode_t maske = ::umask(0);
    ::umask(maske);
    return 0666U & ~maske;
}

int ersetze(const fs::path& ziel, const struct stat* alt, std::string_view bytes) {
    const fs::path ordner = ziel.has_parent_path() ? ziel.parent_path() : fs::path(".");
    std::string muster = (ordner / ".rippenscheibe-XXXXXX").string();
    Griff griff(::mkostemp(muster.data(), O_CLOEXEC));
    if (!griff.offen()) return errno;
    Beidatei beidatei(muster);

    // An owner that cannot be kept is no reason not to save; the permissions follow, as a change of owner
    // may take some away.
    if (alt != nullptr && (alt->st_uid != ::geteuid() || alt->st_gid != ::getegid())) {
        [[maybe_unused]] const int behalten = ::fchown(griff.nummer(), alt->st_uid, alt->st_gid);
    }
    const mode_t rechte = alt != nullptr ? (alt->st_mode & 07777U) : rechteNeuerDateien();
    if (::fchmod(griff.nummer(), rechte) != 0) return errno;

    if (const int fehler = schreibeAlles(griff.nummer(), bytes)) return fehler;
    if (::fsync(griff.nummer()) != 0) return errno;
    if (const int fehler = griff.schliesse()) return fehler;
    if (::rename(beidatei.pfad.c_str(), ziel.c_str()) != 0) return errno;
    beidatei.umbenannt = true;

    // The new file is in place. Some file systems cannot sync a folder, which is then no failed save.
    const Griff ordnergriff(::open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (ordnergriff.offen() && ::fsync(ordnergriff.nummer()) != 0 && errno == EIO) return EIO;
    return 0;
}

int schreibe(const fs::path& datei, std::string_view bytes) {
    int fehler = 0;
    const fs::path ziel = hinterVerknuepfungen(datei, fehler);
    if (fehler != 0) return fehler;
    if (ziel.filename().empty()) return ziel.empty() ? ENOENT : EISDIR;

    struct stat alt {};
    if (::stat(ziel.c_str(), &alt) != 0) return errno == ENOENT ? ersetze(ziel, nullptr, bytes) : errno;
    if (S_ISDIR(alt.st_mode)) return EISDIR;
    if (!S_ISREG(alt.st_mode)) return schreibeDirekt(ziel, bytes);
    if (::faccessat(AT_FDCWD, ziel.c_str(), W_OK, AT_EACCESS) != 0) return errno;
    return ersetze(ziel, &alt, bytes);
}

}  // namespace

std::optional<Dateifehler> schreibeDauerhaft(const fs::path& datei, std::string_view bytes) {
    if (const int fehler = schreibe(datei, bytes)) return nichtGeschrieben(datei, fehler);
    return std::nullopt;
}

Dateiinhalt liesDatei(const fs::path& datei) {
    const Griff griff(::open(datei.c_str(), O_RDONLY | O_CLOEXEC));
    if (!griff.offen()) return {{}, nichtGelesen(datei, errno)};
    Dateiinhalt inhalt;
    std::array<char, 16384> block{};
    while (true) {
        const ssize_t gelesen = ::read(griff.nummer(), block.data(), block.size());
        if (gelesen == 0) return inhalt;
        if (gelesen < 0 && errno != EINTR) return {{}, nichtGelesen(datei, errno)};
        if (gelesen > 0) inhalt.bytes.append(block.data(), static_cast<std::size_t>(gelesen));
    }
}

Dateisperre::Dateisperre(const fs::path& ordner)
    : ordner_(::open(ordner.empty() ? "." : ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    while (ordner_ >= 0 && ::flock(ordner_, LOCK_EX) != 0 && errno == EINTR) {
    }
}

Dateisperre::~Dateisperre() {
    if (ordner_ >= 0) ::close(ordner_);
}

}  // namespace rippenscheibe
