#include "support/Gerechnet.h"
#include "ui/session/Dateiablauf.h"

namespace rippenscheibe {
namespace {

class Ablauf : public Programmprobe {
  protected:
    Ablauf() {
        ablauf.projektdaten = [this] {
            ++projektdialoge;
            return projektdatenUebernommen;
        };
    }
    static double laengeIn(const QString& name) {
        Wand gelesen;
        static_cast<void>(liesPosition(pfad(name), gelesen));
        return gelesen.Wandlaenge.value();
    }
    void aendere() {
        programm.felder.Wandlaenge = 7;
        programm.setzeGesichert(false);
        programm.zuweisen();
    }
    // The position has this file, whether it is there or not.
    void nenne(const char* name) {
        programm.Dateiname = utf8(datei(name));
        programm.DialogDateiname = datei(name);
    }

    Dateiablauf ablauf{programm, meldungen, nullptr};
    int projektdialoge = 0;
    bool projektdatenUebernommen = false;
};

TEST_F(Ablauf, ASavedPositionIsNotAskedFor) {
    ablauf.neu();
    EXPECT_TRUE(ablauf.beenden());
    EXPECT_TRUE(meldungen.gezeigt.empty());
    EXPECT_EQ(projektdialoge, 1);
}

TEST_F(Ablauf, EachActionAsksUnderItsOwnTitle) {
    aendere();
    ablauf.oeffnen();
    EXPECT_FALSE(ablauf.beenden());
    ablauf.neu();
    ASSERT_EQ(meldungen.gezeigt.size(), 3U);
    const char* const titel[] = {"Datei öffnen", "Datei Schließen", "Neue Datei"};
    for (std::size_t i = 0; i < 3; ++i)
        erwarte(meldungen.gezeigt[i], Symbol::frage, titel[i], "Soll die geöffnete Datei gesichert werden ?",
                Knoepfe::jaNeinAbbrechen);
}

TEST_F(Ablauf, CancelOnNewStillResetsThePosition) {
    programm.w.Projekt = "Haus am Hang";
    programm.w.Position = "7";
    programm.w.Hinweise = {Hinweis{"alt"}};
    aendere();
    meldungen.antworten = {Antwort::abbrechen};
    ablauf.neu();
    EXPECT_EQ(programm.w.Wandlaenge, 5);
    EXPECT_EQ(programm.felder.Wandlaenge, 5);
    EXPECT_EQ(programm.w.Position, "1");
    EXPECT_EQ(programm.w.Projekt, "Haus am Hang");
    EXPECT_TRUE(programm.w.Hinweise.empty());
    EXPECT_EQ(programm.Titel(), QStringLiteral("Neue Datei"));
    EXPECT_EQ(programm.Dateiname, "");
    EXPECT_EQ(projektdialoge, 1);
}

TEST_F(Ablauf, YesOnNewSavesFirst) {
    aendere();
    meldungen.antworten = {Antwort::ja};
    meldungen.dateien = {datei("alt.rsw")};
    ablauf.neu();
    EXPECT_EQ(laengeIn(datei("alt.rsw")), 7);
    EXPECT_EQ(programm.w.Wandlaenge, 5);
    EXPECT_EQ(projektdialoge, 1);
    // The next save must not go to the old file.
    meldungen.dateien = {datei("neu.rsw")};
    ablauf.sichern();
    EXPECT_EQ(laengeIn(datei("alt.rsw")), 7);
    EXPECT_EQ(laengeIn(datei("neu.rsw")), 5);
}

TEST_F(Ablauf, OpenAnswersSaveDiscardAndCancel) {
    const QString quelle = gespeicherte("quelle.rsw", 4);
    struct Fall {
        Antwort antwort;
        bool gesichert, geoeffnet;
    };
    for (const Fall& fall : {Fall{Antwort::ja, true, true}, Fall{Antwort::nein, false, true},
                             Fall{Antwort::abbrechen, false, false}}) {
        SCOPED_TRACE(static_cast<int>(fall.antwort));
        const QString ziel = datei("ziel.rsw");
        QFile::remove(ziel);
        nenne("ziel.rsw");
        aendere();
        meldungen.antworten = {fall.antwort};
        meldungen.dateien = {quelle};
        ablauf.oeffnen();
        EXPECT_EQ(QFile::exists(ziel), fall.gesichert);
        EXPECT_EQ(programm.w.Wandlaenge, fall.geoeffnet ? 4 : 7);
        EXPECT_EQ(programm.felder.Wandlaenge, fall.geoeffnet ? 4 : 7);
        EXPECT_EQ(programm.Dateiname, utf8(fall.geoeffnet ? quelle : ziel));
        EXPECT_EQ(programm.Aktion, Dateiaktion::keine);
        meldungen.dateien.clear();
    }
}

TEST_F(Ablauf, AFileJustOpenedCountsAsChanged) {
    meldungen.dateien = {gespeicherte("a.rsw", 4)};
    ablauf.oeffnen();
    EXPECT_FALSE(programm.Gesichert());
    EXPECT_EQ(programm.Titel(), datei("a.rsw"));
    EXPECT_EQ(programm.w.AnzahlRippen, 8);  // 4 m / 0.625 m = 6.4: derived values are fresh
    meldungen.antworten = {Antwort::ja};
    EXPECT_TRUE(ablauf.beenden());
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);
}

TEST_F(Ablauf, AnotherEndingIsRefusedAndCapitalsAreAnotherEnding) {
    aendere();
    EXPECT_FALSE(ablauf.lade(gespeicherte("a.RSW", 4)));
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_EQ(meldungen.gezeigt[0].titel, QStringLiteral(" Fehler"));
    EXPECT_EQ(meldungen.gezeigt[0].text, QStringLiteral("Datei passt nicht zum Programm!"));
    EXPECT_EQ(programm.w.Wandlaenge, 7);
    EXPECT_EQ(programm.Dateiname, "");
    programm.felder.Wandlaenge = 8;
    programm.zuweisen();
    EXPECT_FALSE(programm.Sperre);
}

TEST_F(Ablauf, AFileThatCannotBeReadIsToldAndAMissingOneIsNot) {
    aendere();
    const QString zuGross = datei("gross.rsw");
    ASSERT_FALSE(schreibeDauerhaft(pfad(zuGross), std::string(groessteDatei + 1, ' ')));
    EXPECT_FALSE(ablauf.lade(zuGross));
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_TRUE(meldungen.gezeigt[0].text.contains(QStringLiteral("größer als 16 MB")));
    EXPECT_EQ(programm.w.Wandlaenge, 7);
    EXPECT_EQ(programm.Dateiname, "");  // the next save must not go there
    EXPECT_TRUE(ablauf.lade(datei("fehlt.rsw")));
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);
}

