#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QObject>
#include <QTimer>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "ui/basics/Programm.h"

namespace rippenscheibe {

class Meldungen;

// Keeps the position beside the program's data while it has unsaved changes, a minute old at most, and
// offers it again when the program did not end in order. It never touches the user's file.
//
// Each running program holds one numbered slot by a lock: "Sicherung-1.rsw" with the position and
// "Sicherung-1.txt" with the name of its file. A slot with a position and without a living owner is what
// a crash left.
class Sicherungskopie : public QObject {
    Q_OBJECT

  public:
    explicit Sicherungskopie(Programm& programm, QObject* parent = nullptr);

    static constexpr int abstand = 60'000;  // ms

    // Offers what crashed programs left, the newest first. True when the user took one: the record holds it
    // then, unsaved, under the name of its file. A copy that cannot be read is reported and kept; one that
    // was taken is kept too while no new copy could be written.
    bool stelleWiederHer(Meldungen& meldungen, QWidget* fenster);
    // Writes the copy when there are unsaved changes that it does not hold yet. False when they are not safe.
    bool sichere();
    // The program ends in order: nothing is left.
    void raeumeAuf();

  private:
    struct Platz {
        int nummer;
        std::unique_ptr<QLockFile> sperre;
    };

    std::filesystem::path datei(int nummer, const char* endung) const;
    std::optional<Platz> belege(int nummer) const;
    void loesche(int nummer) const;
    void folgeZustand();

    Programm& programm_;
    std::optional<Platz> platz_;
    QTimer uhr_;
    std::string gesichert_;  // the text that the copy holds
};

}  // namespace rippenscheibe
