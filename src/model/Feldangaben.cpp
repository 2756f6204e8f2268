#include "model/Feldangaben.h"

#include <array>
#include <charconv>

namespace rippenscheibe {

namespace {

// As few digits as the number needs: 0,2 and 100.
std::string kurz(double wert, char dezimalzeichen) {
    std::array<char, 32> puffer{};
    constexpr int stellen = 12;
    const auto ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert,
                                    std::chars_format::general, stellen);
    std::string text(puffer.data(), ende.ptr);
    if (const auto punkt = text.find('.'); punkt != std::string::npos) text[punkt] = dezimalzeichen;
    return text;
}

template <class Bedingung>
std::optional<Feldangabe> sucheEingabe(const Wand& w, const Bedingung& passt) {
    std::optional<Feldangabe> gefunden;
    jedeEingabe(w, [&](const Feldangabe& angabe, const auto& feld) {
        if (passt(angabe, static_cast<const void*>(&feld))) gefunden = angabe;
    });
    return gefunden;
}

}  // namespace

std::optional<Feldangabe> eingabeangabe(std::string_view name) {
    static const Wand w;
    return sucheEingabe(w, [&](const Feldangabe& angabe, const void*) { return angabe.name == name; });
}

std::optional<Feldangabe> eingabeangabe(const Wand& w, const void* feld) {
    return sucheEingabe(w, [&](const Feldangabe&, const void* ort) { return ort == feld; });
}

std::string_view ohneSeite(std::string_view name) {
    if (name.ends_with('1') || name.ends_with('2')) name.remove_suffix(1);
    return name;
}

Seite seiteAus(std::string_view name) { return name.ends_with('2') ? Seite::zwei : Seite::eins; }

std::string bereichstext(const Wertebereich& bereich, std::string_view einheit, char dezimalzeichen,
                         double teiler) {
    if (!bereich.begrenzt()) return "";
    std::string text = kurz(bereich.min / teiler, dezimalzeichen);
    const bool nachOben = bereich.max < Wertebereich{}.max;
    text = nachOben ? text + " bis " + kurz(bereich.max / teiler, dezimalzeichen) : "mindestens " + text;
    if (!einheit.empty()) text.append(" ").append(einheit);
    return text;
}

}  // namespace rippenscheibe