TEST_F(Ablauf, AFileWhoseNameIsNoUtf8IsOpenedAndSaved) {
    const std::filesystem::path fremd = pfad(ordner.path()) / "W\xE4nde \xF0\x9F\x8F\xA0.rsw";
    std::filesystem::rename(pfad(gespeicherte("a.rsw", 4)), fremd);
    const QString name = qtext(fremd.string());
    EXPECT_EQ(pfad(name), fremd);
    const QString kurz = qtext(std::filesystem::relative(fremd).string());  // as a command line names it
    EXPECT_EQ(pfad(ganzerPfad(kurz)), std::filesystem::absolute(fremd));
    EXPECT_EQ(qtext("ä\xF0\x9F\x8F\xA0"), QString::fromUtf8("ä\xF0\x9F\x8F\xA0"));
    EXPECT_TRUE(ablauf.lade(name));
    EXPECT_EQ(programm.w.Wandlaenge, 4);
    aendere();
    programm.DialogDateiname = name;
    ablauf.sichern();
    EXPECT_EQ(laengeIn(name), 7);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(pfad(ordner.path())), {}), 1);
    std::filesystem::remove(fremd);  // the folder of this test does not know such names
}

TEST_F(Ablauf, SaveAppendsTheEndingAndProposesPositionAndRemark) {
    programm.w.Position = "3/1";
    ablauf.sichern();
    programm.w.PositionsBemerkung = "Achse B";
    meldungen.dateien = {datei("wand")};
    ablauf.sichern();
    ASSERT_EQ(meldungen.gewaehlt.size(), 2U);
    EXPECT_EQ(meldungen.gewaehlt[0].vorschlag, QStringLiteral("3-1"));
    EXPECT_EQ(meldungen.gewaehlt[1].vorschlag, QStringLiteral("3-1-Achse B"));
    EXPECT_EQ(meldungen.gewaehlt[1].endung, QStringLiteral("rsw"));
    EXPECT_EQ(meldungen.gewaehlt[1].filter,
              QStringLiteral("Datei Rippenscheibe 2.0 (*.rsw);;alle Dateien (*.*)"));
    EXPECT_TRUE(QFile::exists(datei("wand.rsw")));
    EXPECT_EQ(programm.Titel(), datei("wand.rsw"));
    EXPECT_TRUE(programm.Gesichert());
    aendere();
    ablauf.sichern();  // no dialog any more
    EXPECT_EQ(meldungen.gewaehlt.size(), 2U);
    EXPECT_EQ(laengeIn(datei("wand.rsw")), 7);
}

