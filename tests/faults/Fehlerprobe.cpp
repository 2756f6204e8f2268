#include "faults/Fehlerprobe.h"

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <optional>
#include <set>
#include <stdexcept>
#include <utility>

#include "faults/Schale.h"
#include "files/Kopie.h"
#include "files/Pfad.h"

namespace rippenscheibe::inline tests {

namespace {

namespace fs = std::filesystem;

struct Art {
    const char* name;
    int nummer;
};
constexpr std::array<Art, 6> arten{{{"ENOSPC", ENOSPC},
                                    {"EIO", EIO},
                                    {"EINTR", EINTR},
                                    {"EACCES", EACCES},
                                    {"kill before", toetenDavor},
                                    {"kill behind", toetenDabei}}};

template <class Funktion>
Funktion* ausSchale(const char* name) {
    return reinterpret_cast<Funktion*>(::dlsym(RTLD_DEFAULT, name));
}

using Inhalt = std::optional<std::string>;

Inhalt lies(const fs::path& datei) {
    Dateiinhalt inhalt = liesDatei(datei, std::string::npos);
    if (inhalt.lage == Dateilage::fehlt) return std::nullopt;
    return std::move(inhalt.bytes);
}

std::set<std::string> namen(const fs::path& ordner) {
    std::set<std::string> alle;
    for (const auto& eintrag : fs::recursive_directory_iterator(ordner))
        alle.insert(pfadtext(eintrag.path().lexically_relative(ordner)));
    return alle;
}

enum class Ausgang { erfolg, fehler, getoetet, absturz };

class Versuch {
  public:
    Versuch(const Schreiber& schreiber, fs::path ordner, Lage lage, Protokoll& protokoll)
        : schreiber_(schreiber), ordner_(std::move(ordner)), lage_(lage), protokoll_(protokoll) {}

    void alle() {
        richteEin();
        vorher_ = namen(ordner_);
        alt_ = lies(ziel());
        const auto [ausgang, rufe] = fuehreAus(0, 0);
        neu_ = lies(ziel());
        nachher_ = namen(ordner_);
        if (ausgang != Ausgang::erfolg || !neu_ || (alt_ && gleicht(neu_, alt_)) || rufe == 0)
            throw std::runtime_error(schreiber_.name + ": writes nothing new without any fault");
        for (int n = 1; n <= rufe; ++n)
            for (const Art& art : arten) einer(n, art);
        fs::remove_all(ordner_);
    }

  private:
    fs::path ziel() const { return ordner_ / schreiber_.datei; }

    void richteEin() const {
        fs::remove_all(ordner_);
        fs::create_directories(kopienordner(ordner_));
        schreiber_.richteEin(ordner_);
        if (lage_ == Lage::leer) fs::remove(ziel());
        if (lage_ == Lage::mehrfach) fs::create_hard_link(ziel(), ordner_ / "zweiter Name");
    }

    // Runs the writer in a process of its own; also returns how many calls were counted.
    std::pair<Ausgang, int> fuehreAus(int n, int art) const {
        std::array<int, 2> rohr{};
        if (::pipe(rohr.data()) != 0) throw std::runtime_error("pipe");
        const pid_t kind = ::fork();
        if (kind == 0) {
            static auto* const beginne = ausSchale<decltype(fehlerschale_beginne)>("fehlerschale_beginne");
            static auto* const gezaehlt = ausSchale<decltype(fehlerschale_gezaehlt)>("fehlerschale_gezaehlt");
            beginne(ordner_.c_str(), n, art);
            const bool gut = schreiber_.schreibe(ordner_);
            const int rufe = gezaehlt();
            beginne("", 0, 0);
            if (::write(rohr[1], &rufe, sizeof rufe) != sizeof rufe) ::_exit(2);
            ::_exit(gut ? 0 : 1);
        }
        ::close(rohr[1]);
        int rufe = 0;
        const bool gelesen = ::read(rohr[0], &rufe, sizeof rufe) == sizeof rufe;
        ::close(rohr[0]);
        int status = 0;
        ::waitpid(kind, &status, 0);
        if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) return {Ausgang::getoetet, rufe};
        if (!WIFEXITED(status) || !gelesen || WEXITSTATUS(status) > 1) return {Ausgang::absturz, rufe};
        return {WEXITSTATUS(status) == 0 ? Ausgang::erfolg : Ausgang::fehler, rufe};
    }

