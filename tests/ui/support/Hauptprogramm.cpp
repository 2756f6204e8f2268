#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <cstdio>

namespace {

// The offscreen platform says of every window that it has no size hints; everything else is passed on.
void meldeWesentliches(QtMsgType art, const QMessageLogContext& ort, const QString& text) {
    if (text.contains(QStringLiteral("propagateSizeHints"))) return;
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(art, ort, text)));
}

}  // namespace

// All window tests share one application. Numbers are shown with a comma, whatever the machine's locale.
// Under QT_QPA_PLATFORM=xcb they drive windows that one can look at, QT_QPA_PLATFORMTHEME chooses their
// desktop.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    qInstallMessageHandler(meldeWesentliches);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("rippenscheibe-test"));
    const int failed = RUN_ALL_TESTS();
    if (testing::UnitTest::GetInstance()->test_to_run_count() == 0) return 1;
    return failed;
}
