#pragma once

#include <filesystem>

#include "files/EigeneMaterialienDatei.h"

namespace rippenscheibe {

// Whether the delivered table is put where there is none yet, or only read.
enum class ErsteTabelle { ablegen, nurLesen };

// The table of the file; at the first start, when there is none, the one delivered with the program, which is
// put there then. A folder that takes no file does not matter. A file that cannot be read is left alone, and
// there are no materials then.
Gelesen<EigeneMaterialien> ladeEigeneMaterialien(const std::filesystem::path& datei,
                                                 ErsteTabelle erste = ErsteTabelle::ablegen);

}  // namespace rippenscheibe
