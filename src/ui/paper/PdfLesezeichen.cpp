#include "ui/paper/PdfLesezeichen.h"

#include <QRegularExpression>
#include <QString>
#include <algorithm>
#include <map>
#include <optional>

#include "basis/Laengenmass.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

constexpr double punkteJeMm = punkteJeZoll / mmJeZoll;
constexpr double seitenhoehe = 297;  // mm

// What an update has to know of the file.
struct Aufbau {
    int objekte = 0;           // the next free number
    int katalog = 0;           // number of the catalog
    QByteArray kataloginhalt;  // between its "<<" and its end
    std::vector<int> seiten;   // numbers of the pages
    qint64 xref = 0;           // where the last table of the file begins
};

std::optional<QByteArray> gefunden(const QByteArray& in, const char* muster, qsizetype ab = 0) {
    const QRegularExpression suche(QString::fromLatin1(muster),
                                   QRegularExpression::DotMatchesEverythingOption);
    const auto treffer = suche.match(QString::fromLatin1(in), ab);
    return treffer.hasMatch() ? std::optional(treffer.captured(1).toLatin1()) : std::nullopt;
}

// The text of an object without its frame, or nothing.
std::optional<QByteArray> objekt(const QByteArray& pdf, int nummer) {
    const QByteArray anfang = "\n" + QByteArray::number(nummer) + " 0 obj\n";
    const qsizetype von = pdf.lastIndexOf(anfang);
    const qsizetype bis = von < 0 ? -1 : pdf.indexOf("endobj", von);
    if (bis < 0) return std::nullopt;
    return pdf.mid(von + anfang.size(), bis - von - anfang.size());
}

std::optional<Aufbau> aufbau(const QByteArray& pdf) {
    const qsizetype ende = pdf.lastIndexOf("trailer");
    if (ende < 0) return std::nullopt;
    const QByteArray schluss = pdf.mid(ende);
    const auto objekte = gefunden(schluss, "/Size (\\d+)");
    const auto wurzel = gefunden(schluss, "/Root (\\d+) 0 R");
    const auto xref = gefunden(schluss, "startxref\\s+(\\d+)");
    if (!objekte || !wurzel || !xref) return std::nullopt;
    Aufbau a{objekte->toInt(), wurzel->toInt(), {}, {}, xref->toLongLong()};
    const auto katalog = objekt(pdf, a.katalog);
    if (!katalog || !katalog->trimmed().startsWith("<<")) return std::nullopt;
    a.kataloginhalt = katalog->trimmed().mid(2);
    const auto baum = gefunden(a.kataloginhalt, "/Pages (\\d+) 0 R");
    const auto seiten = baum ? objekt(pdf, baum->toInt()) : std::nullopt;
    const auto liste = seiten ? gefunden(*seiten, "/Kids\\s*\\[(.*?)\\]") : std::nullopt;
    if (!liste) return std::nullopt;
    const QList<QByteArray> worte = liste->simplified().split(' ');
    for (qsizetype i = 0; i + 2 < worte.size(); i += 3) a.seiten.push_back(worte[i].toInt());
    return a;
}

// UTF-16 in hexadecimal digits, with the mark that says so.
QByteArray pdftext(const std::string& text) {
    QByteArray ziffern = "<FEFF";
    for (const QChar zeichen : qtext(text))
        ziffern += QByteArray::number(zeichen.unicode(), 16).rightJustified(4, '0').toUpper();
    return ziffern + ">";
}

