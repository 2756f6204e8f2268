#include "ui/verdict/Sofortrechnung.h"

#include "run/FrischerLauf.h"
#include "run/Luecken.h"
#include "ui/basics/Programm.h"
#include "ui/verdict/Urteilsworte.h"

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
    ergebnis.ueberschritten = ueberschritteneNachweise(w);
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
    if (!ergebnis.urteil.maxEta)
        return QStringLiteral("! %1, keine Berechnung").arg(hinweiszahl(ergebnis.hinweise.size()));
    QString text = nachweissatz(ergebnis.ueberschritten);
    if (!ergebnis.luecken.isEmpty())
        text += QStringLiteral(" · ! %1 nicht nachgewiesen").arg(ergebnis.luecken.size());
    return text;
}

QString massgebendtext(const Urteil& urteil) {
    if (!urteil.maxEta) return {};
    if (!urteil.massgebend) return QStringLiteral("ohne Beanspruchung");
    return QStringLiteral("maßgebend %1 · %2").arg(etatext(*urteil.maxEta), qtext(*urteil.massgebend));
}

}  // namespace rippenscheibe
