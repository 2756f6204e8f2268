#include "ui/folder/Projektmodell.h"

#include <QDateTime>
#include <QLocale>
#include <QPainter>
#include <algorithm>
#include <array>
#include <chrono>

#include "files/Pfad.h"
#include "run/Zuweisen.h"
#include "ui/basics/Programm.h"
#include "ui/drawings/Zeichnungen.h"
#include "ui/studyparts/Zellen.h"
#include "ui/verdict/Ausnutzungsbalken.h"
#include "ui/verdict/Urteilsworte.h"

namespace rippenscheibe {

namespace {

constexpr std::array<const char*, Projektmodell::Spaltenzahl> koepfe{
    "Wand",       "Länge × Höhe", "Beplankung", "Verbindungsmittel", "Verankerung",
    "Ausnutzung", "maßgebend",    "offen",      "geändert"};

std::string schluessel(const Projektdatei& datei) { return pfadtext(datei.position.datei); }

QString dateiname(const Projektdatei& datei) { return qtext(pfadtext(datei.position.datei.filename())); }

QDateTime zeitpunkt(const std::filesystem::file_time_type& zeit) {
    const auto uhr = std::chrono::file_clock::to_sys(zeit);
    return QDateTime::fromMSecsSinceEpoch(
        std::chrono::duration_cast<std::chrono::milliseconds>(uhr.time_since_epoch()).count());
}

Balkenurteil balkenurteil(const Projektposition& p) {
    switch (p.stand()) {
        case Projekturteil::nichtErfuellt:
            return Balkenurteil::ueberschritten;
        case Projekturteil::erfuellt:
            return p.luecken.empty() && p.sonst.empty() ? Balkenurteil::erfuellt : Balkenurteil::ohneNachweis;
        default:
            return Balkenurteil::ohneNachweis;
    }
}

// Both sides below each other.
QString zweizeilig(const std::string& text) {
    return qtext(text).replace(QStringLiteral(" | "), QStringLiteral("\n"));
}

QString urteilswort(const Projektposition& p) {
    switch (p.stand()) {
        case Projekturteil::unlesbar:
            return QStringLiteral("! nicht lesbar");
        case Projekturteil::hinweise:
            return QStringLiteral("! Hinweise");
        default:
            return etatext(*p.urteil.maxEta);
    }
}

QString wandtext(const Projektdatei& datei, const Projektposition* p) {
    if (p == nullptr) return dateiname(datei) + QStringLiteral("\nwird gelesen ...");
    if (!p->fehler.empty()) return dateiname(datei) + QLatin1Char('\n') + qtext(p->fehler);
    const QString position = qtext(p->eingaben.Position).trimmed();
    QString text = position.isEmpty() ? dateiname(datei) : position;
    text += QLatin1Char('\n') + qtext(p->eingaben.PositionsBemerkung);
    if (!position.isEmpty()) text += QLatin1Char('\n') + dateiname(datei);
    return text;
}

QString massgebend(const Projektposition& p) {
    QString text = qtext(p.massgebend).replace(QStringLiteral(": "), QStringLiteral(":\n"));
    if (text.isEmpty() && p.stand() == Projekturteil::erfuellt) text = QStringLiteral("ohne Beanspruchung");
    return text;
}

// How many sentences of each kind there are; the sentences stand in the tool tip and below the table.
QString offen(const Projektposition& p) {
    QStringList teile;
    const auto zaehle = [&](std::size_t anzahl, const char* eines, const char* viele) {
        if (anzahl > 0) teile << QStringLiteral("%1 %2").arg(anzahl).arg(qtext(anzahl == 1 ? eines : viele));
    };
    zaehle(p.hinweise.size(), "Hinweis", "Hinweise");
    zaehle(p.luecken.size(), "Lücke", "Lücken");
    zaehle(p.sonst.empty() ? 0 : 1, "Einwand", "Einwände");
    const std::size_t gelesen = p.uebersprungen.size() + (p.lastfallfehler.empty() ? 0 : 1);
    zaehle(gelesen, "Lesefehler", "Lesefehler");
    return teile.join(QLatin1Char('\n'));
}

QString anzeige(const Projektposition& p, int spalte) {
    switch (spalte) {
        case Projektmodell::Masse:
            return qtext(p.masse);
        case Projektmodell::Beplankung:
            return zweizeilig(p.beplankung);
        case Projektmodell::Befestigung:
            return zweizeilig(p.befestigung);
        case Projektmodell::Verankerung:
            return p.verankerung.empty() ? QStringLiteral("–") : qtext(p.verankerung);
        case Projektmodell::Ausnutzung:
            return urteilswort(p);
        case Projektmodell::Massgebend:
            return massgebend(p);
        case Projektmodell::Offen:
            return offen(p);
        default:
            return {};
    }
}

// By what a column is sorted; the number of the row where names are meant.
QVariant sortierwert(const Projektposition& p, int spalte, int zeile) {
    switch (spalte) {
        case Projektmodell::Wand:
            return zeile;
        case Projektmodell::Masse:
            return p.eingaben.Wandlaenge.value();
        case Projektmodell::Ausnutzung:
            // Worst last: what does not open, then what is not computed.
            return p.stand() == Projekturteil::unlesbar   ? 1e300
                   : p.stand() == Projekturteil::hinweise ? 1e200
                                                          : *p.urteil.maxEta;
        case Projektmodell::Offen:
            return static_cast<int>(projektsaetze(p).size());
        default:
            return anzeige(p, spalte);
    }
}

}  // namespace

QStringList projektsaetze(const Projektposition& position) {
    QStringList saetze;
    const auto sage = [&](const char* vorwort, const std::string& satz) {
        if (!satz.empty()) saetze << qtext(vorwort) + qtext(satz);
    };
    sage("", position.fehler);
    for (const std::string& hinweis : position.hinweise) sage("Hinweis: ", hinweis);
    for (const std::string& luecke : position.luecken) sage("Lücke: ", luecke);
    sage("Besteht nicht ", position.sonst);
    sage("Lastfälle: ", position.lastfallfehler);
    for (const std::string& feld : position.uebersprungen) sage("Nicht gelesen: ", feld);
    return saetze;
}

Projektmodell::Projektmodell(QObject* parent) : QAbstractTableModel(parent) {}

void Projektmodell::beginne(const EigeneMaterialien& materialien) {
    beginResetModel();
    materialien_ = materialien;
    dateien_.clear();
    namen_.clear();
    zeilen_.clear();
    gelesen_.clear();
    bilder_.clear();
    endResetModel();
}

void Projektmodell::setzeDateien(std::vector<Projektdatei> dateien) {
    const auto gleicherName = [](const Projektdatei& a, const Projektdatei& b) {
        return a.position.datei == b.position.datei;
    };
    if (std::equal(dateien.begin(), dateien.end(), dateien_.begin(), dateien_.end(), gleicherName)) {
        dateien_ = std::move(dateien);
        return;
    }
    beginResetModel();
    dateien_ = std::move(dateien);
    namen_.clear();
    zeilen_.clear();
    for (const Projektdatei& datei : dateien_) {
        namen_.push_back(schluessel(datei));
        zeilen_.emplace(namen_.back(), static_cast<int>(zeilen_.size()));
    }
    endResetModel();
}

void Projektmodell::nimmAuf(const Projektposition& position) {
    const std::string name = schluessel(position.datei);
    bilder_.erase(name);
    gelesen_.insert_or_assign(name, position);
    const auto zeile = zeilen_.find(name);
    if (zeile == zeilen_.end()) return;
    Q_EMIT dataChanged(index(zeile->second, 0), index(zeile->second, Spaltenzahl - 1));
}

void Projektmodell::setzeFarben(const QPalette& palette, double dichte) {
    farben_ = palette;
    dichte_ = dichte;
    bilder_.clear();
    if (!dateien_.empty())
        Q_EMIT dataChanged(index(0, Wand), index(rowCount() - 1, Wand), {Qt::DecorationRole});
}

const Projektposition* Projektmodell::position(int zeile) const {
    const auto gelesen = gelesen_.find(namen_[static_cast<std::size_t>(zeile)]);
    return gelesen == gelesen_.end() ? nullptr : &gelesen->second;
}

int Projektmodell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(dateien_.size());
}

