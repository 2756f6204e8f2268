#include "files/Plattform.h"

#include <utility>

// What is the same on every platform.

namespace rippenscheibe::plattform {

Sperre::Sperre(Sperre&& andere) noexcept
    : griff_(std::exchange(andere.griff_, -1)), datei_(std::move(andere.datei_)) {}

Sperre& Sperre::operator=(Sperre&& andere) noexcept {
    if (this == &andere) return *this;
    gibFrei();
    griff_ = std::exchange(andere.griff_, -1);
    datei_ = std::move(andere.datei_);
    return *this;
}

Sperre::~Sperre() { gibFrei(); }

}  // namespace rippenscheibe::plattform
