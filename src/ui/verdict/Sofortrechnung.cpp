#include "ui/verdict/Sofortrechnung.h"

#include <algorithm>
#include <cmath>

#include "basis/Zahlenformat.h"
#include "run/FrischerLauf.h"
#include "run/Luecken.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

QStringList qtexte(const std::vector<std::string>& texte) {
    QStringList liste;
    for (const std::string& text : texte) liste << qtext(text);
    return liste;
}

Sofortergebnis lies(const Wand& w, Laufergebnis lauf) {
    Sofortergebnis ergebnis;
    ergebnis.hinweise = w.Hinweise;
    ergebnis.urteil = urteil(w, lauf);
    if (lauf == Laufergebnis::hinweise) return ergebnis;
    const auto werte = nachweiswerte(w);
    ergebnis.ueberschritten = static_cast<int>(
        std::count_if(werte.begin(), werte.end(), [](const Nachweiswert& wert) { return wert.eta > 1; }));
    ergebnis.abschnitte = abschnittsurteile(w);
    ergebnis.luecken = qtexte(lueckensaetze(w));
    return ergebnis;
}

// The two lines in one.
QString kurz(const Sofortergebnis& ergebnis) {
    const QString massgebend = massgebendtext(ergebnis.urteil);
    return urteilstext(ergebnis) + (massgebend.isEmpty() ? QString() : QStringLiteral(" · ") + massgebend);
}

}  // namespace

Sofortergebnis rechneSofort(const Wand& w, const Grundmasse& felder) {
    Wand jetzt = w;
    zuweisen(jetzt, felder);
    Wand frisch = jetzt;
    Sofortergebnis ergebnis = lies(jetzt, starte(jetzt));
    const Sofortergebnis neu = lies(frisch, rechneFrisch(frisch));
    if (kurz(ergebnis) != kurz(neu) || ergebnis.hinweise != neu.hinweise) ergebnis.frisch = kurz(neu);
    return ergebnis;
}

Sofortergebnis rechneFrischFuer(Wand& w, const Grundmasse& felder) {
    zuweisen(w, felder);
    return lies(w, rechneFrisch(w));
}

std::optional<Fallurteil> rechneLastfaelle(const Wand& w, const std::vector<Lastfallzeile>& faelle) {
    const auto urteile = fallurteile(w, w.eigeneMaterialien, faelle);
    const int massgebend = massgebenderFall(urteile);
    if (massgebend < 0) return std::nullopt;
    return urteile[static_cast<std::size_t>(massgebend)];
}

QString urteilstext(const Sofortergebnis& ergebnis) {
    const std::size_t hinweise = ergebnis.hinweise.size();
    if (!ergebnis.urteil.maxEta)
        return hinweise == 1 ? QStringLiteral("! 1 Hinweis, keine Berechnung")
                             : QStringLiteral("! %1 Hinweise, keine Berechnung").arg(hinweise);
    QString text = QStringLiteral("✓ Alle Nachweise erfüllt");
    if (ergebnis.ueberschritten > 0)
        text = ergebnis.ueberschritten == 1
                   ? QStringLiteral("✗ 1 Nachweis überschritten")
                   : QStringLiteral("✗ %1 Nachweise überschritten").arg(ergebnis.ueberschritten);
    if (!ergebnis.luecken.isEmpty())
        text += QStringLiteral(" · ! %1 nicht nachgewiesen").arg(ergebnis.luecken.size());
    return text;
}

QString massgebendtext(const Urteil& urteil) {
    if (!urteil.maxEta) return {};
    if (!urteil.massgebend) return QStringLiteral("ohne Beanspruchung");
    return QStringLiteral("maßgebend %1 · %2").arg(etatext(*urteil.maxEta), qtext(*urteil.massgebend));
}

QString etatext(double eta) {
    if (!std::isfinite(eta)) return QStringLiteral("∞");
    QString text;
    for (const char* maske : {"0.00", "0.000", "0.0000", "0.00000000"}) {
        text = qtext(formatiere(maske, eta, dezimalzeichen()));
        if (eta <= 1 || text != qtext(formatiere(maske, 1.0, dezimalzeichen()))) break;
    }
    return text;
}

}  // namespace rippenscheibe
