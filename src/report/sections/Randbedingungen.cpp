#include <array>

#include "report/sections/Abschnitte.h"

// Section 7: the boundary conditions of the simplified method (DIN 1052 (2008), 8.7).

namespace rippenscheibe {

namespace {

// A line as it breaks on paper, with the gap before it in mm.
struct Randbedingungszeile {
    double abstand;
    std::string_view text;
};

// clang-format off
// Meant: the first line lacks a blank.
constexpr std::array<Randbedingungszeile, 18> randbedingungszeilen{{
    {0, "Um die vereinfachten Nachweisverfahrenfür Wandtafeln nach DIN 1052(2008), welche die Grundlage dieses Programms "},
    {4, "darstellen, anwenden zu können, müssen folgende konstruktive Randbedingungen eingehalten werden:"},
    {6, "Die Randrippen dürfen nicht gestoßen sein, außer, die Stöße werden verformungsarm ausgeführt. Stöße gelten als verformungsarm,"},
    {4, "wenn die Tragfähigkeit des Stoßes größer als der 1,5-fache Wert der Beanspruchung ist."},
    {6, "Einzelne Öffnungen in der Beplankung dürfen bei der Berechnung der Beanspruchungen vernachlässigt werden, wenn sie kleiner"},
    {4, "als 200 x 200 mm sind. Ein kreisrundes Loch darf im Durchmesser nicht größer sein, als 280 mm . Die Summe der Länge bzw. "},
    {4, "Höhe von mehreren Öffnungen muss kleiner sein als 10% der Tafellänge bzw. -höhe. Sind größere Öffnungen vorhanden, so muss "},
    {4, "deren Auswirkung nachgewiesen werden."},
    {6, "Wenn Tafeln aus mehreren einzelnen Elementen zusammengesetzt werden, dann müssen die Elemente so verbunden werden, dass der "},
    {4, "Schubfluss sv,0,d der angrenzenden Plattenränder von Element zu Element übertragen werden kann. "},
    {6, "Die Fußrippe muss horizontal und vertikal gelagert sein!"},
    {6, "Die ein- oder zweiseitige Beplankung muss aus über die volle Tafelhöhe durchgehenden Platten bestehen. Diese dürfen auf vertikalen"},
    {4, "Rippen gestoßen werden. Die Mindestbreite der Platten lp beträgt h/4, also ein Viertel der Tafelhöhe."},
    {6, "Die Tragfähigkeiten von Wandbereichen mit Tür - oder Fensteröffnungen dürfen unter horizontaler Scheibenbeanspruchung vernachlässigt"},
    {4, "werden. Die ungestörten Bereiche sind als einzelne Tafeln zu betrachten und jede Tafel ist für sich zu verankern. Ist bei einer Gruppe"},
    {4, "von Wandtafelelementen eine durchgehende Kopf und Fußrippe vorhanden, so kann der Nachweis vereinfacht mit der Ersatzlänge l, "},
    {4, "die sich aus der Summe der Einzellängen der Tafelelemente ergibt, geführt werden. "},
    {6, "Bohrungen, Schlitze und Aussparungen in den Pfosten, Fuß- und Kopfrippen sind rechnerisch nachzuweisen."},
}};

// A sketch at x 17, the way down from it in mm and the limit of the page-break test behind it.
struct Detail {
    Bild bild;
    double breite;
    double hoehe;
    double weiter;
    double grenze;
};
constexpr std::array<Detail, 3> details{{
    {Bild::detail1, 103, 110, 115, 195},
    {Bild::detail2, 102,  70,  75, 210},
    {Bild::detail3,  80,  60,  65, 180},
}};
// clang-format on

constexpr auto nurTexte = [] {
    std::array<std::string_view, randbedingungszeilen.size()> texte{};
    for (std::size_t i = 0; i < texte.size(); ++i) texte[i] = randbedingungszeilen[i].text;
    return texte;
}();

}  // namespace

std::span<const std::string_view> randbedingungstexte() { return nurTexte; }

void randbedingungen(Berichtsbau& b) {
    b.h1("7. Randbedingungen", 0, 145);
    b.neu(Vorschub{6});
    for (const Detail& detail : details) {
        b.neu(Bildzeile{detail.bild, 17, 0, detail.breite, detail.hoehe});
        b.neu(Vorschub{detail.weiter});
        b.neu(Seitenpruefung{detail.grenze});
    }
    for (const Randbedingungszeile& zeile : randbedingungszeilen) {
        b.zeile(zeile.abstand, {zeile.text}, Stil::klein);
    }
    b.neu(Vorschub{7});
}

}  // namespace rippenscheibe
