#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <new>
#include <optional>
#include <string>

#include "basis/Utf8.h"
#include "files/Kopie.h"
#include "files/Pfad.h"
#include "files/Prozess.h"
#include "support/Ordnerprobe.h"

namespace rippenscheibe {
namespace {

namespace fs = std::filesystem;

class Dateischreiber : public Ordnerprobe {
  protected:
    std::size_t dateienImOrdner() const { return dateienIn(ordner); }

    fs::path datei = ordner / "wand.rsw";
};

TEST_F(Dateischreiber, ReplacesAFileAndKeepsItsPermissions) {
    ASSERT_FALSE(schreibeDauerhaft(datei, "alt"));
    fs::permissions(datei, fs::perms(0640));
    ASSERT_FALSE(schreibeDauerhaft(datei, "neu und länger"));
    EXPECT_EQ(liesDatei(datei).bytes, "neu und länger");
    EXPECT_EQ(fs::status(datei).permissions(), fs::perms(0640));
    EXPECT_EQ(dateienImOrdner(), 1U);
}

TEST_F(Dateischreiber, ASymbolicLinkStaysAndItsTargetIsReplaced) {
    fs::create_directory(ordner / "ziel");
    fs::create_symlink("ziel/echt.rsw", datei);
    ASSERT_FALSE(schreibeDauerhaft(datei, "erste"));  // the link dangles until now
    ASSERT_FALSE(schreibeDauerhaft(datei, "zweite"));
    EXPECT_TRUE(fs::is_symlink(datei));
    EXPECT_EQ(liesDatei(ordner / "ziel/echt.rsw").bytes, "zweite");
}

TEST_F(Dateischreiber, AFullDiskIsReportedAndLeavesTheOldFileWhole) {
    const std::string alt(100, 'a');
    ASSERT_FALSE(schreibeDauerhaft(datei, alt));

    rlimit vorher{};
    ::getrlimit(RLIMIT_FSIZE, &vorher);
    const rlimit eng{4096, vorher.rlim_max};
    bereiteProzessVor();
    ::setrlimit(RLIMIT_FSIZE, &eng);
    const auto fehler = schreibeDauerhaft(datei, std::string(100000, 'b'));
    ::setrlimit(RLIMIT_FSIZE, &vorher);

    ASSERT_TRUE(fehler);
    EXPECT_NE(fehler->text.find("wird zu groß"), std::string::npos);
    EXPECT_EQ(liesDatei(datei).bytes, alt);
    EXPECT_EQ(dateienImOrdner(), 1U);

    const auto voll = schreibeDauerhaft("/dev/full", "b");
    ASSERT_TRUE(voll);
    EXPECT_NE(voll->text.find("kein freier Speicherplatz"), std::string::npos);
}

// The administrator may write everywhere: somebody else tries.
constexpr uid_t jemand = 65534;
template <class Ruf>
auto alsBenutzer(Ruf&& ruf) {
    const bool verwalter = ::geteuid() == 0;
    if (verwalter && (::setegid(jemand) != 0 || ::seteuid(jemand) != 0)) std::abort();
    auto ergebnis = ruf();
    if (verwalter && (::seteuid(0) != 0 || ::setegid(0) != 0)) std::abort();
    return ergebnis;
}

TEST_F(Dateischreiber, AReadOnlyFileIsReportedAndAWritableOneInAReadOnlyFolderIsOverwritten) {
    const fs::path kopien = ordner / "kopien", fach = ordner / "fach";
    fs::create_directory(kopien);
    fs::create_directory(fach);
    fs::permissions(kopien, fs::perms(0777));
    datei = fach / "wand.rsw";
    ASSERT_FALSE(schreibeDauerhaft(datei, "alt und länger"));
    const auto versuche = [&](int dateirechte, int ordnerrechte, const fs::path& wohin) {
        fs::permissions(datei, fs::perms(dateirechte));
        fs::permissions(fach, fs::perms(ordnerrechte));
        auto fehler = alsBenutzer([&] { return schreibeDauerhaft(datei, "neu", wohin); });
        fs::permissions(fach, fs::perms(0777));
        return fehler;
    };
    for (const auto& fehler : {versuche(0444, 0777, kopien), versuche(0444, 0555, kopien)}) {
        ASSERT_TRUE(fehler);
        EXPECT_NE(fehler->text.find("keine Berechtigung"), std::string::npos);
    }
    ASSERT_TRUE(versuche(0666, 0555, "/proc"));  // no place for the copy, no overwriting
    EXPECT_EQ(inhalt(datei), "alt und länger");
    EXPECT_FALSE(versuche(0666, 0555, kopien));
    EXPECT_EQ(inhalt(datei), "neu");
    EXPECT_EQ(dateienIn(fach), 1U);
    EXPECT_EQ(dateienIn(kopien), 0U);
}

TEST_F(Dateischreiber, AFileWithSeveralNamesStaysOneFile) {
    schreibe("wand.rsw", "alt");
    fs::create_hard_link(datei, ordner / "zweiter.rsw");
    EXPECT_FALSE(schreibeDauerhaft(datei, "neu", ordner / "kopien"));
    EXPECT_EQ(inhalt(ordner / "zweiter.rsw"), "neu");
    EXPECT_EQ(dateienIn(ordner / "kopien"), 0U);
}

TEST_F(Dateischreiber, WhatAFaultLeftHalfOverwrittenLiesInTheCopy) {
    schreibe("wand.rsw", "alt");
    const Kopie kopie{pfadtext(datei) + "%\r\n", std::string("a\r\nb\0", 5)};
    {
        const auto platz = Kopieplatz::freier(ordner, Kopieart::ueberschreiben);
        ASSERT_TRUE(platz && !platz->schreibe(kopie));
        EXPECT_TRUE(Kopieplatz::verwaiste(ordner, Kopieart::ueberschreiben).empty());  // its owner lives
    }
    const auto verwaist = Kopieplatz::verwaiste(ordner, Kopieart::ueberschreiben);
    ASSERT_EQ(verwaist.size(), 1U);
    EXPECT_EQ(verwaist[0].lies().wert, kopie);
    const std::string text = kopietext(kopie);
    for (std::size_t n = 0; n < text.size(); ++n) EXPECT_FALSE(kopieAus(text.substr(0, n))) << n;
}

TEST_F(Dateischreiber, WhoMayReadTheFileStaysTheSame) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the administrator can give a file away";
    schreibe("wand.rsw", "alt");
    constexpr gid_t gruppe = 12345;
    ASSERT_EQ(::chown(datei.c_str(), jemand, gruppe), 0);
    fs::permissions(datei, fs::perms(0664));
    ASSERT_EQ(::setxattr(datei.c_str(), "user.herkunft", "Nord", 4, 0), 0);
    ASSERT_FALSE(schreibeDauerhaft(datei, "neu"));
    struct stat jetzt {};
    ASSERT_EQ(::stat(datei.c_str(), &jetzt), 0);
    EXPECT_EQ(jetzt.st_uid, jemand);
    EXPECT_EQ(jetzt.st_gid, gruppe);
    EXPECT_EQ(jetzt.st_mode & 0777U, 0664U);
    std::string wert(8, ' ');
    EXPECT_EQ(::getxattr(datei.c_str(), "user.herkunft", wert.data(), wert.size()), 4);

