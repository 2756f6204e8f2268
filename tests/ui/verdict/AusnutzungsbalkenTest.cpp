#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <limits>

#include "ui/basics/Farben.h"
#include "ui/verdict/Ausnutzungsbalken.h"

namespace rippenscheibe {
namespace {

// Black on white is 21 to 1. A colour changes only where it cannot be read, and no more than it must.
TEST(Farben, AColourIsStrengthenedUntilItCanBeRead) {
    EXPECT_NEAR(kontrast(Qt::black, Qt::white), 21.0, 1e-9);
    EXPECT_NEAR(kontrast(QColor(0x2E7D32), QColor(0xEFEFEF)), 4.459, 1e-3);
    QPalette hell(Qt::black, QColor(0xEFEFEF), Qt::white, Qt::black, Qt::gray, Qt::black, Qt::white,
                  Qt::white, QColor(0xEFEFEF));
    EXPECT_EQ(lesbar(QColor(0xB3261E), hell), QColor(0xB3261E));
    const QColor gruen = lesbar(QColor(0x2E7D32), hell);
    EXPECT_GT(kontrast(gruen, QColor(0xEFEFEF)), 4.5);
    EXPECT_GT(gruen.green(), 2 * gruen.red());
}

TEST(Ausnutzungsbalken, SaysInWordsWhatItsColourSays) {
    const double inf = std::numeric_limits<double>::infinity();
    struct Fall {
        Balkenwert wert;
        const char* gehoert;
    };
    Ausnutzungsbalken balken;
    balken.resize(240, 24);
    std::vector<QImage> bilder;
    for (const Fall& f :
         {Fall{{"5.1", "0,61", 0.61, Balkenurteil::erfuellt, {}}, "5.1: 0,61, erfüllt"},
          {{"5.1", "0,00", 0.0, Balkenurteil::erfuellt, {}}, "5.1: 0,00, erfüllt"},
          {{"5.1", "1,20", 1.2, Balkenurteil::ueberschritten, {}}, "5.1: 1,20, nicht erfüllt"},
          {{"5.1", "∞", inf, Balkenurteil::ueberschritten, {}}, "5.1: ∞, nicht erfüllt"},
          {{"5.1", "", 0.0, Balkenurteil::ohneBedarf, {}}, "5.1: keine Beanspruchung"},
          {{"5.1", "", 0.0, Balkenurteil::ohneNachweis, {}}, "5.1: nicht nachgewiesen"}}) {
        balken.setze(f.wert);
        EXPECT_EQ(balken.accessibleName(), QString::fromUtf8(f.gehoert));
        bilder.push_back(balken.grab().toImage());
        for (std::size_t i = 0; i + 1 < bilder.size(); ++i) EXPECT_NE(bilder[i], bilder.back()) << i;
    }
}

TEST(Ausnutzungsbalken, IsPressedByMouseAndSpace) {
    Ausnutzungsbalken balken;
    QSignalSpy gedrueckt(&balken, &QAbstractButton::clicked);
    balken.show();
    QTest::mouseClick(&balken, Qt::LeftButton);
    balken.setFocus();
    QTest::keyClick(&balken, Qt::Key_Space);
    EXPECT_EQ(gedrueckt.count(), 2);
}

}  // namespace
}  // namespace rippenscheibe
