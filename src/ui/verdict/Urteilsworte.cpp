#include "ui/verdict/Urteilsworte.h"

#include <cmath>
#include <string>

#include "basis/Zahlenformat.h"

namespace rippenscheibe {

QString nachweissatz(int ueberschritten) {
    if (ueberschritten == 0) return QStringLiteral("✓ Alle Nachweise erfüllt");
    return ueberschritten == 1 ? QStringLiteral("✗ 1 Nachweis überschritten")
                               : QStringLiteral("✗ %1 Nachweise überschritten").arg(ueberschritten);
}

QString hinweiszahl(std::size_t hinweise) {
    return hinweise == 1 ? QStringLiteral("1 Hinweis") : QStringLiteral("%1 Hinweise").arg(hinweise);
}

QString etatext(double eta, char zeichen) {
    if (!std::isfinite(eta)) return QStringLiteral("∞");
    constexpr int feinste = 16;  // decimals in which 1 and the next double differ
    for (int stellen = 2; stellen < feinste - 1; ++stellen) {
        const std::string maske = "0." + std::string(static_cast<std::size_t>(stellen), '0');
        std::string text = formatiere(maske, eta, zeichen);
        if (!(eta > 1) || text != formatiere(maske, 1, zeichen)) return qtext(text);
    }
    // More than the digits of a shown number.
    return QString::number(eta, 'f', feinste).replace(QLatin1Char('.'), QLatin1Char(zeichen));
}

}  // namespace rippenscheibe
