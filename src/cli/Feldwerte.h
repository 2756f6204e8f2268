#pragma once

#include <array>
#include <charconv>
#include <cstddef>
#include <string>
#include <string_view>

#include "model/Wand.h"

// The record's fields as JSON: numbers in the shortest form that reads back as the same double (single
// precision widened), arrays of ribs from rib 1 to the last, at most 200.

namespace rippenscheibe {

// How many elements of per-rib arrays and of the closing remarks are in use.
struct Umfang {
    int rippen = 0;
    std::size_t zusatzbemerkungen = 0;
};
Umfang umfang(const Wand& w);

// A text in quotes, escaped. Bytes that are no UTF-8 become the replacement character.
std::string jsonText(std::string_view text);

void anfuegeJson(std::string& json, double wert, const Umfang& umfang);
void anfuegeJson(std::string& json, bool wert, const Umfang& umfang);
void anfuegeJson(std::string& json, const std::string& wert, const Umfang& umfang);
void anfuegeJson(std::string& json, const Vorbemerkungszeilen& wert, const Umfang& umfang);
void anfuegeJson(std::string& json, const Texte& wert, const Umfang& umfang);
void anfuegeJson(std::string& json, const Rippenfeld& wert, const Umfang& umfang);
template <class T>
void anfuegeJson(std::string& json, Gespeichert<T> wert, const Umfang& umfang) {
    anfuegeJson(json, static_cast<double>(wert.value()), umfang);
}

// One line, closed by a line feed: file, findings, verdict, inputs and results. `gerechnet` false makes
// verdict and results null.
std::string jsonZeile(std::string_view datei, const Wand& w, bool gerechnet);

// The index of all fields: name, type, unit, default, meaning; as a table or as JSON.
std::string feldverzeichnisText();
std::string feldverzeichnisJson();

}  // namespace rippenscheibe
