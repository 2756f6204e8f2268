#include "files/Prozess.h"

#include <cstdlib>
#include <exception>
#include <new>
#include <string>

#include "basis/Utf8.h"
#include "files/Plattform.h"

namespace rippenscheibe {

namespace {

// Nothing here may ask for memory.
[[noreturn]] void endeOhneSpeicher() {
    constexpr int dateifehler = 3;
    plattform::schreibeFehlerausgabe("Der Arbeitsspeicher reicht nicht aus.\n");
    std::_Exit(dateifehler);
}

}  // namespace

void bereiteProzessVor() {
    plattform::bereiteProzessVor();
    std::set_new_handler(endeOhneSpeicher);
    // A library that allocates without `new` throws all the same.
    std::set_terminate([] {
        try {
            if (std::current_exception() != nullptr) std::rethrow_exception(std::current_exception());
        } catch (const std::bad_alloc&) {
            endeOhneSpeicher();
        } catch (...) {
            std::abort();
        }
        std::abort();
    });
}

void schreibe(std::FILE* strom, std::string_view text) {
    const std::string rein = plattform::istTerminal(strom) ? ohneSteuerzeichen(text) : std::string();
    if (!rein.empty()) text = rein;
    std::fwrite(text.data(), 1, text.size(), strom);
}

}  // namespace rippenscheibe