TEST_F(Ablauf, AnAppendedEndingDoesNotOverwriteAnotherPositionUnasked) {
    programm.w.Position = "1.2";
    aendere();
    gespeicherte("1.2.rsw", 4);
    meldungen.dateien = {datei("1.2"), datei("1.3")};
    meldungen.antworten = {Antwort::nein};
    ablauf.sichern();
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_EQ(meldungen.gezeigt[0].titel, QStringLiteral("Datei speichern"));
    EXPECT_EQ(meldungen.gezeigt[0].knoepfe, Knoepfe::jaNein);
    EXPECT_TRUE(meldungen.gezeigt[0].text.contains(datei("1.2.rsw")));
    EXPECT_EQ(meldungen.gewaehlt.size(), 2U);  // No goes back to the file dialog
    EXPECT_EQ(laengeIn(datei("1.2.rsw")), 4);
    EXPECT_EQ(laengeIn(datei("1.3.rsw")), 7);

    programm.Dateiname.clear();
    meldungen.dateien = {datei("1.2")};
    meldungen.antworten = {Antwort::ja};
    ablauf.sichern();
    EXPECT_EQ(laengeIn(datei("1.2.rsw")), 7);

    // The file dialog itself has asked about a name with the ending.
    programm.Dateiname.clear();
    meldungen.dateien = {datei("1.2.rsw")};
    ablauf.sichern();
    EXPECT_EQ(meldungen.gezeigt.size(), 2U);
}

TEST_F(Ablauf, AFailedSaveKeepsThePositionAndGivesTheActionUp) {
    nenne("fehlt/wand.rsw");
    aendere();
    meldungen.antworten = {Antwort::ja, Antwort::ok, Antwort::ja, Antwort::ok};
    EXPECT_FALSE(ablauf.beenden());
    ablauf.neu();
    EXPECT_EQ(programm.w.Wandlaenge, 7);
    EXPECT_FALSE(programm.Gesichert());
    EXPECT_EQ(meldungen.gepiept, 2);
    EXPECT_EQ(meldungen.gezeigt[1].symbol, Symbol::kritisch);
    EXPECT_EQ(projektdialoge, 0);
}

TEST_F(Ablauf, AFailedSaveAsKeepsTheNameOfTheFile) {
    nenne("a.rsw");
    ASSERT_TRUE(QDir().mkpath(datei("b.rsw")));  // no file can go there
    projektdatenUebernommen = true;
    meldungen.dateien = {datei("b.rsw")};
    ablauf.sichernUnter();
    EXPECT_EQ(meldungen.gepiept, 1);
    EXPECT_EQ(programm.Dateiname, utf8(datei("a.rsw")));
    aendere();
    ablauf.sichern();  // to the file as before, without a dialog
    EXPECT_EQ(meldungen.gewaehlt.size(), 1U);
    EXPECT_EQ(laengeIn(datei("a.rsw")), 7);
}

TEST_F(Ablauf, TheFileDialogsBeginInTheFolderOfTheOpenFile) {
    programm.DialogOrdner = QStringLiteral("/daten");
    ablauf.oeffnen();
    programm.Dateiname = utf8(datei("a.rsw"));
    ablauf.oeffnen();
    // Saving under another name begins in the folder that the project dialog chose.
    programm.Positionspfad = "/projekt";
    projektdatenUebernommen = true;
    ablauf.sichernUnter();
    ASSERT_EQ(meldungen.gewaehlt.size(), 3U);
    EXPECT_EQ(meldungen.gewaehlt[0].ordner, QStringLiteral("/daten"));
    EXPECT_EQ(meldungen.gewaehlt[1].ordner, ordner.path());
    EXPECT_EQ(meldungen.gewaehlt[2].ordner, QStringLiteral("/projekt"));
}

