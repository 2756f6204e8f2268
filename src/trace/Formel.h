#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "trace/Graph.h"

namespace rippenscheibe {

// How an expression is written on one line. Brackets stand where the order of the operations asks for them.
struct Schreibweise {
    std::string_view mal;
    std::string_view durch;
    std::string_view hoch;
    std::string_view wurzel;  // "sqrt", "√": its argument stands in brackets
    std::string_view betrag;
    std::string_view ganz;
    std::string_view trenner;  // between arguments
    // Every association is told by brackets, not only those that change the value on paper: reading it from
    // left to right repeats the run bit by bit.
    bool bitgenau = false;
    // A leaf: number, constant, value of a table or field.
    std::function<std::string(herleitung::Ort)> blatt;
};

std::string formel(const herleitung::Graph& graph, herleitung::Ort ausdruck, const Schreibweise& weise);

// Calls the routine for each leaf of the expression that is a field's stand or another value from outside
// the code, from left to right, each once.
void jederOperand(const herleitung::Graph& graph, herleitung::Ort ausdruck,
                  const std::function<void(herleitung::Ort)>& routine);

bool istBlatt(herleitung::Op op);

}  // namespace rippenscheibe
