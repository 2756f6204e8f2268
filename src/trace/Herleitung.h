#pragma once

#include "model/Wand.h"
#include "run/Zuweisen.h"
#include "trace/Graph.h"

namespace rippenscheibe {

// The derivation of every number of one run: zuweisen and the calculation run on a copy of the record as it
// stands before them, taken down step by step, with the result view behind them (numbers with this decimal
// mark). The record is not touched.
herleitung::Graph leiteHer(const Wand& vorDemLauf, const Grundmasse& felder, char dezimalzeichen = ',');

}  // namespace rippenscheibe
