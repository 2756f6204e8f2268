#pragma once

#include <string>
#include <utility>
#include <vector>

#include "study/Tafel.h"

// What stands on the page of a design table, from top to bottom. Rich text and paper show the same.

namespace rippenscheibe {

using Angaben = std::vector<std::pair<std::string, std::string>>;  // name and value

struct Tafelblatt {
    std::string titel;
    Angaben kopf;                                  // project, position, date
    std::vector<std::string> gegenstand;           // what is sought over what, and when a wall passes
    std::vector<std::vector<std::string>> zellen;  // the first row is the head
    std::vector<std::string> legende;              // the signs
    Angaben feste;                                 // all inputs of the calculation that no axis sets
    std::string vorbehalt;
};

Tafelblatt tafelblatt(const Tafelauftrag& auftrag, const Tafel& tafel);

// The page as rich text, A4.
std::string tafelRtf(const Tafelblatt& blatt);

}  // namespace rippenscheibe