    void einer(int n, const Art& art) {
        wo_ = schreiber_.name + ", Lage " + std::to_string(static_cast<int>(lage_)) + ", call " +
              std::to_string(n) + ", " + art.name;
        ++protokoll_.punkte;
        richteEin();
        const Ausgang ausgang = fuehreAus(n, art.nummer).first;
        const bool toetet = art.nummer < 0;
        const Inhalt jetzt = lies(ziel());
        const bool neu = gleicht(jetzt, neu_);
        const bool ganz = neu || gleicht(jetzt, alt_);
        if (ausgang == Ausgang::absturz || (toetet != (ausgang == Ausgang::getoetet)))
            verstoss(Verstoss::abgestuerzt);
        if (ausgang == Ausgang::erfolg && !neu) verstoss(Verstoss::falscherErfolg);
        if (art.nummer == EINTR && ausgang != Ausgang::erfolg) verstoss(Verstoss::aufgegeben);
        if (!ganz && !kopieBietetAltes()) verstoss(Verstoss::zerrissen);
        if (!toetet) {
            if (ganz && !aufgeraeumt()) verstoss(Verstoss::liegengeblieben);
            return;
        }
        // A day later the copies that are offered are taken, and the same is saved again.
        for (const auto& eintrag : fs::recursive_directory_iterator(ordner_))
            if (eintrag.is_regular_file())
                fs::last_write_time(eintrag.path(),
                                    fs::file_time_type::clock::now() - std::chrono::hours(25));
        nimmAn(kopienordner(ordner_), Kopieart::ueberschreiben);
        nimmAn(ordner_, Kopieart::sicherung);
        const Ausgang danach = fuehreAus(0, 0).first;
        if (danach != Ausgang::erfolg || !gleicht(lies(ziel()), neu_) || !aufgeraeumt())
            verstoss(Verstoss::liegengeblieben);
    }

    // The user takes what was half overwritten as it was, and an unsaved position out of its copy.
    static void nimmAn(const fs::path& wo, Kopieart art) {
        for (const Kopieplatz& platz : Kopieplatz::verwaiste(wo, art)) {
            const Kopie kopie = platz.lies().wert;
            if (art == Kopieart::ueberschreiben)
                static_cast<void>(schreibeDauerhaft(pfadAus(kopie.name), kopie.bytes, wo));
            platz.loesche();
        }
    }

    bool gleicht(const Inhalt& a, const Inhalt& b) const {
        return a.has_value() == b.has_value() && (!a || schreiber_.gleich(*a, *b));
    }

    // Only what was there before, and the target.
    bool aufgeraeumt() const {
        const std::set<std::string> jetzt = namen(ordner_);
        return jetzt == vorher_ || jetzt == nachher_;
    }

    bool kopieBietetAltes() const {
        for (const Kopieplatz& platz :
             Kopieplatz::verwaiste(kopienordner(ordner_), Kopieart::ueberschreiben)) {
            const Kopie kopie = platz.lies().wert;
            if (alt_ && kopie.bytes == *alt_ && sindDieselbeDatei(pfadAus(kopie.name), ziel())) return true;
        }
        return false;
    }

    void verstoss(Verstoss was) { protokoll_.verstoesse[was].push_back(wo_); }

    const Schreiber& schreiber_;
    fs::path ordner_;
    Lage lage_;
    Protokoll& protokoll_;
    std::set<std::string> vorher_, nachher_;
    Inhalt alt_, neu_;
    std::string wo_;
};

}  // namespace

void probiere(const Schreiber& schreiber, const fs::path& ordner, Protokoll& protokoll) {
    for (const Lage lage : schreiber.lagen) Versuch(schreiber, ordner, lage, protokoll).alle();
}

fs::path kopienordner(const fs::path& ordner) { return ordner / "programm"; }

bool schaleGeladen() { return ausSchale<decltype(fehlerschale_beginne)>("fehlerschale_beginne") != nullptr; }

}  // namespace rippenscheibe::inline tests
