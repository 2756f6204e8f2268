#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "files/Dateischreiber.h"
#include "report/Bericht.h"
#include "report/Seiten.h"
#include "ui/paper/Dokument.h"
#include "ui/paper/PdfLesezeichen.h"

class QPagedPaintDevice;
class QWidget;

namespace rippenscheibe {

class Meldungen;
class Programm;

// A printout of the report: which form of it, with what head, foot and page numbers.
struct Ausdruck {
    Form form = Form::lang;
    Berichtsoptionen optionen;
    Druckauftrag auftrag;
    QImage logo;
    std::shared_ptr<const Dokument> dokument;  // in place of the report
};

// The printout that the settings ask for. Pages are numbered from 1 when numbers are standard.
Ausdruck standardausdruck(const Wand& w, const Einstellungen& e, const QImage& logo);

// The user's logo of the page head; empty when there is none.
QImage liesLogo(const std::filesystem::path& programmordner);

// Title of a document: project and position.
QString dokumenttitel(const Wand& w);

// Lays the printout out on pages of a surface.
Druckergebnis setze(Zeichenflaeche& flaeche, const Wand& w, const Ausdruck& ausdruck);

// Opens a printer or a PDF and hands `zeichne` the surface of its pages, which begin at the corner of the
// paper. The first line that the right edge of the paper cuts off comes back, empty when none does; nothing
// when the device cannot be drawn on.
std::optional<QString> aufGeraet(QPagedPaintDevice& geraet, const Wand& w, const Ausdruck& ausdruck,
                                 const std::function<void(Zeichenflaeche&)>& zeichne);
// What is said of such a line.
QString abgeschnittenText(const QString& zeile);

// The printout as a PDF file on A4: text is text, fonts are embedded. The same input gives the same bytes
// except for the dates.
struct Pdf {
    QByteArray bytes;
    Druckergebnis ergebnis;
    QString abgeschnitten;  // the first line that the paper cuts off, empty when none is
};
Pdf pdf(const Wand& w, const Ausdruck& ausdruck);

// A PDF of several printouts, one behind the other, built in any thread.
class Pdfdokument {
  public:
    // `kennung`: what makes the file the same the next time.
    Pdfdokument(const QString& titel, const std::string& kennung);

    // The printout begins on a page of its own. A name stands in the outline, and its headings below it.
    Druckergebnis haengeAn(const Wand& w, const Ausdruck& ausdruck, const std::string& name = {});
    int seiten() const { return seiten_; }
    // The file; the result counts all pages.
    Pdf schliesse();

  private:
    Pdf datei_;
    QBuffer puffer_{&datei_.bytes};
    QPdfWriter schreiber_{&puffer_};
    QPainter painter_;
    std::vector<Lesezeichen> lesezeichen_;
    int seiten_ = 0;
};

// Asks for a file and writes the PDF of the open position there; nothing when the user cancels or the file
// cannot be written, which is reported.
std::optional<Druckergebnis> speicherePdf(Programm& programm, Meldungen& meldungen, QWidget* fenster,
                                          const Ausdruck& ausdruck);

}  // namespace rippenscheibe
