#pragma once

#include <memory>

#include "model/Wand.h"
#include "run/Zuweisen.h"
#include "trace/Graph.h"

namespace rippenscheibe {

// The derivation of every number of one run: zuweisen and the calculation run on a copy of the record as it
// stands before them, taken down step by step, with the result view behind them (numbers with this decimal
// mark). The record is not touched.
herleitung::Graph leiteHer(const Wand& vorDemLauf, const Grundmasse& felder, char dezimalzeichen = ',');

// The same, if it yields the very result view of the record after that run; otherwise nothing: what led there
// is not known any more.
std::unique_ptr<herleitung::Graph> leiteLaufHer(const Wand& vorDemLauf, const Grundmasse& felder,
                                                const Wand& nachDemLauf, char dezimalzeichen = ',');

}  // namespace rippenscheibe
