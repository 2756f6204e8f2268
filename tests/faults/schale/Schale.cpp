// A library to be preloaded. It counts the system calls on files below one folder and makes the n-th of them
// fail, or kills the process there. The test program finds the two functions at the end by name.

#include "faults/Schale.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace {

using namespace rippenscheibe;

// Plain data: calls come before any constructor has run, and in a forked child.
std::array<char, 4096> ordner{};
std::array<bool, 1024> beobachtet{};  // open files below the folder
int stelle = 0;                       // the call that fails; 0: none does
int gezaehlt = 0;
int art = 0;

template <class Funktion>
Funktion* naechste(Funktion* /*gleichen Namens*/, const char* name) {
    return reinterpret_cast<Funktion*>(::dlsym(RTLD_NEXT, name));
}
#define RS_ECHT(name) naechste(&::name, #name)

bool darunter(const char* pfad) {
    const std::size_t laenge = std::strlen(ordner.data());
    return laenge > 0 && std::strncmp(pfad, ordner.data(), laenge) == 0;
}
bool darunter(int griff) {
    return griff >= 0 && griff < static_cast<int>(beobachtet.size()) &&
           beobachtet[static_cast<std::size_t>(griff)];
}

void merke(int griff, bool ja) {
    if (griff >= 0 && griff < static_cast<int>(beobachtet.size()))
        beobachtet[static_cast<std::size_t>(griff)] = ja;
}

// Makes a call that counts. `halb` does its half in place of the whole, for a kill in the midst.
template <class Ziel, class Ruf, class Halb>
auto zaehle(Ziel ziel, Ruf&& ruf, Halb&& halb) {
    if (!darunter(ziel) || ++gezaehlt != stelle) return ruf();
    if (art == toetenDavor) ::raise(SIGKILL);
    if (art == toetenDabei) {
        halb();
        ::raise(SIGKILL);
    }
    errno = art;
    return static_cast<decltype(ruf())>(-1);
}
template <class Ziel, class Ruf>
auto zaehle(Ziel ziel, Ruf&& ruf) {
    return zaehle(ziel, ruf, ruf);
}

template <class Oeffne>
int oeffne(const char* pfad, Oeffne&& oeffneWirklich) {
    const int griff = zaehle(pfad, oeffneWirklich);
    if (griff >= 0) merke(griff, darunter(pfad));
    return griff;
}

mode_t rechteAus(int arten, va_list weitere) {
    return (arten & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(weitere, mode_t) : 0;
}

}  // namespace

extern "C" {

#define RS_OEFFNE(name)                                                      \
    int name(const char* pfad, int arten, ...) {                             \
        va_list weitere;                                                     \
        va_start(weitere, arten);                                            \
        const mode_t rechte = rechteAus(arten, weitere);                     \
        va_end(weitere);                                                     \
        static auto* const echt = RS_ECHT(name);                             \
        return oeffne(pfad, [&] { return echt(pfad, arten, rechte); });      \
    }                                                                        \
    int name##at(int von, const char* pfad, int arten, ...) {                \
        va_list weitere;                                                     \
        va_start(weitere, arten);                                            \
        const mode_t rechte = rechteAus(arten, weitere);                     \
        va_end(weitere);                                                     \
        static auto* const echt = RS_ECHT(name##at);                         \
        return oeffne(pfad, [&] { return echt(von, pfad, arten, rechte); }); \
    }
RS_OEFFNE(open)

ssize_t read(int griff, void* ziel, size_t laenge) {
    static auto* const echt = RS_ECHT(read);
    return zaehle(griff, [&] { return echt(griff, ziel, laenge); });
}

ssize_t write(int griff, const void* quelle, size_t laenge) {
    static auto* const echt = RS_ECHT(write);
    return zaehle(
        griff, [&] { return echt(griff, quelle, laenge); }, [&] { return echt(griff, quelle, laenge / 2); });
}

// The disk need not be waited for: a kill here is no loss of power.
int fsync(int griff) {
    static auto* const echt = RS_ECHT(fsync);
    return zaehle(griff, [&] { return darunter(griff) ? 0 : echt(griff); });
}

int fstat(int griff, struct stat* auskunft) {
    static auto* const echt = RS_ECHT(fstat);
    return zaehle(griff, [&] { return echt(griff, auskunft); });
}

int rename(const char* von, const char* nach) noexcept {
    static auto* const echt = RS_ECHT(rename);
    return zaehle(nach, [&] { return echt(von, nach); });
}

int fchown(int griff, uid_t besitzer, gid_t gruppe) noexcept {
    static auto* const echt = RS_ECHT(fchown);
    return zaehle(griff, [&] { return echt(griff, besitzer, gruppe); });
}

int fchmod(int griff, mode_t rechte) noexcept {
    static auto* const echt = RS_ECHT(fchmod);
    return zaehle(griff, [&] { return echt(griff, rechte); });
}

int ftruncate(int griff, off_t laenge) noexcept {
    static auto* const echt = RS_ECHT(ftruncate);
    return zaehle(griff, [&] { return echt(griff, laenge); });
}

// A close that fails has closed all the same.
int close(int griff) {
    static auto* const echt = RS_ECHT(close);
    const int ergebnis = zaehle(griff, [&] { return echt(griff); });
    if (ergebnis != 0) {
        const int fehler = errno;
        echt(griff);
        errno = fehler;
    }
    merke(griff, false);
    return ergebnis;
}

// The program takes the folder of the trial for its own.
ssize_t readlink(const char* pfad, char* ziel, size_t laenge) noexcept {
    static auto* const echt = RS_ECHT(readlink);
    if (ordner[0] == '\0' || std::strcmp(pfad, "/proc/self/exe") != 0) return echt(pfad, ziel, laenge);
    return std::snprintf(ziel, laenge, "%s/programm/test", ordner.data());
}

void fehlerschale_beginne(const char* unter, int n, int welche) {
    std::strncpy(ordner.data(), unter, ordner.size() - 1);
    gezaehlt = 0;
    stelle = n;
    art = welche;
}

int fehlerschale_gezaehlt() { return gezaehlt; }
}
