#include "model/Platten.h"

#include <array>

namespace rippenscheibe {

namespace {

constexpr std::array<std::string_view, static_cast<std::size_t>(Platte::frei)> plattenmaterialien{
    "OSB/3",
    "OSB/4",
    "Gipskartonplatte GKB",
    "Gipskartonplatte GKBI",
    "Gipskartonplatte GKF",
    "Gipskartonplatte GKFI",
    "Fermacell Gipsfaserplatte",
    "Spanplatte P4",
    "Spanplatte P5",
    "Spanplatte P6",
    "Spanplatte P7",
    "Kronoply F****",
    "freies Material",
};

}  // namespace

std::span<const std::string_view> Plattenmaterialien() { return plattenmaterialien; }

}  // namespace rippenscheibe
