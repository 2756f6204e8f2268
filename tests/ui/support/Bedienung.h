#pragma once

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "model/Wand.h"
#include "ui/controls/Werteingabe.h"

// Hands for the window tests: they find controls by name, type, click, and answer modal windows.

namespace rippenscheibe {

// The control with this name; the test fails and ends when it is not there.
template <class T>
T& finde(QWidget& fenster, const char* name) {
    T* gefunden = fenster.findChild<T*>(QLatin1String(name));
    if (gefunden == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *gefunden;
}

inline Werteingabe& wert(QWidget& fenster, const char* name) { return finde<Werteingabe>(fenster, name); }

// Replaces the text of a field key by key, as a user does.
inline void tippe(QLineEdit& feld, const QString& text) {
    feld.setFocus();
    feld.selectAll();
    if (text.isEmpty()) QTest::keyClick(&feld, Qt::Key_Delete);
    QTest::keyClicks(&feld, text);
}

inline void tippe(QWidget& fenster, const char* name, const char* text) {
    tippe(wert(fenster, name), QString::fromUtf8(text));
}

// A caption as it is read, without the mark of its letter for the Alt key.
inline QString gelesen(QString text) { return text.remove(QLatin1Char('&')); }

inline void klicke(QWidget& fenster, const char* name) { finde<QAbstractButton>(fenster, name).click(); }

inline void waehle(QWidget& fenster, const char* name, int index) {
    finde<QComboBox>(fenster, name).setCurrentIndex(index);
}

// Runs `ausloesen`, which opens a modal window, and `bedienen` in that window; a window that is still open
// afterwards is closed. Returns whether a window opened.
inline bool mitFenster(const std::function<void()>& ausloesen,
                       const std::function<void(QWidget&)>& bedienen) {
    bool geoeffnet = false;
    QTimer::singleShot(0, qApp, [&] {
        QWidget* fenster = QApplication::activeModalWidget();
        if (fenster == nullptr) return;
        geoeffnet = true;
        bedienen(*fenster);
        if (fenster->isVisible()) fenster->close();
    });
    ausloesen();
    QCoreApplication::processEvents();
    return geoeffnet;
}

// Inputs and results of the record, a line each: the name and the value in all its digits.
inline std::vector<std::string> alleFelder(const Wand& w) {
    std::vector<std::string> zeilen;
    const auto besucher = [&](const Feldangabe& angabe, const auto& feld) {
        std::ostringstream zeile;
        zeile.precision(17);
        zeile << angabe.name;
        if constexpr (std::is_same_v<decltype(feld), const Rippenfeld&>)
            for (int i = 0; i < int(Rippenfeld::laenge); ++i) zeile << ' ' << feld(i).value();
        else if constexpr (requires { feld.value(); })
            zeile << ' ' << feld.value();
        else if constexpr (requires { zeile << feld; })
            zeile << ' ' << feld;
        else
            for (const auto& text : feld) zeile << '\n' << text;
        zeilen.push_back(zeile.str());
    };
    jedeEingabe(w, besucher);
    jedesErgebnis(w, besucher);
    return zeilen;
}

}  // namespace rippenscheibe
