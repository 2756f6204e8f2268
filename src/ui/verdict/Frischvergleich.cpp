#include "ui/verdict/Frischvergleich.h"

#include <string>

#include "report/Bericht.h"
#include "report/Textausgabe.h"
#include "run/FrischerLauf.h"
#include "ui/basics/Programm.h"
#include "ui/verdict/Urteilsworte.h"

namespace rippenscheibe {

namespace {

// All that is shown or printed of a wall, in words.
std::string gedruckt(const Wand& w) {
    return alsText(fliesstext(bericht(w, Form::ansicht))) + alsText(fliesstext(bericht(w, Form::lang)));
}

// After so many runs of one wall in a row its passes have done what they do.
constexpr int meisteLaeufe = 5;

QString ursache(const Wand& w, const std::string& text) {
    for (int lauf = 2; lauf <= meisteLaeufe; ++lauf)
        if (gedruckt(frischerLauf(w, w.eigeneMaterialien, lauf).wand) == text)
            return QStringLiteral(
                       "Ein früherer Lauf wirkt nach: so rechnet auch der %1. Lauf derselben Wand.")
                .arg(lauf);
    return QStringLiteral("Ergebnisse wirken nach, die zuvor mit anderen Eingaben gerechnet wurden.");
}

}  // namespace

QString urteilssatz(const Wand& w, Laufergebnis ergebnis) {
    if (ergebnis == Laufergebnis::hinweise) return QStringLiteral("! ") + hinweiszahl(w.Hinweise.size());
    return nachweissatz(ueberschritteneNachweise(w));
}

QString massgebendsatz(const Wand& w, Laufergebnis ergebnis) {
    const Urteil u = urteil(w, ergebnis);
    if (!u.maxEta) return w.Hinweise.empty() ? QString() : qtext(w.Hinweise.front().text);
    if (!u.massgebend) return QStringLiteral("keine Beanspruchung");
    return QStringLiteral("maßgebend %1 · %2").arg(etatext(*u.maxEta), qtext(*u.massgebend));
}

std::optional<Frischvergleich> frischvergleich(const Wand& w) {
    const std::string text = gedruckt(w);
    const FrischeWand frisch = frischerLauf(w, w.eigeneMaterialien);
    if (frisch.ergebnis == Laufergebnis::gerechnet && gedruckt(frisch.wand) == text) return std::nullopt;
    return Frischvergleich{urteilssatz(frisch.wand, frisch.ergebnis) + QStringLiteral(", ") +
                               massgebendsatz(frisch.wand, frisch.ergebnis),
                           ursache(w, text)};
}

}  // namespace rippenscheibe
