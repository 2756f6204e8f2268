#pragma once

#include <filesystem>

namespace rippenscheibe {

// The folder of the program's own files (settings, own materials, templates): that of the executable where
// it can be written and is no "bin" (portable use), else the user's data folder of the platform
// ($XDG_DATA_HOME or
// ~/.local/share, and there "rippenscheibe"). It need not exist. Empty when neither is known.
std::filesystem::path programmordner();

}  // namespace rippenscheibe
