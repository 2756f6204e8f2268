#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>

// All window tests share one application. Numbers are shown with a comma, whatever the machine's locale.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("rippenscheibe-test"));
    const int failed = RUN_ALL_TESTS();
    if (testing::UnitTest::GetInstance()->test_to_run_count() == 0) return 1;
    return failed;
}
