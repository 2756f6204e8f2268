#pragma once

#include <algorithm>
#include <string>

#include "study/Stapel.h"

namespace rippenscheibe::inline tests {

// A stream from and to memory; it hands out a few bytes at a time, so that lines are cut anywhere.
class Textstrom {
  public:
    explicit Textstrom(std::string eingabe, std::size_t haeppchen = 1000)
        : eingabe_(std::move(eingabe)), haeppchen_(haeppchen) {}
    Strom strom() {
        return {[this](char* puffer, std::size_t groesse) {
                    const std::size_t n = std::min({groesse, haeppchen_, eingabe_.size() - stelle_});
                    std::copy_n(eingabe_.data() + stelle_, n, puffer);
                    stelle_ += n;
                    return n;
                },
                [this](std::string_view text) {
                    ausgabe += text;
                    return true;
                }};
    }
    std::string ausgabe;

  private:
    std::string eingabe_;
    std::size_t haeppchen_;
    std::size_t stelle_ = 0;
};

}  // namespace rippenscheibe::inline tests
