#include <gtest/gtest.h>

#include <algorithm>

#include "report/Seiten.h"
#include "report/Textausgabe.h"
#include "run/Berechnungslauf.h"
#include "support/Aufzeichnung.h"
#include "support/Walls.h"
#include "trace/Darstellung.h"
#include "trace/Herleitung.h"
#include "trace/Pruefsumme.h"
#include "trace/Rechenweg.h"

namespace rippenscheibe {
namespace {

Wand wand() {
    Wand w = vorgabewand();
    w.Lastfall = 3;
    w.gk = 8;
    w.qk = 4;
    w.VertikallastVerteilung = 2;
    zuweisen(w, grundmasse(w));
    return w;
}

struct Dokument {
    Bericht bericht;
    std::string text;
};

Dokument dokument(Wand w) {
    const std::string art = laufart(w);
    const herleitung::Graph graph = leiteHer(w, grundmasse(w));
    zuweisen(w, grundmasse(w));
    berechnungslauf(w);
    Bericht b = rechenweg(graph, w, {"Programm", "W1.rsw", sha256(""), art});
    std::string text = alsText(fliesstext(b));
    return {std::move(b), std::move(text)};
}

std::size_t wieOft(const std::string& text, const std::string& worte) {
    std::size_t anzahl = 0;
    for (std::size_t i = text.find(worte); i != std::string::npos; i = text.find(worte, i + 1)) ++anzahl;
    return anzahl;
}

TEST(Pruefsumme, YieldsThePublishedExamples) {
    EXPECT_EQ(sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(sha256(std::string(1000000, 'a')),
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Rechenweg, TellsEachStepOnceInTheOrderOfTheReport) {
    const std::string text = dokument(wand()).text;
    for (const char* anfang : {"\nfm,d = ", "\nλrel = ", "\nRd,F,1 = ", "\nRd,1 = ", "\nuges,T = "})
        EXPECT_EQ(wieOft(text, anfang), 1U) << anfang;
    EXPECT_LT(text.find("\nfm,d = "), text.find("\nRd,1 = "));
    EXPECT_LT(text.find("\nRd,1 = "), text.find("\nuges,T = "));
    EXPECT_NE(text.find("3. Durchgang"), std::string::npos) << "the loads are reduced from pass to pass";
    EXPECT_EQ(wieOft(text, "\n– jeder Durchgang eines Laufs mindert"), 1U)
        << "the first page says what is odd";
    EXPECT_GE(wieOft(text, "so vorgegeben: jeder Durchgang eines Laufs mindert"), 1U);
    EXPECT_NE(text.find("Rippen 2 bis 8"), std::string::npos) << "inner ribs that are alike";
    EXPECT_NE(text.find("im Bericht: Fc,d,g(2) + Fc,d,q(2) = "), std::string::npos);
}

TEST(Rechenweg, TellsTheKindOfRunOnItsFirstPage) {
    Wand w;
    zuweisen(w, grundmasse(w));
    EXPECT_NE(dokument(w).text.find("erster Lauf"), std::string::npos);
    berechnungslauf(w);
    EXPECT_NE(dokument(w).text.find("zweiter oder späterer Lauf"), std::string::npos);
    w.av[Seite::eins] = 35;
    EXPECT_NE(dokument(w).text.find("nach einer anderen Wand"), std::string::npos);
}

// Formulas of one height.
class Satz : public Formelsatz {
  public:
    static constexpr double hoehe = 15;
    Formelzeile schritt(const Darstellung&, const herleitung::Schritt&) override { return {.hoehe = hoehe}; }
    Formelzeile ausdruck(const Darstellung&, herleitung::Ort) override { return {.hoehe = hoehe}; }
    Formelzeile stand(const Darstellung&, const herleitung::Stand&) override { return {.hoehe = hoehe}; }
};
class Flaeche : public tests::Aufzeichnung {
  public:
    void formel(int, double, double y) override {
        ++formeln;
        tiefste = std::max(tiefste, y + Satz::hoehe);
    }
    int formeln = 0;
    double tiefste = 0;
};

TEST(Rechenweg, KeepsItsFormulasAndLinesWithinThePage) {
    Wand w = wand();
    const herleitung::Graph graph = leiteHer(w, grundmasse(w));
    zuweisen(w, grundmasse(w));
    berechnungslauf(w);
    Satz satz;
    Flaeche flaeche;
    const Bericht b = rechenweg(graph, w, {"Programm", "W1.rsw", sha256(""), "Lauf"}, &satz);
    EXPECT_EQ(druckeSeiten(flaeche, b, {}).seiten, flaeche.seiten);
    EXPECT_GT(flaeche.formeln, 200);
    EXPECT_LE(flaeche.tiefste, 265);
    EXPECT_GT(flaeche.zeile("Gewählte Verfahren").seite, 0);
    for (const auto& eintrag : flaeche.nur(tests::Aufzeichnung::Art::text)) {
        EXPECT_LE(eintrag.wo.y, 265) << eintrag.text;
        const auto zeichen = std::ranges::count_if(
            eintrag.text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
        EXPECT_LE(zeichen, eintrag.schrift.groesse == 8 ? 125 : 95) << eintrag.text;
    }
}

TEST(Zeichen, EveryNumberOfTheRecordHasASymbolOfItsOwn) {
    const herleitung::Graph graph = leiteHer(wand(), {});
    std::vector<std::string_view> gesehen;
    for (const herleitung::Feldeintrag& feld : graph.felder) {
        const bool auswahl = feld.typ == herleitung::Typ::i16 || feld.typ == herleitung::Typ::wahrheit ||
                             feld.typ == herleitung::Typ::text;
        if (auswahl) continue;
        EXPECT_FALSE(feld.zeichen.empty()) << feld.name;
        EXPECT_EQ(std::ranges::count(gesehen, feld.zeichen), 0) << feld.zeichen;
        gesehen.push_back(feld.zeichen);
    }
}

}  // namespace
}  // namespace rippenscheibe
