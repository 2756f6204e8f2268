#include "ui/help/Form13_Systemkonfiguration.h"

#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QListWidget>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QSysInfo>
#include <QThread>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#ifdef __linux__
#include <sys/sysinfo.h>
#endif

namespace rippenscheibe {

namespace {

struct Speicher {
    quint64 gesamt = 0;
    quint64 frei = 0;
    quint64 auslagerung = 0;
    quint64 auslagerungFrei = 0;
};

// Bytes; all 0 where the platform does not tell.
Speicher speicher() {
    Speicher s;
#ifdef __linux__
    struct sysinfo info {};
    if (sysinfo(&info) == 0) {
        const quint64 einheit = info.mem_unit;
        s = {info.totalram * einheit, info.freeram * einheit, info.totalswap * einheit,
             info.freeswap * einheit};
    }
#endif
    return s;
}

QLocale deutsch() { return QLocale(QLocale::German, QLocale::Germany); }

QString bytes(quint64 anzahl) { return deutsch().toString(anzahl) + QStringLiteral(" Byte"); }

// The name the processor gives itself, else its architecture.
QString prozessortyp() {
    QFile datei(QStringLiteral("/proc/cpuinfo"));
    if (datei.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> zeilen = datei.readAll().split('\n');
        for (const QByteArray& zeile : zeilen)
            if (zeile.startsWith("model name"))
                return QString::fromUtf8(zeile.mid(zeile.indexOf(':') + 1)).simplified();
    }
    return QSysInfo::currentCpuArchitecture();
}

QString aufloesung(const QScreen& schirm) {
    const QSizeF pixel = QSizeF(schirm.size()) * schirm.devicePixelRatio();
    return QStringLiteral("%1x%2").arg(std::lround(pixel.width())).arg(std::lround(pixel.height()));
}

// A line of label, tab and value in two columns.
class Spalten : public QStyledItemDelegate {
  public:
    Spalten(int breite, QObject* parent) : QStyledItemDelegate(parent), breite_(breite) {}

    void paint(QPainter* maler, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem stil = option;
        initStyleOption(&stil, index);
        stil.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &stil, maler, stil.widget);
        const QStringList teile = stil.text.split(QLatin1Char('\t'));
        const QRect ort = option.rect.adjusted(6, 0, -6, 0);
        const bool gewaehlt = option.state & QStyle::State_Selected;
        maler->setPen(option.palette.color(gewaehlt ? QPalette::HighlightedText : QPalette::Text));
        maler->drawText(ort, Qt::AlignVCenter | Qt::AlignLeft, teile.first().trimmed());
        maler->drawText(ort.adjusted(breite_, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, teile.last());
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QString wert = index.data().toString().section(QLatin1Char('\t'), -1);
        return {breite_ + option.fontMetrics.horizontalAdvance(wert) + 16, option.fontMetrics.height() + 8};
    }

  private:
    int breite_;
};

}  // namespace

Form13::Form13(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Form13"), QStringLiteral("  Systemkonfiguration"),
              Tippen::aendertNichts),
      liste_(new QListWidget(this)) {
    liste_->setObjectName(QStringLiteral("List1"));
    liste_->setAccessibleName(QStringLiteral("Systemkonfiguration"));
    liste_->setAlternatingRowColors(true);
    const int breite =
        liste_->fontMetrics().horizontalAdvance(QStringLiteral("Auslagerungsspeicher frei")) + 32;
    liste_->setItemDelegate(new Spalten(breite, liste_));
    fuelle();
    liste_->setMinimumSize(std::max(480, liste_->sizeHintForColumn(0) + 32),
                           liste_->sizeHintForRow(0) * liste_->count() + 8);
    inhalt()->addWidget(liste_, 1);

    QPushButton* kopieren = knopf(QStringLiteral("ComKopieren"), QStringLiteral("Kopieren"));
    connect(kopieren, &QPushButton::clicked, this, [this] {
        QStringList zeilen;
        for (int i = 0; i < liste_->count(); ++i) zeilen << liste_->item(i)->text();
        QGuiApplication::clipboard()->setText(zeilen.join(QLatin1Char('\n')));
    });
    fusszeile()->insertWidget(0, kopieren);
    zurueck(QStringLiteral("Command1"));
}

bool Form13::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) fuelle();
    return Fenster::event(event);
}

void Form13::fuelle() {
    const int zeile = liste_->currentRow();
    liste_->clear();
    const auto neu = [this](const char* bezeichnung, const QString& wert) {
        liste_->addItem(QString::fromUtf8(bezeichnung) + QLatin1Char('\t') + wert);
    };
    const Speicher s = speicher();
    neu("phys. Speicher ", bytes(s.gesamt));
    neu("phys. Speicher frei", bytes(s.frei));
    neu("Auslagerungsspeicher", bytes(s.auslagerung));
    neu("Auslagerungsspeicher frei", bytes(s.auslagerungFrei));
    // The roots of the system and of its libraries, whatever the platform.
    neu("Windowsverzeichnis", QDir::toNativeSeparators(QDir::rootPath()));
    neu("Systemverzeichnis", QDir::toNativeSeparators(QLibraryInfo::path(QLibraryInfo::LibrariesPath)));
    neu("Prozessoren", QString::number(QThread::idealThreadCount()));
    neu("Prozessortyp", prozessortyp());
    if (const QScreen* schirm = QGuiApplication::primaryScreen()) {
        neu("Bildschirmauflösung", aufloesung(*schirm));
        neu("Farben", deutsch().toString(quint64{1} << std::min(schirm->depth(), 62)));
    }
    const QDateTime jetzt = QDateTime::currentDateTime();
    neu("Datum", jetzt.toString(QStringLiteral("dd.MM.yyyy")));
    neu("Uhrzeit", jetzt.toString(QStringLiteral("HH:mm:ss")));
    liste_->setCurrentRow(zeile);
}

}  // namespace rippenscheibe
