#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdlib>
#include <system_error>
#include <utility>

#include "files/Plattform.h"

namespace rippenscheibe::plattform {

namespace {

namespace fs = std::filesystem;

template <class Ruf>
auto beharrlich(Ruf&& ruf) {
    auto ergebnis = ruf();
    while (ergebnis < 0 && errno == EINTR) ergebnis = ruf();
    return ergebnis;
}

int oeffne(const fs::path& datei, int art, mode_t rechte = 0) {
    return beharrlich([&] { return ::open(datei.c_str(), art | O_CLOEXEC, rechte); });
}

int nummer(int ergebnis) { return ergebnis < 0 ? errno : 0; }

// An open file, closed at the end of its scope.
class Griff {
  public:
    explicit Griff(int griff) : griff_(griff) {}
    ~Griff() { schliesse(); }
    Griff(const Griff&) = delete;
    Griff& operator=(const Griff&) = delete;

    int operator*() const { return griff_; }
    bool offen() const { return griff_ >= 0; }
    // A full network disk may tell only now. An interrupted close has closed all the same.
    int schliesse() {
        if (griff_ < 0 || ::close(std::exchange(griff_, -1)) == 0 || errno == EINTR) return 0;
        return errno;
    }

  private:
    int griff_;
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
        const ssize_t geschrieben = beharrlich([&] { return ::write(griff, bytes.data(), bytes.size()); });
        if (geschrieben < 0) return errno;
        if (geschrieben == 0) return EIO;  // no progress and no reason
        bytes.remove_prefix(static_cast<std::size_t>(geschrieben));
    }
    return 0;
}

int schliesseAb(Griff& griff) {
    if (const int fehler = nummer(beharrlich([&] { return ::fsync(*griff); }))) return fehler;
    return griff.schliesse();
}

// The number N of a path that names the open file N of this process, -1 for any other.
int eigenerGriff(const fs::path& datei) {
    const fs::path ordner = datei.parent_path();
    if (ordner != "/proc/self/fd" && ordner != "/dev/fd") return -1;
    const std::string name = datei.filename().string();
    int griff = -1;
    const auto [ende, fehler] = std::from_chars(name.data(), name.data() + name.size(), griff);
    return fehler == std::errc{} && ende == name.data() + name.size() ? griff : -1;
}

mode_t rechteNeuerDateien() {
    // The mask can only be read by setting it.
    const mode_t maske = ::umask(0);
    ::umask(maske);
    return 0666U & ~maske;
}

constexpr std::string_view zugriffsliste = "system.posix_acl_access";

// In an access list the rights of the file's group stand in an entry of their own: a version of four bytes,
// then entries of tag, rights (16 bits each) and number (32 bits).
void nimmGruppeAus(std::string& liste) {
    constexpr std::size_t kopf = 4, eintrag = 8, rechte = 2;
    constexpr char gruppe = 0x04;
    for (std::size_t i = kopf; i + eintrag <= liste.size(); i += eintrag)
        if (liste[i] == gruppe && liste[i + 1] == 0) liste[i + rechte] = 0;
}

std::optional<std::string> attribut(const fs::path& datei, const std::string& name) {
    std::string wert(65536, '\0');
    const ssize_t laenge = ::getxattr(datei.c_str(), name.c_str(), wert.data(), wert.size());
    if (laenge < 0) return std::nullopt;
    wert.resize(static_cast<std::size_t>(laenge));
    return wert;
}

bool uebertrageAttribut(const fs::path& alt, int neu, const std::string& name, bool ohneGruppe) {
    std::optional<std::string> wert = attribut(alt, name);
    if (!wert) return false;
    if (ohneGruppe) nimmGruppeAus(*wert);
    return ::fsetxattr(neu, name.c_str(), wert->data(), wert->size(), 0) == 0;
}

// False when the old file has an access list that the new one cannot get.
bool uebertrageAttribute(const fs::path& alt, int neu, bool gruppeBehalten) {
    std::string namen(65536, '\0');
    const ssize_t laenge = ::listxattr(alt.c_str(), namen.data(), namen.size());
    if (laenge <= 0) return true;  // none, or a file system without attributes
    bool behalten = true;
    for (std::size_t i = 0; i < static_cast<std::size_t>(laenge);) {
        const std::size_t ende = namen.find('\0', i);
        const std::string name = namen.substr(i, ende - i);
        i = ende + 1;
        const bool liste = name == zugriffsliste;
        if (!liste && !name.starts_with("user.")) continue;
        const bool gesetzt = uebertrageAttribut(alt, neu, name, liste && !gruppeBehalten);
        if (liste && !gesetzt) behalten = false;
    }
    return behalten;
}

// Gives the new file to those who could read and write the old one, and to nobody else. An owner or group
// that cannot be kept is no reason not to save; the rights meant for that group then go.
int uebertrageRechte(const fs::path& ziel, const struct stat& alt, int neu) {
    struct stat eigen {};
    if (const int fehler = nummer(beharrlich([&] { return ::fstat(neu, &eigen); }))) return fehler;
    const auto gib = [neu](uid_t besitzer, gid_t gruppe) {
        return beharrlich([&] { return ::fchown(neu, besitzer, gruppe); }) == 0;
    };
    constexpr auto keiner = static_cast<uid_t>(-1);
    const bool gruppe = alt.st_gid == eigen.st_gid || gib(keiner, alt.st_gid);
    const bool besitzer = alt.st_uid == eigen.st_uid || gib(alt.st_uid, keiner);
    // The permissions follow, as a change of owner may take some away.
    mode_t rechte = alt.st_mode & 07777U;
    if (!besitzer) rechte &= ~static_cast<mode_t>(S_ISUID);
    if (!gruppe) rechte &= ~static_cast<mode_t>(S_ISGID | S_IRWXG);
    const auto setze = [neu](mode_t r) { return nummer(beharrlich([&] { return ::fchmod(neu, r); })); };
    if (const int fehler = setze(rechte)) return fehler;
    if (uebertrageAttribute(ziel, neu, gruppe)) return 0;
    // Without its list the file would open to its group what the list gave to others.
    return setze(rechte & ~static_cast<mode_t>(S_IRWXG));
}

bool verweigert(int fehler) { return fehler == EACCES || fehler == EPERM || fehler == EROFS; }

}  // namespace

