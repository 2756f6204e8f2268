#include "ui/basics/Beschreibungen.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QLineEdit>

namespace rippenscheibe {

namespace {

// What a control of this name does, in every window that has one.
const QHash<QString, QString>& beschreibungen() {
    static const QHash<QString, QString> alle{
        {QStringLiteral("Übernehmen und zurück"),
         QStringLiteral("Übernimmt die Eingaben und schließt das Fenster")},
        {QStringLiteral("Übernehmen"), QStringLiteral("Übernimmt die Eingaben")},
        {QStringLiteral("Abbruch"), QStringLiteral("Schließt das Fenster, ohne zu übernehmen")},
        {QStringLiteral("Abbruch ohne Übernehmen"),
         QStringLiteral("Schließt das Fenster, ohne den Text zu übernehmen")},
        {QStringLiteral("Zurück zum Hauptfenster"),
         QStringLiteral("Übernimmt die Projektdaten und schließt das Fenster")},
        {QStringLiteral("Voreinstellung"), QStringLiteral("Stellt die ursprünglichen Einstellungen her")},
        {QStringLiteral("Kopieren"), QStringLiteral("Kopiert den Inhalt in die Zwischenablage")},
        {QStringLiteral("Schließen"), QStringLiteral("Schließt das Fenster")},
        {QStringLiteral("Vorige Seite"), QStringLiteral("Blättert eine Seite zurück")},
        {QStringLiteral("Nächste Seite"), QStringLiteral("Blättert eine Seite weiter")},
        {QStringLiteral("Kleiner"), QStringLiteral("Verkleinert die Vorschau")},
        {QStringLiteral("Größer"), QStringLiteral("Vergrößert die Vorschau")},
        {QStringLiteral("Seitenbreite"), QStringLiteral("Zeigt die Seite in ganzer Breite")},
        {QStringLiteral("Ganze Seite"), QStringLiteral("Zeigt die ganze Seite")},
        {QStringLiteral("Datenbank bearbeiten"), QStringLiteral("Öffnet die Liste der eigenen Materialien")},
        {QStringLiteral("Info zu Überständen"),
         QStringLiteral("Zeigt, wie ein Überstand der Fußrippe angesetzt wird")},
        {QStringLiteral("Info / Werte zu Verbindungsmitteln"),
         QStringLiteral("Öffnet die Liste der Verbindungsmittel, aus der man wählen kann")},
        {QStringLiteral("Eigengewicht der Wand ermitteln"),
         QStringLiteral("Öffnet das Fenster, das g,k,Wand aus Abmessungen und Wichten bildet")},
        {QStringLiteral("Pfad wählen"), QStringLiteral("Öffnet die Auswahl der Ordner")},
        {QStringLiteral("Neues Material anlegen"), QStringLiteral("Leert die Felder für ein neues Material")},
        {QStringLiteral("Material löschen"), QStringLiteral("Löscht das gezeigte Material nach einer Frage")},
        {QStringLiteral("Material bearbeiten"), QStringLiteral("Gibt die Felder zum Ändern frei")},
        {QStringLiteral("Material"), QStringLiteral("Das Material, dessen Werte gezeigt werden")},
        {QStringLiteral("Berechnung starten und Werte ausdrucken"),
         QStringLiteral("Prüft die Eingaben, rechnet und öffnet den Ausdruck")},
        {QStringLiteral("Berechnung starten und Ergebnisse einsehen"),
         QStringLiteral("Prüft die Eingaben, rechnet und zeigt die Ergebnisse")},
        {QStringLiteral("Laufwerk"), QStringLiteral("Wo die Ordner beginnen")},
        {QStringLiteral("Ordner"), QStringLiteral("Die Ordner, mit den Pfeiltasten zu durchgehen")},
        {QStringLiteral("gewählter Ordner"), QStringLiteral("Nur Anzeige")},
        {QStringLiteral("Projekt"), QStringLiteral("Name des Projekts, neu oder aus der Liste")},
        {QStringLiteral("Position"), QStringLiteral("Bezeichnung der Wand im Projekt")},
        {QStringLiteral("Datum"), QStringLiteral("Datum des Ausdrucks")},
        {QStringLiteral("Bemerkung"), QStringLiteral("Ein Zusatz zur Position, auch im Dateinamen")},
        {QStringLiteral("Pfad"), QStringLiteral("Ordner, in dem die Position gespeichert wird")},
        {QStringLiteral("Vorlagen"), QStringLiteral("Gespeicherte Texte; die gewählte wird gezeigt")},
        {QStringLiteral("Name der Vorlage"), QStringLiteral("Unter diesem Namen wird der Text gespeichert")},
        {QStringLiteral("Text"), QStringLiteral("Text der Vorlage")},
        {QStringLiteral("Vorlage sichern"), QStringLiteral("Speichert den Text unter dem Namen der Vorlage")},
        {QStringLiteral("Kapitel"), QStringLiteral("Inhalt des Handbuchs")},
        {QStringLiteral("Suchen im Handbuch"), QStringLiteral("Zeigt nur Kapitel mit diesem Wort")},
        {QStringLiteral("Suchen nach"),
         QStringLiteral("Sucht beim Tippen, Eingabetaste zum nächsten Treffer")},
        {QStringLiteral("Handbuch"), QStringLiteral("Text des gewählten Kapitels")},
        {QStringLiteral("Ergebnisse"), QStringLiteral("Bericht der Berechnung, darf geändert werden")},
        {QStringLiteral("Ausnutzungen"),
         QStringLiteral("Nachweise mit ihrer Ausnutzung, je Abschnitt aufklappbar")},
        {QStringLiteral("Reihenfolge der Ausnutzungen"), QStringLiteral("Ordnet die Nachweise")},
        {QStringLiteral("Worauf der Wert beruht"),
         QStringLiteral("Die Werte der Formel; Eingabetaste zeigt, woher einer kommt")},
        {QStringLiteral("Systemkonfiguration"), QStringLiteral("Angaben zu diesem Rechner")},
        {QStringLiteral("Anzeige"), QStringLiteral("Zahl des Rechners, nur Anzeige")},
        {QStringLiteral("Kalender"), QStringLiteral("Blättern mit Bild auf und Bild ab")},
        {QStringLiteral("erste Zeile"), QStringLiteral("Erste Textzeile des Seitenkopfs")},
        {QStringLiteral("zweite Zeile"), QStringLiteral("Zweite Textzeile des Seitenkopfs")},
        {QStringLiteral("Text ändern (oben eingeben)"),
         QStringLiteral("Gibt die beiden Textzeilen zum Ändern frei")},
        {QStringLiteral("Einstellungen erste Zeile"),
         QStringLiteral("Wählt die Schrift der ersten Textzeile")},
        {QStringLiteral("Einstellungen zweite Zeile"),
         QStringLiteral("Wählt die Schrift der zweiten Textzeile")},
        {QStringLiteral("Vorhandene Seitenköpfe"), QStringLiteral("Der gewählte wird oben gezeigt")},
        {QStringLiteral("Pfad auswählen"), QStringLiteral("Öffnet die Auswahl der Ordner")},
        {QStringLiteral("Liste mit Projekten löschen (bei Projektdaten)"),
         QStringLiteral("Leert die Liste der Projektnamen")},
        {QStringLiteral("keine Dämmung vorhanden"), QStringLiteral("Das Eigengewicht der Wand ohne Dämmung")},
        {QStringLiteral("Dämmung vorhanden >>>"), QStringLiteral("Das Eigengewicht der Wand mit Dämmung")},
        {QStringLiteral("Standardpfad"), QStringLiteral("Ordner, in dem Dateifenster beginnen")},
        {QStringLiteral("Ecke der Tabelle"), QStringLiteral("Ohne Wirkung")},
        {QStringLiteral("Ecke der Tafel"), QStringLiteral("Ohne Wirkung")},
        {QStringLiteral("Mengen"), QStringLiteral("Holz, Platten, Verbindungsmittel und Anker der Wände")},
        {QStringLiteral("Lastfälle"),
         QStringLiteral("Je Zeile ein Lastfall mit seinen Lasten und dem Urteil")},
        {QStringLiteral("Positionen des Projekts"),
         QStringLiteral("Je Zeile eine Position mit ihrem Urteil, Eingabetaste öffnet sie")},
        {QStringLiteral("Hinweise und Lücken der gewählten Positionen"), QStringLiteral("Nur Anzeige")},
        {QStringLiteral("Entwürfe"),
         QStringLiteral("Je Zeile eine Wand, die besteht; die gewählte wird gezeigt")},
        {QStringLiteral("Nächste Schritte"),
         QStringLiteral("Je Zeile eine Änderung und was sie bewirkt; die gewählte wird gezeigt")},
        {QStringLiteral("Eingabe"), QStringLiteral("Die Eingabe, die verändert wird")},
        {QStringLiteral("Bemessungstafel"),
         QStringLiteral("Je Zelle, was eine Wand dieser Zeile und Spalte trägt oder ausnutzt")},
    };
    return alle;
}

bool brauchtBeschreibung(const QWidget& teil) {
    return teil.accessibleDescription().isEmpty() && teil.toolTip().isEmpty() &&
           (qobject_cast<const QAbstractButton*>(&teil) != nullptr ||
            qobject_cast<const QLineEdit*>(&teil) != nullptr ||
            qobject_cast<const QComboBox*>(&teil) != nullptr ||
            qobject_cast<const QAbstractScrollArea*>(&teil) != nullptr);
}

QString gruppe(const QWidget& teil) {
    for (const QWidget* w = teil.parentWidget(); w != nullptr; w = w->parentWidget())
        if (const auto* rahmen = qobject_cast<const QGroupBox*>(w)) return rahmen->title();
    return {};
}

}  // namespace

void beschreibeBedienung(QWidget& fenster) {
    for (auto* teil : fenster.findChildren<QWidget*>()) {
        if (!brauchtBeschreibung(*teil)) continue;
        const QString bekannt = beschreibungen().value(teil->accessibleName());
        teil->setAccessibleDescription(bekannt.isEmpty() ? gruppe(*teil) : bekannt);
    }
}

}  // namespace rippenscheibe
