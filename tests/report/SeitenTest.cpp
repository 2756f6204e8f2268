#include <algorithm>
#include <array>

#include "report/Bericht.h"
#include "report/Seiten.h"
#include "support/Aufzeichnung.h"

namespace rippenscheibe {
namespace {

using Art = Aufzeichnung::Art;

Druckauftrag auftrag() {
    Druckauftrag a;
    a.einstellungen.Kopfvorlage = 2;
    a.einstellungen.Kopfzeile1 = a.einstellungen.Kopfzeile2 = "Kopf";
    a.zaehlung = {.SeitenzahlDrucken = true, .Startseite = 1, .Suffix = 0, .IndexText = ""};
    return a;
}

Wand wand(int rippen = 9) {
    Wand w;
    w.AnzahlRippen = rippen;
    return w;
}

Bericht ueberschriftBei(double y, double grenze) {
    return {Zeilenstand{y}, Textzeile{.stil = Stil::ueberschrift2, .grenze = grenze, .text = "1.1 Titel"}};
}

TEST(Seiten, TheLoadAndAnchorSketchesFollowTheInput) {
    const auto hat = [](const Wand& w, Bild bild) {
        Aufzeichnung f;
        druckeSeiten(f, bericht(w, Form::kurz), auftrag());
        const auto bilder = f.nur(Art::bild);
        return std::ranges::count(bilder, bild, &Aufzeichnung::Eintrag::bild) == 1;
    };
    const Bild lasten[3][2] = {{Bild::lastHorizontal, Bild::lastHorizontalQuer},
                               {Bild::lastVertikal, Bild::lastVertikalQuer},
                               {Bild::lastBeide, Bild::lastBeideQuer}};
    const std::array anker{Bild::ankerHD,   Bild::ankerHD,   Bild::ankerHD,     Bild::ankerHD,
                           Bild::ankerHD,   Bild::ankerHTT,  Bild::ankerHTT,    Bild::ankerHD2P,
                           Bild::ankerHD2P, Bild::ankerHD2P, Bild::ankerHD2PSG, Bild::ankerHD2PSG};
    for (int fall = 1; fall <= 12; ++fall) {
        Wand w = wand();
        w.Lastfall = 1 + fall % 3;
        w.WindQuer = fall > 6;
        w.NachweisVerankerung = true;
        w.Ankertyp = fall;
        EXPECT_TRUE(hat(w, lasten[fall % 3][fall > 6])) << fall;
        EXPECT_TRUE(hat(w, anker[static_cast<std::size_t>(fall) - 1])) << fall;
    }
}

TEST(Seiten, ABlockBreaksWhenTheCursorHasReachedItsLimit) {
    for (const double y : {244.9, 245.0}) {
        Aufzeichnung f;
        druckeSeiten(f, ueberschriftBei(y, 245), auftrag());
        EXPECT_EQ(f.zeile("1.1 Titel").seite, y < 245 ? 1 : 2);
        EXPECT_EQ(f.zeile("1.1 Titel").wo.y, y < 245 ? y : 30);
        EXPECT_EQ(f.zeile("Seite 2").seite, y < 245 ? 0 : 2) << "the new page has a head";
    }
}

TEST(Seiten, NoRibIsLostAndNoneStandsBelowTheEndOfTheList) {
    Aufzeichnung f;
    druckeSeiten(f, bericht(wand(160), Form::lang), auftrag());
    int gefunden = 0;
    for (const auto& e : f.nur(Art::text)) {
        if (e.text.find("rippe") == std::string::npos || e.text.find(": Ft,d") == std::string::npos) continue;
        ++gefunden;
        EXPECT_GE(e.wo.y, 30);
        EXPECT_LT(e.wo.y, 260) << e.text;
    }
    EXPECT_EQ(gefunden, 160);
}

TEST(Seiten, RibsAbove200MoveTheCursorOn) {
    // 4 mm a rib, 58 rows a page from 30 on: 58 ribs more in each of six lists are six pages more.
    Aufzeichnung f200, f258;
    druckeSeiten(f200, bericht(wand(200), Form::lang), auftrag());
    druckeSeiten(f258, bericht(wand(258), Form::lang), auftrag());
    EXPECT_EQ(f258.seiten - f200.seiten, 6);
}

TEST(Seiten, EachReportRoutinePrintsTheHeadAgain) {
    Aufzeichnung f;
    int anlauf = 0;
    Druckauftrag a = auftrag();
    a.anlauf = [&] { ++anlauf; };
    druckeSeiten(f, {Seitenkopfdruck{}, Seitenkopfdruck{}, Seitenkopfdruck{}}, a);
    const auto texte = f.nur(Art::text);
    EXPECT_EQ(std::ranges::count(texte, Programmzeile, &Aufzeichnung::Eintrag::text), 3);
    EXPECT_EQ(f.seiten, 1);
    EXPECT_EQ(anlauf, 1) << "the sign of life belongs to the start of the job";
}

TEST(Seiten, RemarksHaveThePitchOfTheProbeAndBreakBefore264) {
    // The probe is 4 mm high: pitch 5. From 100 on: 101, 106 ... 261 (line 33); the next would be 266.
    Texte zeilen;
    for (int i = 1; i <= 80; ++i) zeilen.push_back("Zeile " + std::to_string(i));
    Aufzeichnung f;
    druckeSeiten(f, {Zeilenstand{100}, Schlussbemerkungen{zeilen}}, auftrag());
    EXPECT_EQ(f.zeile("Zeile 1").wo.y, 101);
    EXPECT_EQ(f.zeile("Zeile 1").schrift.name, "Courier New");
    EXPECT_EQ(f.zeile("Zeile 33").wo.y, 261);
    EXPECT_EQ(f.zeile("Zeile 33").seite, 1);
    EXPECT_EQ(f.zeile("Zeile 34").wo.y, 31);
    EXPECT_EQ(f.zeile("Zeile 34").seite, 2);
    // 31 ... 261: 47 lines a page. The 80th is the last of page 2, and no page follows it.
    EXPECT_EQ(f.zeile("Zeile 80").wo.y, 261);
    EXPECT_EQ(f.seiten, 2);
}

TEST(Seiten, RemarksSwitchedOnButEmptyOnlyBreakThePage) {
    for (const double y : {263.0, 264.0}) {
        Aufzeichnung f;
        druckeSeiten(f, {Zeilenstand{y}, Schlussbemerkungen{}}, auftrag());
        EXPECT_EQ(f.seiten, y < 264 ? 1 : 2);
    }
}

TEST(Seiten, EachTemplateOfTheHeadHasItsFrames) {
    struct Vorlage {
        std::size_t rahmen, schatten;
    };
    const std::array<Vorlage, 6> vorlagen{{{1, 2}, {1, 2}, {1, 0}, {2, 2}, {2, 0}, {0, 0}}};
    for (int i = 0; i < 6; ++i) {
        for (const bool name : {true, false}) {
            SCOPED_TRACE(std::to_string(i) + (name ? " with" : " without") + " the program's name");
            Einstellungen e;
            e.Kopfvorlage = i;
            e.ProgrammnameDrucken = name;
            e.Kopfzeile1 = "eins";
            e.Kopfzeile2 = "zwei";
            e.Kopf1Fett = e.Kopf2Kursiv = true;
            e.Kopf2Schrift = "Times";
            Aufzeichnung f;
            druckeKopf(f, e, "");
            EXPECT_EQ(f.nur(Art::rahmen).size(), vorlagen[static_cast<std::size_t>(i)].rahmen);
            EXPECT_EQ(f.nur(Art::flaeche).size(), vorlagen[static_cast<std::size_t>(i)].schatten);
            EXPECT_EQ(f.zeile(Programmzeile).wo.y, name && i != 5 ? 6 : 0);
            EXPECT_EQ(f.zeile(kopfzeile1Vorlage0).wo.y, i == 0 ? 12 : 0);
            EXPECT_EQ(f.zeile("eins").wo.y, i == 0 ? 0 : name ? 12 : 6);
            EXPECT_EQ(f.zeile("zwei").wo.y, i == 0 ? 0 : name ? 17 : 11);
            EXPECT_EQ(f.zeile("eins").schrift.fett, i != 0);
            if (i != 0) {
                EXPECT_EQ(f.zeile("zwei").schrift, (Schrift{.name = "Times", .kursiv = true}));
            }
        }
    }
}

TEST(Seiten, TheLogoMovesTheTextsOfTheHead) {
    Einstellungen e;
    Aufzeichnung ohne, mit;
    druckeKopf(ohne, e, "");
    e.LogoDrucken = true;
    druckeKopf(mit, e, "");
    EXPECT_EQ(ohne.zeile(Programmzeile).wo.x, 24);
    EXPECT_EQ(mit.zeile(Programmzeile).wo.x, 40);
    ASSERT_EQ(mit.nur(Art::bild).size(), 1U);
}

TEST(Seiten, ThePageLabelAndTheLastPageFollowTheNumbering) {
    struct Fall {
        Seitenzaehlung zaehlung;
        bool blatt;
        std::string aufSeite2;
        std::optional<int> letzte;
    };
    const std::vector<Fall> faelle{
        {{true, 5, 0, ""}, false, "Seite 6", 6},
        {{true, 5, 0, "a"}, true, "Blatt 6a", 6},
        {{true, 5, 3, "b"}, false, "Seite 5.4b", std::nullopt},
        {{true, 5, -1, ""}, false, "Seite 5.0", std::nullopt},
        {{false, 5, 0, "a"}, false, "", std::nullopt},
    };
    for (const Fall& fall : faelle) {
        Druckauftrag a;
        a.zaehlung = fall.zaehlung;
        a.einstellungen.BlattStattSeite = fall.blatt;
        EXPECT_EQ(seitenzahl(a, 2), fall.aufSeite2);
        Aufzeichnung f;
        const Druckergebnis ergebnis = druckeSeiten(f, ueberschriftBei(250, 250), a);
        EXPECT_EQ(ergebnis.seiten, 2);
        EXPECT_EQ(ergebnis.LetzteSeite, fall.letzte) << "whether or not there is a foot line";
    }
}

TEST(Seiten, TheSystemSketchAndTheFootLineCanBeSwitchedOff) {
    Druckauftrag a = auftrag();
    a.Projekt = "Haus";
    Aufzeichnung f;
    druckeSeiten(f, bericht(wand(), Form::kurz, {.Systemgrafik = false}), a);
    EXPECT_EQ(f.nur(Art::bild).front().bild, Bild::rippe);
    EXPECT_EQ(f.zeile("Projekt :  Haus").seite, 0);
}

TEST(Seiten, NumberedHeadingsAloneAreBookmarks) {
    Aufzeichnung f;
    druckeSeiten(f, bericht(wand(), Form::kurz), auftrag());
    std::vector<std::string> texte;
    for (const auto& e : f.nur(Art::lesezeichen))
        texte.push_back(std::to_string(static_cast<int>(e.wo.x)) + e.text);
    ASSERT_GE(texte.size(), 4U);
    EXPECT_EQ(texte[0], "11. System");
    EXPECT_EQ(texte[1], "21.1 Abmessungen");
    EXPECT_EQ(texte[3], "31.2.1 Randrippen");
    EXPECT_EQ(std::count(texte.begin(), texte.end(), "3Rippen:"), 0);
    EXPECT_EQ(texte.back(), "17. Randbedingungen");
}

}  // namespace
}  // namespace rippenscheibe
