#pragma once

#include <QObject>
#include <filesystem>
#include <map>
#include <memory>
#include <vector>

#include "study/Projekt.h"
#include "ui/studyparts/Hintergrund.h"

class QFileSystemWatcher;
class QTimer;

namespace rippenscheibe {

// Reads the positions of a folder in threads of its own, and again those that change there.
class Projektleser : public QObject {
    Q_OBJECT

  public:
    explicit Projektleser(QObject* parent);

    // Reads all of it and follows it from then on; another folder is forgotten.
    void beginne(const std::filesystem::path& ordner, const EigeneMaterialien& materialien);
    const std::filesystem::path& ordner() const { return ordner_; }

  Q_SIGNALS:
    // The files there are now, or none and why the folder cannot be read.
    void gefunden(const std::vector<Projektdatei>& dateien, const QString& fehler);
    // Then what is new or changed, in the order of the files.
    void gelesen(const Projektposition& position);
    // Behind some of both, and at the end; with a sentence where the reading ended by a fault.
    void vorangekommen(const QString& fehler);

  private:
    struct Eingang;  // what the threads hand over

    static void lies(Eingang& eingang, const std::filesystem::path& ordner,
                     const std::map<std::filesystem::path, Projektdatei>& bekannte,
                     const EigeneMaterialien& materialien, const Ausfuehrung& ausfuehrung);
    void liesNeu();
    void nimmEntgegen();
    void schliesseAb(const QString& fehler);
    void beobachte();

    std::filesystem::path ordner_;
    EigeneMaterialien materialien_;
    std::vector<Projektdatei> dateien_;
    std::map<std::filesystem::path, Projektdatei> bekannte_;  // as they were read
    QFileSystemWatcher* waechter_;
    QTimer* ruhe_;  // behind a burst of changes the folder is read once
    std::shared_ptr<Eingang> eingang_;
    bool nochmal_ = false;     // the folder changed while it was read
    Hintergrund hintergrund_;  // the last: it stops before the others go
};

}  // namespace rippenscheibe
