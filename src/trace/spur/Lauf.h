#pragma once

#include <string>
#include <vector>

#include "trace/Graph.h"

namespace herleitung {

// The record as plain values, in the order of the field index: it passes from the ordinary build of the
// calculation to the one that remembers, which share no type.
struct Wandinhalt {
    std::vector<double> zahlen;  // truth values as 0 and 1, arrays with all elements from 0, of a list of
                                 // texts the length
    std::vector<std::string> texte;
    struct Material {
        std::string name;
        std::vector<double> zellen;  // by column, from 0
    };
    std::vector<Material> materialien;
    double Wandlaenge = 0.0;  // the fields of the main window, m
    double Wandhoehe = 0.0;
    double Rippenabstand = 0.0;
};

// Zuweisen, run and result view of this record, taken down. The graph must be empty.
void laufeMitSpur(const Wandinhalt& inhalt, char dezimalzeichen, Graph& graph);

}  // namespace herleitung
