#include <gtest/gtest.h>
#include <unistd.h>

#include <QGuiApplication>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "faults/Fehlerprobe.h"
#include "files/Pfad.h"
#include "ui/output/PdfBefehl.h"

namespace rippenscheibe {
namespace {

namespace fs = std::filesystem;
using namespace tests;

bool schreibePdf(const fs::path& ordner) {
    const auto text = [](const fs::path& pfad) { return QString::fromStdString(pfadtext(pfad)); };
    const Pdfausgaben stumm{[](std::string_view) {}, [](std::string_view) {}};
    const QStringList angaben{QStringLiteral("rippenscheibe"), QStringLiteral("--pdf"),
                              text(ordner / "aus.pdf"),        QStringLiteral("--form"),
                              QStringLiteral("kurz"),          text(ordner / "eingabe.rsw")};
    return fuehrePdfBefehlAus(angaben, kopienordner(ordner), stumm) <= Rueckgabe::nichtErfuellt;
}

// Two whole documents of the same position differ in their dates only.
bool istDasselbe(const std::string& a, const std::string& b) {
    const auto istGanz = [](const std::string& pdf) {
        return pdf.starts_with("%PDF") && pdf.ends_with("%%EOF\n");
    };
    return a == b || (a.size() == b.size() && istGanz(a) && istGanz(b));
}

TEST(Fehlerstellen, NoFaultTearsAPdf) {
    ASSERT_TRUE(schaleGeladen());
    int anzahl = 1;
    char name[] = "test_faults_pdf";
    char* angaben[] = {name, nullptr};
    const QGuiApplication application(anzahl, angaben);
    const fs::path ordner = fs::temp_directory_path() / ("rippenscheibe-pdf-" + std::to_string(::getpid()));
    const Schreiber pdf{"pdf",
                        "aus.pdf",
                        [](const fs::path& o) {
                            const fs::path beispiele = RIPPENSCHEIBE_BEISPIELE;
                            fs::copy_file(beispiele / "einseitig.rsw", o / "eingabe.rsw");
                            fs::copy_file(beispiele / "Plattenwerte.dat",
                                          kopienordner(o) / "Plattenwerte.dat");
                            std::ofstream(o / "aus.pdf") << "alt";
                        },
                        schreibePdf,
                        {Lage::leer, Lage::mehrfach},
                        istDasselbe};
    const auto beginn = std::chrono::steady_clock::now();
    Protokoll protokoll;
    probiere(pdf, ordner, protokoll);
    const std::chrono::duration<double> dauer = std::chrono::steady_clock::now() - beginn;
    std::printf("%d points of fault in %.1f s\n", protokoll.punkte, dauer.count());
    for (const auto& [was, wo] : protokoll.verstoesse)
        for (const std::string& stelle : wo) ADD_FAILURE() << static_cast<int>(was) << ": " << stelle;
    EXPECT_GE(protokoll.punkte, 150);
}

}  // namespace
}  // namespace rippenscheibe
