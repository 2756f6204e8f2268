// The first of these headers carries the others.
// clang-format off
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>
#include <sys/stat.h>
// clang-format on

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <system_error>
#include <utility>

#include "files/Pfad.h"
#include "files/Plattform.h"

namespace rippenscheibe::plattform {

namespace {

namespace fs = std::filesystem;

int nummer(DWORD fehler) {
    switch (fehler) {
        case ERROR_SUCCESS:
            return 0;
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
            return ENOENT;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
            return EACCES;
        case ERROR_WRITE_PROTECT:
            return EROFS;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return ENOSPC;
        default:
            return EIO;
    }
}

// An open file, closed at the end of its scope.
class Griff {
  public:
    Griff(const fs::path& datei, int art)
        : griff_(::_wopen(datei.c_str(), art | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE)) {}
    ~Griff() { schliesse(); }
    Griff(const Griff&) = delete;
    Griff& operator=(const Griff&) = delete;

    int operator*() const { return griff_; }
    bool offen() const { return griff_ >= 0; }
    int schliesse() {
        if (griff_ < 0 || ::_close(std::exchange(griff_, -1)) == 0) return 0;
        return errno;
    }

  private:
    int griff_;
};

int schreibeAlles(int griff, std::string_view bytes) {
    constexpr std::size_t block = std::size_t{1} << 20U;
    while (!bytes.empty()) {
        const auto laenge = static_cast<unsigned>(std::min(bytes.size(), block));
        const int geschrieben = ::_write(griff, bytes.data(), laenge);
        if (geschrieben < 0) return errno;
        if (geschrieben == 0) return EIO;
        bytes.remove_prefix(static_cast<std::size_t>(geschrieben));
    }
    return 0;
}

int schliesseAb(Griff& griff) {
    if (::_commit(*griff) != 0) return errno;
    return griff.schliesse();
}

}  // namespace

int lies(const fs::path& datei, std::size_t hoechstens, std::string& bytes) {
    std::error_code egal;
    if (fs::is_directory(datei, egal)) return EISDIR;
    const Griff griff(datei, _O_RDONLY);
    if (!griff.offen()) return errno;
    std::array<char, 16384> block{};
    while (true) {
        const int gelesen = ::_read(*griff, block.data(), static_cast<unsigned>(block.size()));
        if (gelesen < 0) return errno;
        if (gelesen == 0) return 0;
        bytes.append(block.data(), static_cast<std::size_t>(gelesen));
        if (bytes.size() > hoechstens) return EFBIG;
    }
}

Ziel schreibziel(const fs::path& datei) {
    const auto fehlschlag = [](int fehler) {
        Ziel ziel;
        ziel.fehler = fehler;
        return ziel;
    };
    Ziel ziel;
    ziel.pfad = datei;
    std::error_code fehler;
    if (fs::is_symlink(datei, fehler)) ziel.pfad = fs::weakly_canonical(datei, fehler);
    if (ziel.pfad.filename().empty()) return fehlschlag(ziel.pfad.empty() ? ENOENT : EISDIR);
    const fs::file_status da = fs::status(ziel.pfad, fehler);
    if (da.type() == fs::file_type::not_found) return ziel;
    if (da.type() == fs::file_type::directory) return fehlschlag(EISDIR);
    if (da.type() != fs::file_type::regular) {
        ziel.art = Zielart::geraet;
        return ziel;
    }
    const DWORD eigenschaften = ::GetFileAttributesW(ziel.pfad.c_str());
    if (eigenschaften != INVALID_FILE_ATTRIBUTES && (eigenschaften & FILE_ATTRIBUTE_READONLY) != 0)
        return fehlschlag(EACCES);
    const bool mehrfach = fs::hard_link_count(ziel.pfad, fehler) > 1 && !fehler;
    ziel.art = mehrfach ? Zielart::mehrfach : Zielart::datei;
    return ziel;
}

// The access list passes with ReplaceFile; a folder needs no sync here.
Ersetzung ersetze(const fs::path& ziel, const std::string& beiname, std::string_view bytes) {
    const fs::path ordner = ziel.has_parent_path() ? ziel.parent_path() : fs::path(".");
    const fs::path neben = ordner / pfadAus(beiname);
    std::error_code egal;
    const bool vorhanden = fs::exists(ziel, egal);
    Griff griff(neben, _O_WRONLY | _O_CREAT | _O_EXCL);
    if (!griff.offen()) return {errno, vorhanden && errno == EACCES};
    int fehler = schreibeAlles(*griff, bytes);
    if (fehler == 0) fehler = schliesseAb(griff);
    griff.schliesse();
    bool ersetzt = false;
    if (fehler == 0) {
        ersetzt = vorhanden && ::ReplaceFileW(ziel.c_str(), neben.c_str(), nullptr,
                                              REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) != 0;
        constexpr DWORD art = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
        if (!ersetzt && ::MoveFileExW(neben.c_str(), ziel.c_str(), art) == 0)
            fehler = nummer(::GetLastError());
        else
            ersetzt = true;
    }
    if (!ersetzt) fs::remove(neben, egal);
    return {fehler, vorhanden && fehler == EACCES};
}

int ueberschreibe(const fs::path& ziel, std::string_view bytes) {
    Griff griff(ziel, _O_WRONLY);
    if (!griff.offen()) return errno;
    if (const int fehler = schreibeAlles(*griff, bytes)) return fehler;
    if (const int fehler = ::_chsize_s(*griff, static_cast<long long>(bytes.size()))) return fehler;
    return schliesseAb(griff);
}

int schreibeDirekt(const Ziel& ziel, std::string_view bytes) {
    Griff griff(ziel.pfad, _O_WRONLY);
    if (!griff.offen()) return errno;
    if (const int fehler = schreibeAlles(*griff, bytes)) return fehler;
    return griff.schliesse();
}

void Sperre::gibFrei() noexcept {
    if (griff_ != -1) ::CloseHandle(reinterpret_cast<HANDLE>(std::exchange(griff_, -1)));
}

// A file that nobody else may open as long as it is open here, and that goes with its owner.
Sperrversuch sperreDatei(const fs::path& datei) {
    HANDLE griff = ::CreateFileW(datei.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                 FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (griff != INVALID_HANDLE_VALUE) return {Sperre(reinterpret_cast<std::intptr_t>(griff), {})};
    return {std::nullopt, ::GetLastError() == ERROR_SHARING_VIOLATION};
}

Sperrversuch sperreOrdner(const fs::path& ordner) { return sperreDatei(ordner / ".rippenscheibe.lock"); }

fs::path programmdatei() {
    std::wstring name(32768, L'\0');
    name.resize(::GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
    return name;
}

bool istBeschreibbar(const fs::path& ordner) { return ::_waccess(ordner.c_str(), 2) == 0; }

fs::path datenordner() {
    const wchar_t* daten = ::_wgetenv(L"APPDATA");
    return daten == nullptr ? fs::path() : fs::path(daten);
}

std::vector<std::string> angaben(int /*argc*/, char** /*argv*/) {
    int anzahl = 0;
    wchar_t** breite = ::CommandLineToArgvW(::GetCommandLineW(), &anzahl);
    std::vector<std::string> texte;
    for (int i = 1; breite != nullptr && i < anzahl; ++i) texte.push_back(pfadtext(breite[i]));
    ::LocalFree(breite);
    return texte;
}

bool istTerminal(std::FILE* strom) { return ::_isatty(::_fileno(strom)) != 0; }

std::optional<std::size_t> liesStandardeingabe(char* puffer, std::size_t groesse) {
    const int gelesen = ::_read(0, puffer, static_cast<unsigned>(groesse));
    if (gelesen < 0) return std::nullopt;
    return static_cast<std::size_t>(gelesen);
}

void bereiteProzessVor() {
    ::_setmode(0, _O_BINARY);
    ::_setmode(::_fileno(stdout), _O_BINARY);
    ::_setmode(::_fileno(stderr), _O_BINARY);
    ::SetConsoleOutputCP(CP_UTF8);
}

void schreibeFehlerausgabe(std::string_view text) noexcept { schreibeAlles(2, text); }

}  // namespace rippenscheibe::plattform