int lies(const fs::path& datei, std::size_t hoechstens, std::string& bytes) {
    const Griff griff(oeffne(datei, O_RDONLY));
    if (!griff.offen()) return errno;
    std::array<char, 16384> block{};
    while (true) {
        const ssize_t gelesen = beharrlich([&] { return ::read(*griff, block.data(), block.size()); });
        if (gelesen < 0) return errno;
        if (gelesen == 0) return 0;
        bytes.append(block.data(), static_cast<std::size_t>(gelesen));
        if (bytes.size() > hoechstens) return EFBIG;
    }
}

Ziel schreibziel(const fs::path& datei) {
    constexpr int laengsteKette = 40;
    Ziel ziel{.pfad = datei};
    std::error_code fehler;
    for (int i = 0; fs::symlink_status(ziel.pfad, fehler).type() == fs::file_type::symlink; ++i) {
        ziel.griff = eigenerGriff(ziel.pfad);
        if (ziel.griff >= 0) {
            ziel.art = Zielart::griff;
            return ziel;
        }
        if (i == laengsteKette) return {.fehler = ELOOP};
        const fs::path weiter = fs::read_symlink(ziel.pfad, fehler);
        ziel.pfad = weiter.is_absolute() ? weiter : ziel.pfad.parent_path() / weiter;
    }
    if (ziel.pfad.filename().empty()) return {.fehler = ziel.pfad.empty() ? ENOENT : EISDIR};

    struct stat alt {};
    if (::stat(ziel.pfad.c_str(), &alt) != 0) {
        if (errno != ENOENT) ziel.fehler = errno;
        return ziel;
    }
    if (S_ISDIR(alt.st_mode)) return {.fehler = EISDIR};
    if (!S_ISREG(alt.st_mode)) {
        ziel.art = Zielart::geraet;
        return ziel;
    }
    if (::faccessat(AT_FDCWD, ziel.pfad.c_str(), W_OK, AT_EACCESS) != 0) return {.fehler = errno};
    ziel.art = alt.st_nlink > 1 ? Zielart::mehrfach : Zielart::datei;
    return ziel;
}

Ersetzung ersetze(const fs::path& ziel, const std::string& beiname, std::string_view bytes) {
    struct stat alt {};
    const int altfehler = nummer(::stat(ziel.c_str(), &alt));
    if (altfehler != 0 && altfehler != ENOENT) return {altfehler};

    const fs::path ordner = ziel.has_parent_path() ? ziel.parent_path() : fs::path(".");
    const fs::path neben = ordner / beiname;
    Griff griff(oeffne(neben, O_WRONLY | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR));
    if (!griff.offen()) return {errno, altfehler == 0 && verweigert(errno)};
    Beidatei beidatei(neben);

    const mode_t rechte = rechteNeuerDateien();
    const int rechtefehler = altfehler == 0 ? uebertrageRechte(ziel, alt, *griff)
                                            : nummer(beharrlich([&] { return ::fchmod(*griff, rechte); }));
    if (rechtefehler != 0) return {rechtefehler};
    if (const int fehler = schreibeAlles(*griff, bytes)) return {fehler};
    if (const int fehler = schliesseAb(griff)) return {fehler};
    if (const int fehler = nummer(beharrlich([&] { return ::rename(beidatei.pfad.c_str(), ziel.c_str()); })))
        return {fehler, altfehler == 0 && verweigert(fehler)};  // a folder may keep the files of others
    beidatei.umbenannt = true;

    // The new file is in place. Some file systems cannot sync a folder, which is then no failed save.
    const Griff ordnergriff(oeffne(ordner, O_RDONLY | O_DIRECTORY));
    const bool schadhaft =
        ordnergriff.offen() && beharrlich([&] { return ::fsync(*ordnergriff); }) != 0 && errno == EIO;
    return {schadhaft ? EIO : 0};
}

