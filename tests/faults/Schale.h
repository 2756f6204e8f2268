#pragma once

// What the preloaded library and the test program agree on.

namespace rippenscheibe::inline tests {

// The kinds of fault beside the errno numbers.
inline constexpr int toetenDavor = -1;  // the process dies before the call
inline constexpr int toetenDabei = -2;  // it dies behind the call, of a write behind its half

}  // namespace rippenscheibe::inline tests

extern "C" {
// From now on the n-th call on a file below this folder fails; 0: none does.
void fehlerschale_beginne(const char* ordner, int n, int art);
int fehlerschale_gezaehlt();
}
