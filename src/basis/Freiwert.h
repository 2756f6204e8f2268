#pragma once

#include <string>
#include <variant>

namespace rippenscheibe {

// A value that keeps the kind it was written with: nothing, text, number or truth value.
using Freiwert = std::variant<std::monostate, std::string, double, bool>;

}  // namespace rippenscheibe
