#include "ui/folder/Lastfallmodell.h"

#include <QGuiApplication>
#include <QPalette>
#include <algorithm>

#include "model/Kataloge.h"
#include "study/Felder.h"
#include "study/Lastfaelle.h"
#include "ui/basics/Programm.h"
#include "ui/studyparts/Zellen.h"
#include "ui/verdict/Ausnutzungsbalken.h"
#include "ui/verdict/Urteilsworte.h"

namespace rippenscheibe {

namespace {

// What a column is called and how it is entered, in the order of the table's file.
enum class Eingabe { zahl, lastfall, kled, haken };
struct Lastspalte {
    const char* kopf;
    const char* tip;
    Eingabe eingabe = Eingabe::zahl;
};
constexpr std::array<Lastspalte, Lastfallmodell::lasten> spalten{{
    {"Scheibe", "Scheibenbeanspruchung: horizontal, vertikal oder beides", Eingabe::lastfall},
    {"KLED", "Klasse der Lasteinwirkungsdauer", Eingabe::kled},
    {"Fv,k\nkN", "Horizontallast, veränderlich, aus Wind; links herum negativ"},
    {"g,k\nkN/m", "Gleichlast am Wandkopf, ständig"},
    {"q,k\nkN/m", "Gleichlast am Wandkopf, veränderlich"},
    {"w,k\nkN/m²", "Wind quer zur Wand, Sog negativ"},
    {"Wind\nquer", "Wind quer zur Wandebene vorhanden", Eingabe::haken},
    {"Fc,g,k\nkN", "Einzellasten auf die Rippen, ständig"},
    {"Fc,q,k\nkN", "Einzellasten auf die Rippen, veränderlich"},
}};

Csvform schreibweise() { return {';', dezimalzeichen()}; }

int feldindex(int last) { return eingabeindex(lastfallspalten()[static_cast<std::size_t>(last)]); }

const Lastspalte& lastspalte(int spalte) {
    return spalten[static_cast<std::size_t>(spalte - Lastfallmodell::ersteLast)];
}

bool istLast(int spalte) {
    return spalte >= Lastfallmodell::ersteLast && spalte < Lastfallmodell::Ausnutzung;
}

}  // namespace

Lastfallmodell::Lastfallmodell(const Wand& wand, QObject* parent)
    : QAbstractTableModel(parent), eingaben_(wand), materialien_(wand.eigeneMaterialien) {}

void Lastfallmodell::setzeFaelle(const std::vector<Lastfallzeile>& faelle) {
    beginResetModel();
    zeilen_.clear();
    for (const Lastfallzeile& quelle : faelle) {
        Zeile zeile{qtext(quelle.name), {}, {}, {}};
        for (const auto& [feld, gesetzt] : quelle.werte)
            for (int last = 0; last < lasten; ++last)
                if (feldindex(last) == feld)
                    zeile.texte[static_cast<std::size_t>(last)] =
                        qtext(lastfallzelle(gesetzt, schreibweise()));
        zeilen_.push_back(std::move(zeile));
    }
    rechne();
    endResetModel();
    Q_EMIT gerechnet();
}

std::optional<std::vector<Lastfallzeile>> Lastfallmodell::faelle() const {
    std::vector<Lastfallzeile> faelle;
    for (const Zeile& zeile : zeilen_) {
        auto einer = fall(zeile);
        if (!einer) return std::nullopt;
        faelle.push_back(std::move(*einer));
    }
    return faelle;
}

QModelIndex Lastfallmodell::abgelehnt() const {
    for (std::size_t i = 0; i < zeilen_.size(); ++i)
        for (int last = 0; last < lasten; ++last)
            if (!zeilen_[i].einwaende[static_cast<std::size_t>(last)].isEmpty())
                return index(static_cast<int>(i), ersteLast + last);
    return {};
}

int Lastfallmodell::fuegeEin(int vorlage) {
    const int ziel = vorlage < 0 ? rowCount() : vorlage + 1;
    Zeile neu{QStringLiteral("Lastfall %1").arg(rowCount() + 1), {}, {}, {}};
    if (vorlage >= 0) neu = zeilen_[static_cast<std::size_t>(vorlage)];
    if (vorlage >= 0) neu.name += QStringLiteral(" (2)");
    beginInsertRows({}, ziel, ziel);
    zeilen_.insert(zeilen_.begin() + ziel, std::move(neu));
    rechne();
    endInsertRows();
    Q_EMIT gerechnet();
    return ziel;
}

void Lastfallmodell::loesche(int zeile) {
    beginRemoveRows({}, zeile, zeile);
    zeilen_.erase(zeilen_.begin() + zeile);
    rechne();
    endRemoveRows();
    Q_EMIT gerechnet();
}

const Fallurteil* Lastfallmodell::urteil(int zeile) const {
    if (zeile < 0 || zeile >= rowCount()) return nullptr;
    const auto& urteil = zeilen_[static_cast<std::size_t>(zeile)].urteil;
    return urteil ? &*urteil : nullptr;
}

QStringList Lastfallmodell::auswahl(int spalte) {
    if (!istLast(spalte)) return {};
    QStringList worte;
    if (lastspalte(spalte).eingabe == Eingabe::lastfall)
        worte = {QStringLiteral("horizontal"), QStringLiteral("vertikal"), QStringLiteral("beides")};
    if (lastspalte(spalte).eingabe == Eingabe::kled)
        for (const std::string_view name : KLEDNamen()) worte << qtext(name);
    return worte;
}

// ---- From texts to cases ----

void Lastfallmodell::pruefe(Zeile& zeile) const {
    for (int last = 0; last < lasten; ++last) {
        const auto i = static_cast<std::size_t>(last);
        zeile.einwaende[i].clear();
        if (zeile.texte[i].isEmpty()) continue;
        const auto wert = lastfallwert(lastfallspalten()[i], utf8(zeile.texte[i]), schreibweise());
        if (const auto* satz = std::get_if<std::string>(&wert)) zeile.einwaende[i] = qtext(*satz);
    }
}

std::optional<Lastfallzeile> Lastfallmodell::fall(const Zeile& zeile) const {
    Lastfallzeile fall{utf8(zeile.name), {}};
    for (int last = 0; last < lasten; ++last) {
        const auto i = static_cast<std::size_t>(last);
        if (zeile.texte[i].isEmpty()) continue;
        auto wert = lastfallwert(lastfallspalten()[i], utf8(zeile.texte[i]), schreibweise());
        if (std::holds_alternative<std::string>(wert)) return std::nullopt;
        fall.werte.emplace_back(feldindex(last), std::get<Feldwert>(std::move(wert)));
    }
    return fall;
}

void Lastfallmodell::rechne() {
    std::vector<Lastfallzeile> faelle;
    std::vector<int> nummern;
    for (std::size_t i = 0; i < zeilen_.size(); ++i) {
        pruefe(zeilen_[i]);
        zeilen_[i].urteil.reset();
        auto einer = fall(zeilen_[i]);
        if (!einer) continue;
        faelle.push_back(std::move(*einer));
        nummern.push_back(static_cast<int>(i));
    }
    const auto urteile = fallurteile(eingaben_, materialien_, faelle);
    for (std::size_t i = 0; i < urteile.size(); ++i)
        zeilen_[static_cast<std::size_t>(nummern[i])].urteil = urteile[i];
    const int groesster = massgebenderFall(urteile);
    massgebend_ = groesster < 0 ? -1 : nummern[static_cast<std::size_t>(groesster)];
}

// ---- As a table ----

int Lastfallmodell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(zeilen_.size());
}

