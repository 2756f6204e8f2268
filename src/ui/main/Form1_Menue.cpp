#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include "ui/basics/Meldungen.h"
#include "ui/help/Handbuch.h"
#include "ui/main/Form1_Hauptfenster.h"
#include "ui/main/Menuetabelle.h"
#include "ui/session/ZuletztMenue.h"

// The menus and the tool bar of the main window.

namespace rippenscheibe {

namespace {

const Menuepunkt trenner{};

}  // namespace

void Form1::baueMenue() {
    zuletzt_ = new ZuletztMenue(
        einstellungsdateiname(), [this](const QString& datei) { ablauf_.oeffnen(datei); }, this);
    baueMenueleiste(*this, {dateimenue(), bearbeitenmenue(), projektmenue(), bemerkungenmenue(),
                            optionenmenue(), extrasmenue(), hilfemenue()});
    for (const auto& [aktion, symbol] : baueWerkzeugleiste(
             *this, {{qtext("Neue Datei"), qtext("neu"), qtext("mnuFNew")},
                     {qtext("Datei öffnen"), qtext("oeffnen"), qtext("mnuFOpen")},
                     {qtext("Datei sichern"), qtext("sichern"), qtext("mnuFSave")},
                     {qtext("Datei speichern unter"), qtext("speichern-unter"), qtext("mnuFSaveAs")},
                     {},
                     {qtext("Drucker einrichten"), qtext("drucker"), qtext("mnuoptiondruck")},
                     {qtext("Optionen"), qtext("optionen"), qtext("mnuoptions")},
                     {},
                     {qtext("Taschenrechner"), qtext("rechner"), qtext("mnupocketcalc")},
                     {},
                     {qtext("Programm beenden"), qtext("ende"), qtext("mnuFClose")},
                     {},
                     {qtext("Rückgängig"), qtext("rueckgaengig"), qtext("mnuRueckgaengig")},
                     {qtext("Wiederholen"), qtext("wiederholen"), qtext("mnuWiederholen")},
                     {},
                     {qtext("Berechnen"), qtext("berechnen"), qtext("mnuFView")}}))
        symbole_.push_back({[aktion = aktion](const QIcon& bild) { aktion->setIcon(bild); }, symbol});
    connect(&programm_, &Programm::schritteGeaendert, this, &Form1::zeigeSchritte);
    zeigeSchritte();
}

Menue Form1::dateimenue() {
    return {
        qtext("mnuFile"),
        qtext("&Datei"),
        {{qtext("mnuFNew"), qtext("&Neue Datei"), [this] { ablauf_.neu(); }, QKeySequence::New},
         {qtext("mnuFOpen"), qtext("Datei ö&ffnen ..."), [this] { ablauf_.oeffnen(); }, QKeySequence::Open},
         {.untermenue = zuletzt_},
         trenner,
         {qtext("mnuFSave"), qtext("Datei &sichern"), [this] { ablauf_.sichern(); }, QKeySequence::Save},
         {qtext("mnuFSaveAs"), qtext("Datei speichern &unter ..."), [this] { ablauf_.sichernUnter(); },
          QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)},
         trenner,
         {qtext("mnuFPrint"), qtext("Berechnung starten und Werte aus&drucken"),
          [this] { rechneUndZeige(Fensterart::druck); }},
         {qtext("mnuFView"), qtext("Berechnung starten und Ergebnisse &einsehen"),
          [this] { rechneUndZeige(Fensterart::ergebnisse); }},
         {qtext("mnuRechenweg"), qtext("Berechnung starten und &Rechenweg ausdrucken"),
          [this] { rechneUndZeige(Fensterart::rechenweg); }},
         trenner,
         {qtext("mnuFClose"), qtext("Programm &beenden"), [this] { beende(); },
          QKeySequence(Qt::CTRL | Qt::Key_Q)}}};
}

Menue Form1::bearbeitenmenue() {
    Menue menue{qtext("mnuBearbeiten"),
                qtext("&Bearbeiten"),
                {{qtext("mnuRueckgaengig"), qtext("R&ückgängig"), [this] { programm_.rueckgaengig(); },
                  QKeySequence(Qt::CTRL | Qt::Key_Z)},
                 {qtext("mnuWiederholen"), qtext("&Wiederholen"), [this] { programm_.wiederhole(); },
                  QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)},
                 trenner}};
    for (const Eingabeeintrag& eintrag : eingabeeintraege())
        menue.punkte.push_back({eintrag.menuename, eintrag.menuetext,
                                [this, art = eintrag.art] { oeffneFenster(art); }, eintrag.taste});
    menue.punkte.push_back(trenner);
    menue.punkte.push_back({qtext("mnuVarianten"), qtext("Variante merken und ver&gleichen ..."),
                            [this] { oeffneFenster(Fensterart::varianten); },
                            QKeySequence(Qt::CTRL | Qt::Key_M)});
    menue.punkte.push_back(
        {qtext("mnuLastfaelle"), qtext("&Lastfälle ..."), [this] { oeffneFenster(Fensterart::lastfaelle); }});
    return menue;
}

