#pragma once

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
#include <functional>
#include <string>

#include "model/Wand.h"
#include "ui/Werteingabe.h"

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

// A field of the record as text, so that two records can be compared field by field.
template <class T>
std::string feldtext(const Gespeichert<T>& feld) {
    return std::to_string(feld.value()) + "/" +
           QByteArray::number(double(feld.value()), 'g', 17).toStdString();
}
inline std::string feldtext(bool feld) { return feld ? "ja" : "nein"; }
inline std::string feldtext(const std::string& feld) { return feld; }
template <class Liste>
requires requires(const Liste& l) { l.begin()->size(); }
std::string feldtext(const Liste& liste) {
    std::string text;
    for (const auto& zeile : liste) text += std::string(zeile) + "\n";
    return text;
}
inline std::string feldtext(const Rippenfeld& feld) {
    std::string text;
    for (int i = 0; i < int(Rippenfeld::laenge); ++i)
        text += QByteArray::number(feld(i).value(), 'g', 17).toStdString() + " ";
    return text;
}

// Inputs and results by name.
inline std::vector<std::pair<std::string, std::string>> alleFelder(const Wand& w) {
    std::vector<std::pair<std::string, std::string>> felder;
    const auto besucher = [&](const Feldangabe& angabe, const auto& feld) {
        felder.emplace_back(std::string(angabe.name), feldtext(feld));
    };
    jedeEingabe(w, besucher);
    jedesErgebnis(w, besucher);
    return felder;
}

}  // namespace rippenscheibe
