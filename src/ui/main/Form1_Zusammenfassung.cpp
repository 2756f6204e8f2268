#include "ui/main/Form1_Zusammenfassung.h"

#include <QStringList>

#include "basis/Zahlenformat.h"
#include "design/Verankerung.h"
#include "model/Kataloge.h"
#include "ui/basics/Programm.h"
#include "ui/drawings/Wandgeometrie.h"

namespace rippenscheibe {

namespace {

QString zahl(const char* maske, Zahl wert) {
    return wert.failed() ? QString() : qtext(formatiere(maske, wert.value(), dezimalzeichen()));
}

// Without places that are zero: 15 and 12,5.
QString knapp(Zahl wert) {
    const QString ganz = zahl("0", wert);
    return zahl("0.0", Int(wert)) == zahl("0.0", wert) ? ganz : zahl("0.0", wert);
}

QString name(std::span<const std::string_view> katalog, const Ganzzahl& index) {
    return qtext(eintrag(katalog, index.value()));
}

QString platte(const Wand& w, Seite n) {
    const std::string* eigenes =
        istEigenesMaterial(plattenmaterial(w, n)) ? w.eigeneMaterialien.name(w.EigenesMaterial[n]) : nullptr;
    const QString material = eigenes != nullptr ? qtext(*eigenes) : name(Plattenmaterialien(), w.Material[n]);
    return QStringLiteral("%1 %2 mm").arg(material, knapp(Plattendicke(w, n)));
}

QString mittel(const Wand& w, Seite n) {
    return QStringLiteral("%1 %2 x %3, av = %4 mm")
        .arg(name(VMArten(), w.VMArt[n]), durchmessertext(w.d[n].value(), dezimalzeichen()),
             laengentext(w.ln[n].value(), dezimalzeichen()), knapp(w.av[n]));
}

// "1: ...; 2: ..." when the sides differ.
template <class Text>
QString beideOderEine(const Wand& w, const Text& text) {
    QString erste = text(w, Seite::eins);
    const QString zweite = text(w, Seite::zwei);
    if (w.Einseitig || erste == zweite) return erste;
    return QStringLiteral("1: %1; 2: %2").arg(erste, zweite);
}

}  // namespace

QString zusammenfassungRippen(const Wand& w) {
    return QStringLiteral("b x h = %1 x %2 cm, %3, NKL %4")
        .arg(zahl("0.0", w.bRandrippe / 10), zahl("0.0", w.hRandrippe / 10), name(Holzarten(), w.Holzart))
        .arg(w.NKLRippen.value());
}

QString zusammenfassungBeplankung(const Wand& w) {
    return beideOderEine(w, platte) +
           (w.Einseitig ? QStringLiteral(", einseitig") : QStringLiteral(", zweiseitig"));
}

QString zusammenfassungVerbindungsmittel(const Wand& w) { return beideOderEine(w, mittel); }

QString zusammenfassungVerankerung(const Wand& w) {
    if (!w.NachweisVerankerung) return QStringLiteral("Nachweis der Verankerung wird nicht geführt");
    Wand lauf = w;  // Rd as a run would take it now
    ankertragfaehigkeit(lauf);
    QString anker = name(Ankernamen(), w.Ankertyp);
    if (w.Ankertyp == freierAnker)
        anker = qtext(w.FreierAnkerName);
    else
        anker = anker.section(QLatin1Char(' '), -1);  // the type alone
    return QStringLiteral("%1 x %2, Rd = %3 kN je Anker")
        .arg(w.AnzahlAnker.value())
        .arg(anker.isEmpty() ? QStringLiteral("freier Anker") : anker, zahl("0.00", lauf.RdAnker));
}

QString zusammenfassungBelastung(const Wand& w) {
    QStringList teile;
    const auto last = [&](const char* text, Zahl wert, const char* einheit) {
        if (wert != 0)
            teile << QStringLiteral("%1 = %2 %3").arg(qtext(text), zahl("0.00", wert), qtext(einheit));
    };
    last("Fv,k", w.Fvk, "kN");
    last("Fc,g,k", w.Fcgk, "kN");
    last("Fc,q,k", w.Fcqk, "kN");
    last("g,k", w.gk, "kN/m");
    last("q,k", w.qk, "kN/m");
    last("w,k", w.wk, "kN/m²");
    if (teile.isEmpty()) teile << QStringLiteral("keine Lasten");
    teile << QStringLiteral("KLED ") + name(KLEDNamen(), w.KLED);
    return teile.join(QStringLiteral(", "));
}

QString zusammenfassungBemessung(const Wand& w) {
    QString text = w.GenauesVerfahren == 1 ? QStringLiteral("vereinfachtes Verfahren nach 12.2 bis 12.8")
                                           : QStringLiteral("genaues Verfahren nach Anhang G.2.2");
    if (w.Erhoehung20) text += QStringLiteral(", Rd + 20 %");
    if (w.DeltaRd) text += QStringLiteral(", mit Einhängeeffekt");
    return text;
}

}  // namespace rippenscheibe
