#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "files/Dateischreiber.h"

namespace rippenscheibe {
namespace {

namespace fs = std::filesystem;

class Dateischreiber : public testing::Test {
  protected:
    void SetUp() override {
        std::string muster = (fs::temp_directory_path() / "rippenscheibe-XXXXXX").string();
        ASSERT_NE(::mkdtemp(muster.data()), nullptr);
        ordner = muster;
        datei = ordner / "wand.rsw";
    }
    void TearDown() override { fs::remove_all(ordner); }

    std::size_t dateienImOrdner() const {
        std::size_t n = 0;
        for ([[maybe_unused]] const auto& eintrag : fs::directory_iterator(ordner)) ++n;
        return n;
    }

    fs::path ordner, datei;
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
    const auto signalVorher = std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &eng);
    const auto fehler = schreibeDauerhaft(datei, std::string(100000, 'b'));
    ::setrlimit(RLIMIT_FSIZE, &vorher);
    std::signal(SIGXFSZ, signalVorher);

    ASSERT_TRUE(fehler);
    EXPECT_NE(fehler->text.find("wird zu groß"), std::string::npos);
    EXPECT_EQ(liesDatei(datei).bytes, alt);
    EXPECT_EQ(dateienImOrdner(), 1U);

    const auto voll = schreibeDauerhaft("/dev/full", "b");
    ASSERT_TRUE(voll);
    EXPECT_NE(voll->text.find("kein freier Speicherplatz"), std::string::npos);
}

// The administrator may write everywhere: somebody else tries.
std::optional<Dateifehler> schreibeAlsBenutzer(const fs::path& datei) {
    const bool verwalter = ::geteuid() == 0;
    if (verwalter && ::seteuid(65534) != 0) std::abort();
    auto fehler = schreibeDauerhaft(datei, "neu");
    if (verwalter && ::seteuid(0) != 0) std::abort();
    return fehler;
}

TEST_F(Dateischreiber, AReadOnlyFolderOrFileIsReportedAndLosesNothing) {
    ASSERT_FALSE(schreibeDauerhaft(datei, "alt"));
    fs::permissions(datei, fs::perms(0666));
    fs::permissions(ordner, fs::perms(0555));
    const auto ordnerfehler = schreibeAlsBenutzer(datei);
    fs::permissions(ordner, fs::perms(0777));
    fs::permissions(datei, fs::perms(0444));
    const auto dateifehler = schreibeAlsBenutzer(datei);

    ASSERT_TRUE(ordnerfehler);
    ASSERT_TRUE(dateifehler);
    EXPECT_NE(ordnerfehler->text.find("keine Berechtigung"), std::string::npos);
    EXPECT_EQ(liesDatei(datei).bytes, "alt");
    EXPECT_EQ(dateienImOrdner(), 1U);
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
