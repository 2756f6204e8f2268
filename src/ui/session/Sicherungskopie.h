#pragma once

#include <QObject>
#include <QTimer>
#include <optional>
#include <string>

#include "files/Kopie.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

class Meldungen;

// Keeps the position beside the program's data while it has unsaved changes, a minute old at most, and
// offers it again when the program did not end in order. It never touches the user's file.
//
// Each running program holds one numbered place (files/Kopie.h). One with a copy and without a living owner
// is what a crash left.
class Sicherungskopie : public QObject {
    Q_OBJECT

  public:
    explicit Sicherungskopie(Programm& programm, QObject* parent = nullptr);

    static constexpr int abstand = 60'000;  // ms

    // Offers what crashed programs left, the newest first: the old content of files that were being
    // overwritten, then unsaved positions. True when the user took a position: the record holds it then,
    // unsaved, under the name of its file. A copy that cannot be read is reported and kept; one that was
    // taken is kept too while no new copy could be written.
    bool stelleWiederHer(Meldungen& meldungen, QWidget* fenster);
    // Writes the copy when there are unsaved changes that it does not hold yet. False when they are not safe.
    bool sichere();
    // The program ends in order: nothing is left.
    void raeumeAuf();

  private:
    void stelleUeberschriebeneWiederHer(Meldungen& meldungen, QWidget* fenster) const;
    void uebernimm(const std::string& name, const Wand& w);
    void folgeZustand();

    Programm& programm_;
    std::optional<Kopieplatz> platz_;
    QTimer uhr_;
    Kopie gesichert_;  // what the copy holds
};

}  // namespace rippenscheibe
