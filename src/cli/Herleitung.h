#pragma once

#include <span>
#include <string>
#include <vector>

#include "trace/Graph.h"

// The output of `herleite`.

namespace rippenscheibe {

// The first name that is no field of the record, "" when all are.
std::string unbekanntesFeld(std::span<const std::string> felder);

// Which steps are told: the last ones of these fields (of all when there is none), with all they rest on
// when `tief`.
struct Herleitungswahl {
    std::vector<std::string> felder;
    bool tief = false;
};

// One step a group of lines, in the order of the run.
std::string herleitungText(const herleitung::Graph& graph, const Herleitungswahl& wahl);
// One JSON object a step and line.
std::string herleitungJson(const herleitung::Graph& graph, const Herleitungswahl& wahl);

}  // namespace rippenscheibe