    // A user who is not of the group cannot keep it: its rights go instead of passing to his own.
    fs::permissions(ordner, fs::perms(0777));
    ASSERT_FALSE(alsBenutzer([&] { return schreibeDauerhaft(datei, "noch neuer"); }));
    ASSERT_EQ(::stat(datei.c_str(), &jetzt), 0);
    EXPECT_EQ(jetzt.st_gid, jemand);
    EXPECT_EQ(jetzt.st_mode & 0777U, 0604U);
}

TEST_F(Dateischreiber, AnAccessListGoesAlong) {
    // Version 2, then tag, rights and number of: owner rw, user 12345 r, group r, mask r, others none.
    constexpr std::uint32_t niemand = 0xFFFFFFFF;
    struct Eintrag {
        std::uint16_t art, rechte;
        std::uint32_t nummer;
    };
    const struct {
        std::uint32_t version = 2;
        Eintrag eintraege[5] = {
            {1, 6, niemand}, {2, 4, 12345}, {4, 4, niemand}, {16, 4, niemand}, {32, 0, niemand}};
    } liste;
    constexpr const char* name = "system.posix_acl_access";
    schreibe("wand.rsw", "alt");
    if (::setxattr(datei.c_str(), name, &liste, sizeof liste, 0) != 0)
        GTEST_SKIP() << "the file system knows no access lists";
    ASSERT_FALSE(schreibeDauerhaft(datei, "neu"));
    std::string wert(sizeof liste + 1, ' ');
    ASSERT_EQ(::getxattr(datei.c_str(), name, wert.data(), wert.size()), ssize_t{sizeof liste});
    EXPECT_EQ(std::memcmp(wert.data(), &liste, sizeof liste), 0);
    EXPECT_EQ(liesDatei(datei).bytes, "neu");
}

TEST_F(Dateischreiber, TemporaryFilesOfAKilledSaveGoAfterADay) {
    const fs::path alt = schreibe(".rippenscheibe-abc123", "x"),
                   frisch = schreibe(".rippenscheibe-abc456", "x");
    const fs::path fremd = schreibe(".rippenscheibe-abc1234", "x");
    for (const fs::path& name : {alt, fremd})
        fs::last_write_time(name, fs::file_time_type::clock::now() - std::chrono::hours(25));
    schreibe("wand.rsw", "neu");
    EXPECT_FALSE(fs::exists(alt));
    EXPECT_TRUE(fs::exists(frisch));
    EXPECT_TRUE(fs::exists(fremd));
}

TEST_F(Dateischreiber, ALockThatIsHeldDelaysButDoesNotHang) {
    const Dateisperre erste(ordner);
    const auto beginn = std::chrono::steady_clock::now();
    const Dateisperre zweite(ordner, std::chrono::milliseconds(50));
    EXPECT_GE(std::chrono::steady_clock::now() - beginn, std::chrono::milliseconds(50));
}

TEST_F(Dateischreiber, PipesAndOpenFilesOfTheProcessAreWrittenDirectly) {
    std::array<int, 2> rohr{};
    ASSERT_EQ(::pipe(rohr.data()), 0);
    for (const std::string name : {"/dev/fd/", "/proc/self/fd/"}) {
        ASSERT_FALSE(schreibeDauerhaft(name + std::to_string(rohr[1]), "hinein"));
        std::string gelesen(6, ' ');
        ASSERT_EQ(::read(rohr[0], gelesen.data(), gelesen.size()), 6);
        EXPECT_EQ(gelesen, "hinein");
    }
    for (const int griff : rohr) ::close(griff);
    // What was there before an open file is not lost.
    const int griff = ::open(datei.c_str(), O_WRONLY | O_CREAT, 0600);
    ASSERT_EQ(::write(griff, "vor ", 4), 4);
    ASSERT_FALSE(schreibeDauerhaft("/dev/fd/" + std::to_string(griff), "nach"));
    ::close(griff);
    EXPECT_EQ(inhalt(datei), "vor nach");
}

TEST(Prozess, WithoutMemoryTheProgramEndsInOneSentence) {
    EXPECT_EXIT(
        {
            bereiteProzessVor();
            std::get_new_handler()();  // what `new` calls when there is no memory
        },
        testing::ExitedWithCode(3), "^Der Arbeitsspeicher reicht nicht aus.\n$");
}

TEST(Prozess, ControlCharactersDoNotReachATerminal) {
    EXPECT_EQ(ohneSteuerzeichen("ü\t²\r\n\x1b[2J\rx\x7f\xc2\x9b\xff"), "ü\t²\r\n?[2J?x???");
}

TEST_F(Dateischreiber, AMissingFolderAndAFolderInPlaceOfAFileAreReported) {
    EXPECT_TRUE(schreibeDauerhaft(ordner / "fehlt" / "wand.rsw", "x"));
    EXPECT_TRUE(schreibeDauerhaft(ordner, "x"));
    EXPECT_TRUE(liesDatei(ordner).fehler);
    const Dateiinhalt fehlend = liesDatei(datei);
    ASSERT_TRUE(fehlend.fehler);
    EXPECT_EQ(fehlend.fehler->text,
              "Die Datei \"" + datei.string() + "\" kann nicht gelesen werden: nicht vorhanden.");
}

}  // namespace
}  // namespace rippenscheibe