// The outline as objects: the head, then an entry a heading. An entry lies below the last one of a lower
// rank.
std::map<int, QByteArray> gliederung(const Aufbau& a, const std::vector<Lesezeichen>& lesezeichen) {
    const int anzahl = static_cast<int>(lesezeichen.size());
    const int kopf = a.objekte;
    const auto nummer = [&](int i) { return kopf + 1 + i; };  // of entry i; the head is entry -1
    const auto bezug = [&](const char* name, int i) {
        return i < -1 ? QByteArray()
                      : "/" + QByteArray(name) + " " + QByteArray::number(nummer(i)) + " 0 R\n";
    };
    std::vector<int> eltern;
    for (int i = 0; i < anzahl; ++i) {
        int oben = i - 1;
        while (oben >= 0 && lesezeichen[static_cast<std::size_t>(oben)].rang >=
                                lesezeichen[static_cast<std::size_t>(i)].rang)
            oben = eltern[static_cast<std::size_t>(oben)];
        eltern.push_back(oben);
    }
    std::map<int, std::vector<int>> kinder;
    for (int i = 0; i < anzahl; ++i) kinder[eltern[static_cast<std::size_t>(i)]].push_back(i);
    const auto familie = [&](int i) {
        if (kinder[i].empty()) return QByteArray();
        // A negative count folds what lies below an entry.
        const auto zahl = static_cast<int>(kinder[i].size());
        return bezug("First", kinder[i].front()) + bezug("Last", kinder[i].back()) + "/Count " +
               QByteArray::number(i < 0 ? zahl : -zahl) + "\n";
    };
    std::map<int, QByteArray> objekte;
    objekte[kopf] = "<<\n/Type /Outlines\n" + familie(-1) + ">>";
    for (int i = 0; i < anzahl; ++i) {
        const Lesezeichen& z = lesezeichen[static_cast<std::size_t>(i)];
        const auto& geschwister = kinder[eltern[static_cast<std::size_t>(i)]];
        const auto ich = std::find(geschwister.begin(), geschwister.end(), i);
        const int vorher = ich == geschwister.begin() ? -2 : *std::prev(ich);
        const int nachher = std::next(ich) == geschwister.end() ? -2 : *std::next(ich);
        const auto seite =
            static_cast<std::size_t>(std::clamp(z.seite, 0, static_cast<int>(a.seiten.size()) - 1));
        objekte[nummer(i)] = "<<\n/Title " + pdftext(z.text) + "\n" +
                             bezug("Parent", eltern[static_cast<std::size_t>(i)]) + bezug("Prev", vorher) +
                             bezug("Next", nachher) + familie(i) + "/Dest [" +
                             QByteArray::number(a.seiten[seite]) + " 0 R /XYZ 0 " +
                             QByteArray::number((seitenhoehe - z.y) * punkteJeMm, 'f', 1) + " null]\n>>";
    }
    return objekte;
}

}  // namespace

QByteArray mitLesezeichen(QByteArray pdf, const std::vector<Lesezeichen>& lesezeichen) {
    const std::optional<Aufbau> a = aufbau(pdf);
    if (!a || a->seiten.empty() || lesezeichen.empty()) return pdf;
    std::map<int, QByteArray> objekte = gliederung(*a, lesezeichen);
    const int hoechste = objekte.rbegin()->first;
    objekte[a->katalog] =
        "<<\n/Outlines " + QByteArray::number(a->objekte) + " 0 R\n/PageMode /UseOutlines" + a->kataloginhalt;
    if (!pdf.endsWith('\n')) pdf += '\n';
    QByteArray tabelle = "xref\n";
    for (const auto& [nummer, inhalt] : objekte) {
        tabelle += QByteArray::number(nummer) + " 1\n" +
                   QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(nummer) + " 0 obj\n" + inhalt.trimmed() + "\nendobj\n";
    }
    const qsizetype ort = pdf.size();
    const QByteArray info =
        gefunden(pdf.mid(pdf.lastIndexOf("trailer")), "/Info (\\d+ 0 R)").value_or(QByteArray());
    pdf += tabelle + "trailer\n<<\n/Size " + QByteArray::number(hoechste + 1) + "\n/Root " +
           QByteArray::number(a->katalog) + " 0 R\n" +
           (info.isEmpty() ? QByteArray() : "/Info " + info + "\n") + "/Prev " + QByteArray::number(a->xref) +
           "\n>>\nstartxref\n" + QByteArray::number(ort) + "\n%%EOF\n";
    return pdf;
}

}  // namespace rippenscheibe
