#include "ui/basics/Kuerzel.h"

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>
#include <algorithm>
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

// Letters and digits that every keyboard has; 0 is any other character.
constexpr std::size_t plaetze = 37;
std::size_t platz(QChar zeichen) {
    const char16_t z = zeichen.toLower().unicode();
    if (z >= u'a' && z <= u'z') return static_cast<std::size_t>(z - u'a') + 1;
    if (z >= u'0' && z <= u'9') return static_cast<std::size_t>(z - u'0') + 27;
    return 0;
}

int stelleDerMarke(const QString& text) {
    for (int i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != QLatin1Char('&')) continue;
        if (text[i + 1] != QLatin1Char('&')) return i;
        ++i;
    }
    return -1;
}

// Where a text may be marked, the first of each word before all others.
std::vector<int> stellen(const QString& text) {
    std::vector<int> anfaenge;
    std::vector<int> uebrige;
    for (int i = 0; i < text.size(); ++i)
        if (platz(text[i]) != 0)
            (i == 0 || !text[i - 1].isLetterOrNumber() ? anfaenge : uebrige).push_back(i);
    anfaenge.insert(anfaenge.end(), uebrige.begin(), uebrige.end());
    return anfaenge;
}

// Gives each text a letter of its own, as long as there are enough of them: a text whose letters are all
// taken has another one move to a free letter, and that one perhaps a third (a matching in a bipartite
// graph, grown along augmenting paths).
class Vergabe {
  public:
    explicit Vergabe(std::vector<QString> texte) : texte_(std::move(texte)), stelle_(texte_.size(), -1) {}

    void belege(const QString& text) {
        const int marke = stelleDerMarke(text);
        if (marke >= 0) halter_[platz(text[marke + 1])] = vergeben;
    }
    // The place of the mark in each text, -1 for one without letters.
    const std::vector<int>& verteile() {
        for (int i = 0; i < static_cast<int>(texte_.size()); ++i) {
            std::array<bool, plaetze> gefragt{};
            if (!finde(i, gefragt)) teile(i);
        }
        return stelle_;
    }

  private:
    static constexpr int frei = -1;
    static constexpr int vergeben = -2;

    bool finde(int welcher, std::array<bool, plaetze>& gefragt) {
        const QString& text = texte_[static_cast<std::size_t>(welcher)];
        for (const int stelle : stellen(text)) {
            const std::size_t p = platz(text[stelle]);
            if (gefragt[p] || halter_[p] == vergeben) continue;
            gefragt[p] = true;
            if (halter_[p] != frei && !finde(halter_[p], gefragt)) continue;
            halter_[p] = welcher;
            stelle_[static_cast<std::size_t>(welcher)] = stelle;
            return true;
        }
        return false;
    }
    // No letter is left: the one that the fewest share so.
    void teile(int welcher) {
        const QString& text = texte_[static_cast<std::size_t>(welcher)];
        const std::vector<int> orte = stellen(text);
        if (orte.empty()) return;
        const auto geteilt = [&](int stelle) { return geteilt_[platz(text[stelle])]; };
        const int bester = *std::ranges::min_element(orte, {}, geteilt);
        ++geteilt_[platz(text[bester])];
        stelle_[static_cast<std::size_t>(welcher)] = bester;
    }

    std::vector<QString> texte_;
    std::vector<int> stelle_;
    std::array<int, plaetze> halter_ = [] {
        std::array<int, plaetze> leer{};
        leer.fill(frei);
        return leer;
    }();
    std::array<int, plaetze> geteilt_{};
};

}  // namespace

void vergibKuerzel(QWidget& fenster) {
    const std::vector<Aufschrift> alle = aufschriften(fenster);
    std::vector<Aufschrift> offene;
    std::vector<QString> texte;
    for (const Aufschrift& aufschrift : alle) {
        if (aufschrift.text().contains(QLatin1Char('&'))) continue;
        offene.push_back(aufschrift);
        texte.push_back(aufschrift.text());
    }
    Vergabe vergabe(texte);
    if (const auto* haupt = qobject_cast<const QMainWindow*>(&fenster))
        for (const QAction* menue : haupt->menuBar()->actions()) vergabe.belege(menue->text());
    for (const Aufschrift& aufschrift : alle) vergabe.belege(aufschrift.text());
    const std::vector<int>& marken = vergabe.verteile();
    for (std::size_t i = 0; i < offene.size(); ++i)
        if (marken[i] >= 0) offene[i].setze(texte[i].insert(marken[i], QLatin1Char('&')));
}

void ohneKuerzel(QWidget& teil) { teil.setProperty(ausgenommen, true); }

}  // namespace rippenscheibe
