#include "ui/output/Form23_Text.h"

#include <QBuffer>
#include <QMimeData>
#include <QPixmap>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QUrl>
#include <cmath>

#include "basis/Laengenmass.h"
#include "report/Rtfausgabe.h"
#include "report/Textausgabe.h"
#include "ui/basics/Programm.h"
#include "ui/paper/Seitenmaler.h"

namespace rippenscheibe {

namespace {

constexpr double mmJePixel = mmJeZoll / 96;           // sizes inside a document count 96 to the inch
constexpr int farbe = QTextFormat::UserProperty + 1;  // the colour of a run, whatever the screen shows

const QString datenkopf = QStringLiteral("data:image/png;base64,");

QTextCharFormat format(const Schrift& schrift, bool dunklerGrund) {
    QTextCharFormat f;
    QFont font = papierschrift(schrift);
    font.setHintingPreference(QFont::PreferDefaultHinting);  // it is read on the screen
    f.setFont(font);
    if (schrift.farbe == Farbe::schwarz) return f;  // the ink of the palette
    f.setProperty(farbe, static_cast<uint>(schrift.farbe));
    const QColor ton = QColor::fromRgb(static_cast<QRgb>(schrift.farbe));
    f.setForeground(dunklerGrund ? QColor::fromHslF(ton.hslHueF(), ton.hslSaturationF(), 0.75F) : ton);
    return f;
}

Schrift schriftAus(const QTextCharFormat& f) {
    const QFont font = f.font();
    Schrift s;
    if (f.hasProperty(QTextFormat::FontFamilies) && !font.families().isEmpty())
        s.name = utf8(font.families().constFirst());
    // Pasted text may be sized in pixels, or not at all.
    if (font.pointSizeF() > 0 && f.hasProperty(QTextFormat::FontPointSize))
        s.groesse = static_cast<int>(std::lround(font.pointSizeF()));
    else if (f.hasProperty(QTextFormat::FontPixelSize))
        s.groesse = static_cast<int>(std::lround(font.pixelSize() * 72.0 / 96.0));
    s.fett = font.bold();
    s.kursiv = font.italic();
    s.unterstrichen = f.fontUnderline();
    if (f.hasProperty(farbe))
        s.farbe = static_cast<Farbe>(f.property(farbe).toUInt());
    else if (f.hasProperty(QTextFormat::ForegroundBrush))
        s.farbe = static_cast<Farbe>(f.foreground().color().rgb() & 0xFFFFFFU);
    return s;
}

QImage bildAus(const QTextDocument& dokument, const QString& name) {
    const QVariant inhalt = dokument.resource(QTextDocument::ImageResource, QUrl(name));
    if (inhalt.canConvert<QImage>() && !inhalt.value<QImage>().isNull()) return inhalt.value<QImage>();
    if (inhalt.canConvert<QPixmap>() && !inhalt.value<QPixmap>().isNull())
        return inhalt.value<QPixmap>().toImage();
    return QImage::fromData(inhalt.toByteArray());
}

QByteArray alsPng(const QImage& image) {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    image.save(&puffer, "PNG");
    return bytes;
}

// A picture of the document; without bytes when the document cannot show it either.
Textbild textbild(const QTextDocument& dokument, const QTextImageFormat& f) {
    QByteArray png;
    QSizeF groesse(f.width(), f.height());
    if (f.name().startsWith(datenkopf))
        png = QByteArray::fromBase64(f.name().mid(datenkopf.size()).toLatin1());
    if (png.isEmpty() || groesse.width() <= 0 || groesse.height() <= 0) {
        const QImage image = png.isEmpty() ? bildAus(dokument, f.name()) : QImage::fromData(png);
        if (image.isNull()) return {};
        png = alsPng(image);
        if (groesse.width() <= 0) groesse.setWidth(image.width());
        if (groesse.height() <= 0) groesse.setHeight(image.height());
    }
    return {png.toStdString(), groesse.width() * mmJePixel, groesse.height() * mmJePixel};
}

// One block of the document, as one paragraph or, behind each picture, another.
void haengeBlockAn(Fliesstext& text, const QTextDocument& dokument, const QTextBlock& block) {
    text.emplace_back();
    for (auto stelle = block.begin(); !stelle.atEnd(); ++stelle) {
        const QTextFragment teil = stelle.fragment();
        const QTextCharFormat f = teil.charFormat();
        if (f.isImageFormat()) {
            // Equal pictures side by side are one fragment of several characters.
            const Textbild bild = textbild(dokument, f.toImageFormat());
            if (bild.png.empty()) continue;
            for (int i = 0; i < teil.length(); ++i) text.back().bilder.push_back(bild);
            continue;
        }
        if (!text.back().bilder.empty()) text.emplace_back();
        QString worte = teil.text();
        worte.replace(QChar::LineSeparator, QLatin1Char('\n'));
        worte.remove(QChar::ObjectReplacementCharacter);
        if (!worte.isEmpty()) text.back().laeufe.push_back({utf8(worte), schriftAus(f)});
    }
}

}  // namespace

std::vector<int> fuelleDokument(QTextDocument& dokument, const Fliesstext& text, bool dunklerGrund) {
    std::vector<int> bloecke;
    dokument.setUndoRedoEnabled(false);
    dokument.setDefaultFont(papierschrift({}));
    QTextCursor cursor(&dokument);
    cursor.beginEditBlock();
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i > 0) cursor.insertBlock({}, format({}, dunklerGrund));
        for (const Textlauf& lauf : text[i].laeufe)
            cursor.insertText(qtext(lauf.text), format(lauf.schrift, dunklerGrund));
        if (text[i].ausnutzung) bloecke.push_back(static_cast<int>(i));
    }
    cursor.endEditBlock();
    dokument.setUndoRedoEnabled(true);
    dokument.setModified(false);
    return bloecke;
}

