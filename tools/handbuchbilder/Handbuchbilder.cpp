#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QGroupBox>
#include <QHash>
#include <QPainter>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <functional>
#include <vector>

#include "Bilder.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Pfadwahl.h"
#include "ui/main/Form0_Startbild.h"
#include "ui/main/Form1_Hauptfenster.h"

// Takes the pictures of the handbook: opens the windows of the program over example positions by their own
// buttons and menu entries and saves each as form<n>.png, lettered where its chapter speaks of parts A, B, C.
//
//     handbuchbilder ORDNER HAUPTPOSITION ZWEISEITIGE-POSITION

using namespace rippenscheibe;

namespace {

constexpr int ruhe = 400;  // ms a window has to settle

// One window: the control of the window before it that opens it, and the windows that open from it. A window
// that has a picture already gets another name, and no letters.
struct Schritt {
    const char* steuerung;
    std::vector<Schritt> weiter;
    const char* bild = nullptr;
};

QString bilderordner;

// The parts of each window in the order of their letters: by object name, title of a group or class.
const QHash<QString, QStringList>& buchstaben() {
    const auto liste = [](const char* teile) { return QString::fromUtf8(teile).split(QLatin1Char('|')); };
    static const QHash<QString, QStringList> alle{
        {QStringLiteral("Form1"),
         liste("Abmessungen|Eingabe|SofortUrteil|ComErgDruck|Zeichnungsansicht|List1")},
        {QStringLiteral("Form2"), liste("Querschnitte|Check1|Material|Zeichnungsansicht")},
        {QStringLiteral("Form4"), liste("Option1(0)|Frame1|Frame2|ComProfile|Zeichnungsansicht")},
        {QStringLiteral("Form5"), liste("Frame1|Frame2|ComInfo2|Zeichnungsansicht")},
        {QStringLiteral("Form7"), liste("Check1|Zuganker|Nägel und Kennwerte|Zeichnungsansicht")},
        {QStringLiteral("Form9"),
         liste("Beanspruchung|KLED|Charakteristische Lasten|Command2|Zeichnungsansicht")},
        {QStringLiteral("Form12"), liste("Berechnungsverfahren|Tragfähigkeit der Verbindungsmittel|Klammern|"
                                         "Verteilung der Vertikallasten|Nachweis der Lagesicherheit")},
        {QStringLiteral("Form23"), liste("Urteilsstreifen|Ausnutzungsbaum|Rbox1|Herleitungsansicht|ComSave")},
        {QStringLiteral("Form6"), liste("Frame1|Frame5|Vorschau|Command1")},
        {QStringLiteral("Form8"), liste("List1|Check1|Text3|Check3")}};
    return alle;
}

bool heisst(const QWidget& teil, const QString& name) {
    const auto* gruppe = qobject_cast<const QGroupBox*>(&teil);
    return teil.objectName() == name ||
           (gruppe != nullptr && gruppe->title().remove(QLatin1Char('&')) == name) ||
           QString::fromLatin1(teil.metaObject()->className()).endsWith(QStringLiteral("::") + name);
}

void beschrifte(QPixmap& bild, const QWidget& fenster) {
    constexpr int durchmesser = 22;  // px
    QPainter maler(&bild);
    maler.setRenderHint(QPainter::Antialiasing);
    QFont schrift = fenster.font();
    schrift.setBold(true);
    maler.setFont(schrift);
    char16_t buchstabe = u'A';
    for (const QString& name : buchstaben().value(fenster.objectName())) {
        const QWidget* gemeint = nullptr;
        for (const QWidget* teil : fenster.findChildren<QWidget*>())
            if (gemeint == nullptr && teil->isVisibleTo(&fenster) && heisst(*teil, name)) gemeint = teil;
        if (gemeint == nullptr) std::fprintf(stderr, "nothing is called %s\n", qPrintable(name));
        QRect kreis(0, 0, durchmesser, durchmesser);
        if (gemeint != nullptr) kreis.moveCenter(gemeint->mapTo(&fenster, gemeint->rect().topRight()));
        kreis.moveRight(std::min(kreis.right(), fenster.width() - 1));
        kreis.moveTop(std::max(kreis.top(), 0));
        maler.setPen(QPen(Qt::white, 2));
        maler.setBrush(QColor(0xC0, 0x39, 0x2B));
        maler.drawEllipse(kreis);
        maler.drawText(kreis, Qt::AlignCenter, QString(QChar(buchstabe++)));
    }
}

void sichere(QWidget& fenster, const char* name = nullptr) {
    QPixmap bild = fenster.grab();
    if (name == nullptr) beschrifte(bild, fenster);
    sichereBild(bild, bilderordner,
                name == nullptr ? fenster.objectName().toLower() : QString::fromLatin1(name));
}

// The visible window in front of `vorher`, nullptr when none has opened.
QWidget* neuesFenster(const QWidget& vorher) {
    if (QWidget* modal = QApplication::activeModalWidget(); modal != nullptr && modal != &vorher)
        return modal;
    for (QWidget* fenster : QApplication::topLevelWidgets())
        if (fenster->isVisible() && fenster != &vorher && fenster->parentWidget() == &vorher) return fenster;
    return nullptr;
}

void betaetige(QWidget& fenster, const char* name) {
    if (auto* knopf = fenster.findChild<QAbstractButton*>(QLatin1String(name))) return knopf->click();
    if (auto* aktion = fenster.findChild<QAction*>(QLatin1String(name))) return aktion->trigger();
    std::fprintf(stderr, "%s has no control %s\n", qPrintable(fenster.objectName()), name);
}

void fotografiere(QWidget& fenster, const std::vector<Schritt>& schritte) {
    for (const Schritt& schritt : schritte) {
        bool fertig = false;
        // Modal windows hold the click below until they are closed: the picture is taken from a timer.
        QTimer::singleShot(ruhe, &fenster, [&] {
            if (QWidget* offen = neuesFenster(fenster)) {
                warte(ruhe);
                sichere(*offen, schritt.bild);
                fotografiere(*offen, schritt.weiter);
                offen->close();
            } else {
                std::fprintf(stderr, "%s opens nothing\n", schritt.steuerung);
            }
            fertig = true;
        });
        betaetige(fenster, schritt.steuerung);
        while (!fertig) warte(20);
        warte(20);
    }
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: handbuchbilder ORDNER HAUPTPOSITION ZWEISEITIGE-POSITION\n");
        return 64;
    }
    bilderordner = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(bilderordner);
    stelleAufDeutsch();