int Projektmodell::columnCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(Spaltenzahl);
}

// Drawn when it is first seen.
QPixmap Projektmodell::miniatur(int zeile) const {
    const Projektposition* p = position(zeile);
    if (p == nullptr || !p->fehler.empty()) return {};
    QPixmap& bild = bilder_[namen_[static_cast<std::size_t>(zeile)]];
    if (!bild.isNull()) return bild;
    rippenscheibe::Wand w;
    static_cast<Eingaben&>(w) = p->eingaben;
    w.eigeneMaterialien = materialien_;
    zuweisen(w, grundmasse(w));
    bild = QPixmap((QSizeF(Wandzelle::bildgroesse) * dichte_).toSize());
    bild.setDevicePixelRatio(dichte_);
    bild.fill(Qt::transparent);
    QPainter painter(&bild);
    painter.setRenderHint(QPainter::Antialiasing);
    zeichne(painter, QRectF(QPointF(), QSizeF(Wandzelle::bildgroesse)), Zeichnung::miniatur, w,
            Zeichenstil::zuPalette(farben_));
    return bild;
}

QVariant Projektmodell::data(const QModelIndex& index, int rolle) const {
    if (!index.isValid()) return {};
    const Projektdatei& datei = dateien_[static_cast<std::size_t>(index.row())];
    const Projektposition* p = position(index.row());
    switch (rolle) {
        case Qt::DisplayRole:
            if (index.column() == Wand) return wandtext(datei, p);
            if (index.column() == Datum)
                return QLocale()
                    .toString(zeitpunkt(datei.position.zeit), QLocale::ShortFormat)
                    .replace(QLatin1Char(' '), QLatin1Char('\n'));
            return p == nullptr || (!p->fehler.empty() && index.column() != Ausnutzung)
                       ? QString()
                       : anzeige(*p, index.column());
        case Qt::DecorationRole:
            return index.column() == Wand ? QVariant(miniatur(index.row())) : QVariant();
        case Qt::ToolTipRole:
            if (p == nullptr || index.column() == Datum) return qtext(pfadtext(datei.position.datei));
            return index.column() == Offen || !p->fehler.empty() ? projektsaetze(*p).join(QLatin1Char('\n'))
                                                                 : data(index, Qt::DisplayRole);
        case Qt::TextAlignmentRole:
            return static_cast<int>(Qt::AlignVCenter |
                                    (index.column() == Masse ? Qt::AlignRight : Qt::AlignLeft));
        case Qt::AccessibleTextRole:
            if (index.column() != Ausnutzung || p == nullptr) return data(index, Qt::DisplayRole);
            return QStringLiteral("%1, %2").arg(urteilswort(*p),
                                                rippenscheibe::urteilswort(balkenurteil(*p)));
        case Ausnutzungszelle::Eta:
            if (index.column() == Ausnutzung && p != nullptr && p->urteil.maxEta) return *p->urteil.maxEta;
            return {};
        case Ausnutzungszelle::Urteil:
            return p == nullptr ? QVariant() : static_cast<int>(balkenurteil(*p));
        case Sortierwert:
            if (index.column() == Datum) return zeitpunkt(datei.position.zeit);
            return p == nullptr ? QVariant(index.row()) : sortierwert(*p, index.column(), index.row());
        case Stand:
            return p == nullptr ? QVariant() : static_cast<int>(p->stand());
        case MitLuecken:
            return p != nullptr && (!p->luecken.empty() || !p->sonst.empty());
        case Suchtext: {
            QString text = wandtext(datei, p);
            if (p != nullptr) {
                for (int spalte = Masse; spalte < Datum; ++spalte)
                    text += QLatin1Char('\n') + anzeige(*p, spalte);
                text += QLatin1Char('\n') + projektsaetze(*p).join(QLatin1Char('\n'));
            }
            return text;
        }
        default:
            return {};
    }
}

