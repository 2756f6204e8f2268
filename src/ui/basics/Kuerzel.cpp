#include "ui/basics/Kuerzel.h"

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>
#include <array>
#include <utility>
#include <vector>

namespace rippenscheibe {

namespace {

constexpr const char* ausgenommen = "ohneKuerzel";

// A caption with its mark, as a button or a label holds it.
struct Aufschrift {
    QAbstractButton* knopf = nullptr;
    QLabel* schild = nullptr;

    QString text() const { return knopf != nullptr ? knopf->text() : schild->text(); }
    void setze(const QString& text) const {
        if (schild != nullptr) return schild->setText(text);
        // A button has one key of its own, which the letter in its text takes.
        const QKeySequence taste = knopf->shortcut();
        knopf->setText(text);
        if (taste.isEmpty()) return;
        const auto* zweite = new QShortcut(taste, knopf);
        QObject::connect(zweite, &QShortcut::activated, knopf, [k = knopf] { k->animateClick(); });
    }
};

bool istAusgenommen(const QWidget& teil) {
    for (const QWidget* w = &teil; w != nullptr; w = w->parentWidget())
        if (w->property(ausgenommen).toBool() || qobject_cast<const QToolBar*>(w) != nullptr ||
            qobject_cast<const QCalendarWidget*>(w) != nullptr)
            return true;
    return false;
}

// Push buttons first, then labels of fields, then check boxes and options.
std::vector<Aufschrift> aufschriften(const QWidget& fenster) {
    std::vector<Aufschrift> knoepfe;
    std::vector<Aufschrift> schilder;
    std::vector<Aufschrift> haken;
    for (auto* knopf : fenster.findChildren<QAbstractButton*>()) {
        if (knopf->window() != &fenster || knopf->text().isEmpty() || istAusgenommen(*knopf)) continue;
        (knopf->isCheckable() ? haken : knoepfe).push_back({knopf, nullptr});
    }
    for (auto* schild : fenster.findChildren<QLabel*>()) {
        const bool beschriftet = schild->buddy() != nullptr && !schild->text().trimmed().isEmpty();
        if (beschriftet && schild->window() == &fenster && !istAusgenommen(*schild))
            schilder.push_back({nullptr, schild});
    }
    std::vector<Aufschrift> alle = std::move(knoepfe);
    alle.insert(alle.end(), schilder.begin(), schilder.end());
    alle.insert(alle.end(), haken.begin(), haken.end());
    return alle;
}

class Vergabe {
  public:
    void belege(const QString& text) {
        const int marke = stelleDerMarke(text);
        if (marke >= 0) ++benutzt_[platz(text[marke + 1])];
    }
    void vergib(const Aufschrift& aufschrift) {
        QString text = aufschrift.text();
        if (text.contains(QLatin1Char('&'))) return;
        const int stelle = besteStelle(text);
        if (stelle < 0) return;
        ++benutzt_[platz(text[stelle])];
        aufschrift.setze(text.insert(stelle, QLatin1Char('&')));
    }

  private:
    // Letters and digits that every keyboard has; 0 is any other character.
    static std::size_t platz(QChar zeichen) {
        const char16_t z = zeichen.toLower().unicode();
        if (z >= u'a' && z <= u'z') return static_cast<std::size_t>(z - u'a') + 1;
        if (z >= u'0' && z <= u'9') return static_cast<std::size_t>(z - u'0') + 27;
        return 0;
    }
    static int stelleDerMarke(const QString& text) {
        for (int i = 0; i + 1 < text.size(); ++i) {
            if (text[i] != QLatin1Char('&')) continue;
            if (text[i + 1] != QLatin1Char('&')) return i;
            ++i;
        }
        return -1;
    }
    // The least used character, the first of a word before all others.
    int besteStelle(const QString& text) const {
        int beste = -1;
        int bestes = 0;
        for (int i = 0; i < text.size(); ++i) {
            if (platz(text[i]) == 0) continue;
            const bool anfang = i == 0 || !text[i - 1].isLetterOrNumber();
            const int rang = 2 * benutzt_[platz(text[i])] + (anfang ? 0 : 1);
            if (beste >= 0 && rang >= bestes) continue;
            beste = i;
            bestes = rang;
        }
        return beste;
    }

    std::array<int, 37> benutzt_{};
};

}  // namespace

void vergibKuerzel(QWidget& fenster) {
    Vergabe vergabe;
    if (const auto* haupt = qobject_cast<const QMainWindow*>(&fenster))
        for (const QAction* menue : haupt->menuBar()->actions()) vergabe.belege(menue->text());
    const std::vector<Aufschrift> alle = aufschriften(fenster);
    for (const Aufschrift& aufschrift : alle) vergabe.belege(aufschrift.text());
    for (const Aufschrift& aufschrift : alle) vergabe.vergib(aufschrift);
}

void ohneKuerzel(QWidget& teil) { teil.setProperty(ausgenommen, true); }

}  // namespace rippenscheibe
