#pragma once

class QWidget;

namespace rippenscheibe {

// Gives every button, check box, option and field label of a window that has none yet a letter for the Alt
// key, each letter once as long as there are enough of them. What is read stays the same. Buttons come
// first, so that those which many windows share have the same letter everywhere. Nothing is given to what
// lies in a part marked by `ohneKuerzel`, whose keys are told otherwise.
void vergibKuerzel(QWidget& fenster);
void ohneKuerzel(QWidget& teil);

}  // namespace rippenscheibe