int ueberschreibe(const fs::path& ziel, std::string_view bytes) {
    Griff griff(oeffne(ziel, O_WRONLY));
    if (!griff.offen()) return errno;
    if (const int fehler = schreibeAlles(*griff, bytes)) return fehler;
    const auto laenge = static_cast<off_t>(bytes.size());
    if (const int fehler = nummer(beharrlich([&] { return ::ftruncate(*griff, laenge); }))) return fehler;
    return schliesseAb(griff);
}

int schreibeDirekt(const Ziel& ziel, std::string_view bytes) {
    Griff griff(ziel.art == Zielart::griff ? ::fcntl(ziel.griff, F_DUPFD_CLOEXEC, 0)
                                           : oeffne(ziel.pfad, O_WRONLY));
    if (!griff.offen()) return errno;
    if (const int fehler = schreibeAlles(*griff, bytes)) return fehler;
    return griff.schliesse();
}

void Sperre::gibFrei() noexcept {
    if (griff_ < 0) return;
    if (!datei_.empty()) ::unlink(datei_.c_str());  // while it is still held
    ::close(static_cast<int>(std::exchange(griff_, -1)));
}

Sperrversuch sperreDatei(const fs::path& datei) {
    constexpr int versuche = 3;
    for (int i = 0; i < versuche; ++i) {
        const int griff = oeffne(datei, O_RDWR | O_CREAT, S_IRUSR | S_IWUSR);
        if (griff < 0) return {};
        if (beharrlich([&] { return ::flock(griff, LOCK_EX | LOCK_NB); }) != 0) {
            const bool belegt = errno == EWOULDBLOCK;
            ::close(griff);
            return {std::nullopt, belegt};
        }
        // Its last owner may have removed the file between the two calls: then it locks nothing.
        struct stat gesperrt {};
        struct stat vorhanden {};
        if (::fstat(griff, &gesperrt) == 0 && ::stat(datei.c_str(), &vorhanden) == 0 &&
            gesperrt.st_ino == vorhanden.st_ino)
            return {Sperre(griff, datei)};
        ::close(griff);
    }
    return {std::nullopt, true};
}

Sperrversuch sperreOrdner(const fs::path& ordner) {
    const int griff = oeffne(ordner.empty() ? fs::path(".") : ordner, O_RDONLY | O_DIRECTORY);
    if (griff < 0) return {};
    if (beharrlich([&] { return ::flock(griff, LOCK_EX | LOCK_NB); }) == 0) return {Sperre(griff, {})};
    const bool belegt = errno == EWOULDBLOCK;
    ::close(griff);
    return {std::nullopt, belegt};
}

fs::path programmdatei() {
    std::error_code fehler;
    return fs::read_symlink("/proc/self/exe", fehler);
}

bool istBeschreibbar(const fs::path& ordner) { return ::access(ordner.c_str(), W_OK) == 0; }

fs::path datenordner() {
    const char* xdg = std::getenv("XDG_DATA_HOME");  // NOLINT(concurrency-mt-unsafe)
    if (xdg != nullptr && *xdg == '/') return xdg;
    const char* home = std::getenv("HOME");  // NOLINT(concurrency-mt-unsafe)
    if (home != nullptr && *home == '/') return fs::path(home) / ".local/share";
    return {};
}

std::vector<std::string> angaben(int argc, char** argv) { return {argv + std::min(argc, 1), argv + argc}; }

bool istTerminal(std::FILE* strom) { return ::isatty(::fileno(strom)) == 1; }

std::optional<std::size_t> liesStandardeingabe(char* puffer, std::size_t groesse) {
    const ssize_t gelesen = beharrlich([&] { return ::read(STDIN_FILENO, puffer, groesse); });
    if (gelesen < 0) return std::nullopt;
    return static_cast<std::size_t>(gelesen);
}

void bereiteProzessVor() {
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

void schreibeFehlerausgabe(std::string_view text) noexcept { schreibeAlles(STDERR_FILENO, text); }

}  // namespace rippenscheibe::plattform