Fliesstext fliesstextAus(const QTextDocument& dokument) {
    Fliesstext text;
    for (QTextBlock block = dokument.begin(); block.isValid(); block = block.next())
        haengeBlockAn(text, dokument, block);
    return text;
}

// The name of the picture is the picture itself, so that it stays whole when it is copied.
QUrl fuegeBildEin(QTextCursor cursor, const QByteArray& png, QSizeF mm, const QImage& schirmbild) {
    QTextImageFormat f;
    f.setName(datenkopf + QString::fromLatin1(png.toBase64()));
    cursor.document()->addResource(QTextDocument::ImageResource, QUrl(f.name()), schirmbild);
    f.setWidth(mm.width() / mmJePixel);
    f.setHeight(mm.height() / mmJePixel);
    cursor.insertImage(f);
    return f.name();
}

QVariant Ergebnisdokument::loadResource(int art, const QUrl& name) {
    return name.scheme() == QStringLiteral("data") ? QTextDocument::loadResource(art, name) : QVariant();
}

Ergebnisfeld::Ergebnisfeld(QWidget* parent) : QTextEdit(parent) { setDocument(new Ergebnisdokument(this)); }

QMimeData* Ergebnisfeld::createMimeDataFromSelection() const {
    const QTextDocumentFragment auswahl(textCursor());
    Ergebnisdokument teil;
    QTextCursor(&teil).insertFragment(auswahl);
    const Fliesstext text = fliesstextAus(teil);
    auto* daten = new QMimeData;
    daten->setText(qtext(alsText(text)));
    daten->setHtml(auswahl.toHtml());
    const QByteArray rtf = QByteArray::fromStdString(alsRtf(text));
    daten->setData(QStringLiteral("text/rtf"), rtf);
    daten->setData(QStringLiteral("application/rtf"), rtf);
    return daten;
}

// A picture that cannot be had from the document would be looked for on the disk when it is laid out: it goes
// before that.
void Ergebnisfeld::insertFromMimeData(const QMimeData* daten) {
    if (!daten->hasHtml() || isReadOnly()) return QTextEdit::insertFromMimeData(daten);
    Ergebnisdokument teil;
    teil.setHtml(daten->html());
    QTextCursor fremdes(&teil);
    while (!fremdes.atEnd()) {
        fremdes.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
        const QTextCharFormat f = fremdes.charFormat();
        if (f.isImageFormat() && !f.toImageFormat().name().startsWith(datenkopf))
            fremdes.removeSelectedText();
        else
            fremdes.clearSelection();
    }
    textCursor().insertFragment(QTextDocumentFragment(&teil));
    ensureCursorVisible();
}

}  // namespace rippenscheibe
