#include "cli/Hilfeform.h"

#include <vector>

namespace rippenscheibe {

namespace {

using Optionen = std::vector<const CLI::Option*>;

constexpr std::size_t ersteSpalte = 30;

// A name and, in the second column, what it means; a long name has a line of its own.
std::string zeile(const std::string& name, const std::string& erklaerung) {
    std::string text = "  " + name;
    if (text.size() >= ersteSpalte)
        text += '\n' + std::string(ersteSpalte, ' ');
    else
        text.resize(ersteSpalte, ' ');
    return text + erklaerung + '\n';
}

std::string abschnitt(const std::string& titel, const Optionen& optionen) {
    if (optionen.empty()) return {};
    std::string text = '\n' + titel + ":\n";
    for (const CLI::Option* option : optionen) {
        const bool mitNamen = option->nonpositional();
        std::string name = option->get_name(!mitNamen, mitNamen);
        if (!option->get_option_text().empty()) name += ' ' + option->get_option_text();
        text += zeile(name, option->get_description());
    }
    return text;
}

}  // namespace

std::string Hilfeform::make_help(const CLI::App* app, std::string aufruf, CLI::AppFormatMode) const {
    const Optionen angaben = app->get_options([](const CLI::Option* o) { return o->get_positional(); });
    const Optionen optionen = app->get_options([](const CLI::Option* o) { return o->nonpositional(); });
    const auto befehle = app->get_subcommands([](const CLI::App*) { return true; });

    std::string text = app->get_description() + "\nAufruf: " + aufruf + " [Optionen]";
    for (const CLI::Option* angabe : angaben)
        text += ' ' + angabe->get_name(true) + (angabe->get_expected_max() > 1 ? "..." : "");
    if (!befehle.empty()) text += " BEFEHL";
    text += '\n' + abschnitt("Angaben", angaben) + abschnitt("Optionen", optionen);
    if (!befehle.empty()) text += "\nBefehle:\n";
    for (const CLI::App* befehl : befehle) text += zeile(befehl->get_name(), befehl->get_description());
    text += '\n';
    if (!app->get_footer().empty()) text += app->get_footer() + '\n';
    return text;
}

}  // namespace rippenscheibe
