// Put in front of each source of the calculation in the build that remembers: an `if` there keeps the
// comparisons of its condition as long as its branches run, so that a step knows exactly the conditions it
// stands under. Comparisons outside of an `if` (a choice by ?:, a truth value formed beforehand) belong to
// the next step. A condition has to be an expression, without a declaration in its brackets.
#pragma once

// What the calculation uses of the library must not see the word redefined.
#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <numeric>
#include <optional>
#include <ranges>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "basis/Zahl.h"
#include "trace/spur/Aufzeichnung.h"

namespace herleitung {

class Verzweigung {
  public:
    Verzweigung() {
        if (const Aufzeichnung* a = Aufzeichnung::aktive()) {
            offene_ = a->offene();
            geltende_ = a->geltende();
        }
    }
    ~Verzweigung() {
        if (Aufzeichnung* a = Aufzeichnung::aktive()) a->schliesse(geltende_);
    }
    Verzweigung(const Verzweigung&) = delete;
    Verzweigung& operator=(const Verzweigung&) = delete;

    bool gilt(bool bedingung) const {
        if (Aufzeichnung* a = Aufzeichnung::aktive()) a->gilt(offene_);
        return bedingung;
    }

  private:
    std::size_t offene_ = 0;
    std::size_t geltende_ = 0;
};

}  // namespace herleitung

// clang-format off
#define if(...) if (const ::herleitung::Verzweigung verzweigung_; verzweigung_.gilt(static_cast<bool>(__VA_ARGS__)))
// clang-format on