QVariant Projektmodell::headerData(int spalte, Qt::Orientation richtung, int rolle) const {
    if (richtung != Qt::Horizontal || rolle != Qt::DisplayRole) return {};
    return qtext(koepfe[static_cast<std::size_t>(spalte)]);
}

// ---- Search and choice ----

Projektfilter::Projektfilter(QObject* parent) : QSortFilterProxyModel(parent) {
    setSortRole(Projektmodell::Sortierwert);
    setSortLocaleAware(true);
    setDynamicSortFilter(true);
}

void Projektfilter::suche(const QString& text) {
    worte_ = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    invalidate();
}

void Projektfilter::waehle(Wahl wahl) {
    wahl_ = wahl;
    invalidate();
}

bool Projektfilter::gewaehlt(const QModelIndex& index) const {
    const QVariant stand = index.data(Projektmodell::Stand);
    const auto ist = [&](Projekturteil urteil) {
        return stand.isValid() && stand.toInt() == static_cast<int>(urteil);
    };
    switch (wahl_) {
        case Wahl::alle:
            return true;
        case Wahl::erfuellt:
            return ist(Projekturteil::erfuellt);
        case Wahl::nichtErfuellt:
            return ist(Projekturteil::nichtErfuellt);
        case Wahl::luecken:
            return index.data(Projektmodell::MitLuecken).toBool();
        case Wahl::hinweise:
            return ist(Projekturteil::hinweise);
        case Wahl::unlesbar:
            return ist(Projekturteil::unlesbar);
    }
    return true;
}

// Every word has to stand somewhere in the row.
bool Projektfilter::filterAcceptsRow(int zeile, const QModelIndex& eltern) const {
    const QModelIndex index = sourceModel()->index(zeile, 0, eltern);
    if (!gewaehlt(index)) return false;
    if (worte_.isEmpty()) return true;
    const QString text = index.data(Projektmodell::Suchtext).toString();
    return std::all_of(worte_.begin(), worte_.end(),
                       [&](const QString& wort) { return text.contains(wort, Qt::CaseInsensitive); });
}

}  // namespace rippenscheibe
