#include "ui/study/Tafelfarben.h"

#include <QStringList>
#include <array>

#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

// Hues that stay apart for every eye; a sign stands beside each.
constexpr std::array<QRgb, 10> farbtoene{0xFF0072B2, 0xFFD55E00, 0xFF009E73, 0xFFCC79A7, 0xFFE6B800,
                                         0xFF56B4E9, 0xFF7A6FB0, 0xFF9A6324, 0xFF7F8A94, 0xFF8DB600};

}  // namespace

QColor tafelfarbe(std::size_t stelle, const QPalette& palette) {
    constexpr double anteil = 0.32;
    const QColor ton = QColor::fromRgb(farbtoene[stelle % farbtoene.size()]);
    const QColor grund = palette.color(QPalette::Base);
    const auto kanal = [](int a, int b) { return static_cast<int>(a * anteil + b * (1 - anteil)); };
    return {kanal(ton.red(), grund.red()), kanal(ton.green(), grund.green()),
            kanal(ton.blue(), grund.blue())};
}

QString farblegende(const Tafel& tafel, const QPalette& palette) {
    const QString zwei = QStringLiteral("  ");  // between sign and meaning
    const std::size_t farbige = massgebende(tafel).size();
    QStringList zeilen;
    for (const QString& zeile : qtext(tafellegende(tafel)).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const auto stelle = static_cast<std::size_t>(zeilen.size());
        const QString grund = stelle < farbige ? QStringLiteral("background-color:%1;color:%2")
                                                     .arg(tafelfarbe(stelle, palette).name(),
                                                          palette.color(QPalette::Text).name())
                                               : QString();
        zeilen << QStringLiteral("<span style='%1'>&nbsp;%2&nbsp;</span>&nbsp;%3")
                      .arg(grund, zeile.section(zwei, 0, 0).toHtmlEscaped(),
                           zeile.section(zwei, 1).toHtmlEscaped());
    }
    return zeilen.join(QStringLiteral("<br>"));
}

}  // namespace rippenscheibe
