#pragma once

#include <string>
#include <string_view>

// The character set of all text files: Windows-1252 outside, UTF-8 inside the program. A text with a
// character outside Windows-1252 makes its whole file UTF-8 with a byte order mark, so that nothing is
// replaced or lost.

namespace rippenscheibe {

// UTF-8 of the bytes of a file. A file that begins with a byte order mark is UTF-8 and comes back without
// the mark; a byte in it that is no UTF-8 reads as Windows-1252. The five bytes that Windows-1252 leaves
// unassigned read as the control characters of the same number.
std::string dekodiert(std::string_view bytes);

// The bytes of a file with this text. Bytes of the text that are no UTF-8 count as Windows-1252.
std::string kodiert(std::string_view text);

}  // namespace rippenscheibe