TEST_F(Ablauf, SaveAsGoesThroughTheProjectDialogAndKeepsTheNameAfterACancel) {
    programm.Dateiname = utf8(datei("a.rsw"));
    std::string waehrenddessen = "-";
    ablauf.projektdaten = [&] {
        waehrenddessen = programm.Dateiname;
        EXPECT_EQ(programm.Aktion, Dateiaktion::sichernUnter);
        return false;
    };
    ablauf.sichernUnter();
    EXPECT_EQ(waehrenddessen, "");
    EXPECT_EQ(programm.Dateiname, utf8(datei("a.rsw")));
    EXPECT_TRUE(meldungen.gewaehlt.empty());
}

TEST_F(Ablauf, AFolderThatIsNotThereIsAskedForAgain) {
    meldungen.dateien = {datei("fehlt/a.rsw"), datei("a.rsw")};
    ablauf.sichern();
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_TRUE(meldungen.gezeigt[0].text.contains(datei("fehlt")));
    EXPECT_TRUE(QFile::exists(datei("a.rsw")));
}

TEST_F(Ablauf, AFileThatAnotherProgramChangedIsNotOverwrittenUnasked) {
    struct Fall {
        Antwort antwort;
        double laenge;      // in the file afterwards
        bool unterAnderem;  // saved under another name
    };
    for (const Fall& fall :
         {Fall{Antwort::ja, 7, false}, Fall{Antwort::nein, 6, true}, Fall{Antwort::abbrechen, 6, false}}) {
        SCOPED_TRACE(static_cast<int>(fall.antwort));
        ablauf.lade(gespeicherte("a.rsw", 4));
        programm.DialogDateiname = datei("a.rsw");
        ablauf.sichern();  // untouched by others: no question
        EXPECT_TRUE(meldungen.gezeigt.empty());
        gespeicherte("a.rsw", 6);
        aendere();
        QFile::remove(datei("b.rsw"));
        meldungen.antworten = {fall.antwort};
        meldungen.dateien = {datei("b.rsw")};
        ablauf.sichern();
        ASSERT_EQ(meldungen.gezeigt.size(), 1U);
        EXPECT_EQ(meldungen.gezeigt[0].worte.ja, QStringLiteral("Überschreiben"));
        EXPECT_EQ(laengeIn(datei("a.rsw")), fall.laenge);
        EXPECT_EQ(QFile::exists(datei("b.rsw")), fall.unterAnderem);
        EXPECT_EQ(programm.Gesichert(), fall.antwort != Antwort::abbrechen);
        meldungen.gezeigt.clear();
        meldungen.dateien.clear();
    }
}

class Wiederherstellung : public Programmprobe {
  protected:
    QStringList kopien() const { return QDir(ordner.path()).entryList({QStringLiteral("Sicherung*.kopie")}); }
};

TEST_F(Wiederherstellung, ACrashedProgramOffersItsPositionOnce) {
    {
        Programm abgestuerzt(pfad(ordner.path()));
        abgestuerzt.Dateiname = "/daten/wand.rsw";
        abgestuerzt.felder.Wandlaenge = 9;
        abgestuerzt.zuweisen();
        abgestuerzt.setzeGesichert(false);
        Sicherungskopie kopie(abgestuerzt);
        kopie.sichere();

        // A second program beside the first takes nothing from it.
        Programm nachbar(pfad(ordner.path()));
        EXPECT_FALSE(Sicherungskopie(nachbar).stelleWiederHer(meldungen, nullptr));
        EXPECT_TRUE(meldungen.gezeigt.empty());
    }  // gone without tidying up
    Sicherungskopie kopie(programm);
    EXPECT_FALSE(kopie.stelleWiederHer(meldungen, nullptr));  // Esc keeps it for the next start
    meldungen.antworten = {Antwort::ja};
    EXPECT_TRUE(kopie.stelleWiederHer(meldungen, nullptr));
    EXPECT_TRUE(meldungen.gezeigt.back().text.contains(QStringLiteral("/daten/wand.rsw")));
    EXPECT_EQ(programm.w.Wandlaenge, 9);
    EXPECT_EQ(programm.Dateiname, "/daten/wand.rsw");
    EXPECT_FALSE(programm.Gesichert());
    kopie.raeumeAuf();
    EXPECT_TRUE(kopien().isEmpty());
}