    const QTemporaryDir ordner;
    Programm programm(pfad(ordner.path()));
    Plattformmeldungen meldungen;
    Form0 startbild(programm);
    startbild.show();
    warte(ruhe);
    sichere(startbild);
    startbild.close();

    Form1 hauptfenster(programm, meldungen);
    hauptfenster.show();
    hauptfenster.starte(QString::fromLocal8Bit(argv[2]));
    programm.Positionspfad = "/home/planung/Ahornweg/";
    warte(ruhe);
    sichere(hauptfenster);
    fotografiere(hauptfenster, {{"mnuProjekt", {}},
                                {"mnuvorb", {{"Command4", {}}}},
                                {"ComErgDruck", {}},
                                {"ComErgEin2", {}},
                                {"mnuRechenweg", {}, "rechenweg"}});
    hauptfenster.hide();

    Programm zweites(pfad(ordner.path()));
    Form1 zweiseitig(zweites, meldungen);
    zweiseitig.show();
    zweiseitig.starte(QString::fromLocal8Bit(argv[3]));
    warte(ruhe);
    fotografiere(zweiseitig, {{"Command5", {{"ComInfo2", {}}}},
                              {"Command1", {{"ComProfile", {}}}},
                              {"Command2", {{"ComInfo2", {}}}},
                              {"Command3", {}},
                              {"Command4", {{"Command2", {}}}},
                              {"Command6", {}},
                              {"ComInfo2", {}},
                              {"mnupocketcalc", {}},
                              {"mnuKalender", {}},
                              {"mnuoptions", {}}});
    zweiseitig.hide();
    return 0;
}