int Lastfallmodell::columnCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(Spaltenzahl);
}

QString Lastfallmodell::wert(const Zeile& zeile, int last) const {
    const QString& eigener = zeile.texte[static_cast<std::size_t>(last)];
    if (!eigener.isEmpty()) return eigener;
    Wand w;
    static_cast<Eingaben&>(w) = eingaben_;
    const int feld = feldindex(last);
    const Feldzugriff felder(w);
    if (eingabefeld(feld).typ == Feldart::wahr)
        return felder.zahl(feld) != 0 ? QStringLiteral("1") : QStringLiteral("0");
    std::string json;
    felder.anfuegeEingabe(json, feld);
    return qtext(mitDezimalzeichen(json, schreibweise()));
}

QString Lastfallmodell::lasttext(const Zeile& zeile, int last) const {
    const QString zelle = wert(zeile, last);
    const QStringList worte = auswahl(ersteLast + last);
    const int nummer = zelle.toInt();
    return nummer >= 1 && nummer <= worte.size() ? worte[nummer - 1] : zelle;
}

QVariant Lastfallmodell::urteilsdaten(const Zeile& zeile, int spalte, int rolle) const {
    if (!zeile.urteil) return rolle == Qt::DisplayRole ? QVariant(QStringLiteral("–")) : QVariant();
    const Fallurteil& fall = *zeile.urteil;
    const bool gerechnet = fall.urteil.maxEta.has_value();
    const Balkenurteil art = !gerechnet || (!fall.luecken.empty() && fall.urteil.erfuellt())
                                 ? Balkenurteil::ohneNachweis
                             : fall.urteil.erfuellt() ? Balkenurteil::erfuellt
                                                      : Balkenurteil::ueberschritten;
    if (spalte == Ausnutzung) {
        if (rolle == Qt::DisplayRole)
            return gerechnet ? etatext(*fall.urteil.maxEta) : QStringLiteral("Hinweise");
        if (rolle == Ausnutzungszelle::Eta && gerechnet) return *fall.urteil.maxEta;
        if (rolle == Ausnutzungszelle::Urteil) return static_cast<int>(art);
        if (rolle == Qt::AccessibleTextRole && gerechnet)
            return QStringLiteral("%1, %2").arg(etatext(*fall.urteil.maxEta), urteilswort(art));
        return {};
    }
    if (rolle != Qt::DisplayRole && rolle != Qt::ToolTipRole) return {};
    if (!gerechnet) return qtext(fall.hinweise.front());
    QString text = qtext(fall.urteil.massgebend.value_or("ohne Beanspruchung"));
    if (rolle == Qt::ToolTipRole)
        for (const auto& [_, satz] : fall.luecken) text += QStringLiteral("\nLücke: ") + qtext(satz);
    return text;
}