TEST_F(Wiederherstellung, AnUnreadableCopyIsReportedAndKept) {
    ASSERT_TRUE(QDir().mkpath(datei("Sicherung-1.kopie")));  // a folder cannot be read as a file
    meldungen.antworten = {Antwort::ja, Antwort::ok};
    programm.w.Vorbemerkungen[0] = "bleibt";
    EXPECT_FALSE(Sicherungskopie(programm).stelleWiederHer(meldungen, nullptr));
    ASSERT_EQ(meldungen.gezeigt.size(), 2U);
    EXPECT_EQ(meldungen.gezeigt[1].symbol, Symbol::kritisch);
    EXPECT_TRUE(QFile::exists(datei("Sicherung-1.kopie")));
    EXPECT_EQ(programm.w.Vorbemerkungen[0], "bleibt");
    EXPECT_TRUE(programm.Gesichert());
}

TEST_F(Wiederherstellung, TheOldCopyStaysWhileNoNewOneCanBeWritten) {
    stuerzeAb();
    // The new program takes the second place, and a folder comes in the way of its file.
    Sicherungskopie neue(programm);
    ASSERT_TRUE(QDir().mkpath(datei("Sicherung-2.kopie/voll")));
    meldungen.antworten = {Antwort::ja};
    EXPECT_TRUE(neue.stelleWiederHer(meldungen, nullptr));
    EXPECT_EQ(programm.w.Wandlaenge, 9);
    EXPECT_TRUE(QFile::exists(datei("Sicherung-1.kopie")));
}

TEST_F(Wiederherstellung, AFileHalfOverwrittenIsOfferedAsItWas) {
    const QString wand = gespeicherte("wand.rsw", 4);
    const QByteArray vorher = inhalt(wand);
    const auto unterbrich = [&](const std::string& jetzt) {
        const auto platz = Kopieplatz::freier(programm.ordner, Kopieart::ueberschreiben);
        ASSERT_TRUE(platz && !platz->schreibe({utf8(wand), vorher.toStdString()}));
        ASSERT_FALSE(schreibeDauerhaft(pfad(wand), jetzt));
    };
    Sicherungskopie kopie(programm);
    unterbrich(vorher.toStdString());  // killed before the first byte: nothing to ask
    EXPECT_FALSE(kopie.stelleWiederHer(meldungen, nullptr));
    EXPECT_TRUE(meldungen.gezeigt.empty());
    unterbrich("halb");
    meldungen.antworten = {Antwort::abbrechen, Antwort::ja};
    EXPECT_FALSE(kopie.stelleWiederHer(meldungen, nullptr));
    EXPECT_EQ(inhalt(wand), "halb");
    EXPECT_FALSE(kopie.stelleWiederHer(meldungen, nullptr));
    EXPECT_EQ(inhalt(wand), vorher);
    EXPECT_FALSE(kopie.stelleWiederHer(meldungen, nullptr));
    EXPECT_EQ(meldungen.gezeigt.size(), 2U);
}

TEST_F(Wiederherstellung, AFolderThatCannotBeReadDoesNotEndTheProgram) {
    std::filesystem::create_directory_symlink("schleife", pfad(datei("schleife")));
    Programm gestoert(pfad(datei("schleife")));
    gestoert.setzeGesichert(false);
    Sicherungskopie kopie(gestoert);
    EXPECT_FALSE(kopie.sichere());
    EXPECT_FALSE(kopie.stelleWiederHer(meldungen, nullptr));
}

TEST_F(Wiederherstellung, ASaveTakesTheCopyAway) {
    Sicherungskopie kopie(programm);
    kopie.sichere();
    EXPECT_TRUE(kopien().isEmpty());
    programm.setzeGesichert(false);
    kopie.sichere();
    EXPECT_EQ(kopien().size(), 1);
    programm.setzeGesichert(true);
    EXPECT_TRUE(kopien().isEmpty());
}

}  // namespace
}  // namespace rippenscheibe
