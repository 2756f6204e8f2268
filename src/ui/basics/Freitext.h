#pragma once

#include <initializer_list>

class QLineEdit;
class QWidget;

namespace rippenscheibe {

class Meldungen;

// Texts that the user types freely. The files hold them between double quotes and know no way to write one
// inside: it would end the text there, and what follows would be lost.

// Makes double quotes in these text boxes (line edits, plain text edits, editable lists) single ones, with
// one note if there were any. Called where the texts are taken over.
void ersetzeAnfuehrungszeichen(Meldungen& meldungen, QWidget* fenster,
                               std::initializer_list<QWidget*> felder);

// Whether a folder can be stored. One with a double quote is refused with a note, for it would be another
// folder with a single one; the box takes the focus.
bool pfadIstSpeicherbar(Meldungen& meldungen, QLineEdit& feld);

}  // namespace rippenscheibe
