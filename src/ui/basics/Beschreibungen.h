#pragma once

class QWidget;

namespace rippenscheibe {

// Tells a screen reader what each control of a window does that says nothing of it so far, neither by a
// description nor by a tool tip: by its name, or by the group that it stands in.
void beschreibeBedienung(QWidget& fenster);

}  // namespace rippenscheibe
