#pragma once

#include <string>
#include <string_view>

namespace rippenscheibe {

// SHA-256 of these bytes (FIPS 180-4) as 64 hexadecimal digits.
std::string sha256(std::string_view bytes);

}  // namespace rippenscheibe