QVariant Lastfallmodell::data(const QModelIndex& index, int rolle) const {
    if (!index.isValid()) return {};
    const Zeile& zeile = zeilen_[static_cast<std::size_t>(index.row())];
    if (rolle == Qt::FontRole && index.row() == massgebend_ && !istLast(index.column())) {
        QFont fett = QGuiApplication::font();
        fett.setWeight(QFont::DemiBold);
        return fett;
    }
    if (index.column() == Name)
        return rolle == Qt::DisplayRole || rolle == Qt::EditRole || rolle == Qt::ToolTipRole
                   ? QVariant(zeile.name)
                   : QVariant();
    if (!istLast(index.column())) return urteilsdaten(zeile, index.column(), rolle);
    const int last = index.column() - ersteLast;
    const auto i = static_cast<std::size_t>(last);
    const bool haken = lastspalte(index.column()).eingabe == Eingabe::haken;
    switch (rolle) {
        case Qt::DisplayRole:
            return haken ? QVariant() : QVariant(lasttext(zeile, last));
        case Qt::EditRole:
            return zeile.texte[i];
        case Qt::CheckStateRole:
            return haken ? QVariant(wert(zeile, last) == QStringLiteral("1") ? Qt::Checked : Qt::Unchecked)
                         : QVariant();
        case Qt::ForegroundRole:
            if (!zeile.einwaende[i].isEmpty())
                return urteilsfarben(QGuiApplication::palette()).ueberschritten;
            return zeile.texte[i].isEmpty() ? QVariant(QGuiApplication::palette().placeholderText())
                                            : QVariant();
        case Qt::ToolTipRole:
            if (!zeile.einwaende[i].isEmpty()) return zeile.einwaende[i];
            return zeile.texte[i].isEmpty() ? QStringLiteral("wie in der Position")
                                            : qtext(lastspalte(index.column()).tip);
        case Qt::TextAlignmentRole:
            return static_cast<int>(Qt::AlignVCenter |
                                    (auswahl(index.column()).isEmpty() ? Qt::AlignRight : Qt::AlignLeft));
        default:
            return {};
    }
}

bool Lastfallmodell::setData(const QModelIndex& index, const QVariant& wert, int rolle) {
    if (!index.isValid()) return false;
    Zeile& zeile = zeilen_[static_cast<std::size_t>(index.row())];
    QString neu = wert.toString().trimmed();
    if (rolle == Qt::CheckStateRole)
        neu = wert.toInt() == Qt::Checked ? QStringLiteral("1") : QStringLiteral("0");
    else if (rolle != Qt::EditRole)
        return false;
    QString& text = index.column() == Name
                        ? zeile.name
                        : zeile.texte[static_cast<std::size_t>(index.column() - ersteLast)];
    if (text == neu) return true;
    text = neu;
    rechne();
    Q_EMIT dataChanged(this->index(0, 0), this->index(rowCount() - 1, Spaltenzahl - 1));
    Q_EMIT gerechnet();
    return true;
}

QVariant Lastfallmodell::headerData(int spalte, Qt::Orientation richtung, int rolle) const {
    if (richtung != Qt::Horizontal) return rolle == Qt::DisplayRole ? QVariant(spalte + 1) : QVariant();
    if (rolle != Qt::DisplayRole && rolle != Qt::ToolTipRole) return {};
    if (istLast(spalte))
        return qtext(rolle == Qt::DisplayRole ? lastspalte(spalte).kopf : lastspalte(spalte).tip);
    if (spalte == Name) return QStringLiteral("Lastfall");
    return spalte == Ausnutzung ? QStringLiteral("Ausnutzung") : QStringLiteral("maßgebend");
}

Qt::ItemFlags Lastfallmodell::flags(const QModelIndex& index) const {
    Qt::ItemFlags merkmale = QAbstractTableModel::flags(index);
    if (!index.isValid() || index.column() >= Ausnutzung) return merkmale;
    if (istLast(index.column()) && lastspalte(index.column()).eingabe == Eingabe::haken)
        return merkmale | Qt::ItemIsUserCheckable;
    return merkmale | Qt::ItemIsEditable;
}

}  // namespace rippenscheibe
