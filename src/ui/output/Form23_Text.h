#pragma once

#include <QByteArray>
#include <QTextDocument>
#include <QTextEdit>
#include <QUrl>
#include <vector>

#include "report/Fliesstext.h"

// The running text of the report in an editable document, both ways.

namespace rippenscheibe {

// Fills an empty document: a block a paragraph. On a dark ground colours are lightened for the screen; the
// document keeps what they are. Returns the number of the block of each paragraph that has a utilisation, in
// their order.
std::vector<int> fuelleDokument(QTextDocument& dokument, const Fliesstext& text, bool dunklerGrund);

// The document as running text, with all that was edited: fonts, colours, pictures. A picture inside a
// line ends the paragraph.
Fliesstext fliesstextAus(const QTextDocument& dokument);

// A picture at the cursor, of the given size in mm. The bytes stay in the text; `schirmbild` is what it
// shows. Returns the name of the picture in the document.
QUrl fuegeBildEin(QTextCursor cursor, const QByteArray& png, QSizeF mm, const QImage& schirmbild);

// A document that reads no files: what HTML names is loaded only when the name itself holds it.
class Ergebnisdokument : public QTextDocument {
    Q_OBJECT

  public:
    using QTextDocument::QTextDocument;

  protected:
    QVariant loadResource(int art, const QUrl& name) override;
};

// The rich-text box of the result view. What is copied from it is plain text, HTML and RTF at once.
class Ergebnisfeld : public QTextEdit {
    Q_OBJECT

  public:
    explicit Ergebnisfeld(QWidget* parent);

  protected:
    QMimeData* createMimeDataFromSelection() const override;
    // Takes in what HTML says without the files that it names.
    void insertFromMimeData(const QMimeData* daten) override;
};

}  // namespace rippenscheibe
