#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// The three fields of the main window, all in m. They hold the full double that was assigned until
// the user edits them.
struct Grundmasse {
    double Wandlaenge = 5.0;
    double Wandhoehe = 2.5;
    double Rippenabstand = 0.625;
};

// The fields as the main window shows them for a record: Rippenabstand / 1000.
Grundmasse grundmasse(const Wand& w);

// Takes the three fields into the record (Rippenabstand x 1000), refreshes thicknesses and section
// values and forms the design loads. Runs on every edit, on every dialog accept, before saving and
// before a run.
void zuweisen(Wand& w, const Grundmasse& felder);

}  // namespace rippenscheibe
