#include "model/VMKatalog.h"

#include <array>

namespace rippenscheibe {

namespace {

// d, ln, dk in mm, single precision.
// clang-format off
constexpr std::array<VMKatalogzeile, 71> zeilen{{
    // from row 1: special nails
    {4.00F,  40.0F,  8.00F},
    {4.00F,  50.0F,  8.00F},
    {4.00F,  60.0F,  8.00F},
    {6.00F,  50.0F, 12.00F},
    {6.00F,  60.0F, 12.00F},
    {6.00F,  70.0F, 12.00F},
    // from row 7: staples
    {1.53F,  38.0F,  1.53F},
    {1.53F,  44.0F,  1.53F},
    {1.53F,  50.0F,  1.53F},
    {1.53F,  56.0F,  1.53F},
    {1.53F,  63.0F,  1.53F},
    {1.53F,  38.0F,  1.83F},  // Meant: the head of the thicker staple
    {1.83F,  44.0F,  1.83F},
    {1.83F,  50.0F,  1.83F},
    {1.83F,  56.0F,  1.83F},
    {1.83F,  63.0F,  1.83F},
    // from row 17: screws to DIN 7997
    {4.00F,  45.0F,  8.00F},
    {4.00F,  50.0F,  8.00F},
    {4.00F,  60.0F,  8.00F},
    {4.00F,  70.0F,  8.00F},
    {4.00F,  80.0F,  8.00F},
    {4.00F,  90.0F,  8.00F},
    {4.00F, 100.0F,  8.00F},
    {4.50F,  45.0F,  9.00F},
    {4.50F,  50.0F,  9.00F},
    {4.50F,  60.0F,  9.00F},
    {4.50F,  70.0F,  9.00F},
    {4.50F,  80.0F,  9.00F},
    {4.50F,  90.0F,  9.00F},
    {4.50F, 100.0F,  9.00F},
    {5.00F,  45.0F, 10.00F},
    {5.00F,  50.0F, 10.00F},
    {5.00F,  60.0F, 10.00F},
    {5.00F,  70.0F, 10.00F},
    {5.00F,  80.0F, 10.00F},
    {5.00F,  90.0F, 10.00F},
    {5.00F, 100.0F, 10.00F},
    // from row 38: screws with approval
    {4.00F,  45.0F,  8.00F},
    {4.00F,  50.0F,  8.00F},
    {4.00F,  60.0F,  6.00F},  // Meant: a smaller head than its neighbours
    {4.00F,  70.0F,  8.00F},
    {4.00F,  80.0F,  8.00F},
    {4.00F,  90.0F,  8.00F},
    {4.00F, 100.0F,  8.00F},
    {4.50F,  45.0F,  9.00F},
    {4.50F,  50.0F,  9.00F},
    {4.50F,  60.0F,  9.00F},
    {4.50F,  70.0F,  9.00F},
    {4.50F,  80.0F,  9.00F},
    {4.50F,  90.0F,  9.00F},
    {4.50F, 100.0F,  9.00F},
    {5.00F,  45.0F, 10.00F},
    {5.00F,  50.0F, 10.00F},
    {5.00F,  60.0F, 10.00F},
    {5.00F,  70.0F, 10.00F},
    {5.00F,  80.0F, 10.00F},
    {5.00F,  90.0F, 10.00F},
    {5.00F, 100.0F, 10.00F},
    // from row 59: drywall screws to DIN 18182-2
    {4.00F,  45.0F,  7.00F},
    {4.00F,  55.0F,  7.00F},
    {4.30F,  45.0F,  8.00F},
    {4.30F,  55.0F,  8.00F},
    {5.10F,  45.0F,  9.00F},
    {5.10F,  55.0F,  9.00F},
    {5.50F,  45.0F, 10.00F},
    {5.50F,  55.0F, 10.00F},
    // from row 67: staples to DIN 18182-2
    {1.20F,  32.0F,  1.20F},
    {1.20F,  38.0F,  1.20F},
    // from row 69: nails to DIN 18182-2
    {2.20F,  50.0F,  5.00F},
    {2.50F,  50.0F,  6.00F},
    {2.80F,  50.0F,  7.00F},
}};

constexpr std::string_view nichtFuerGips = "nicht für GKB, GKBI, GKF, GKFF";
constexpr std::string_view nurFuerGips = "nur für GKB, GKBI, GKF, GKFF";

constexpr std::array<VMKataloggruppe, 8> gruppen{{
    {"Nägel :",                          "Standardtypen gemäß Auswahlliste von  2,0x45 bis  8,0x280", "",            1,  0},
    {"Sondernägel :",                    nichtFuerGips, "",                                                         1,  6},
    {"Klammern :",                       nichtFuerGips, "",                                                         7, 16},
    {"Schrauben DIN 7997 :",             nichtFuerGips, "(auch in anderen Abmessungen möglich)",                   17, 37},
    {"Schrauben nach BAZ :",             nichtFuerGips, "(auch in anderen Abmessungen erhältlich)",                38, 58},
    {"Schnellbauschrauben DIN 18182-2 :", nurFuerGips,  "",                                                        59, 66},
    {"Klammern DIN 18182-2 :",           nurFuerGips,   "",                                                        67, 68},
    {"Nägel DIN 18182-2 :",              nurFuerGips,   "",                                                        69, 71},
}};
// clang-format on

static_assert(gruppen.back().letzteZeile == static_cast<int>(zeilen.size()));

}  // namespace

std::span<const VMKatalogzeile> VMKatalog() { return zeilen; }
std::span<const VMKataloggruppe> VMKataloggruppen() { return gruppen; }

}  // namespace rippenscheibe
