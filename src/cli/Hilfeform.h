#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace rippenscheibe {

// The text of --help. CLI11 writes one of its own that changes from version to version; this one does not.
class Hilfeform : public CLI::FormatterBase {
  public:
    std::string make_help(const CLI::App* app, std::string aufruf, CLI::AppFormatMode art) const override;
};

}  // namespace rippenscheibe
