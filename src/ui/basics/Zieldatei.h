#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace rippenscheibe {

class Meldungen;
class Programm;
struct Dateiwahl;

// Where the file dialogs begin: beside the open file. Saving under another name begins in the folder of the
// project or of the settings, as long as there is one.
QString dialogordner(const Programm& programm);

// The name, without ending, that a dialog proposes for something of the position: that of its file, else the
// position and its remark.
QString dateivorschlag(const Programm& programm);
// A text as the name of a file: characters that part folders in a path become a dash.
QString alsDateiname(QString text);

// Lets the user choose a file to write; nothing after a cancel. Asks again while its folder does not exist.
std::optional<QString> waehleZiel(Meldungen& meldungen, QWidget* fenster, const Dateiwahl& wahl);

// The choice of a position file.
Dateiwahl positionswahl(const QString& titel, const QString& ordner, const QString& vorschlag);
// The same to write it, by the name as it was chosen. Asks where the ending behind that name makes it the
// name of a file that is there.
std::optional<QString> waehlePositionsziel(Meldungen& meldungen, QWidget* fenster, const Dateiwahl& wahl);

}  // namespace rippenscheibe
