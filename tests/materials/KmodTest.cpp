#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "materials/kmod.h"
#include "support/Walls.h"

namespace rippenscheibe {
namespace {

struct Fall {
    std::string name;
    Seite seite;
    int material, nkl, KLED;
    float kmod, rippen;
};

const std::vector<Fall> faelle{
    {"OSB, class 1, short", S1, 1, 1, 4, 0.9F, 0.9F},
    {"OSB, class 2, very short", S1, 2, 2, 5, 0.9F, 1.1F},
    {"gypsum board, class 2, permanent", S2, 6, 2, 1, 0.15F, 0.6F},
    {"gypsum fibre board, class 1, very short", S1, 7, 1, 5, 1.1F, 1.1F},
    {"chipboard, a third class counts as 2", S2, 8, 3, 2, 0.3F, 0.7F},
    {"F****, class 1, medium", S1, 12, 1, 3, 0.65F, 0.8F},
};

TEST(Modifikationsbeiwerte, FollowMaterialServiceClassAndLoadDuration) {
    for (const auto& fall : faelle) {
        SCOPED_TRACE(fall.name);
        Wand w;
        w.Material[fall.seite] = fall.material;
        w.NKLBeplankung[fall.seite] = fall.nkl;
        w.KLED = fall.KLED;
        modifikationsbeiwerte(w, fall.seite);
        EXPECT_EQ(w.kmod[fall.seite].value(), fall.kmod);
        EXPECT_EQ(w.kmodRippen.value(), fall.rippen);
        EXPECT_EQ(
            w.kmodVM[fall.seite].value(),
            static_cast<float>(std::sqrt(static_cast<double>(fall.rippen) * static_cast<double>(fall.kmod))));
    }
}

TEST(Modifikationsbeiwerte, ReadTheOwnMaterialInEveryRunAndKeepItsFactorWithoutARow) {
    Wand w;
    w.eigeneMaterialien.zeilen.resize(1);
    w.eigeneMaterialien.zeilen[0].zellen[15] = {0.75, false};
    w.eigeneMaterialien.zeilen[0].zellen[22] = {0.55, false};
    modifikationsbeiwerte(w, S1);
    EXPECT_EQ(w.kmodEigen[S1].value(), 0.75F);
    EXPECT_EQ(w.kmod[S1].value(), 0.9F) << "OSB is chosen";
    w.Material[S1] = 13;
    w.NKLBeplankung[S1] = 2;
    w.KLED = 5;
    modifikationsbeiwerte(w, S1);
    EXPECT_EQ(w.kmod[S1].value(), 0.55F);
    w.EigenesMaterial[S1] = 2;
    modifikationsbeiwerte(w, S1);
    EXPECT_EQ(w.kmod[S1].value(), 0.55F);
}

}  // namespace
}  // namespace rippenscheibe