Menue Form1::projektmenue() {
    return {qtext("mnuProjekte"),
            qtext("&Projekt"),
            {{qtext("mnuProjekt"), qtext("&Projektdaten ..."),
              [this] { oeffneFenster(Fensterart::projektdaten); }},
             {qtext("mnuUebersicht"), qtext("Projekt&übersicht ..."),
              [this] { oeffneFenster(Fensterart::uebersicht); }, QKeySequence(Qt::Key_F9)},
             {qtext("mnuExplorer"), qtext("Projekt&manager starten"), [this] { starteProjektmanager(); }}}};
}

Menue Form1::bemerkungenmenue() {
    return {qtext("mnuBemerkungen"),
            qtext("Be&merkungen"),
            {{qtext("mnuvorb"), qtext("&Bemerkungen zur Position ..."),
              [this] { oeffneFenster(Fensterart::bemerkungen); }}}};
}

Menue Form1::optionenmenue() {
    return {qtext("mnuOptionen"),
            qtext("&Optionen"),
            {{qtext("mnuoptions"), qtext("&Seitenkopf und Standardpfad ..."),
              [this] { oeffneFenster(Fensterart::seitenkopf); }},
             {qtext("mnuoptiondruck"), qtext("&Drucker einrichten ..."),
              [this] { meldungen_.richteDruckerEin(this, programm_.drucker()); }}}};
}

Menue Form1::extrasmenue() {
    return {
        qtext("mnuExtras"),
        qtext("&Extras"),
        {{qtext("mnuAuslegen"), qtext("&Auslegen ..."), [this] { oeffneFenster(Fensterart::auslegen); },
          QKeySequence(Qt::Key_F8)},
         {qtext("mnuEinfluss"), qtext("E&influss ..."), [this] { oeffneFenster(Fensterart::einfluss); }},
         {qtext("mnuTafel"), qtext("&Bemessungstafel ..."), [this] { oeffneFenster(Fensterart::tafel); }},
         trenner,
         {qtext("mnupocketcalc"), qtext("&Taschenrechner"), [this] { oeffneFenster(Fensterart::rechner); }},
         {qtext("mnuKalender"), qtext("&Kalender"), [this] { oeffneFenster(Fensterart::kalender); }},
         {qtext("mnuMaterialien"), qtext("&Eigene Materialien ..."),
          [this] { oeffneFenster(Fensterart::eigeneMaterialien); }},
         {qtext("mnuSysConfig"), qtext("&Systemkonfiguration"),
          [this] { oeffneFenster(Fensterart::systemkonfiguration); }},
         trenner,
         {qtext("mnuVerwerfen"), qtext("Ergebnisse &verwerfen"), [this] { programm_.verwirfErgebnisse(); }}}};
}

Menue Form1::hilfemenue() {
    return {
        qtext("mnuHilfe"),
        qtext("&Hilfe"),
        {{qtext("mnuHandbuch"), qtext("&Handbuch"), [this] { oeffneHandbuch(this); },
          QKeySequence(Qt::Key_F1)},
         {qtext("mnuRandbedingungen"), qtext("&Randbedingungen"),
          [this] { oeffneFenster(Fensterart::randbedingungen); }},
         {qtext("mnuUeber"), qtext("&Über Rippenscheibe"), [this] { oeffneFenster(Fensterart::ueber); }}}};
}

// The undo entries name the step: "Rückgängig: Beplankung".
void Form1::zeigeSchritte() {
    const auto benenne = [this](const char* name, const char* text, const std::string* schritt) {
        auto* aktion = findChild<QAction*>(qtext(name));
        QString ganz = qtext(text);
        if (schritt != nullptr)
            ganz += QStringLiteral(": ") + qtext(*schritt).replace(QLatin1Char('&'), QStringLiteral("&&"));
        aktion->setText(ganz);
        aktion->setEnabled(schritt != nullptr || feldbesuch_);
    };
    benenne("mnuRueckgaengig", "R&ückgängig", programm_.schritte().letzter());
    benenne("mnuWiederholen", "&Wiederholen", programm_.schritte().naechster());
}

void Form1::starteProjektmanager() {
    for (const char* name : {"QPM.exe", "QPM"}) {
        const QString programm = QString::fromStdU16String(programm_.datei(name).u16string());
        if (QFileInfo(programm).isFile() && QProcess::startDetached(programm, {})) return;
    }
    meldungen_.hinweis(this, qtext(" Hinweis"),
                       qtext("Der Projektmanager \"QPM.exe\" ist auf diesem Rechner nicht vorhanden."));
}

}  // namespace rippenscheibe
