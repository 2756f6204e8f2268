#pragma once

#include <span>
#include <string_view>

namespace rippenscheibe {

// Fastener kinds by their number in VMArten. Only a file can hold a number outside of them.
enum class Art {
    naegel = 1,
    sondernaegel,
    klammern,
    schrauben,
    schraubenMitZulassung,
    schnellbauschrauben,
    naegelDin18182,
    klammernDin18182,
};

constexpr bool istKlammer(Art a) { return a == Art::klammern || a == Art::klammernDin18182; }
constexpr bool istHolznagel(Art a) { return a == Art::naegel || a == Art::sondernaegel; }
constexpr bool istNagel(Art a) { return istHolznagel(a) || a == Art::naegelDin18182; }
constexpr bool istHolzschraube(Art a) { return a == Art::schrauben || a == Art::schraubenMitZulassung; }
constexpr bool istSchraube(Art a) { return istHolzschraube(a) || a == Art::schnellbauschrauben; }
// The kinds with a length of thread or grooves.
constexpr bool hatGewinde(Art a) { return a == Art::sondernaegel || istHolzschraube(a); }

std::span<const std::string_view> VMArten();  // 8

// The tensile strength fu,k (N/mm²) that choosing a kind brings; 0 for one that leaves it as it is.
double fukDerArt(Art a);

}  // namespace rippenscheibe
